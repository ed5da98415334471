// Makes an order form and a price list with Quorvane.Document:
//
//     cscript //nologo document.js order.rtf prices.rtf
//
// The script host must have as many bits as the component. On 64-bit Windows
// the 32-bit one is %SystemRoot%\SysWOW64\cscript.exe.

var styleSheet = [
    "{ name: normal; style-def: s; format: \\f0\\fs20\\sb60\\sa60 }",
    "{ name: column; style-def: s; format: \\f0\\fs18\\b\\sb60\\sa60 }",
    "{ name: total; style-def: s; format: \\f0\\fs22\\b\\sb80\\sa80 }"
].join("\n");

var items = [
    ["1101", "Pillar candle, ivory, 20 cm", 12, "57.60"],
    ["1108", "Tea lights {50 pieces}", 6, "75.00"],
    ["2040", "Storm lantern, brass", 2, "79.90"]
];

WScript.Quit(main());

function main() {
    if (WScript.Arguments.Length < 2) {
        WScript.Echo("usage: document.js ORDER PRICES");
        return 2;
    }
    try {
        makeOrder(WScript.Arguments(0));
        showWhatIsWrong();
        makePrices(WScript.Arguments(1));
        return 0;
    } catch (error) {
        WScript.Echo(errorText(error));
        return 1;
    }
}

function makeOrder(path) {
    var document = new ActiveXObject("Quorvane.Document");
    document.StyleSheet = styleSheet;
    document.Columns = "15 45 15 25";
    document.Header = "Harbour Light Candles||Order 4711";
    document.Footer = "||{page} / {pages}";

    document.AddHeading(["No.", "Article", "Quantity", "Amount"], "column").BackColor = "#dce6f1";
    for (var i = 0; i < items.length; ++i) {
        var row = document.AddRow(items[i], "normal");
        row.BottomBorder = "hair";
        row.Cells(3).Align = "right";
        row.Cells(4).Align = "right";
    }
    var total = document.AddRow(["Total in pounds", "212.50"], "total");
    total.Cells(1).Span = 3;
    total.Cells(2).Align = "right";

    document.Save(path);
    WScript.Echo(path + " was written.");
}

// A description that is refused changes nothing, and its diagnostics say why.
function showWhatIsWrong() {
    var document = new ActiveXObject("Quorvane.Document");
    try {
        document.Render(["; quorvane 2", "(doc", "(page=a44)", "(row", "row)", "doc)"].join("\n"));
    } catch (error) {
        WScript.Echo(errorText(error));
    }
    for (var all = new Enumerator(document.Diagnostics); !all.atEnd(); all.moveNext()) {
        var diagnostic = all.item();
        WScript.Echo("line " + diagnostic.Line + ": " + diagnostic.Severity + " " +
            diagnostic.Identifier);
    }
}

function makePrices(path) {
    var document = new ActiveXObject("Quorvane.Document");
    document.Table(["Article,Price", "Pillar candle,4.80", "Tea lights,12.50"].join("\n"),
        "Article:70%,Price:Price in pounds:30%", "Prices");
    document.Save(path);
    WScript.Echo(path + " was written.");
}

// JScript does not have the source of an error. The number of an error is its
// HRESULT as a negative number.
function errorText(error) {
    return "error 0x" + (error.number >>> 0).toString(16).toUpperCase() + ": " +
        error.description;
}
