' A document of every part that a script can make.
Option Explicit
Dim document, row, cell, paragraph, found, part

Set document = CreateObject("Quorvane.Document")
document.StyleSheet = "{ name: title; style-def: s; format: \f0\fs28\b }" & _
    "{ name: cell; style-def: s; format: \f0\fs18 }" & _
    "{ name: strong; style-def: cs; format: \b; additive: yes }"
document.Page = "a4-landscape"
document.SetMargins "2cm", "2cm"
document.PageNumberStart = 5
document.Columns = Array(20, 50, "30%")
document.Header = "Order 4711||{page}"
document.AddHeading Array("Article", "Name", "Price"), "title"
Set row = document.AddRow(Array("A-1", "Vase {blue} \b", 12.5), "cell")
row.BackColor = "#f2f6fa"
row.Borders = "thin"
row.Keep = True
Set cell = row.Cells(3)
cell.Align = "right"
WScript.Echo cell.Align, row.TopBorder, row.Index, cell.Index
Set paragraph = cell.AddParagraph("net ", "cell")
paragraph.AddText "of VAT", "strong"
paragraph.AddBold "!"
document.AddRows Array(Array("B-2", "Bowl"), Array("C-3", "Cup"))
document.Rows(3).Cells(2).Span = 2
document.Rows(4).Cells(1).Text = "C-4"
document.Rows(4).AddCell "9"
document.Rows.Insert(5).AddCell("Total").Span = 3
WScript.Echo document.Rows.Count, document.Rows(4).Cells.Count
For Each part In document.Rows
    found = found & part.Cells.Count
Next
WScript.Echo found
WScript.Echo document.Rows(1) Is document.Rows(1)

On Error Resume Next
document.Rows(9).Remove
WScript.Echo Hex(Err.Number), Err.Source, Err.Description
Err.Clear
cell.Align = "center"
WScript.Echo Hex(Err.Number), Err.Description
Err.Clear
document.Render "; quorvane 2" & vbLf & "(doc" & vbLf & "(page=a44)" & vbLf & "doc)"
WScript.Echo Hex(Err.Number), document.Diagnostics(1).Line, document.Diagnostics(1).Severity, _
    document.Diagnostics(1).Identifier
Err.Clear
On Error GoTo 0
document.Save WScript.Arguments(0)
WScript.Echo "done"
