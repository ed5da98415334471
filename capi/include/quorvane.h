#ifndef QUORVANE_H
#define QUORVANE_H

#include <stddef.h>

/**
 * Quorvane for C, and for every language that can call C: Rich Text Format documents made of one
 * table. There are three ways to a document, each with its handle:
 *
 *  - a `quorvane_job` renders, checks and formats descriptions and stylesheets,
 *  - a `quorvane_table` writes the rows of a long table as they come, or those of a data file,
 *  - a `quorvane_document` is built from rows, cells and paragraphs.
 *
 * Status and error. A function that can fail returns a `quorvane_status`. What went wrong is in the
 * error of the handle, such as `quorvane_job_error`. A call that fails changes nothing else, unless
 * it says so; a text that it would have returned is null. A null handle and a null pointer where a
 * result goes are `QUORVANE_WRONG_CALL`.
 *
 * Texts. A text is a pointer and a length in bytes, or `QUORVANE_NUL_TERMINATED` for the length;
 * `QUORVANE_TEXT("…")` writes both. Null is an empty text. Texts are UTF-8 and are copied. What a
 * document shows is literal: control words, braces and any other character show themselves.
 *
 * Constants. Where a function takes an `int` that is named after an enumeration, such as `align`,
 * it takes one of its constants; any other number is `QUORVANE_WRONG_CALL`.
 *
 * Memory. What a function returns as `char**` is yours: pass it to `quorvane_free`. What it returns
 * as a pointer to const belongs to the handle. A zero byte, which does not count, follows every
 * text that is returned.
 *
 * Callbacks. `user` is handed to the callback as it was given. A callback returns 0 to go on; with
 * any other number the call ends with `QUORVANE_STOPPED`. It must not use the handle, throw an
 * exception or jump out.
 *
 * Threads. A handle belongs to one thread at a time. Different handles can be used at the same
 * time. Nothing is shared between them, and nothing depends on the locale of the program.
 *
 * Windows. The library is "quorvane-1.dll". Functions and callbacks are `cdecl`. Paths are UTF-8
 * there too.
 *
 * Versions. Functions, constants and fields at the end of structures are added; those that are here
 * stay as long as `QUORVANE_VERSION_MAJOR` is the same. The library makes all structures itself.
 */

#if defined(_WIN32)
#ifdef QUORVANE_BUILDS_LIBRARY
#define QUORVANE_API __declspec(dllexport)
#else
#define QUORVANE_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define QUORVANE_API __attribute__((visibility("default")))
#else
#define QUORVANE_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** The version of this header; `quorvane_version` returns that of the library. */
#define QUORVANE_VERSION_MAJOR 1
#define QUORVANE_VERSION_MINOR 0
#define QUORVANE_VERSION_PATCH 0

/** As the length of a text: it ends before its first zero byte. */
#define QUORVANE_NUL_TERMINATED ((size_t)-1)

/** A text that ends with a zero byte, as two arguments. */
#define QUORVANE_TEXT(text) (text), QUORVANE_NUL_TERMINATED

/** As an index: after the last row, cell or paragraph. */
#define QUORVANE_AT_END ((size_t)-1)

/** What a call ended with. */
typedef enum quorvane_status {
    /** It did what it says. */
    QUORVANE_OK = 0,
    /** A handle or an argument is wrong, or the call cannot be made at this point. */
    QUORVANE_WRONG_CALL = 1,
    QUORVANE_OUT_OF_MEMORY = 2,
    /** A text is wrong: a description, a stylesheet, data, or a value such as a color. */
    QUORVANE_WRONG_CONTENT = 3,
    /** A file cannot be read or written. */
    QUORVANE_FILE_ERROR = 4,
    /** A callback stopped the call. */
    QUORVANE_STOPPED = 5,
    /** A fault of the library; please report it. */
    QUORVANE_INTERNAL_ERROR = 6
} quorvane_status;

/** How serious a diagnostic is. */
typedef enum quorvane_severity {
    /** What is rejected, or what a reader cannot make sense of. */
    QUORVANE_ERROR = 0,
    /** What is accepted but does not do what its author wants. */
    QUORVANE_WARNING = 1
} quorvane_severity;

/** An error. Texts are never null; those that are not known are empty. */
typedef struct quorvane_error {
    /** What the call returned. */
    quorvane_status status;
    /**
     * The number of this error in the C++ library (see `RunTimeError` and `tErrorLevel` there); 0
     * if it has none.
     */
    int number;
    /** The kind of error, such as "wrong-value": see docs/c.md. */
    const char* identifier;
    /** What is wrong, and what to write instead where that is known. */
    const char* message;
    /** The file, or the name of the text, that the error is about. */
    const char* file;
    /** The place in it, from 1; 0 if the error is not about a place. Columns count characters. */
    size_t line;
    size_t column;
} quorvane_error;

/** One problem in a text. Texts are never null; those that are not known are empty. */
typedef struct quorvane_diagnostic {
    quorvane_severity severity;
    /** Names the kind of diagnostic, such as "wrong-color": see docs/diagnostics.md. */
    const char* identifier;
    /** What is wrong. */
    const char* message;
    /** What could be done about it. */
    const char* hint;
    /** The file, or the name of the text. */
    const char* file;
    /** Line and column, from 1, and the characters from there on, on the same line. */
    size_t line;
    size_t column;
    size_t length;
    /** The same in bytes, from the beginning of the text. */
    size_t byte_offset;
    size_t byte_length;
    /** What to put in this place instead, if that is certain; null otherwise. */
    const char* fix;
} quorvane_diagnostic;

/** Takes the next bytes of a document, which are valid during the call. */
typedef int (*quorvane_write_callback)(void* user, const char* bytes, size_t length);

/** Takes a diagnostic, which is valid during the call. */
typedef int (*quorvane_diagnostic_callback)(void* user, const quorvane_diagnostic* diagnostic);

/** What a file is wanted for. */
typedef enum quorvane_file_kind {
    QUORVANE_PICTURE = 0,
    /** A part of a template. */
    QUORVANE_PARTIAL = 1
} quorvane_file_kind;

/**
 * Returns the bytes of the file with this name, as the description has it. They must stay until the
 * next call of the callback, or until the call on the job returns. A result other than 0 means that
 * there is no such file; it does not stop the call but is an error in the description.
 */
typedef int (*quorvane_file_callback)(void* user, quorvane_file_kind kind, const char* name,
                                      size_t name_length, const char** bytes, size_t* length);

/** Returns the version of the library, such as "1.0.0". */
QUORVANE_API const char* quorvane_version(void);

/**
 * Returns 1 if the library has a feature, 0 otherwise: "extended-language", "templates", "tables",
 * "documents", "data-tables".
 */
QUORVANE_API int quorvane_has_feature(const char* name, size_t length);

/** Returns the name of a status, such as "wrong content"; never null. */
QUORVANE_API const char* quorvane_status_name(int status);

/** Releases what a function returned as `char**`. Does nothing with null. */
QUORVANE_API void quorvane_free(void* memory);

/**
 * Renders, checks and formats descriptions, one after the other, with the same stylesheet, data and
 * options. What the last of these calls found is in its diagnostics, also when it succeeded.
 */
typedef struct quorvane_job quorvane_job;

/** The languages of texts. */
typedef enum quorvane_language {
    /** That which the text appears to be in, as `quorvane check` decides it. */
    QUORVANE_ANY_LANGUAGE = 0,
    QUORVANE_DESCRIPTION = 1,
    QUORVANE_STYLESHEET = 2,
    QUORVANE_RTF = 3
} quorvane_language;

/** How the bytes of descriptions and stylesheets are read. Texts marked as extended are UTF-8. */
typedef enum quorvane_encoding {
    QUORVANE_UTF8 = 0,
    QUORVANE_WINDOWS_1252 = 1,
    /** UTF-8 if the bytes look like it, as the command decides it. */
    QUORVANE_ANY_ENCODING = 2
} quorvane_encoding;

/** The forms of the names of nodes and keys in a formatted description. */
typedef enum quorvane_names {
    QUORVANE_NAMES_KEPT = 0,
    QUORVANE_NAMES_LONG = 1,
    QUORVANE_NAMES_SHORT = 2
} quorvane_names;

/** Makes a job without stylesheet and data. */
QUORVANE_API quorvane_status quorvane_job_new(quorvane_job** job);
/** Releases a job. Does nothing with null. */
QUORVANE_API void quorvane_job_free(quorvane_job* job);
/**
 * Returns the error of the last call that failed, with `QUORVANE_OK` if none has. Never null; valid
 * until the next call on the job.
 */
QUORVANE_API const quorvane_error* quorvane_job_error(const quorvane_job* job);
/**
 * Returns the message of that error with the file and the place before it, for people:
 * "order.rtfspec:12:5: …". Empty if no call has failed. Never null; valid until the next call on
 * the job.
 */
QUORVANE_API const char* quorvane_job_error_text(const quorvane_job* job);

/**
 * Sets the path of the descriptions, which need not exist: diagnostics name it, and pictures and
 * partials come from its folder and those in it. Without a path, which is the default, no file is
 * read, and diagnostics name "description".
 */
QUORVANE_API quorvane_status quorvane_job_set_path(quorvane_job* job, const char* path,
                                                   size_t length);
/** Also takes pictures in this folder and below it, links followed. */
QUORVANE_API quorvane_status quorvane_job_allow_pictures(quorvane_job* job, const char* folder,
                                                         size_t length);
/** Takes pictures and partials from a callback instead of files; null goes back to files. */
QUORVANE_API quorvane_status quorvane_job_set_files(quorvane_job* job,
                                                    quorvane_file_callback callback, void* user);
/**
 * Sets the stylesheet, in either language, and the name that diagnostics give it ("stylesheet" if
 * that is empty). An empty text is no stylesheet. `QUORVANE_WRONG_CONTENT` for a wrong stylesheet,
 * with its diagnostics; the job then keeps the one that it had.
 */
QUORVANE_API quorvane_status quorvane_job_set_stylesheet(quorvane_job* job, const char* text,
                                                         size_t length, const char* name,
                                                         size_t name_length);
/**
 * Sets the data, a JSON text, and the name that diagnostics give it ("data" if that is empty).
 * Descriptions are then templates and filled with it: see docs/templates.md. An empty text is no
 * data. `QUORVANE_WRONG_CONTENT` for what is not JSON, with a diagnostic; the job then keeps the
 * data that it had.
 */
QUORVANE_API quorvane_status quorvane_job_set_data(quorvane_job* job, const char* json,
                                                   size_t length, const char* name,
                                                   size_t name_length);
/**
 * Sets how filters in templates write numbers: "de-DE", "de", or a sample such as "1.234,56".
 * `QUORVANE_WRONG_CONTENT` for an unknown locale. An empty name goes back to "1,234.56".
 */
QUORVANE_API quorvane_status quorvane_job_set_locale(quorvane_job* job, const char* name,
                                                     size_t length);
/** Sets the encoding of descriptions and stylesheets from then on; `QUORVANE_UTF8` by default. */
QUORVANE_API quorvane_status quorvane_job_set_encoding(quorvane_job* job, int encoding);
/**
 * With a number other than 0, descriptions are checked before they are rendered, as by
 * `quorvane_job_check`: their warnings are among the diagnostics, and one with errors is not
 * rendered. Otherwise, which is the default, there are diagnostics only about descriptions that
 * cannot be rendered.
 */
QUORVANE_API quorvane_status quorvane_job_set_checks(quorvane_job* job, int checks);
/**
 * Leaves out the diagnostics with an identifier, or reports them if they are off by default.
 * `QUORVANE_WRONG_CONTENT` for an unknown identifier. An error that is left out still fails a
 * rendering.
 */
QUORVANE_API quorvane_status quorvane_job_ignore(quorvane_job* job, const char* identifier,
                                                 size_t length);
QUORVANE_API quorvane_status quorvane_job_enable(quorvane_job* job, const char* identifier,
                                                 size_t length);

/** Renders a description and returns the bytes of the document. */
QUORVANE_API quorvane_status quorvane_job_render(quorvane_job* job, const char* description,
                                                 size_t length, char** rtf, size_t* rtf_length);
/**
 * Renders a description and writes the document through a callback. Nothing is written if the
 * description has errors.
 */
QUORVANE_API quorvane_status quorvane_job_render_to(quorvane_job* job, const char* description,
                                                    size_t length, quorvane_write_callback write,
                                                    void* user);
/**
 * Renders a description and writes the document to a file, which appears whole, in the place of one
 * that was there.
 */
QUORVANE_API quorvane_status quorvane_job_render_file(quorvane_job* job, const char* description,
                                                      size_t length, const char* path,
                                                      size_t path_length);
/** Checks a text. It returns `QUORVANE_OK` whatever is wrong with it: see the diagnostics. */
QUORVANE_API quorvane_status quorvane_job_check(quorvane_job* job, const char* text, size_t length,
                                                int language);
/**
 * Returns a description or a stylesheet in its canonical form, in the encoding that it has.
 * `QUORVANE_WRONG_CONTENT` for RTF, and for bytes that are not a text of that encoding.
 */
QUORVANE_API quorvane_status quorvane_job_format(quorvane_job* job, const char* text, size_t length,
                                                 int language, int names, char** formatted,
                                                 size_t* formatted_length);

/** Returns how many diagnostics the last call had that loads, renders or checks a text. */
QUORVANE_API size_t quorvane_job_diagnostic_count(const quorvane_job* job);
/**
 * Returns a diagnostic, in the order of their places; null if there is none with this index. Valid
 * until the next call that loads, renders or checks a text.
 */
QUORVANE_API const quorvane_diagnostic* quorvane_job_diagnostic(const quorvane_job* job,
                                                                size_t index);
/**
 * Hands each diagnostic to a callback too, before the call that found it returns; null for none. If
 * the callback stops the call, nothing is written.
 */
QUORVANE_API quorvane_status quorvane_job_set_diagnostic_callback(
    quorvane_job* job, quorvane_diagnostic_callback callback, void* user);

/**
 * Writes a document with one table, row by row. Each row is written and forgotten, so that a table
 * of any length takes the same memory.
 *
 * Add the columns and set the options, begin, add rows, finish. A row that is wrong changes
 * nothing, and the next one can be added. After `QUORVANE_FILE_ERROR` or `QUORVANE_STOPPED` the
 * document cannot be continued. A table that is not finished leaves no file, and the one that was
 * there stays.
 */
typedef struct quorvane_table quorvane_table;

/** Alignments. */
typedef enum quorvane_align {
    /** The style decides. */
    QUORVANE_ALIGN_DEFAULT = 0,
    QUORVANE_ALIGN_CENTER = 1,
    QUORVANE_ALIGN_LEFT = 2,
    QUORVANE_ALIGN_RIGHT = 3,
    QUORVANE_ALIGN_JUSTIFIED = 4
} quorvane_align;

/**
 * The options of a table. Lengths, colors and borders are as in docs/extended-language.md; a length
 * without a unit is in twips.
 */
typedef enum quorvane_table_option {
    /** A row above the heading, on every page; empty by default for none. */
    QUORVANE_TABLE_TITLE = 0,
    /** "yes", the default, for a heading row with the names of the columns on every page, or "no".
     */
    QUORVANE_TABLE_HEADING = 1,
    /** A page such as "letter" or "a4-landscape"; "a4" by default. */
    QUORVANE_TABLE_PAGE = 2,
    /** The four margins, as a length; "2cm" by default. */
    QUORVANE_TABLE_MARGIN = 3,
    /** The background of every second row, a color; "#f2f6fa" by default, "none" for none. */
    QUORVANE_TABLE_STRIPE = 4,
    /** The border around all cells; "none" by default. */
    QUORVANE_TABLE_BORDER = 5,
    /**
     * A stylesheet, in either language, with the paragraph styles table-cell, table-heading,
     * table-title, table-group, table-total and footer.
     */
    QUORVANE_TABLE_STYLESHEET = 6,
    /** Page header and page footer, with {page} and {pages}; by default only FOOTER_CENTER. */
    QUORVANE_TABLE_HEADER_LEFT = 7,
    QUORVANE_TABLE_HEADER_CENTER = 8,
    QUORVANE_TABLE_HEADER_RIGHT = 9,
    QUORVANE_TABLE_FOOTER_LEFT = 10,
    QUORVANE_TABLE_FOOTER_CENTER = 11,
    QUORVANE_TABLE_FOOTER_RIGHT = 12,
    /** "yes" begins a page with each group but the first; "no" by default. */
    QUORVANE_TABLE_GROUP_PAGES = 13,
    /**
     * The options from here on are for tables of data, which is set before them, and are those of
     * `quorvane table` in docs/command.md. An empty text goes back to the default. The columns in
     * their order, with headings, widths, alignments and filters, such as
     * "sku:12%,price:Price:right:money:2"; all fields by default.
     */
    QUORVANE_TABLE_COLUMNS = 14,
    /** How filters write numbers, and how the data has them: "de-DE", or a sample. */
    QUORVANE_TABLE_LOCALE = 15,
    /** What is between the fields of CSV: one character, or "tab"; detected by default. */
    QUORVANE_TABLE_DELIMITER = 16,
    /** "auto", the default, "utf-8" or "windows-1252". */
    QUORVANE_TABLE_ENCODING = 17,
    /** The order of the rows, such as "price:desc,name"; that of the data by default. */
    QUORVANE_TABLE_SORT = 18,
    /** A field whose values are headings above the rows that share them. */
    QUORVANE_TABLE_GROUP_BY = 19,
    /** A field whose column ends in its sum. Each call adds one; an empty text removes all. */
    QUORVANE_TABLE_TOTAL = 20,
    /** What the row of totals begins with; "Total" by default. */
    QUORVANE_TABLE_TOTAL_LABEL = 21,
    /** How many rows are shown at most, a number; all by default. */
    QUORVANE_TABLE_LIMIT = 22,
    /** "yes" leaves out the rows that are wrong, with a diagnostic for each; "no" by default. */
    QUORVANE_TABLE_KEEP_GOING = 23
} quorvane_table_option;

/** What kind of text data is in. */
typedef enum quorvane_data_format {
    /** The extension of its name decides, or its beginning. */
    QUORVANE_ANY_DATA = 0,
    /** Rows with a delimiter between the fields; the first row has the names. */
    QUORVANE_CSV = 1,
    /** A JSON array of objects, or JSON Lines. */
    QUORVANE_JSON = 2
} quorvane_data_format;

/** Makes a table without columns. */
QUORVANE_API quorvane_status quorvane_table_new(quorvane_table** table);
/** Releases a table. Does nothing with null. */
QUORVANE_API void quorvane_table_free(quorvane_table* table);
/**
 * Returns the error of the last call that failed, with `QUORVANE_OK` if none has. Never null; valid
 * until the next call on the table.
 */
QUORVANE_API const quorvane_error* quorvane_table_error(const quorvane_table* table);
/** Returns the message of that error as `quorvane_job_error_text` does. */
QUORVANE_API const char* quorvane_table_error_text(const quorvane_table* table);

/**
 * Adds a column: the text in the heading row, its width as percent ("20%") or a length ("3cm") or
 * empty, and the alignment. Either all columns have a width or none has, unless
 * `quorvane_table_fit_columns` fits the others. A table has 1 to 63 columns.
 * `QUORVANE_WRONG_CALL` after the table was begun.
 */
QUORVANE_API quorvane_status quorvane_table_add_column(quorvane_table* table, const char* heading,
                                                       size_t heading_length, const char* width,
                                                       size_t width_length, int align);
/** Sets an option. `QUORVANE_WRONG_CALL` after the table was begun. */
QUORVANE_API quorvane_status quorvane_table_set(quorvane_table* table, int option,
                                                const char* value, size_t length);

/**
 * Makes columns as wide as the first 1,000 rows ask for, where they have no width. Columns of
 * numbers without an alignment are right-aligned, and a wide table gets a page in landscape unless
 * `QUORVANE_TABLE_PAGE` was set. These rows, or the first megabyte of them, are kept and then
 * written; those after them are not kept. The columns of data are always fitted.
 */
QUORVANE_API quorvane_status quorvane_table_fit_columns(quorvane_table* table);
/**
 * Makes the table one of data: it shows the records of a CSV, JSON or JSON Lines text as `quorvane
 * table` does, byte for byte, in columns as wide as their contents ask for. Then begin and finish
 * the table; adding columns or rows is `QUORVANE_WRONG_CALL`. All rows are in memory only with
 * `QUORVANE_TABLE_SORT`.
 *
 * The bytes are not copied: they must stay until the table is finished or released. Errors and
 * diagnostics give them the name ("data" if it is empty), whose extension can say what they are.
 * `format` is a `quorvane_data_format`.
 */
QUORVANE_API quorvane_status quorvane_table_set_data(quorvane_table* table, const char* bytes,
                                                     size_t length, int format, const char* name,
                                                     size_t name_length);
/**
 * Does the same with a file, which `quorvane_table_begin` opens: `QUORVANE_FILE_ERROR` if it cannot
 * be read.
 */
QUORVANE_API quorvane_status quorvane_table_set_data_file(quorvane_table* table, const char* path,
                                                          size_t length, int format);

/**
 * Begin the document: in memory, for `quorvane_table_take`; through a callback; or in a file, which
 * appears whole with `quorvane_table_finish`, in the place of one that was there.
 * `QUORVANE_WRONG_CONTENT` for options that do not fit together, such as columns wider than the
 * page, and for those that do not suit the data; change them and begin again. `QUORVANE_WRONG_CALL`
 * for a file that has the data of the table, also if its path is another one, such as a link.
 */
QUORVANE_API quorvane_status quorvane_table_begin(quorvane_table* table);
QUORVANE_API quorvane_status quorvane_table_begin_to(quorvane_table* table,
                                                     quorvane_write_callback write, void* user);
QUORVANE_API quorvane_status quorvane_table_begin_file(quorvane_table* table, const char* path,
                                                       size_t length);

/**
 * Adds a row of so many cells. If `lengths` is null, the texts end with zero bytes. Cells that are
 * missing at the end are empty. `QUORVANE_WRONG_CONTENT` for more cells than columns and for a text
 * that no document can show: one that is not UTF-8, or has control characters.
 */
QUORVANE_API quorvane_status quorvane_table_add_row(quorvane_table* table,
                                                    const char* const texts[],
                                                    const size_t lengths[], size_t count);
/**
 * Adds many rows in one call: the texts of all their cells, row by row, each followed by a zero
 * byte. Languages in which each value costs a conversion join their texts for it.
 * `QUORVANE_WRONG_CALL` if there are not exactly so many texts, and then nothing is added. An error
 * in a row leaves those before it; `added`, if it is not null, receives how many.
 */
QUORVANE_API quorvane_status quorvane_table_add_rows(quorvane_table* table, const char* texts,
                                                     size_t length, size_t cells_in_row,
                                                     size_t rows, size_t* added);
/** Adds a heading for the rows after it, in one cell as wide as the table. */
QUORVANE_API quorvane_status quorvane_table_add_group(quorvane_table* table, const char* heading,
                                                      size_t length);
/** Adds a row in the style of totals. Everything else is as for `quorvane_table_add_row`. */
QUORVANE_API quorvane_status quorvane_table_add_total(quorvane_table* table,
                                                      const char* const texts[],
                                                      const size_t lengths[], size_t count);
/**
 * Ends the document. Without it the document is not whole. The rows of data are written now:
 * `QUORVANE_WRONG_CONTENT`, with its line, for a record that cannot be shown, after which the
 * document cannot be continued.
 */
QUORVANE_API quorvane_status quorvane_table_finish(quorvane_table* table);
/**
 * Returns how many diagnostics there are about the data of a table that was begun: an error
 * "wrong-value" for each row that was left out, and a warning "scattered-groups" after the end if a
 * group has several headings because its rows do not follow each other.
 */
QUORVANE_API size_t quorvane_table_diagnostic_count(const quorvane_table* table);
/**
 * Returns a diagnostic; null if there is none with this index. Valid until the next call on the
 * table.
 */
QUORVANE_API const quorvane_diagnostic* quorvane_table_diagnostic(const quorvane_table* table,
                                                                  size_t index);
/** Returns a document that was begun in memory and is finished. It can be taken once. */
QUORVANE_API quorvane_status quorvane_table_take(quorvane_table* table, char** rtf, size_t* length);

/**
 * A document of rows, cells and paragraphs, which are addressed by their indexes from 0: nothing
 * but the document needs to be released, and an index that does not exist is `QUORVANE_WRONG_CALL`.
 * Indexes after an inserted or removed element change, as in an array.
 *
 * The order of calls does not matter, except that a stylesheet comes before the texts and styles
 * that need it. Page and columns are fitted together when the document is rendered.
 * `QUORVANE_WRONG_CONTENT` stands for a value that is not one, a style that the stylesheet does not
 * have, and a text that no document can show: one that is not UTF-8, or has control characters
 * other than tabs and line breaks.
 */
typedef struct quorvane_document quorvane_document;

/** The sides of a cell; `|` joins several. */
typedef enum quorvane_side {
    QUORVANE_LEFT = 1,
    QUORVANE_RIGHT = 2,
    QUORVANE_TOP = 4,
    QUORVANE_BOTTOM = 8,
    QUORVANE_ALL_SIDES = 15
} quorvane_side;

/** The widths of borders, in twips (1/1440 inch); any number above 0 is a width too. */
typedef enum quorvane_border {
    QUORVANE_BORDER_NONE = -1,
    QUORVANE_BORDER_HAIR = 5,
    QUORVANE_BORDER_THIN = 10,
    QUORVANE_BORDER_NORMAL = 20,
    QUORVANE_BORDER_THICK = 30
} quorvane_border;

/** How a part of a text is emphasized; `|` joins several. */
typedef enum quorvane_emphasis {
    QUORVANE_BOLD = 1,
    QUORVANE_ITALIC = 2,
    QUORVANE_UNDERLINED = 4
} quorvane_emphasis;

/** How the rows of the heading are written; see docs/extended-language.md. */
typedef enum quorvane_heading_form {
    QUORVANE_HEADING_IN_HEADER = 0,
    QUORVANE_HEADING_IN_TABLE = 1
} quorvane_heading_form;

/** Makes a document of A4 pages without rows and without a stylesheet. */
QUORVANE_API quorvane_status quorvane_document_new(quorvane_document** document);
/** Releases a document. Does nothing with null. */
QUORVANE_API void quorvane_document_free(quorvane_document* document);
/**
 * Returns the error of the last call that failed, with `QUORVANE_OK` if none has. Never null; valid
 * until the next call on the document.
 */
QUORVANE_API const quorvane_error* quorvane_document_error(const quorvane_document* document);
/** Returns the message of that error as `quorvane_job_error_text` does. */
QUORVANE_API const char* quorvane_document_error_text(const quorvane_document* document);

/** Sets the page: "a3", "a4", "a5", "a6", "b5", "letter", "legal", "tabloid" or "executive", each
 *  also with "-landscape". */
QUORVANE_API quorvane_status quorvane_document_set_page(quorvane_document* document,
                                                        const char* name, size_t length);
/** Sets any other page. Lengths are as in the extended language: "21cm", "8.5in", "1440". */
QUORVANE_API quorvane_status quorvane_document_set_page_size(quorvane_document* document,
                                                             const char* width, size_t width_length,
                                                             const char* height,
                                                             size_t height_length);
/** Sets the margins on these sides to a length. By default 30 mm at the sides, otherwise 25 mm. */
QUORVANE_API quorvane_status quorvane_document_set_margin(quorvane_document* document, int sides,
                                                          const char* width, size_t length);
/** Sets the number of the first page, from 1 to 32767. */
QUORVANE_API quorvane_status quorvane_document_set_first_page(quorvane_document* document,
                                                              int number);
/**
 * Sets the columns of all rows that have none of their own, from left to right with blanks between
 * them: percent of the text area ("20" or "20%"), lengths with a unit ("3cm") or "auto", which
 * shares what the others leave. An empty text is no columns: the cells of a row share the text area
 * evenly.
 */
QUORVANE_API quorvane_status quorvane_document_set_columns(quorvane_document* document,
                                                           const char* widths, size_t length);
/**
 * Set the line at the top or at the bottom of each page: what is at its left, in its center and at
 * its right. "{page}" is the number of the page, "{pages}" the number of pages, and "{{" and "}}"
 * are braces.
 */
QUORVANE_API quorvane_status quorvane_document_set_header(quorvane_document* document,
                                                          const char* left, size_t left_length,
                                                          const char* center, size_t center_length,
                                                          const char* right, size_t right_length);
QUORVANE_API quorvane_status quorvane_document_set_footer(quorvane_document* document,
                                                          const char* left, size_t left_length,
                                                          const char* center, size_t center_length,
                                                          const char* right, size_t right_length);
/** Sets how the rows of the heading are written. */
QUORVANE_API quorvane_status quorvane_document_set_heading_form(quorvane_document* document,
                                                                int form);
/**
 * Sets the stylesheet, in either language, in place of the one that is there.
 * `QUORVANE_WRONG_CONTENT` for a wrong one; the one that is there stays then.
 */
QUORVANE_API quorvane_status quorvane_document_set_stylesheet(quorvane_document* document,
                                                              const char* text, size_t length);

/**
 * Add rows. A row has one cell for each text with a paragraph of this style, which can be empty. If
 * `lengths` is null, the texts end with zero bytes. `row`, if it is not null, receives the index of
 * the row.
 */
QUORVANE_API quorvane_status quorvane_document_add_row(quorvane_document* document,
                                                       const char* const texts[],
                                                       const size_t lengths[], size_t count,
                                                       const char* style, size_t style_length,
                                                       size_t* row);
/**
 * Adds many rows in one call; the texts are as for `quorvane_table_add_rows`. An error in a row
 * leaves those before it.
 */
QUORVANE_API quorvane_status quorvane_document_add_rows(quorvane_document* document,
                                                        const char* texts, size_t length,
                                                        size_t cells_in_row, size_t rows,
                                                        const char* style, size_t style_length);
/** Inserts a row without cells before the one with an index, or `QUORVANE_AT_END`. */
QUORVANE_API quorvane_status quorvane_document_insert_row(quorvane_document* document, size_t index,
                                                          size_t* row);
/** Removes a row. */
QUORVANE_API quorvane_status quorvane_document_remove_row(quorvane_document* document, size_t row);
/** Returns the number of rows. */
QUORVANE_API quorvane_status quorvane_document_count_rows(quorvane_document* document,
                                                          size_t* count);

/** Returns the document as the bytes of a file. */
QUORVANE_API quorvane_status quorvane_document_rtf(quorvane_document* document, char** rtf,
                                                   size_t* length);
/** Writes the document through a callback. */
QUORVANE_API quorvane_status quorvane_document_write(quorvane_document* document,
                                                     quorvane_write_callback write, void* user);
/** Writes the document to a file, which appears whole, in the place of one that was there. */
QUORVANE_API quorvane_status quorvane_document_save(quorvane_document* document, const char* path,
                                                    size_t length);

/** Sets the columns of one row; an empty text goes back to those of the document. */
QUORVANE_API quorvane_status quorvane_row_set_columns(quorvane_document* document, size_t row,
                                                      const char* widths, size_t length);
/** Sets the background of all cells of a row: a color by its name or as "#1f4e79", or "none". */
QUORVANE_API quorvane_status quorvane_row_set_background(quorvane_document* document, size_t row,
                                                         const char* color, size_t length);
/** Sets the borders of all cells of a row on these sides; cells lose their own borders. */
QUORVANE_API quorvane_status quorvane_row_set_border(quorvane_document* document, size_t row,
                                                     int sides, int width);
/** Makes a row part of the heading, which is on every page: the first rows, without a gap. */
QUORVANE_API quorvane_status quorvane_row_set_heading(quorvane_document* document, size_t row,
                                                      int is_heading);
/** Keeps a row on one page. */
QUORVANE_API quorvane_status quorvane_row_set_keep(quorvane_document* document, size_t row,
                                                   int keeps);
/** Keeps a row on the page of the row below it. */
QUORVANE_API quorvane_status quorvane_row_set_keep_with_next(quorvane_document* document,
                                                             size_t row, int keeps);
/** Begins a page with a row. */
QUORVANE_API quorvane_status quorvane_row_set_page_break(quorvane_document* document, size_t row,
                                                         int breaks);
/**
 * Inserts a cell with one paragraph of this text and style before the cell with an index, or
 * `QUORVANE_AT_END`. With a null text the cell has no paragraph. `cell`, if it is not null,
 * receives its index.
 */
QUORVANE_API quorvane_status quorvane_row_insert_cell(quorvane_document* document, size_t row,
                                                      size_t index, const char* text, size_t length,
                                                      const char* style, size_t style_length,
                                                      size_t* cell);
/** Removes a cell. */
QUORVANE_API quorvane_status quorvane_row_remove_cell(quorvane_document* document, size_t row,
                                                      size_t cell);
/** Returns the number of cells of a row. */
QUORVANE_API quorvane_status quorvane_row_count_cells(quorvane_document* document, size_t row,
                                                      size_t* count);

/** Sets the cell style, which gives the background unless `quorvane_cell_set_background` does. */
QUORVANE_API quorvane_status quorvane_cell_set_style(quorvane_document* document, size_t row,
                                                     size_t cell, const char* name, size_t length);
/** Sets the alignment of all paragraphs. */
QUORVANE_API quorvane_status quorvane_cell_set_align(quorvane_document* document, size_t row,
                                                     size_t cell, int align);
/** Sets the background; "none" leaves it to the style. On a dark color, texts become white. */
QUORVANE_API quorvane_status quorvane_cell_set_background(quorvane_document* document, size_t row,
                                                          size_t cell, const char* color,
                                                          size_t length);
/** Sets the borders on these sides. */
QUORVANE_API quorvane_status quorvane_cell_set_border(quorvane_document* document, size_t row,
                                                      size_t cell, int sides, int width);
/** Sets how many columns and how many rows a cell takes, each at least 1. */
QUORVANE_API quorvane_status quorvane_cell_set_span(quorvane_document* document, size_t row,
                                                    size_t cell, int columns, int rows);
/** Makes a cell a marked field with this data, a text of Windows-1252 that readers do not show. */
QUORVANE_API quorvane_status quorvane_cell_set_marked_field(quorvane_document* document, size_t row,
                                                            size_t cell, const char* data,
                                                            size_t length);
/**
 * Inserts a paragraph before the one with an index, or `QUORVANE_AT_END`. `paragraph`, if it is not
 * null, receives its index.
 */
QUORVANE_API quorvane_status quorvane_cell_insert_paragraph(quorvane_document* document, size_t row,
                                                            size_t cell, size_t index,
                                                            const char* text, size_t length,
                                                            const char* style, size_t style_length,
                                                            size_t* paragraph);
/** Removes a paragraph. */
QUORVANE_API quorvane_status quorvane_cell_remove_paragraph(quorvane_document* document, size_t row,
                                                            size_t cell, size_t paragraph);
/** Returns the number of paragraphs of a cell. */
QUORVANE_API quorvane_status quorvane_cell_count_paragraphs(quorvane_document* document, size_t row,
                                                            size_t cell, size_t* count);

/** Puts a text in the place of the one that is there. Without text, a paragraph is not written. */
QUORVANE_API quorvane_status quorvane_paragraph_set_text(quorvane_document* document, size_t row,
                                                         size_t cell, size_t paragraph,
                                                         const char* text, size_t length);
/** Appends a text. `emphasis` is 0 or made of `quorvane_emphasis`. */
QUORVANE_API quorvane_status quorvane_paragraph_add_text(quorvane_document* document, size_t row,
                                                         size_t cell, size_t paragraph,
                                                         const char* text, size_t length,
                                                         int emphasis);
/** Appends a text in a character style of the stylesheet. */
QUORVANE_API quorvane_status quorvane_paragraph_add_styled_text(quorvane_document* document,
                                                                size_t row, size_t cell,
                                                                size_t paragraph, const char* text,
                                                                size_t length, const char* style,
                                                                size_t style_length);
/**
 * Appends control words as they are, as `(rtf=…)` in the extended language. Words of tables,
 * sections and the document are `QUORVANE_WRONG_CONTENT`, and so are braces without a partner.
 */
QUORVANE_API quorvane_status quorvane_paragraph_add_rtf(quorvane_document* document, size_t row,
                                                        size_t cell, size_t paragraph,
                                                        const char* rtf, size_t length);
/** Returns the text of a paragraph as RTF. */
QUORVANE_API quorvane_status quorvane_paragraph_rtf(quorvane_document* document, size_t row,
                                                    size_t cell, size_t paragraph, char** rtf,
                                                    size_t* length);
/** Sets the paragraph style; an empty name is the first style of the stylesheet. */
QUORVANE_API quorvane_status quorvane_paragraph_set_style(quorvane_document* document, size_t row,
                                                          size_t cell, size_t paragraph,
                                                          const char* name, size_t length);
/** Sets the color of the text; "none" leaves it to the style. */
QUORVANE_API quorvane_status quorvane_paragraph_set_color(quorvane_document* document, size_t row,
                                                          size_t cell, size_t paragraph,
                                                          const char* color, size_t length);
/** Sets the alignment. That of the cell, if it has one, comes before it. */
QUORVANE_API quorvane_status quorvane_paragraph_set_align(quorvane_document* document, size_t row,
                                                          size_t cell, size_t paragraph, int align);
/** Makes a paragraph a marked field; see `quorvane_cell_set_marked_field`. */
QUORVANE_API quorvane_status quorvane_paragraph_set_marked_field(quorvane_document* document,
                                                                 size_t row, size_t cell,
                                                                 size_t paragraph, const char* data,
                                                                 size_t length);
/**
 * Show a picture before the text: the bytes of a PNG or JPEG file, or the file at a path. Width and
 * height are lengths. With one of them empty the picture keeps its proportions; with both it has
 * the size of its file, at 96 pixels an inch unless the file says otherwise. Empty bytes remove the
 * picture.
 */
QUORVANE_API quorvane_status quorvane_paragraph_set_picture(quorvane_document* document, size_t row,
                                                            size_t cell, size_t paragraph,
                                                            const char* bytes, size_t length,
                                                            const char* width, size_t width_length,
                                                            const char* height,
                                                            size_t height_length);
QUORVANE_API quorvane_status quorvane_paragraph_set_picture_file(
    quorvane_document* document, size_t row, size_t cell, size_t paragraph, const char* path,
    size_t length, const char* width, size_t width_length, const char* height,
    size_t height_length);

#ifdef __cplusplus
}
#endif

#endif
