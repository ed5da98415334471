#include "quorvane/compose/TableDescription.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "quorvane/base/text/trimming.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/extendedValues.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/rtf/escape.h"

namespace quorvane {

namespace {

constexpr std::string_view blockMark = R"(""")";
constexpr std::string_view headingColor = "#dce6f1";
constexpr std::string_view line = "thin";

[[noreturn]] void refuse(const std::string& why) {
    raise(RunTimeError::InvalidProcedureCall, why);
}

std::string leaf(std::string_view key, std::string_view value) {
    if (value.find_first_of("\r\n") != std::string_view::npos) {
        refuse("A setting of a table has no line break; " + std::string(key) + " has one.");
    }
    return "(" + std::string(key) + "=" + std::string(value) + ")\n";
}

/// The leaf, unless the value is `none`.
std::string leafUnlessNone(std::string_view key, std::string_view value) {
    return value.empty() || value == "none" ? std::string() : leaf(key, value);
}

/// The text with LF for each of its line breaks.
std::string withLineFeeds(std::string_view text) {
    std::string lines;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\r') {
            lines += text[at];
        } else if (!text.substr(at).starts_with("\r\n")) {
            lines += '\n';
        }
    }
    return lines;
}

/// Raw RTF that shows the text. Characters beyond ASCII stand for themselves in it. Blanks at the
/// ends of a value are lost, and quotation marks at its beginning can mean something.
std::string rawForm(std::string_view text) {
    std::string rtf = text.starts_with(' ') || text.starts_with('"') ? "{}" : "";
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = asciiRunEnd(text, at);
        appendRtfText(text.substr(at, end - at), rtf);
        at = end;
        if (at < text.size()) {
            const std::size_t length = utf8CharacterAt(text, at).length;
            rtf += text.substr(at, length);
            at += length;
        }
    }
    return rtf + (text.ends_with(' ') ? "{}" : "");
}

/// A text as the value of a leaf: between marks or as raw RTF if it would not be kept otherwise.
std::string textLeaf(std::string_view given, bool canHaveStyles) {
    const std::string text = withLineFeeds(given);
    const bool hasLines = text.find('\n') != std::string::npos;
    const bool hasMark = text.find(blockMark) != std::string::npos;
    if ((canHaveStyles && !inlineStyleNames(text).empty()) ||
        (hasMark && (hasLines || text.starts_with(blockMark) || trimWhitespace(text) != text))) {
        return leaf("rtf", rawForm(text));
    }
    if (!hasLines && trimWhitespace(text) == text) {
        return leaf("para-text", text);
    }
    const std::string_view lineEnd = hasLines ? "\n" : "";
    return "(para-text=" + std::string(blockMark) + std::string(lineEnd) + text +
           std::string(lineEnd) + std::string(blockMark) + ")\n";
}

std::string_view alignmentName(tCellAlign align) {
    switch (align) {
        case eLeft:
            return "left";
        case eRight:
            return "right";
        case eCentered:
            return "centered";
        case eJustified:
            return "justified";
        default:
            return "none";
    }
}

void requireWidth(std::string_view width) {
    try {
        columnWidth(width);
    } catch (const RtfError& error) {
        refuse(error.description);
    }
}

std::string borders(std::string_view border) {
    return leafUnlessNone("row-top-border", border) + leafUnlessNone("row-bottom-border", border) +
           leafUnlessNone("row-left-border", border) + leafUnlessNone("row-right-border", border);
}

std::string pageLine(std::string_view key, const PageText& text) {
    return text == PageText() ? std::string()
                              : leaf(key, text.left + "|" + text.center + "|" + text.right);
}

std::string_view styleOf(TableRowKind kind) {
    switch (kind) {
        case TableRowKind::Group:
            return "table-group";
        case TableRowKind::Total:
            return "table-total";
        default:
            return "table-cell";
    }
}

void requireShowable(std::string_view text, std::size_t number) {
    if (const std::optional<Unshowable> found = findUnshowable(text)) {
        refuse("Cell " + std::to_string(number) + ": " + found->message);
    }
}

}  // namespace

void requireCells(const TableSetup& setup, TableRowKind kind, std::size_t count) {
    const std::size_t most = kind == TableRowKind::Group ? 1 : setup.columns.size();
    if (count > most) {
        refuse("The row has " + std::to_string(count) + " cells; the table has " +
               std::to_string(most) + (most == 1 ? " column." : " columns."));
    }
}

TableDescription::TableDescription(TableSetup setup) : setup_(std::move(setup)) {
    if (setup_.columns.empty() || setup_.columns.size() > mostTableColumns) {
        refuse("A table has 1 to " + std::to_string(mostTableColumns) + " columns, not " +
               std::to_string(setup_.columns.size()) + ".");
    }
    const auto hasWidth = [](const TableColumn& column) { return !column.width.empty(); };
    const auto widths = std::count_if(setup_.columns.begin(), setup_.columns.end(), hasWidth);
    if (widths == 0) {
        return;
    }
    for (const TableColumn& column : setup_.columns) {
        if (!hasWidth(column)) {
            refuse("Give all columns a width, or none of them.");
        }
        requireWidth(column.width);
    }
}

std::string TableDescription::beginning() const {
    std::string text = "; quorvane 2\n(doc\n";
    text += leaf("page", setup_.page);
    for (const char* side : {"left", "right", "top", "bottom"}) {
        text += leaf(std::string(side) + "-margin", setup_.margin);
    }
    text += leafUnlessNone("columns", widths());
    text += pageLine("header", setup_.header) + pageLine("footer", setup_.footer);
    return text + titleRow() + headingRow();
}

std::string TableDescription::row(TableRowKind kind, TableCells cells) const {
    requireCells(setup_, kind, cells.size());
    const bool isGroup = kind == TableRowKind::Group;
    std::string text = "(row\n(row-keep=yes)\n";
    text += isGroup ? "(row-keep-with-next=yes)\n" : "";
    text += isGroup && setup_.groupsStartPages ? "(row-page-break=yes)\n" : "";
    text += leafUnlessNone("row-backcolor", kind == TableRowKind::Striped ? setup_.stripe : "none");
    text += setup_.border == "none" && kind == TableRowKind::Total ? leaf("row-top-border", line)
                                                                   : borders(setup_.border);
    const std::size_t count = isGroup ? 1 : setup_.columns.size();
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view content = i < cells.size() ? cells[i] : std::string_view();
        requireShowable(content, i + 1);
        text += cell(styleOf(kind), content, isGroup ? eNoDefault : setup_.columns[i].align,
                     isGroup ? setup_.columns.size() : 1);
    }
    return text + "row)\n";
}

std::string TableDescription::cell(std::string_view style, std::string_view text, tCellAlign align,
                                   std::size_t columns) const {
    return "(cell\n" + (columns > 1 ? leaf("span", std::to_string(columns)) : "") + "(para\n" +
           leaf("para-style", style) + leafUnlessNone("para-alignment", alignmentName(align)) +
           (text.empty() ? leaf("rtf", emptyText) : textLeaf(text, !setup_.styleSheet.empty())) +
           "para)\ncell)\n";
}

std::string TableDescription::titleRow() const {
    return setup_.title.empty()
               ? std::string()
               : "(row\n(row-heading=yes)\n" +
                     cell("table-title", setup_.title, eNoDefault, setup_.columns.size()) +
                     "row)\n";
}

std::string TableDescription::headingRow() const {
    if (!setup_.hasHeading) {
        return {};
    }
    std::string text = "(row\n(row-heading=yes)\n" + leaf("row-backcolor", headingColor);
    text += setup_.border == "none" ? leaf("row-bottom-border", line) : borders(setup_.border);
    for (const TableColumn& column : setup_.columns) {
        text += cell("table-heading", column.heading, column.align);
    }
    return text + "row)\n";
}

std::string TableDescription::widths() const {
    if (setup_.columns.front().width.empty()) {
        return {};
    }
    std::string text;
    for (const TableColumn& column : setup_.columns) {
        text += (text.empty() ? "" : " ") + column.width;
    }
    return text;
}

}  // namespace quorvane
