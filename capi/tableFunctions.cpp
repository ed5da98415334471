#include <quorvane.h>

#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "capi/FittedTable.h"
#include "capi/RecordsData.h"
#include "capi/TableData.h"
#include "capi/arguments.h"
#include "capi/callError.h"
#include "capi/guarded.h"
#include "capi/guardedText.h"
#include "capi/rowTexts.h"
#include "capi/tableHandle.h"
#include "capi/writeCallback.h"
#include "data/recordsFile.h"
#include "quorvane/base/platform/Platform.h"

namespace {

using namespace quorvane;
using namespace quorvane::capi;

void requireUnbegun(const quorvane_table& table) {
    if (table.isBegun) {
        throw CallError("The table was begun; add columns and set options before.");
    }
}

void requireNotEnded(const quorvane_table& table) {
    if (!table.isBegun || table.isEnded) {
        throw CallError(table.isBegun ? "The table is finished, or could not be written."
                                      : "Begin the table first.");
    }
}

void requireRows(const quorvane_table& table) {
    requireNotEnded(table);
    if (table.data) {
        throw CallError("The rows of this table come from its data.");
    }
}

/// The setting of an option; null for one that is not a text of the setup.
std::string* settingOf(TableSetup& setup, int option) {
    switch (option) {
        case QUORVANE_TABLE_TITLE:
            return &setup.title;
        case QUORVANE_TABLE_PAGE:
            return &setup.page;
        case QUORVANE_TABLE_MARGIN:
            return &setup.margin;
        case QUORVANE_TABLE_STRIPE:
            return &setup.stripe;
        case QUORVANE_TABLE_BORDER:
            return &setup.border;
        case QUORVANE_TABLE_STYLESHEET:
            return &setup.styleSheet;
        case QUORVANE_TABLE_HEADER_LEFT:
            return &setup.header.left;
        case QUORVANE_TABLE_HEADER_CENTER:
            return &setup.header.center;
        case QUORVANE_TABLE_HEADER_RIGHT:
            return &setup.header.right;
        case QUORVANE_TABLE_FOOTER_LEFT:
            return &setup.footer.left;
        case QUORVANE_TABLE_FOOTER_CENTER:
            return &setup.footer.center;
        case QUORVANE_TABLE_FOOTER_RIGHT:
            return &setup.footer.right;
        default:
            return nullptr;
    }
}

void setOption(quorvane_table& table, int option, std::string_view value) {
    if (std::string* const setting = settingOf(table.setup, option)) {
        *setting = value;
        table.isPageChosen = table.isPageChosen || option == QUORVANE_TABLE_PAGE;
    } else if (option == QUORVANE_TABLE_HEADING) {
        table.setup.hasHeading = choiceArgument(value, "heading");
    } else if (option == QUORVANE_TABLE_GROUP_PAGES) {
        table.setup.groupsStartPages = choiceArgument(value, "option for pages of groups");
    } else if (table.data) {
        table.data->setOption(option, value);
    } else {
        enumArgument(option, QUORVANE_TABLE_KEEP_GOING, "option");
        throw CallError("This option is for tables of data; set the data before.");
    }
}

/// Makes the table one of data, which the arguments give.
template <class... Arguments>
void setData(quorvane_table& table, int format, Arguments&&... arguments) {
    requireUnbegun(table);
    if (!table.setup.columns.empty()) {
        throw CallError(
            "The table has columns, and those of data come from it; set QUORVANE_TABLE_COLUMNS.");
    }
    const auto form = static_cast<data::RecordsForm>(enumArgument(format, QUORVANE_JSON, "format"));
    table.data = std::make_unique<RecordsData>(std::forward<Arguments>(arguments)..., form);
}

/// Runs what writes bytes. After an error the document is not whole.
template <class Action>
void writing(quorvane_table& table, Action&& action) {
    table.isEnded = true;
    try {
        action();
    } catch (const RtfError& error) {
        if (!error.is(RunTimeError::InvalidProcedureCall)) {
            throw FileFailure{table.path, error};
        }
        throw;
    }
}

/// Runs what adds rows. After the error of a wrong row, others can be added.
template <class Action>
void adding(quorvane_table& table, Action&& action) {
    try {
        writing(table, std::forward<Action>(action));
    } catch (const RtfError&) {
        table.isEnded = !table.writer && !table.kept;
        throw;
    }
    table.isEnded = false;
}

void begin(quorvane_table& table, const OpenTable& open) {
    if (table.data) {
        table.data->begin(table.setup, table.isPageChosen, open);
    } else if (table.kept) {
        table.kept->begin(table.setup, table.isPageChosen, open);
    } else {
        table.writer = open(table.setup);
    }
}

void beginWith(quorvane_table& table, const TableWriter::Sink& sink) {
    begin(table,
          [sink](const TableSetup& setup) { return std::make_unique<TableWriter>(setup, sink); });
}

void beginInMemory(quorvane_table& table) {
    table.memory.emplace();
    beginWith(table, [&table](std::string_view bytes) { *table.memory += bytes; });
}

/// Opens the file now, and not when there are enough rows.
void beginKeptFile(quorvane_table& table, const std::string& path) {
    const auto file = std::make_shared<std::unique_ptr<OutputFile>>();
    begin(table, [file](const TableSetup& setup) {
        return std::make_unique<TableWriter>(setup, std::move(*file));
    });
    *file = writingFile(path, [&] { return systemPlatform().replaceFile(path); });
}

void beginFile(quorvane_table& table, std::string path) {
    if (table.data && table.data->isFromFile(path)) {
        throw CallError("The document would replace " + path +
                        ", which has the data; name another file.");
    }
    if (table.kept && !table.data) {
        beginKeptFile(table, path);
    } else {
        begin(table, [path](const TableSetup& setup) {
            // What is wrong with the setup shows before there is a file.
            const TableWriter trial(setup, [](std::string_view) {});
            return writingFile(path, [&] {
                return std::make_unique<TableWriter>(setup, systemPlatform().replaceFile(path));
            });
        });
    }
    table.path = std::move(path);
}

/// Writes what is kept. After an error, there is nothing to add rows to.
void writeKept(quorvane_table& table) {
    const std::unique_ptr<KeptTable> kept = std::move(table.kept);
    table.writer = kept->write();
}

/// Adds a row to what is written, or to what is kept.
void add(quorvane_table& table, RowKind kind, std::span<const std::string_view> cells) {
    if (table.writer) {
        addRow(*table.writer, kind, cells);
    } else if (table.kept->add(kind, cells)) {
        writeKept(table);
    }
}

void finish(quorvane_table& table) {
    if (table.data) {
        table.data->finish();
        return;
    }
    if (table.kept) {
        writeKept(table);
    }
    table.writer->finish();
}

}  // namespace

quorvane_status quorvane_table_new(quorvane_table** table) {
    return makeHandle(table);
}

void quorvane_table_free(quorvane_table* table) {
    delete table;
}

const quorvane_error* quorvane_table_error(const quorvane_table* table) {
    return errorOf(table);
}

const char* quorvane_table_error_text(const quorvane_table* table) {
    return errorTextOf(table);
}

quorvane_status quorvane_table_add_column(quorvane_table* table, const char* heading,
                                          size_t heading_length, const char* width,
                                          size_t width_length, int align) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        if (table->data) {
            throw CallError("The columns come from the data; set QUORVANE_TABLE_COLUMNS.");
        }
        table->setup.columns.push_back(
            {std::string(textArgument(heading, heading_length)),
             std::string(textArgument(width, width_length)),
             static_cast<tCellAlign>(enumArgument(align, QUORVANE_ALIGN_JUSTIFIED, "align"))});
    });
}

quorvane_status quorvane_table_set(quorvane_table* table, int option, const char* value,
                                   size_t length) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        setOption(*table, option, textArgument(value, length));
    });
}

quorvane_status quorvane_table_fit_columns(quorvane_table* table) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        table->kept = std::make_unique<FittedTable>();
    });
}

quorvane_status quorvane_table_set_data(quorvane_table* table, const char* bytes, size_t length,
                                        int format, const char* name, size_t name_length) {
    return guarded(table, [&] {
        const std::string_view text = textArgument(bytes, length);
        const std::string_view given = textArgument(name, name_length);
        setData(
            *table, format, [text] { return data::readerOf(text); },
            std::string(given.empty() ? "data" : given));
    });
}

quorvane_status quorvane_table_set_data_file(quorvane_table* table, const char* path, size_t length,
                                             int format) {
    return guarded(table,
                   [&] { setData(*table, format, std::string(textArgument(path, length))); });
}

quorvane_status quorvane_table_begin(quorvane_table* table) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        beginInMemory(*table);
        table->isBegun = true;
    });
}

quorvane_status quorvane_table_begin_to(quorvane_table* table, quorvane_write_callback write,
                                        void* user) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        beginWith(*table, WriteCallback(write, user));
        table->isBegun = true;
    });
}

quorvane_status quorvane_table_begin_file(quorvane_table* table, const char* path, size_t length) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        beginFile(*table, std::string(textArgument(path, length)));
        table->isBegun = true;
    });
}

quorvane_status quorvane_table_add_row(quorvane_table* table, const char* const texts[],
                                       const size_t lengths[], size_t count) {
    return guarded(table, [&] {
        requireRows(*table);
        const RowTexts row(texts, lengths, count);
        adding(*table, [&] { add(*table, RowKind::Row, row.cells()); });
    });
}

quorvane_status quorvane_table_add_rows(quorvane_table* table, const char* texts, size_t length,
                                        size_t cells_in_row, size_t rows, size_t* added) {
    if (added) {
        *added = 0;
    }
    return guarded(table, [&] {
        requireRows(*table);
        JoinedRows joined(textArgument(texts, length), cells_in_row, rows);
        adding(*table, [&] {
            while (joined.next()) {
                add(*table, RowKind::Row, joined.cells());
                if (added) {
                    ++*added;
                }
            }
        });
    });
}

quorvane_status quorvane_table_add_group(quorvane_table* table, const char* heading,
                                         size_t length) {
    return guarded(table, [&] {
        requireRows(*table);
        const std::string_view text = textArgument(heading, length);
        adding(*table, [&] { add(*table, RowKind::Group, {&text, 1}); });
    });
}

quorvane_status quorvane_table_add_total(quorvane_table* table, const char* const texts[],
                                         const size_t lengths[], size_t count) {
    return guarded(table, [&] {
        requireRows(*table);
        const RowTexts row(texts, lengths, count);
        adding(*table, [&] { add(*table, RowKind::Total, row.cells()); });
    });
}

quorvane_status quorvane_table_finish(quorvane_table* table) {
    return guarded(table, [&] {
        requireNotEnded(*table);
        writing(*table, [&] { finish(*table); });
        table->isFinished = true;
    });
}

quorvane_status quorvane_table_take(quorvane_table* table, char** rtf, size_t* length) {
    const quorvane_status status = guardedText(table, rtf, length, [&]() -> std::string_view {
        if (!table->memory || !table->isFinished) {
            throw CallError("There is no finished table in memory to take.");
        }
        return *table->memory;
    });
    if (status == QUORVANE_OK) {
        table->memory.reset();
    }
    return status;
}

size_t quorvane_table_diagnostic_count(const quorvane_table* table) {
    return table && table->data ? table->data->diagnostics().size() : 0;
}

const quorvane_diagnostic* quorvane_table_diagnostic(const quorvane_table* table, size_t index) {
    return index < quorvane_table_diagnostic_count(table) ? &table->data->diagnostics()[index]
                                                          : nullptr;
}
