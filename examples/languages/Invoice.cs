// Writes an invoice: Invoice.exe [FILE]

using System;
using System.IO;
using System.Runtime.InteropServices;
using System.Text;

static class Invoice
{
    const string Library = "libquorvane.so.1";
    static readonly IntPtr End = new IntPtr(-1), None = IntPtr.Zero;

    [DllImport(Library)] static extern int quorvane_job_new(out IntPtr job);
    [DllImport(Library)] static extern void quorvane_job_free(IntPtr job);
    [DllImport(Library)] static extern IntPtr quorvane_job_error_text(IntPtr job);
    [DllImport(Library)]
    static extern int quorvane_job_set_path(IntPtr job, byte[] path, IntPtr length);
    [DllImport(Library)]
    static extern int quorvane_job_set_stylesheet(
        IntPtr job, byte[] text, IntPtr length, byte[] name, IntPtr nameLength);
    [DllImport(Library)]
    static extern int quorvane_job_set_data(
        IntPtr job, byte[] json, IntPtr length, byte[] name, IntPtr nameLength);
    [DllImport(Library)]
    static extern int quorvane_job_render_file(
        IntPtr job, byte[] text, IntPtr length, byte[] path, IntPtr pathLength);

    static byte[] Text(string text) => Encoding.UTF8.GetBytes(text + "\0");
    static byte[] TextOf(string file) => Text(File.ReadAllText(file));

    static int Main(string[] arguments)
    {
        string file = arguments.Length > 0 ? arguments[0] : "invoice.rtf";
        bool done = quorvane_job_new(out IntPtr job) == 0
            && quorvane_job_set_path(job, Text("invoice.rtfspec"), End) == 0
            && quorvane_job_set_stylesheet(job, TextOf("invoice.rtfss"), End, null, None) == 0
            && quorvane_job_set_data(job, TextOf("invoice.json"), End, null, None) == 0
            && quorvane_job_render_file(job, TextOf("invoice.rtfspec"), End, Text(file), End) == 0;
        if (!done)
        {
            Console.Error.WriteLine(Marshal.PtrToStringUTF8(quorvane_job_error_text(job)));
        }
        quorvane_job_free(job);
        return done ? 0 : 1;
    }
}
