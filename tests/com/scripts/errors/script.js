// What a host learns of errors, and that it can go on after each.
var document = new ActiveXObject("Quorvane.CRtfDoc");
var driver = new ActiveXObject("Quorvane.CRtfDriver");
var rows = document.TableRows;

function report(what, action) {
    var number = 0;
    var description = "";
    try {
        action();
    } catch (error) {
        number = error.number;
        description = error.description;
    }
    if (number >= -2146828288 && number <= -2146762753) number += 2146828288;
    WScript.Echo(what + ": " + number + " " + description);
}

report("no such row", function () { rows.Remove(1); });
rows.AddTail("key");
report("key twice", function () { rows.AddTail("KEY"); });
report("key of a wrong type", function () { rows.AddTail(7); });
report("no cells", function () { rows(1).TableCells.SetUniformWidths(); });
rows(1).TableCells.AddTail();
report("too wide", function () { rows(1).TableCells(1).Width(0) = 300000; });
report("braces", function () { document.LoadStyleSheetFromMemmory("{name: x"); });
report("no path", function () { driver.ParseFile(""); });
report("no file", function () { driver.ParseFile("Z:\\no such file"); });
report("braces again", function () { driver.LoadStyleSheetFromMemmory("{name: x"); });
try {
    new Enumerator(rows);
    WScript.Echo("a row");
} catch (error) {
    WScript.Echo("rows have no standard enumerator");
}
document.ClearStructure();
document.Changed = false;
WScript.Echo("rows", document.TableRows.Count, "old rows", rows.Count);
document = null;
CollectGarbage();
report("no document", function () { rows.AddTail(); });
document = new ActiveXObject("Quorvane.CRtfDoc");
report("committed", function () { document.Commit(WScript.Arguments(0)); });
