// A document built by hand: cells with the styles of a sheet, one with a color of its own.
var styles = "{name:dark;style-def:cell;format:navy-blue}{name:slate;style-def:cell;format:Slate-Blue}" +
             "{name:sky;style-def:cell;format:sky-blue}{name:nil;style-def:cell;format:none}" +
             "{name:odd;style-def:cell;format:crimson}{name:brick;style-def:cell;format:^vred-^fbrick}";

var document = new ActiveXObject("Quorvane.CRtfDoc");
document.LoadStyleSheetFromMemmory(styles);
WScript.Echo("styles", vb(document.StyleSheetOk), document.getCellStyleBackColor("dark"));

document.TableRows.AddTail("only");
var row = document.TableRows("only");
var names = ["dark", "slate", "sky", "nil", "odd", "nosuch", "brick"];
for (var i = 0; i < names.length; ++i) {
    row.TableCells.AddTail(names[i]);
    var cell = row.TableCells(names[i]);
    cell.Style = names[i];
    cell.Paragraphs.AddTail();
    cell.Paragraphs(1).Text = names[i];
}
row.TableCells.AddTail();
var last = row.TableCells.PeekTail();
last.BackColor = 34;
last.Paragraphs.AddTail();
last.Paragraphs.PeekTail().Text = "own colour";

var line = "cells";
for (var cells = new Enumerator(row.TableCells); !cells.atEnd(); cells.moveNext()) {
    for (var all = new Enumerator(cells.item().Paragraphs); !all.atEnd(); all.moveNext()) {
        line += " [" + all.item().Text + " " + cells.item().Width(0) + "]";
    }
}
WScript.Echo(line);
WScript.Echo("changed", vb(document.Changed));
document.Commit(WScript.Arguments(0));
WScript.Echo("changed", vb(document.Changed));
WScript.Echo("dark is", row.TableCells(1).BackColor, row.TableCells(1).Paragraphs(1).ForeColor);
WScript.Echo("same", vb(row.TableCells(1).Parent === row), vb(row.Parent === document));
WScript.Echo("done");

// A truth as Visual Basic writes it.
function vb(truth) { return truth ? -1 : 0; }
