// Writes an invoice with a logo: java Invoice LOGO FILE

import com.sun.jna.Function;
import com.sun.jna.Native;
import com.sun.jna.NativeLibrary;
import com.sun.jna.NativeLong;
import com.sun.jna.Pointer;
import com.sun.jna.ptr.PointerByReference;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;

public class Invoice implements AutoCloseable {
    static final String STYLES = """
; quorvane 2
{ name: normal; style-def: paragraph; font: Arial; size: 10pt; space-before: 2pt; space-after: 2pt }
{ name: title; style-def: paragraph; based-on: normal; size: 20pt; color: #1f4e79 }
{ name: column; style-def: paragraph; based-on: normal; bold; color: white }
{ name: total; style-def: paragraph; based-on: normal; bold }
""";

    record Item(String article, int quantity, int cents) {
        int amount() { return quantity * cents; }
    }

    static final List<Item> ITEMS = List.of(new Item("Espresso machine", 1, 64900),
            new Item("Café crème, 1 kg", 12, 1890), new Item("Mug {large}", 6, 950));
    static final int RIGHT = 3;
    static final NativeLibrary LIBRARY = NativeLibrary.getInstance("libquorvane.so.1");

    private final Pointer document;
    private long rows = 0;

    Invoice() {
        var made = new PointerByReference();
        function("document_new").invokeInt(new Object[] {made});
        document = made.getValue();
    }

    static Function function(String name) {
        return LIBRARY.getFunction("quorvane_" + name);
    }

    /** Calls a function: a string is a text with its length, a long a size_t, an integer an int. */
    void call(String name, Object... arguments) {
        var values = new ArrayList<Object>();
        values.add(document);
        for (Object argument : arguments) {
            if (argument instanceof String text) {
                byte[] bytes = text.getBytes(StandardCharsets.UTF_8);
                values.add(bytes);
                values.add(new NativeLong(bytes.length));
            } else {
                values.add(argument instanceof Long number ? new NativeLong(number) : argument);
            }
        }
        if (function(name).invokeInt(values.toArray()) != 0) {
            throw new IllegalStateException(errorText(2) + ": " + errorText(1));
        }
    }

    /** A text of quorvane_error, which begins with two numbers: identifier, message, file. */
    private String errorText(int index) {
        Pointer error = function("document_error").invokePointer(new Object[] {document});
        int place = 2 * Integer.BYTES + index * Native.POINTER_SIZE;
        return error.getPointer(place).getString(0, "UTF-8");
    }

    long addRow(String style, String... texts) {
        String joined = String.join("\0", texts) + "\0";
        call("document_add_rows", joined, (long) texts.length, 1L, style);
        for (long cell = 1; cell < texts.length; ++cell) {
            call("cell_set_align", rows, cell, RIGHT);
        }
        return rows++;
    }

    @Override
    public void close() {
        function("document_free").invokeVoid(new Object[] {document});
    }

    static String money(int cents) {
        return String.format("%d.%02d", cents / 100, cents % 100);
    }

    static void write(String logo, String file) {
        try (var invoice = new Invoice()) {
            invoice.call("document_set_stylesheet", STYLES);
            invoice.call("document_set_columns", "60 15 25");
            invoice.call("document_set_header", "Northmoor Coffee", "", "");
            invoice.call("document_set_footer", "", "{page} / {pages}", "");
            long letterhead = invoice.addRow("title", "Invoice 2027-0042", "", "");
            invoice.call("paragraph_set_picture_file", letterhead, 2L, 0L, logo, "", "15mm");
            long heading = invoice.addRow("column", "Article", "Quantity", "Amount");
            invoice.call("row_set_background", heading, "#1f4e79");
            for (Item item : ITEMS) {
                String quantity = String.valueOf(item.quantity());
                invoice.addRow("normal", item.article(), quantity, money(item.amount()));
            }
            int total = ITEMS.stream().mapToInt(Item::amount).sum();
            long last = invoice.addRow("total", "Total", "", money(total));
            invoice.call("row_set_background", last, "#dde7f0");
            invoice.call("document_save", file);
        }
    }

    public static void main(String[] arguments) {
        if (arguments.length != 2) {
            System.err.println("usage: java Invoice LOGO FILE");
            System.exit(2);
        }
        try {
            write(arguments[0], arguments[1]);
        } catch (IllegalStateException error) {
            System.err.println(error.getMessage());
            System.exit(1);
        }
    }
}
