Option Explicit
' A description and its stylesheet, both files of this folder.
Dim driver, folder, cell
folder = WScript.Arguments(1)
Set driver = CreateObject("Quorvane.CRtfDriver")
driver.ErroneousInput = True
driver.StyleSheetFile = folder & "\nosuch.txt"
WScript.Echo "[" & driver.StyleSheetFile & "]"
driver.StyleSheetFile = folder & "\style.rtfss"
WScript.Echo Mid(driver.StyleSheetFile, Len(folder) + 2), driver.RtfObject.StyleSheetOk
driver.ParseFile folder & "\description.rtfspec"
Set cell = driver.RtfObject.TableRows("1001").TableCells("2001")
WScript.Echo "paragraphs", cell.Paragraphs.Count, cell.Paragraphs("3002").Text
driver.Commit WScript.Arguments(0)
driver.ParseFromMemmory "(doc" & vbLf & "(r" & vbLf & "r)" & vbLf & "(r" & vbLf & "r)" & vbLf & "doc)"
WScript.Echo "rows", driver.RtfObject.TableRows.Count, driver.RtfObject.StyleSheetOk
WScript.Echo "done"
