' Makes an order form and a price list with Quorvane.Document:
'
'     cscript //nologo document.vbs order.rtf prices.rtf
'
' The script host must have as many bits as the component. On 64-bit Windows the
' 32-bit one is %SystemRoot%\SysWOW64\cscript.exe.
Option Explicit
Dim status

If WScript.Arguments.Count < 2 Then
    WScript.Echo "usage: document.vbs ORDER PRICES"
    WScript.Quit 2
End If
On Error Resume Next
MakeDocuments WScript.Arguments(0), WScript.Arguments(1)
If Err.Number <> 0 Then
    WScript.Echo ErrorText()
    status = 1
End If
WScript.Quit status

Sub MakeDocuments(orderPath, pricesPath)
    MakeOrder orderPath
    ShowWhatIsWrong
    MakePrices pricesPath
End Sub

Sub MakeOrder(path)
    Dim document, row, item
    Set document = CreateObject("Quorvane.Document")
    document.StyleSheet = StyleSheet()
    document.Columns = "15 45 15 25"
    document.Header = "Harbour Light Candles||Order 4711"
    document.Footer = "||{page} / {pages}"

    Set row = document.AddHeading(Array("No.", "Article", "Quantity", "Amount"), "column")
    row.BackColor = "#dce6f1"
    For Each item In Items()
        Set row = document.AddRow(item, "normal")
        row.BottomBorder = "hair"
        row.Cells(3).Align = "right"
        row.Cells(4).Align = "right"
    Next
    Set row = document.AddRow(Array("Total in pounds", "212.50"), "total")
    row.Cells(1).Span = 3
    row.Cells(2).Align = "right"

    document.Save path
    WScript.Echo path & " was written."
End Sub

' A description that is refused changes nothing, and its diagnostics say why.
Sub ShowWhatIsWrong()
    Dim document, diagnostic
    Set document = CreateObject("Quorvane.Document")
    On Error Resume Next
    document.Render Lines(Array("; quorvane 2", "(doc", "(page=a44)", "(row", "row)", "doc)"))
    WScript.Echo ErrorText()
    On Error GoTo 0
    For Each diagnostic In document.Diagnostics
        WScript.Echo "line " & diagnostic.Line & ": " & diagnostic.Severity & " " & _
            diagnostic.Identifier
    Next
End Sub

Sub MakePrices(path)
    Dim document
    Set document = CreateObject("Quorvane.Document")
    document.Table Lines(Array("Article,Price", "Pillar candle,4.80", "Tea lights,12.50")), _
        "Article:70%,Price:Price in pounds:30%", "Prices"
    document.Save path
    WScript.Echo path & " was written."
End Sub

Function ErrorText()
    ErrorText = "error 0x" & Hex(Err.Number) & " (" & Err.Source & "): " & Err.Description
End Function

Function Items()
    Items = Array( _
        Array("1101", "Pillar candle, ivory, 20 cm", 12, "57.60"), _
        Array("1108", "Tea lights {50 pieces}", 6, "75.00"), _
        Array("2040", "Storm lantern, brass", 2, "79.90"))
End Function

Function StyleSheet()
    StyleSheet = Lines(Array( _
        "{ name: normal; style-def: s; format: \f0\fs20\sb60\sa60 }", _
        "{ name: column; style-def: s; format: \f0\fs18\b\sb60\sa60 }", _
        "{ name: total; style-def: s; format: \f0\fs22\b\sb80\sa80 }"))
End Function

' A text with these lines.
Function Lines(all)
    Dim line
    For Each line In all
        Lines = Lines & line & vbLf
    Next
End Function
