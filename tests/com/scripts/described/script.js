// A description and its stylesheet, both files of this folder.
var folder = WScript.Arguments(1);
var driver = new ActiveXObject("Quorvane.CRtfDriver");
driver.ErroneousInput = true;
driver.StyleSheetFile = folder + "\\nosuch.txt";
WScript.Echo("[" + driver.StyleSheetFile + "]");
driver.StyleSheetFile = folder + "\\style.rtfss";
WScript.Echo(driver.StyleSheetFile.substr(folder.length + 1), vb(driver.RtfObject.StyleSheetOk));
driver.ParseFile(folder + "\\description.rtfspec");
var cell = driver.RtfObject.TableRows("1001").TableCells("2001");
WScript.Echo("paragraphs", cell.Paragraphs.Count, cell.Paragraphs("3002").Text);
driver.Commit(WScript.Arguments(0));
driver.ParseFromMemmory("(doc\n(r\nr)\n(r\nr)\ndoc)");
WScript.Echo("rows", driver.RtfObject.TableRows.Count, vb(driver.RtfObject.StyleSheetOk));
WScript.Echo("done");

// A truth as Visual Basic writes it.
function vb(truth) { return truth ? -1 : 0; }
