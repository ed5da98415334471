// A document of every part that a script can make.
function tried(action) {
    try {
        action();
    } catch (error) {
        return error;
    }
    return null;
}

function hex(number) {
    return (number < 0 ? number + 0x100000000 : number).toString(16).toUpperCase();
}

var document = new ActiveXObject("Quorvane.Document");
document.StyleSheet =
    "{ name: title; style-def: s; format: \\f0\\fs28\\b }" +
    "{ name: cell; style-def: s; format: \\f0\\fs18 }" +
    "{ name: strong; style-def: cs; format: \\b; additive: yes }";
document.Page = "a4-landscape";
document.SetMargins("2cm", "2cm");
document.PageNumberStart = 5;
document.Columns = [20, 50, "30%"];
document.Header = "Order 4711||{page}";
document.AddHeading(["Article", "Name", "Price"], "title");
var row = document.AddRow(["A-1", "Vase {blue} \\b", 12.5], "cell");
row.BackColor = "#f2f6fa";
row.Borders = "thin";
row.Keep = true;
var cell = row.Cells(3);
cell.Align = "right";
WScript.Echo(cell.Align, row.TopBorder, row.Index, cell.Index);
var paragraph = cell.AddParagraph("net ", "cell");
paragraph.AddText("of VAT", "strong");
paragraph.AddBold("!");
document.AddRows([["B-2", "Bowl"], ["C-3", "Cup"]]);
document.Rows(3).Cells(2).Span = 2;
document.Rows(4).Cells(1).Text = "C-4";
document.Rows(4).AddCell("9");
document.Rows.Insert(5).AddCell("Total").Span = 3;
WScript.Echo(document.Rows.Count, document.Rows(4).Cells.Count);
var found = "";
for (var rows = new Enumerator(document.Rows); !rows.atEnd(); rows.moveNext()) {
    found += rows.item().Cells.Count;
}
WScript.Echo(found);
WScript.Echo(document.Rows(1) === document.Rows(1) ? -1 : 0);

var error = tried(function () { document.Rows(9).Remove(); });
WScript.Echo(hex(error.number), "Quorvane.Document", error.message);
error = tried(function () { cell.Align = "center"; });
WScript.Echo(hex(error.number), error.message);
error = tried(function () {
    document.Render("; quorvane 2\n(doc\n(page=a44)\ndoc)");
});
WScript.Echo(hex(error.number), document.Diagnostics(1).Line, document.Diagnostics(1).Severity,
             document.Diagnostics(1).Identifier);
document.Save(WScript.Arguments(0));
WScript.Echo("done");
