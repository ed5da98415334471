Attribute VB_Name = "Invoice"
' Builds an invoice through the object model and a reminder from a description.
'
' Import this file and DriverErrors.cls into the project of a document, and
' select "Quorvane 1.0: Rich Text Format documents made of one table" under
' Tools, References. Then enter in the Immediate window (Ctrl+G):
'
'     MakeDocuments "C:\Temp\invoice.rtf", "C:\Temp\reminder.rtf"
'
' It needs Office 2010 or later. A 64-bit Office needs the 64-bit component, a
' 32-bit Office the 32-bit component.
'
' The tests do not run this example, because they have no Office.
Option Explicit

Public Sub MakeDocuments(ByVal invoicePath As String, Optional ByVal reminderPath As String = "")
    On Error GoTo Failed
    MakeInvoice invoicePath
    MakeReminder reminderPath
    Exit Sub
Failed:
    Debug.Print ErrorText(Err.Number, Err.Source, Err.Description)
End Sub

Private Sub MakeInvoice(ByVal path As String)
    Dim document As Quorvane.CRtfDoc
    Dim row As Quorvane.CRtfTableRow
    Dim cell As Quorvane.CRtfTableCell
    Dim items As Variant
    Dim item As Variant
    Dim amount As Long
    Dim total As Long
    Set document = New Quorvane.CRtfDoc
    document.PageWidth = 11906
    document.PageHeight = 16838
    document.LeftMargin = 1533
    document.RightMargin = 1533
    document.PageNumberStart = 1
    document.LoadStyleSheetFromMemmory StyleSheet()

    Set row = AddRow(document)
    AddCell row, "Harbour Light Candles", "title", eNoDefault
    Set cell = AddCell(row, "<label=Invoice No.> 2025-0412", "facts", eRight)
    AddParagraph cell, "<label=Date> 2 April 2025", "facts"
    SetWidths row, Array(60, 40)
    row.BottomBorder = eThick

    ' The key finds the row again. \'e9 is an e with an acute accent, as RTF
    ' writes it.
    document.TableRows.AddTail "address"
    Set row = document.TableRows.Item("address")
    Set cell = AddCell(row, "Mr Andr\'e9 Lindqvist", "receiver", eNoDefault)
    AddParagraph cell, "Mill Road 8", "address"
    AddParagraph cell, "Castleton CT4 6QW", "address"

    Set row = AddRow(document)
    AddCell row, "We have delivered to you:", "note", eNoDefault

    Set row = AddRow(document)
    AddCell row, "No.", "column", eNoDefault
    AddCell row, "Article", "column", eNoDefault
    AddCell row, "Quantity", "column", eRight
    AddCell row, "Price", "column", eRight
    AddCell row, "Amount", "column", eRight
    SetWidths row, Array(12, 42, 14, 14, 18)
    row.BackColor = eLightBlue
    row.TopBorder = eNormal
    row.BottomBorder = eNormal

    items = Array( _
        Array("1101", "Pillar candle, ivory, 20 cm", 12, 480), _
        Array("1108", "Tea lights {50 pieces}", 6, 1250), _
        Array("2040", "Storm lantern, brass", 2, 3995))
    total = 0
    For Each item In items
        amount = CLng(item(2)) * CLng(item(3))
        total = total + amount
        Set row = AddRow(document)
        Set cell = AddCell(row, Escaped(item(0)), "normal", eNoDefault)
        ' A marked field: the accounting program finds the item number here, and
        ' word processors do not show it.
        cell.asMarkedField "item " & item(0)
        AddCell row, Escaped(item(1)), "normal", eNoDefault
        AddCell row, CStr(item(2)), "normal", eRight
        AddCell row, Money(item(3)), "normal", eRight
        AddCell row, Money(amount), "normal", eRight
        SetWidths row, Array(12, 42, 14, 14, 18)
        row.BottomBorder = eHair
    Next

    Set row = AddRow(document)
    row.TableCells.AddTail
    Set cell = AddCell(row, "Total in pounds", "total", eNoDefault)
    cell.Style = "sum"
    cell.BottomBorder = eThick
    Set cell = AddCell(row, Money(total), "total", eRight)
    cell.Style = "sum"
    cell.BottomBorder = eThick
    SetWidths row, Array(54, 28, 18)

    Set row = AddRow(document)
    AddCell row, "Please pay the total by 2 May 2025 to account 12345678 at Castleton Bank " & _
        "and quote the number of the invoice. The goods remain our property until they are paid for.", _
        "note", eJustified

    document.Commit path
    CheckWritten path
End Sub

' The driver builds a document from a description. It reports errors in the
' description through its event, and raises errors of the call itself.
Private Sub MakeReminder(ByVal path As String)
    Dim driver As Quorvane.CRtfDriver
    Dim errors As DriverErrors
    Dim text As String
    Set driver = New Quorvane.CRtfDriver
    driver.LoadStyleSheetFromMemmory StyleSheet()
    driver.ErroneousInput = True
    ' Only a class module can receive events.
    Set errors = New DriverErrors
    errors.Connect driver

    ' Without a parenthesis the description is faulty.
    text = Description()
    driver.ParseFromMemmory Replace(text, "Reminder)", "Reminder")
    Debug.Print "rows built from the faulty description: " & driver.RtfObject.TableRows.Count

    TryToParse driver, "no-such-file.rtfspec"

    driver.ParseFromMemmory text
    Debug.Print "rows built from the correct description: " & driver.RtfObject.TableRows.Count
    errors.Disconnect
    If path <> "" Then
        driver.Commit path
        CheckWritten path
    End If
End Sub

Private Sub TryToParse(ByVal driver As Quorvane.CRtfDriver, ByVal path As String)
    On Error Resume Next
    driver.ParseFile path
    If Err.Number <> 0 Then
        Debug.Print ErrorText(Err.Number, Err.Source, Err.Description)
    End If
End Sub

Private Function AddRow(ByVal document As Quorvane.CRtfDoc) As Quorvane.CRtfTableRow
    document.TableRows.AddTail
    Set AddRow = document.TableRows.PeekTail
End Function

' Adds a cell with one paragraph.
Private Function AddCell(ByVal row As Quorvane.CRtfTableRow, ByVal text As String, _
        ByVal style As String, ByVal align As Quorvane.tCellAlign) As Quorvane.CRtfTableCell
    Dim cell As Quorvane.CRtfTableCell
    row.TableCells.AddTail
    Set cell = row.TableCells.PeekTail
    cell.Align = align
    AddParagraph cell, text, style
    Set AddCell = cell
End Function

Private Sub AddParagraph(ByVal cell As Quorvane.CRtfTableCell, ByVal text As String, _
        ByVal style As String)
    Dim paragraph As Quorvane.CRtfParagraph
    cell.Paragraphs.AddTail
    Set paragraph = cell.Paragraphs.PeekTail
    paragraph.Text = text
    paragraph.Style = style
End Sub

' Adding a cell makes all cells of the row equally wide, so set the widths after
' adding the last one. The last cell takes the rest of the row.
Private Sub SetWidths(ByVal row As Quorvane.CRtfTableRow, ByVal widths As Variant)
    Dim i As Long
    For i = 0 To UBound(widths) - 1
        row.TableCells.Item(i + 1).Width(ePercent) = widths(i)
    Next
End Sub

' The text of a paragraph is RTF. These three characters must be escaped in
' plain text.
Private Function Escaped(ByVal text As String) As String
    Escaped = Replace(Replace(Replace(text, "\", "\\"), "{", "\{"), "}", "\}")
End Function

Private Function Money(ByVal pence As Long) As String
    Money = CStr(pence \ 100) & "." & Right("0" & CStr(pence Mod 100), 2)
End Function

' Commit raises an error if it cannot replace a file, but not if it cannot write
' the new one.
Private Sub CheckWritten(ByVal path As String)
    If Dir(path) = "" Then
        Err.Raise vbObjectError + 1000, "Invoice", path & " was not written."
    End If
    Debug.Print path & " was written."
End Sub

Public Function ErrorText(ByVal number As Long, ByVal source As String, _
        ByVal description As String) As String
    ErrorText = "error " & HResult(number) & " (" & Replace(source, vbCrLf, ", ") & "): " & _
        description
End Function

' Err.Number is the HRESULT of an error, but for a run-time error its lower 16 bits.
Private Function HResult(ByVal number As Long) As String
    If number > 0 And number < 65536 Then
        number = &H800A0000 + number
    End If
    HResult = "0x" & Right("0000000" & Hex(number), 8)
End Function

' Paragraph and character styles share numbers. The unused first style keeps
' "label", the only character style, from sharing the number of a style in use.
Private Function StyleSheet() As String
    StyleSheet = Join(Array( _
        "{ name: reserved; style-def: s; format: \f0\fs20\cf3 }", _
        "{ name: normal; style-def: s; format: \f0\fs20\cf3\sb60\sa60 }", _
        "{ name: title; style-def: s; format: \f9\fs44\cf24\sa120 }", _
        "{ name: facts; style-def: s; format: \f0\fs20\cf3\sb60 }", _
        "{ name: receiver; style-def: s; format: \f0\fs22\cf3\sb700 }", _
        "{ name: address; style-def: s; format: \f0\fs22\cf3 }", _
        "{ name: column; style-def: s; format: \f0\fs18\b\cf24\sb60\sa60 }", _
        "{ name: total; style-def: s; format: \f0\fs22\b\cf24\sb80\sa80 }", _
        "{ name: note; style-def: s; format: \f0\fs20\cf3\sb600\sa160 }", _
        "{ name: label; style-def: cs; format: \cf9 }", _
        "{ name: sum; style-def: cell; format: light-yellow }"), vbCrLf)
End Function

' A statement can have at most 25 lines.
Private Function Description() As String
    Description = Join(Array( _
        "(doc", "(paper-width=11906)", "(paper-height=16838)", _
        "(left-margin=1533)", "(right-margin=1533)", "(page-number-start=1)", _
        "(row", "(row-bottom-border=thick)", "(cell", "(para", _
        "(para-text=Reminder)", "(para-style=title)", _
        "para)", "cell)", "row)", _
        "(row", "(cell", "(para", _
        "(para-text=Our invoice of 2 April 2025 is still open.)", "(para-style=note)", _
        "para)", "cell)", "row)", _
        "(row", "(row-backcolor=light-yellow)", "(cell", "(cell-width=75)", "(para", _
        "(para-text=<label=Invoice No.> 2025-0412)", "(para-style=total)", _
        "para)", "cell)", "(cell", "(cell-alignment=right)", "(para", _
        "(para-text=212.50)", "(para-style=total)", _
        "para)", "cell)", "row)", "doc)"), vbCrLf)
End Function
