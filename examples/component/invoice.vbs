' Builds an invoice through the object model and a reminder from a description:
'
'     cscript //nologo invoice.vbs invoice.rtf [reminder.rtf]
'
' The script host must have as many bits as the component. On 64-bit Windows the
' 32-bit one is %SystemRoot%\SysWOW64\cscript.exe.
Option Explicit

' A script does not see the enumerations of the type library.
Const ePercent = 0
Const eNoDefault = 0
Const eRight = 3
Const eJustified = 4
Const eHair = 5
Const eNormal = 20
Const eThick = 30
Const eLightBlue = 19

If WScript.Arguments.Count = 0 Then
    WScript.Echo "usage: cscript //nologo invoice.vbs INVOICE [REMINDER]"
    WScript.Quit 2
End If

' An error in a procedure ends the procedure; Err holds the error here.
On Error Resume Next
MakeInvoice WScript.Arguments(0)
If Err.Number = 0 Then
    If WScript.Arguments.Count > 1 Then
        MakeReminder WScript.Arguments(1)
    Else
        MakeReminder ""
    End If
End If
If Err.Number <> 0 Then
    WScript.Echo ErrorText(Err.Number, Err.Source, Err.Description)
    WScript.Quit 1
End If

Sub MakeInvoice(path)
    Dim document, row, cell, items, item, amount, total
    Set document = CreateObject("Quorvane.CRtfDoc")
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
        amount = item(2) * item(3)
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
Sub MakeReminder(path)
    Dim driver, text
    Set driver = CreateObject("Quorvane.CRtfDriver")
    driver.LoadStyleSheetFromMemmory StyleSheet()
    driver.ErroneousInput = True
    ConnectEvents driver

    ' Without a parenthesis the description is faulty.
    text = Description()
    driver.ParseFromMemmory Replace(text, "Reminder)", "Reminder")
    WScript.Echo "rows built from the faulty description: " & driver.RtfObject.TableRows.Count

    TryToParse driver, "no-such-file.rtfspec"

    driver.ParseFromMemmory text
    WScript.Echo "rows built from the correct description: " & driver.RtfObject.TableRows.Count
    If path <> "" Then
        driver.Commit path
        CheckWritten path
    End If
End Sub

' Connects driver_notifyError. The script host of Wine cannot do this: it has
' neither WScript.ConnectObject nor the second argument of WScript.CreateObject.
Sub ConnectEvents(driver)
    On Error Resume Next
    WScript.ConnectObject driver, "driver_"
    If Err.Number <> 0 Then
        WScript.Echo "This script host does not connect events."
        Err.Clear
    End If
End Sub

' A script cannot read the error itself: it is in the error object of the
' thread, which VBScript does not read in an event.
Sub driver_notifyError(Sender)
    WScript.Echo "The driver reported an error in the description; rows so far: " & _
        Sender.RtfObject.TableRows.Count
End Sub

Sub TryToParse(driver, path)
    On Error Resume Next
    driver.ParseFile path
    If Err.Number <> 0 Then
        WScript.Echo ErrorText(Err.Number, Err.Source, Err.Description)
        Err.Clear
    End If
End Sub

Function AddRow(document)
    document.TableRows.AddTail
    Set AddRow = document.TableRows.PeekTail
End Function

' Adds a cell with one paragraph.
Function AddCell(row, text, style, align)
    Dim cell
    row.TableCells.AddTail
    Set cell = row.TableCells.PeekTail
    cell.Align = align
    AddParagraph cell, text, style
    Set AddCell = cell
End Function

Sub AddParagraph(cell, text, style)
    Dim paragraph
    cell.Paragraphs.AddTail
    Set paragraph = cell.Paragraphs.PeekTail
    paragraph.Text = text
    paragraph.Style = style
End Sub

' Adding a cell makes all cells of the row equally wide, so set the widths after
' adding the last one. The last cell takes the rest of the row.
Sub SetWidths(row, widths)
    Dim i
    For i = 0 To UBound(widths) - 1
        row.TableCells.Item(i + 1).Width(ePercent) = widths(i)
    Next
End Sub

' The text of a paragraph is RTF. These three characters must be escaped in
' plain text.
Function Escaped(text)
    Escaped = Replace(Replace(Replace(text, "\", "\\"), "{", "\{"), "}", "\}")
End Function

Function Money(pence)
    Money = CStr(pence \ 100) & "." & Right("0" & CStr(pence Mod 100), 2)
End Function

' Commit raises an error if it cannot replace a file, but not if it cannot write
' the new one.
Sub CheckWritten(path)
    If Not CreateObject("Scripting.FileSystemObject").FileExists(path) Then
        Err.Raise vbObjectError + 1000, "invoice.vbs", path & " was not written."
    End If
    WScript.Echo path & " was written."
End Sub

Function ErrorText(number, source, description)
    ErrorText = "error " & HResult(number) & " (" & Replace(source, vbCrLf, ", ") & "): " & _
        description
End Function

' Err.Number is the HRESULT of an error, but for a run-time error its lower 16 bits.
Function HResult(ByVal number)
    If number > 0 And number < 65536 Then
        number = &H800A0000 + number
    End If
    HResult = "0x" & Right("0000000" & Hex(number), 8)
End Function

Function Lines(all)
    Dim line
    For Each line In all
        Lines = Lines & line & vbCrLf
    Next
End Function

' Paragraph and character styles share numbers. The unused first style keeps
' "label", the only character style, from sharing the number of a style in use.
Function StyleSheet()
    StyleSheet = Lines(Array( _
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
        "{ name: sum; style-def: cell; format: light-yellow }"))
End Function

Function Description()
    Description = Lines(Array( _
        "(doc", _
        "(paper-width=11906)", _
        "(paper-height=16838)", _
        "(left-margin=1533)", _
        "(right-margin=1533)", _
        "(page-number-start=1)", _
        "(row", _
        "(row-bottom-border=thick)", _
        "(cell", _
        "(para", _
        "(para-text=Reminder)", _
        "(para-style=title)", _
        "para)", _
        "cell)", _
        "row)", _
        "(row", _
        "(cell", _
        "(para", _
        "(para-text=Our invoice of 2 April 2025 is still open.)", _
        "(para-style=note)", _
        "para)", _
        "cell)", _
        "row)", _
        "(row", _
        "(row-backcolor=light-yellow)", _
        "(cell", _
        "(cell-width=75)", _
        "(para", _
        "(para-text=<label=Invoice No.> 2025-0412)", _
        "(para-style=total)", _
        "para)", _
        "cell)", _
        "(cell", _
        "(cell-alignment=right)", _
        "(para", _
        "(para-text=212.50)", _
        "(para-style=total)", _
        "para)", _
        "cell)", _
        "row)", _
        "doc)"))
End Function
