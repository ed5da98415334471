// Writes an invoice: java Invoice [FILE]

import com.google.gson.Gson;
import com.sun.jna.*;
import com.sun.jna.ptr.PointerByReference;
import java.nio.file.*;
import java.util.*;

public class Invoice {
    interface Quorvane extends Library {
        int quorvane_job_new(PointerByReference job);
        void quorvane_job_free(Pointer job);
        String quorvane_job_error_text(Pointer job);
        int quorvane_job_set_path(Pointer job, String path, long length);
        int quorvane_job_set_stylesheet(Pointer job, String text, long n, String name, long m);
        int quorvane_job_set_data(Pointer job, String json, long n, String name, long m);
        int quorvane_job_render_file(Pointer job, String text, long n, String path, long m);
    }

    static final long END = -1; // The text ends with a zero byte.

    public static void main(String[] arguments) throws Exception {
        String file = arguments.length > 0 ? arguments[0] : "invoice.rtf";
        String description = Files.readString(Path.of("invoice.rtfspec"));
        String styles = Files.readString(Path.of("invoice.rtfss"));
        String data = new Gson().toJson(Map.of("number", "2027-0042", "date", "2027-03-01",
                "customer", "Dvořák & Søn", "total", 932.80, "lines", List.of(
                        Map.of("article", "Espresso machine", "quantity", 1, "amount", 649.00),
                        Map.of("article", "Café crème, 1 kg", "quantity", 12, "amount", 226.80),
                        Map.of("article", "Mug {large}", "quantity", 6, "amount", 57.00))));

        System.setProperty("jna.encoding", "UTF-8");
        Quorvane quorvane = Native.load("libquorvane.so.1", Quorvane.class);
        var made = new PointerByReference();
        quorvane.quorvane_job_new(made);
        Pointer job = made.getValue();
        if (quorvane.quorvane_job_set_path(job, "invoice.rtfspec", END) != 0
                || quorvane.quorvane_job_set_stylesheet(job, styles, END, "invoice.rtfss", END) != 0
                || quorvane.quorvane_job_set_data(job, data, END, null, 0) != 0
                || quorvane.quorvane_job_render_file(job, description, END, file, END) != 0) {
            System.err.println(quorvane.quorvane_job_error_text(job));
            System.exit(1);
        }
        quorvane.quorvane_job_free(job);
    }
}
