// Builds an invoice through the object model and a reminder from a description:
//
//     cscript //nologo invoice.js invoice.rtf [reminder.rtf]
//
// The script host must have as many bits as the component. On 64-bit Windows
// the 32-bit one is %SystemRoot%\SysWOW64\cscript.exe.

// A script does not see the enumerations of the type library.
var ePercent = 0;
var eNoDefault = 0;
var eRight = 3;
var eJustified = 4;
var eHair = 5;
var eNormal = 20;
var eThick = 30;
var eLightBlue = 19;

// Paragraph and character styles share numbers. The unused first style keeps
// "label", the only character style, from sharing the number of a style in use.
var styleSheet = [
    "{ name: reserved; style-def: s; format: \\f0\\fs20\\cf3 }",
    "{ name: normal; style-def: s; format: \\f0\\fs20\\cf3\\sb60\\sa60 }",
    "{ name: title; style-def: s; format: \\f9\\fs44\\cf24\\sa120 }",
    "{ name: facts; style-def: s; format: \\f0\\fs20\\cf3\\sb60 }",
    "{ name: receiver; style-def: s; format: \\f0\\fs22\\cf3\\sb700 }",
    "{ name: address; style-def: s; format: \\f0\\fs22\\cf3 }",
    "{ name: column; style-def: s; format: \\f0\\fs18\\b\\cf24\\sb60\\sa60 }",
    "{ name: total; style-def: s; format: \\f0\\fs22\\b\\cf24\\sb80\\sa80 }",
    "{ name: note; style-def: s; format: \\f0\\fs20\\cf3\\sb600\\sa160 }",
    "{ name: label; style-def: cs; format: \\cf9 }",
    "{ name: sum; style-def: cell; format: light-yellow }"
].join("\r\n");

var description = [
    "(doc",
    "(paper-width=11906)",
    "(paper-height=16838)",
    "(left-margin=1533)",
    "(right-margin=1533)",
    "(page-number-start=1)",
    "(row",
    "(row-bottom-border=thick)",
    "(cell",
    "(para",
    "(para-text=Reminder)",
    "(para-style=title)",
    "para)",
    "cell)",
    "row)",
    "(row",
    "(cell",
    "(para",
    "(para-text=Our invoice of 2 April 2025 is still open.)",
    "(para-style=note)",
    "para)",
    "cell)",
    "row)",
    "(row",
    "(row-backcolor=light-yellow)",
    "(cell",
    "(cell-width=75)",
    "(para",
    "(para-text=<label=Invoice No.> 2025-0412)",
    "(para-style=total)",
    "para)",
    "cell)",
    "(cell",
    "(cell-alignment=right)",
    "(para",
    "(para-text=212.50)",
    "(para-style=total)",
    "para)",
    "cell)",
    "row)",
    "doc)"
].join("\r\n");

if (WScript.Arguments.length == 0) {
    WScript.Echo("usage: cscript //nologo invoice.js INVOICE [REMINDER]");
    WScript.Quit(2);
}

try {
    makeInvoice(WScript.Arguments.Item(0));
    makeReminder(WScript.Arguments.length > 1 ? WScript.Arguments.Item(1) : "");
} catch (error) {
    WScript.Echo(errorText(error));
    WScript.Quit(1);
}

function makeInvoice(path) {
    var document = new ActiveXObject("Quorvane.CRtfDoc");
    document.PageWidth = 11906;
    document.PageHeight = 16838;
    document.LeftMargin = 1533;
    document.RightMargin = 1533;
    document.PageNumberStart = 1;
    document.LoadStyleSheetFromMemmory(styleSheet);

    var title = addRow(document);
    addCell(title, "Harbour Light Candles", "title", eNoDefault);
    var facts = addCell(title, "<label=Invoice No.> 2025-0412", "facts", eRight);
    addParagraph(facts, "<label=Date> 2 April 2025", "facts");
    setWidths(title, [60, 40]);
    title.BottomBorder = eThick;

    // The key finds the row again. \'e9 is an e with an acute accent, as RTF
    // writes it.
    document.TableRows.AddTail("address");
    var address = document.TableRows.Item("address");
    var receiver = addCell(address, "Mr Andr\\'e9 Lindqvist", "receiver", eNoDefault);
    addParagraph(receiver, "Mill Road 8", "address");
    addParagraph(receiver, "Castleton CT4 6QW", "address");

    addCell(addRow(document), "We have delivered to you:", "note", eNoDefault);

    var heading = addRow(document);
    addCell(heading, "No.", "column", eNoDefault);
    addCell(heading, "Article", "column", eNoDefault);
    addCell(heading, "Quantity", "column", eRight);
    addCell(heading, "Price", "column", eRight);
    addCell(heading, "Amount", "column", eRight);
    setWidths(heading, [12, 42, 14, 14, 18]);
    heading.BackColor = eLightBlue;
    heading.TopBorder = eNormal;
    heading.BottomBorder = eNormal;

    var items = [
        { number: "1101", name: "Pillar candle, ivory, 20 cm", quantity: 12, pence: 480 },
        { number: "1108", name: "Tea lights {50 pieces}", quantity: 6, pence: 1250 },
        { number: "2040", name: "Storm lantern, brass", quantity: 2, pence: 3995 }
    ];
    var total = 0;
    for (var i = 0; i < items.length; ++i) {
        total += addItem(document, items[i]);
    }

    var sum = addRow(document);
    sum.TableCells.AddTail();
    var sumCells = [
        addCell(sum, "Total in pounds", "total", eNoDefault),
        addCell(sum, money(total), "total", eRight)
    ];
    for (var j = 0; j < sumCells.length; ++j) {
        sumCells[j].Style = "sum";
        sumCells[j].BottomBorder = eThick;
    }
    setWidths(sum, [54, 28, 18]);

    addCell(addRow(document),
        "Please pay the total by 2 May 2025 to account 12345678 at Castleton Bank " +
        "and quote the number of the invoice. The goods remain our property until they are paid for.",
        "note", eJustified);

    document.Commit(path);
    checkWritten(path);
}

// Returns the amount in pence.
function addItem(document, item) {
    var amount = item.quantity * item.pence;
    var row = addRow(document);
    var number = addCell(row, escaped(item.number), "normal", eNoDefault);
    // A marked field: the accounting program finds the item number here, and
    // word processors do not show it.
    number.asMarkedField("item " + item.number);
    addCell(row, escaped(item.name), "normal", eNoDefault);
    addCell(row, String(item.quantity), "normal", eRight);
    addCell(row, money(item.pence), "normal", eRight);
    addCell(row, money(amount), "normal", eRight);
    setWidths(row, [12, 42, 14, 14, 18]);
    row.BottomBorder = eHair;
    return amount;
}

// The driver builds a document from a description. It reports errors in the
// description through its event, and raises errors of the call itself.
function makeReminder(path) {
    var driver = new ActiveXObject("Quorvane.CRtfDriver");
    driver.LoadStyleSheetFromMemmory(styleSheet);
    driver.ErroneousInput = true;
    connectEvents(driver);

    // Without a parenthesis the description is faulty.
    driver.ParseFromMemmory(description.replace("Reminder)", "Reminder"));
    WScript.Echo("rows built from the faulty description: " + driver.RtfObject.TableRows.Count);

    try {
        driver.ParseFile("no-such-file.rtfspec");
    } catch (error) {
        WScript.Echo(errorText(error));
    }

    driver.ParseFromMemmory(description);
    WScript.Echo("rows built from the correct description: " + driver.RtfObject.TableRows.Count);
    if (path != "") {
        driver.Commit(path);
        checkWritten(path);
    }
}

// Connects driver_notifyError. The script host of Wine cannot do this: it has
// neither WScript.ConnectObject nor the second argument of
// WScript.CreateObject.
function connectEvents(driver) {
    try {
        WScript.ConnectObject(driver, "driver_");
    } catch (error) {
        WScript.Echo("This script host does not connect events.");
    }
}

// A script cannot read the error itself: it is in the error object of the
// thread, which JScript does not read in an event.
function driver_notifyError(sender) {
    WScript.Echo("The driver reported an error in the description; rows so far: " +
        sender.RtfObject.TableRows.Count);
}

function addRow(document) {
    document.TableRows.AddTail();
    return document.TableRows.PeekTail();
}

// Adds a cell with one paragraph.
function addCell(row, text, style, align) {
    row.TableCells.AddTail();
    var cell = row.TableCells.PeekTail();
    cell.Align = align;
    addParagraph(cell, text, style);
    return cell;
}

function addParagraph(cell, text, style) {
    cell.Paragraphs.AddTail();
    var paragraph = cell.Paragraphs.PeekTail();
    paragraph.Text = text;
    paragraph.Style = style;
}

// Adding a cell makes all cells of the row equally wide, so set the widths
// after adding the last one. The last cell takes the rest of the row.
function setWidths(row, widths) {
    for (var i = 0; i < widths.length - 1; ++i) {
        row.TableCells.Item(i + 1).Width(ePercent) = widths[i];
    }
}

// The text of a paragraph is RTF. These three characters must be escaped in
// plain text.
function escaped(text) {
    return text.replace(/[\\{}]/g, "\\$&");
}

function money(pence) {
    var fraction = pence % 100;
    return Math.floor(pence / 100) + (fraction < 10 ? ".0" : ".") + fraction;
}

// Commit raises an error if it cannot replace a file, but not if it cannot
// write the new one.
function checkWritten(path) {
    if (!new ActiveXObject("Scripting.FileSystemObject").FileExists(path)) {
        throw new Error(-2147220504, path + " was not written.");
    }
    WScript.Echo(path + " was written.");
}

// JScript does not have the source of an error.
function errorText(error) {
    return "error " + hresult(error.number) + ": " + error.description;
}

// The number of an error is its HRESULT as a negative number.
function hresult(number) {
    return "0x" + (number >>> 0).toString(16).toUpperCase();
}
