Option Explicit
' What a host learns of errors, and that it can go on after each.
Dim document, driver, rows, row
Set document = CreateObject("Quorvane.CRtfDoc")
Set driver = CreateObject("Quorvane.CRtfDriver")
Set rows = document.TableRows

Sub Report(what)
  Dim number, description
  number = Err.Number
  description = Err.Description
  Err.Clear
  If number < 0 And number >= -2146828288 And number <= -2146762753 Then number = number + 2146828288
  WScript.Echo what & ": " & number & " " & description
End Sub

On Error Resume Next
rows.Remove 1
Report "no such row"
rows.AddTail "key"
rows.AddTail "KEY"
Report "key twice"
rows.AddTail 7
Report "key of a wrong type"
rows(1).TableCells.SetUniformWidths
Report "no cells"
rows(1).TableCells.AddTail
rows(1).TableCells(1).Width(0) = 300000
Report "too wide"
document.LoadStyleSheetFromMemmory "{name: x"
Report "braces"
driver.ParseFile ""
Report "no path"
driver.ParseFile "Z:\no such file"
Report "no file"
driver.LoadStyleSheetFromMemmory "{name: x"
Report "braces again"
For Each row In rows
Next
If Err.Number <> 0 Then WScript.Echo "rows have no standard enumerator"
Err.Clear
document.ClearStructure
document.Changed = False
WScript.Echo "rows", document.TableRows.Count, "old rows", rows.Count
Set document = Nothing
rows.AddTail
Report "no document"
Set document = CreateObject("Quorvane.CRtfDoc")
document.Commit WScript.Arguments(0)
Report "committed"
