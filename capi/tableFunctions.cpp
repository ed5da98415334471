#include <quorvane.h>

#include <iterator>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "capi/arguments.h"
#include "capi/callError.h"
#include "capi/guarded.h"
#include "capi/guardedText.h"
#include "capi/rowTexts.h"
#include "capi/tableHandle.h"
#include "capi/writeCallback.h"
#include "quorvane/base/platform/Platform.h"

namespace {

using namespace quorvane;
using namespace quorvane::capi;

void requireUnbegun(const quorvane_table& table) {
    if (table.writer) {
        throw CallError("The table was begun; add columns and set options before.");
    }
}

TableWriter& requireBegun(const quorvane_table& table) {
    if (!table.writer || table.isEnded) {
        throw CallError(table.writer ? "The table is finished, or could not be written."
                                     : "Begin the table first.");
    }
    return *table.writer;
}

bool choiceOf(std::string_view value) {
    if (value != "yes" && value != "no") {
        throw CallError("The heading is \"yes\" or \"no\".");
    }
    return value == "yes";
}

/// The setting of an option; null for the one that is not a text.
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
        case QUORVANE_TABLE_HEADING:
            return nullptr;
        default:
            throw CallError("The argument option is not one of its constants.");
    }
}

/// Runs what writes bytes. After any error but that of a wrong row the document is not whole.
template <class Action>
void writing(quorvane_table& table, Action&& action) {
    table.isEnded = true;
    try {
        action();
    } catch (const RtfError& error) {
        table.isEnded = !error.is(RunTimeError::InvalidProcedureCall);
        if (table.isEnded) {
            throw FileFailure{table.path, error};
        }
        throw;
    }
    table.isEnded = false;
}

void begin(quorvane_table& table, TableWriter::Sink sink) {
    table.writer = std::make_unique<TableWriter>(table.setup, std::move(sink));
}

void beginInMemory(quorvane_table& table) {
    table.memory.emplace();
    begin(table, [&table](std::string_view bytes) { *table.memory += bytes; });
}

void beginFile(quorvane_table& table, std::string path) {
    // What is wrong with the setup shows before there is a file.
    const TableWriter trial(table.setup, [](std::string_view) {});
    table.writer = writingFile(path, [&] {
        return std::make_unique<TableWriter>(table.setup, systemPlatform().replaceFile(path));
    });
    table.path = std::move(path);
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
        const std::string_view text = textArgument(value, length);
        if (std::string* const setting = settingOf(table->setup, option)) {
            *setting = text;
        } else {
            table->setup.hasHeading = choiceOf(text);
        }
    });
}

quorvane_status quorvane_table_begin(quorvane_table* table) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        beginInMemory(*table);
    });
}

quorvane_status quorvane_table_begin_to(quorvane_table* table, quorvane_write_callback write,
                                        void* user) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        begin(*table, WriteCallback(write, user));
    });
}

quorvane_status quorvane_table_begin_file(quorvane_table* table, const char* path, size_t length) {
    return guarded(table, [&] {
        requireUnbegun(*table);
        beginFile(*table, std::string(textArgument(path, length)));
    });
}

quorvane_status quorvane_table_add_row(quorvane_table* table, const char* const texts[],
                                       const size_t lengths[], size_t count) {
    return guarded(table, [&] {
        TableWriter& writer = requireBegun(*table);
        const RowTexts row(texts, lengths, count);
        writing(*table, [&] { writer.addRow(row.cells()); });
    });
}

quorvane_status quorvane_table_add_rows(quorvane_table* table, const char* texts, size_t length,
                                        size_t cells_in_row, size_t rows, size_t* added) {
    if (added) {
        *added = 0;
    }
    return guarded(table, [&] {
        TableWriter& writer = requireBegun(*table);
        JoinedRows joined(textArgument(texts, length), cells_in_row, rows);
        writing(*table, [&] {
            while (joined.next()) {
                writer.addRow(joined.cells());
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
        TableWriter& writer = requireBegun(*table);
        const std::string_view text = textArgument(heading, length);
        writing(*table, [&] { writer.addGroup(text); });
    });
}

quorvane_status quorvane_table_add_total(quorvane_table* table, const char* const texts[],
                                         const size_t lengths[], size_t count) {
    return guarded(table, [&] {
        TableWriter& writer = requireBegun(*table);
        const RowTexts row(texts, lengths, count);
        writing(*table, [&] { writer.addTotal(row.cells()); });
    });
}

quorvane_status quorvane_table_finish(quorvane_table* table) {
    return guarded(table, [&] {
        TableWriter& writer = requireBegun(*table);
        writing(*table, [&] { writer.finish(); });
        table->isEnded = true;
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
