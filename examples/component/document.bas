Attribute VB_Name = "Documents"
' Makes an order form and a price list with Quorvane.Document.
'
' Import this file into the project of a document, and select "Quorvane 1.0:
' Rich Text Format documents made of one table" under Tools, References. Then
' enter in the Immediate window (Ctrl+G):
'
'     MakeForms "C:\Temp\order.rtf", "C:\Temp\prices.rtf"
'
' It needs Office 2010 or later. A 64-bit Office needs the 64-bit component, a
' 32-bit Office the 32-bit component.
'
' The tests do not run this example, because they have no Office.
Option Explicit

Public Sub MakeForms(ByVal orderPath As String, ByVal pricesPath As String)
    On Error GoTo Failed
    MakeOrder orderPath
    ShowWhatIsWrong
    MakePrices pricesPath
    Exit Sub
Failed:
    Debug.Print ErrorText()
End Sub

Private Sub MakeOrder(ByVal path As String)
    Dim form As New Quorvane.Document
    Dim row As Quorvane.DocumentRow
    Dim item As Variant
    form.StyleSheet = StyleSheet()
    form.Columns = "15 45 15 25"
    form.Header = "Harbour Light Candles||Order 4711"
    form.Footer = "||{page} / {pages}"

    Set row = form.AddHeading(Array("No.", "Article", "Quantity", "Amount"), "column")
    row.BackColor = "#dce6f1"
    For Each item In Items()
        Set row = form.AddRow(item, "normal")
        row.BottomBorder = "hair"
        row.Cells(3).Align = "right"
        row.Cells(4).Align = "right"
    Next
    Set row = form.AddRow(Array("Total in pounds", "212.50"), "total")
    row.Cells(1).Span = 3
    row.Cells(2).Align = "right"

    form.Save path
    Debug.Print path & " was written."
End Sub

' A description that is refused changes nothing, and its diagnostics say why.
Private Sub ShowWhatIsWrong()
    Dim form As New Quorvane.Document
    Dim diagnostic As Quorvane.DocumentDiagnostic
    On Error Resume Next
    form.Render Join(Array("; quorvane 2", "(doc", "(page=a44)", "(row", "row)", "doc)"), vbLf)
    Debug.Print ErrorText()
    On Error GoTo 0
    For Each diagnostic In form.Diagnostics
        Debug.Print "line " & diagnostic.Line & ": " & diagnostic.Severity & " " & _
            diagnostic.Identifier
    Next
End Sub

' In Excel, Range("A1:B3").Value can take the place of the text.
Private Sub MakePrices(ByVal path As String)
    Dim form As New Quorvane.Document
    form.Table Join(Array("Article,Price", "Pillar candle,4.80", "Tea lights,12.50"), vbLf), _
        "Article:70%,Price:Price in pounds:30%", "Prices"
    form.Save path
    Debug.Print path & " was written."
End Sub

Private Function ErrorText() As String
    ErrorText = "error 0x" & Hex(Err.Number) & " (" & Err.Source & "): " & Err.Description
End Function

Private Function Items() As Variant
    Items = Array( _
        Array("1101", "Pillar candle, ivory, 20 cm", 12, "57.60"), _
        Array("1108", "Tea lights {50 pieces}", 6, "75.00"), _
        Array("2040", "Storm lantern, brass", 2, "79.90"))
End Function

Private Function StyleSheet() As String
    StyleSheet = Join(Array( _
        "{ name: normal; style-def: s; format: \f0\fs20\sb60\sa60 }", _
        "{ name: column; style-def: s; format: \f0\fs18\b\sb60\sa60 }", _
        "{ name: total; style-def: s; format: \f0\fs22\b\sb80\sa80 }"), vbLf)
End Function
