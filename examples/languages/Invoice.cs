// Writes an invoice with a logo: Invoice.exe LOGO FILE

using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Text;

static class Native
{
    const string Library = "libquorvane.so.1";

    [StructLayout(LayoutKind.Sequential)]
    public struct Error
    {
        public int Status, Number;
        public IntPtr Identifier, Message, File;
    }

    [DllImport(Library)]
    public static extern int quorvane_document_new(out IntPtr d);
    [DllImport(Library)]
    public static extern void quorvane_document_free(IntPtr d);
    [DllImport(Library)]
    public static extern IntPtr quorvane_document_error(IntPtr d);
    [DllImport(Library)]
    public static extern int quorvane_document_set_stylesheet(
        IntPtr d, byte[] text, UIntPtr length);
    [DllImport(Library)]
    public static extern int quorvane_document_set_columns(IntPtr d, byte[] text, UIntPtr length);
    [DllImport(Library)]
    public static extern int quorvane_document_set_header(
        IntPtr d, byte[] left, UIntPtr l, byte[] center, UIntPtr c, byte[] right, UIntPtr r);
    [DllImport(Library)]
    public static extern int quorvane_document_set_footer(
        IntPtr d, byte[] left, UIntPtr l, byte[] center, UIntPtr c, byte[] right, UIntPtr r);
    [DllImport(Library)]
    public static extern int quorvane_document_add_rows(
        IntPtr d, byte[] texts, UIntPtr length, UIntPtr cells, UIntPtr rows, byte[] style,
        UIntPtr s);
    [DllImport(Library)]
    public static extern int quorvane_document_save(IntPtr d, byte[] path, UIntPtr length);
    [DllImport(Library)]
    public static extern int quorvane_row_set_background(
        IntPtr d, UIntPtr row, byte[] color, UIntPtr length);
    [DllImport(Library)]
    public static extern int quorvane_cell_set_align(
        IntPtr d, UIntPtr row, UIntPtr cell, int align);
    [DllImport(Library)]
    public static extern int quorvane_paragraph_set_picture_file(
        IntPtr d, UIntPtr row, UIntPtr cell, UIntPtr paragraph, byte[] path, UIntPtr p,
        byte[] width, UIntPtr w, byte[] height, UIntPtr h);
}

sealed class Document : IDisposable
{
    const int Right = 3;
    readonly IntPtr handle;
    uint rows;

    public Document()
    {
        Check(Native.quorvane_document_new(out handle));
    }

    public void Dispose()
    {
        Native.quorvane_document_free(handle);
    }

    void Check(int status)
    {
        if (status == 0)
            return;
        var error = Marshal.PtrToStructure<Native.Error>(Native.quorvane_document_error(handle));
        throw new InvalidOperationException(Utf8(error.File) + ": " + Utf8(error.Message));
    }

    static string Utf8(IntPtr text)
    {
        var bytes = new List<byte>();
        for (byte b; (b = Marshal.ReadByte(text, bytes.Count)) != 0;)
            bytes.Add(b);
        return Encoding.UTF8.GetString(bytes.ToArray());
    }

    static byte[] Utf8(string text) => Encoding.UTF8.GetBytes(text);
    static UIntPtr Size(byte[] bytes) => (UIntPtr)bytes.Length;
    static UIntPtr Size(uint number) => (UIntPtr)number;

    public string StyleSheet
    {
        set {
            var t = Utf8(value);
            Check(Native.quorvane_document_set_stylesheet(handle, t, Size(t)));
        }
    }
    public string Columns
    {
        set {
            var t = Utf8(value);
            Check(Native.quorvane_document_set_columns(handle, t, Size(t)));
        }
    }
    public string Header
    {
        set {
            var t = Utf8(value);
            Check(Native.quorvane_document_set_header(
                handle, t, Size(t), null, Size(0), null, Size(0)));
        }
    }
    public string Footer
    {
        set {
            var t = Utf8(value);
            Check(Native.quorvane_document_set_footer(
                handle, null, Size(0), t, Size(t), null, Size(0)));
        }
    }

    public uint AddRow(string style, params string[] texts)
    {
        var t = Utf8(string.Join("\0", texts) + "\0");
        var s = Utf8(style);
        Check(Native.quorvane_document_add_rows(
            handle, t, Size(t), Size((uint)texts.Length), Size(1), s, Size(s)));
        for (uint cell = 1; cell < texts.Length; ++cell)
            Check(Native.quorvane_cell_set_align(handle, Size(rows), Size(cell), Right));
        return rows++;
    }

    public void SetBackground(uint row, string color)
    {
        var c = Utf8(color);
        Check(Native.quorvane_row_set_background(handle, Size(row), c, Size(c)));
    }

    public void SetPicture(uint row, uint cell, string path, string height)
    {
        byte[] p = Utf8(path), h = Utf8(height);
        Check(Native.quorvane_paragraph_set_picture_file(
            handle, Size(row), Size(cell), Size(0), p, Size(p), null, Size(0), h, Size(h)));
    }

    public void Save(string path)
    {
        var p = Utf8(path);
        Check(Native.quorvane_document_save(handle, p, Size(p)));
    }
}

static class Program
{
    const string Styles = @"; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
";

    static readonly(string article, int quantity, int cents)[] Items = {
        ("Espresso machine", 1, 64900), ("Café crème, 1 kg", 12, 1890), ("Mug {large}", 6, 950)
    };

    static string Money(int cents) => $"{cents / 100}.{cents % 100:00}";

    static void Write(string logo, string file)
    {
        using (
            var invoice = new Document {
                StyleSheet = Styles, Columns = "60 15 25", Header = "Northmoor Coffee",
                Footer = "{page} / {pages}"
            })
        {
            uint letterhead = invoice.AddRow("title", "Invoice 2027-0042", "", "");
            invoice.SetPicture(letterhead, 2, logo, "15mm");
            invoice.SetBackground(
                invoice.AddRow("column", "Article", "Quantity", "Amount"), "#1f4e79");
            int total = 0;
            foreach (var item in Items)
            {
                int amount = item.quantity * item.cents;
                invoice.AddRow("normal", item.article, item.quantity.ToString(), Money(amount));
                total += amount;
            }
            invoice.SetBackground(invoice.AddRow("total", "Total", "", Money(total)), "#dde7f0");
            invoice.Save(file);
        }
    }

    static int Main(string[] arguments)
    {
        if (arguments.Length != 2)
        {
            Console.Error.WriteLine("usage: Invoice.exe LOGO FILE");
            return 2;
        }
        try
        {
            Write(arguments[0], arguments[1]);
            return 0;
        }
        catch (InvalidOperationException error)
        {
            Console.Error.WriteLine(error.Message);
            return 1;
        }
    }
}
