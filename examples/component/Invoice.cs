// Builds an invoice through the object model and a reminder from a description:
//
//     Invoice invoice.rtf [reminder.rtf]
//
// The example is late bound and needs no interop assembly. The compiler of .NET Framework 4, which
// is part of Windows, builds it for the 32-bit or the 64-bit component:
//
//     %SystemRoot%\Microsoft.NET\Framework\v4.0.30319\csc /platform:x86 Invoice.cs
//     %SystemRoot%\Microsoft.NET\Framework64\v4.0.30319\csc /platform:x64 Invoice.cs
//
// With .NET 5 or later, compile it in a project that targets net8.0-windows or the like, with a
// PlatformTarget of x86 or x64.
//
// The tests do not run this example, because they have no .NET for Windows. They do compile it.

using System;
using System.IO;
using System.Runtime.InteropServices;
using System.Runtime.InteropServices.ComTypes;

public static class Invoice
{
    // Late-bound code does not see the enumerations of the type library.
    private const int ePercent = 0;
    private const int eNoDefault = 0;
    private const int eRight = 3;
    private const int eJustified = 4;
    private const int eHair = 5;
    private const int eNormal = 20;
    private const int eThick = 30;
    private const int eLightBlue = 19;

    // Paragraph and character styles share numbers. The unused first style keeps "label", the only
    // character style, from sharing the number of a style in use.
    private const string StyleSheet = @"
{ name: reserved; style-def: s; format: \f0\fs20\cf3 }
{ name: normal; style-def: s; format: \f0\fs20\cf3\sb60\sa60 }
{ name: title; style-def: s; format: \f9\fs44\cf24\sa120 }
{ name: facts; style-def: s; format: \f0\fs20\cf3\sb60 }
{ name: receiver; style-def: s; format: \f0\fs22\cf3\sb700 }
{ name: address; style-def: s; format: \f0\fs22\cf3 }
{ name: column; style-def: s; format: \f0\fs18\b\cf24\sb60\sa60 }
{ name: total; style-def: s; format: \f0\fs22\b\cf24\sb80\sa80 }
{ name: note; style-def: s; format: \f0\fs20\cf3\sb600\sa160 }
{ name: label; style-def: cs; format: \cf9 }
{ name: sum; style-def: cell; format: light-yellow }
";

    private const string Description = @"
(doc
(paper-width=11906)
(paper-height=16838)
(left-margin=1533)
(right-margin=1533)
(page-number-start=1)
(row
(row-bottom-border=thick)
(cell
(para
(para-text=Reminder)
(para-style=title)
para)
cell)
row)
(row
(cell
(para
(para-text=Our invoice of 2 April 2025 is still open.)
(para-style=note)
para)
cell)
row)
(row
(row-backcolor=light-yellow)
(cell
(cell-width=75)
(para
(para-text=<label=Invoice No.> 2025-0412)
(para-style=total)
para)
cell)
(cell
(cell-alignment=right)
(para
(para-text=212.50)
(para-style=total)
para)
cell)
row)
doc)
";

    private struct Item
    {
        public readonly string Number;
        public readonly string Name;
        public readonly int Quantity;
        public readonly int Pence;

        public Item(string number, string name, int quantity, int pence)
        {
            Number = number;
            Name = name;
            Quantity = quantity;
            Pence = pence;
        }
    }

    // The component runs in a single-threaded apartment.
    [STAThread]
    public static int Main(string[] arguments)
    {
        if (arguments.Length == 0)
        {
            Console.WriteLine("usage: Invoice INVOICE [REMINDER]");
            return 2;
        }
        try
        {
            MakeInvoice(arguments[0]);
            MakeReminder(arguments.Length > 1 ? arguments[1] : "");
            return 0;
        }
        catch (Exception error)
        {
            Console.WriteLine(ErrorText(error));
            return 1;
        }
    }

    private static object Create(string programId)
    {
        return Activator.CreateInstance(Type.GetTypeFromProgID(programId, true));
    }

    private static void MakeInvoice(string path)
    {
        dynamic document = Create("Quorvane.CRtfDoc");
        document.PageWidth = 11906;
        document.PageHeight = 16838;
        document.LeftMargin = 1533;
        document.RightMargin = 1533;
        document.PageNumberStart = 1;
        document.LoadStyleSheetFromMemmory(StyleSheet);

        dynamic title = AddRow(document);
        AddCell(title, "Harbour Light Candles", "title", eNoDefault);
        dynamic facts = AddCell(title, "<label=Invoice No.> 2025-0412", "facts", eRight);
        AddParagraph(facts, "<label=Date> 2 April 2025", "facts");
        SetWidths(title, 60, 40);
        title.BottomBorder = eThick;

        // The key finds the row again. \'e9 is an e with an acute accent, as RTF writes it.
        document.TableRows.AddTail("address");
        dynamic address = document.TableRows.Item("address");
        dynamic receiver = AddCell(address, @"Mr Andr\'e9 Lindqvist", "receiver", eNoDefault);
        AddParagraph(receiver, "Mill Road 8", "address");
        AddParagraph(receiver, "Castleton CT4 6QW", "address");

        AddCell(AddRow(document), "We have delivered to you:", "note", eNoDefault);

        dynamic heading = AddRow(document);
        AddCell(heading, "No.", "column", eNoDefault);
        AddCell(heading, "Article", "column", eNoDefault);
        AddCell(heading, "Quantity", "column", eRight);
        AddCell(heading, "Price", "column", eRight);
        AddCell(heading, "Amount", "column", eRight);
        SetWidths(heading, 12, 42, 14, 14, 18);
        heading.BackColor = eLightBlue;
        heading.TopBorder = eNormal;
        heading.BottomBorder = eNormal;

        Item[] items =
        {
            new Item("1101", "Pillar candle, ivory, 20 cm", 12, 480),
            new Item("1108", "Tea lights {50 pieces}", 6, 1250),
            new Item("2040", "Storm lantern, brass", 2, 3995)
        };
        int total = 0;
        foreach (Item item in items)
        {
            AddItem(document, item);
            total += item.Quantity * item.Pence;
        }

        dynamic sum = AddRow(document);
        sum.TableCells.AddTail();
        dynamic label = AddCell(sum, "Total in pounds", "total", eNoDefault);
        dynamic amount = AddCell(sum, Money(total), "total", eRight);
        foreach (dynamic cell in new object[] { label, amount })
        {
            cell.Style = "sum";
            cell.BottomBorder = eThick;
        }
        SetWidths(sum, 54, 28, 18);

        AddCell(
            AddRow(document),
            "Please pay the total by 2 May 2025 to account 12345678 at Castleton Bank and quote " +
            "the number of the invoice. The goods remain our property until they are paid for.",
            "note", eJustified);

        document.Commit(path);
        CheckWritten(path);
    }

    private static void AddItem(dynamic document, Item item)
    {
        dynamic row = AddRow(document);
        dynamic number = AddCell(row, Escaped(item.Number), "normal", eNoDefault);
        // A marked field: the accounting program finds the item number here, and word processors do
        // not show it.
        number.asMarkedField("item " + item.Number);
        AddCell(row, Escaped(item.Name), "normal", eNoDefault);
        AddCell(row, item.Quantity.ToString(), "normal", eRight);
        AddCell(row, Money(item.Pence), "normal", eRight);
        AddCell(row, Money(item.Quantity * item.Pence), "normal", eRight);
        SetWidths(row, 12, 42, 14, 14, 18);
        row.BottomBorder = eHair;
    }

    // The driver builds a document from a description. It reports errors in the description through
    // its event, and raises errors of the call itself.
    private static void MakeReminder(string path)
    {
        object driverObject = Create("Quorvane.CRtfDriver");
        dynamic driver = driverObject;
        driver.LoadStyleSheetFromMemmory(StyleSheet);
        driver.ErroneousInput = true;
        using (new DriverConnection(driverObject))
        {
            // Without a parenthesis the description is faulty.
            driver.ParseFromMemmory(Description.Replace("Reminder)", "Reminder"));
            Console.WriteLine("rows built from the faulty description: " +
                              driver.RtfObject.TableRows.Count);

            try
            {
                driver.ParseFile("no-such-file.rtfspec");
            }
            catch (Exception error)
            {
                Console.WriteLine(ErrorText(error));
            }

            driver.ParseFromMemmory(Description);
            Console.WriteLine("rows built from the correct description: " +
                              driver.RtfObject.TableRows.Count);
        }
        if (path != "")
        {
            driver.Commit(path);
            CheckWritten(path);
        }
    }

    private static dynamic AddRow(dynamic document)
    {
        document.TableRows.AddTail();
        return document.TableRows.PeekTail();
    }

    // Adds a cell with one paragraph.
    private static dynamic AddCell(dynamic row, string text, string style, int align)
    {
        row.TableCells.AddTail();
        dynamic cell = row.TableCells.PeekTail();
        cell.Align = align;
        AddParagraph(cell, text, style);
        return cell;
    }

    private static void AddParagraph(dynamic cell, string text, string style)
    {
        cell.Paragraphs.AddTail();
        dynamic paragraph = cell.Paragraphs.PeekTail();
        paragraph.Text = text;
        paragraph.Style = style;
    }

    // Adding a cell makes all cells of the row equally wide, so set the widths after adding the
    // last one. The last cell takes the rest of the row. A property with parameters takes them in
    // brackets.
    private static void SetWidths(dynamic row, params int[] widths)
    {
        for (int i = 0; i < widths.Length - 1; ++i)
        {
            dynamic cell = row.TableCells.Item(i + 1);
            cell.Width[ePercent] = widths[i];
        }
    }

    // The text of a paragraph is RTF. These three characters must be escaped in plain text.
    private static string Escaped(string text)
    {
        return text.Replace(@"\", @"\\").Replace("{", @"\{").Replace("}", @"\}");
    }

    private static string Money(int pence)
    {
        return pence / 100 + "." + (pence % 100).ToString("00");
    }

    // Commit raises an error if it cannot replace a file, but not if it cannot write the new one.
    private static void CheckWritten(string path)
    {
        if (!File.Exists(path))
        {
            throw new FileNotFoundException(path + " was not written.");
        }
        Console.WriteLine(path + " was written.");
    }

    // The exception has the HRESULT, source and description of the error.
    private static string ErrorText(Exception error)
    {
        return ErrorText(error.HResult, error.Source, error.Message);
    }

    public static string ErrorText(int number, string source, string description)
    {
        // In the event, a run-time error has its plain number instead of an HRESULT.
        int result = number > 0 && number < 65536 ? unchecked((int)0x800A0000) + number : number;
        return "error 0x" + result.ToString("X8") + " (" + (source ?? "").Replace("\r\n", ", ") +
               "): " + description;
    }
}

// The events of the driver, as in the type library.
[ComImport, Guid("1811CD09-270D-4B00-A52C-4047F643EAB9")]
[InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
public interface IDriverEvents
{
    [DispId(1)]
    void notifyError([MarshalAs(UnmanagedType.IDispatch)] object sender);
}

// An event handler finds the error in the error object of the thread, whose help context is the
// number.
[ComImport, Guid("1CF2B120-547D-101B-8E65-08002B2BD119")]
[InterfaceType(ComInterfaceType.InterfaceIsIUnknown)]
public interface IErrorInfo
{
    Guid GetGUID();
    [return: MarshalAs(UnmanagedType.BStr)] string GetSource();
    [return: MarshalAs(UnmanagedType.BStr)] string GetDescription();
    [return: MarshalAs(UnmanagedType.BStr)] string GetHelpFile();
    int GetHelpContext();
}

[ComVisible(true), ClassInterface(ClassInterfaceType.None)]
public class DriverListener : IDriverEvents
{
    public void notifyError(object sender)
    {
        IErrorInfo info;
        if (GetErrorInfo(0, out info) == 0)
        {
            Console.WriteLine("in the description: " + Invoice.ErrorText(
                info.GetHelpContext(), info.GetSource(), info.GetDescription()));
        }
    }

    [DllImport("oleaut32.dll")]
    private static extern int GetErrorInfo(int reserved, out IErrorInfo info);
}

// Connects a listener to a driver until it is disposed.
public sealed class DriverConnection : IDisposable
{
    private readonly IConnectionPoint point;
    private readonly int cookie;

    public DriverConnection(object driver)
    {
        Guid events = typeof(IDriverEvents).GUID;
        ((IConnectionPointContainer)driver).FindConnectionPoint(ref events, out point);
        point.Advise(new DriverListener(), out cookie);
    }

    public void Dispose()
    {
        point.Unadvise(cookie);
    }
}
