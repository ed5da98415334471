Option Explicit
' What a host learns of errors, and that it can go on after each.
Dim document, driver, rows, row
Set document = CreateObject("Quorvane.CRtfDoc")
Set driver = CreateObject("Quorvane.CRtfDriver")
Set rows = document.TableRows

Sub Tell(what)
  Dim number, description
  number = Err.Number
  description = Err.Description
  Err.Clear
  If number < 0 And number >= -2146828288 And number <= -2146762753 Then number = number + 2146828288
  WScript.Echo what & ": " & number & " " & description
End Sub

On Error Resume Next
rows.Remove 1
Tell "no such row"
rows.AddTail "key"
rows.AddTail "KEY"
Tell "key twice"
rows.AddTail 7
Tell "key of a wrong type"
rows(1).TableCells.SetUniformWidths
Tell "no cells"
rows(1).TableCells.AddTail
rows(1).TableCells(1).Width(0) = 300000
Tell "too wide"
document.LoadStyleSheetFromMemmory "{name: x"
Tell "braces"
driver.ParseFile ""
Tell "no path"
driver.ParseFile "Z:\no such file"
Tell "no file"
driver.LoadStyleSheetFromMemmory "{name: x"
Tell "braces again"
For Each row In rows
Next
If Err.Number <> 0 Then WScript.Echo "rows have no standard enumerator"
Err.Clear
document.ClearStructure
document.Changed = False
WScript.Echo "rows", document.TableRows.Count, "old rows", rows.Count
Set document = Nothing
rows.AddTail
Tell "no document"
Set document = CreateObject("Quorvane.CRtfDoc")
document.Commit WScript.Arguments(0)
Tell "committed"
