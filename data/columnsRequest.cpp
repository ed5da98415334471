#include "data/columnsRequest.h"

#include <algorithm>
#include <iterator>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane::data {

namespace {

[[noreturn]] void refuse(const std::string& why) {
    raise(RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall), why));
}

struct NamedAlignment {
    std::string_view name;
    tCellAlign align;
};

constexpr NamedAlignment alignments[] = {
    {"left", eLeft},         {"right", eRight},         {"center", eCentered},
    {"centered", eCentered}, {"justified", eJustified},
};

constexpr std::string_view filterNames[] = {"number", "money", "date", "upper", "lower", "default"};

/// A part between two signs, and whether it was written between quotation marks.
struct Part {
    std::string text;
    bool isQuoted = false;
};

/// Reads the parts of columns one after the other.
class Parts {
public:
    explicit Parts(std::string_view text) : rest_(text) {}

    Part take() { return rest_.starts_with('"') ? takeQuoted() : takeUpTo(":,"); }
    /// All up to the next column: a comma that is not in quotation marks.
    Part takeColumn() {
        bool isQuoted = false;
        std::size_t end = 0;
        for (; end < rest_.size() && (isQuoted || rest_[end] != ','); ++end) {
            isQuoted = isQuoted != (rest_[end] == '"');
        }
        Part part{std::string(rest_.substr(0, end))};
        rest_.remove_prefix(end);
        return part;
    }

    /// Takes the sign if it is the next character.
    bool takeSign(char sign) {
        const bool isThere = rest_.starts_with(sign);
        rest_.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }
    bool isAtEnd() const { return rest_.empty(); }
    std::string_view rest() const { return rest_; }
    /// How a part began that was just looked at.
    std::string_view untilSign() const {
        return rest_.substr(0, std::min(rest_.find_first_of(":,|"), rest_.size()));
    }

private:
    Part takeUpTo(std::string_view signs) {
        const std::size_t end = std::min(rest_.find_first_of(signs), rest_.size());
        Part part{std::string(rest_.substr(0, end))};
        rest_.remove_prefix(end);
        return part;
    }

    Part takeQuoted() {
        Part part{{}, true};
        for (;;) {
            rest_.remove_prefix(1);
            const std::size_t end = rest_.find('"');
            if (end == std::string_view::npos) {
                refuse("A quotation mark in the columns is not closed.");
            }
            part.text += rest_.substr(0, end);
            rest_.remove_prefix(end + 1);
            if (!rest_.starts_with('"')) {
                return part;
            }
            part.text += '"';
        }
    }

    std::string_view rest_;
};

/// A width without the blank that some languages have before "%".
std::string withoutBlank(std::string_view text) {
    std::string width(text);
    if (width.ends_with(" %")) {
        width.erase(width.size() - 2, 1);
    }
    return width;
}

bool isBareNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789.") == std::string_view::npos;
}

bool looksLikeWidth(std::string_view text) {
    const std::size_t end = text.find_first_not_of("0123456789.");
    const std::string_view unit = end == std::string_view::npos ? "" : text.substr(end);
    return end > 0 && (unit == "%" || unit == "mm" || unit == "cm" || unit == "in" || unit == "pt");
}

std::string requiredWidth(const std::string& text) {
    try {
        columnWidth(text);
    } catch (const RtfError& error) {
        refuse(error.description);
    }
    return text;
}

void takeProperty(Parts& parts, ColumnRequest& column) {
    const Part part = parts.take();
    const auto* const alignment =
        std::find_if(std::begin(alignments), std::end(alignments),
                     [&](const NamedAlignment& entry) { return entry.name == part.text; });
    if (!part.isQuoted && part.text == "auto") {
        column.width.clear();
    } else if (!part.isQuoted && looksLikeWidth(withoutBlank(part.text))) {
        column.width = requiredWidth(withoutBlank(part.text));
    } else if (!part.isQuoted && alignment != std::end(alignments)) {
        column.align = alignment->align;
    } else if (!part.isQuoted && isBareNumber(part.text)) {
        const std::string guess = didYouMean(column.heading.value_or(std::string()), filterNames);
        refuse("\"" + part.text + "\" after the column \"" + column.name + "\" is not a width; " +
               (guess.empty() ? "write " + part.text + "% or " + part.text +
                                    "mm, or put a heading into quotation marks."
                              : guess));
    } else if (column.heading) {
        refuse("The column \"" + column.name + "\" has two headings, \"" + *column.heading +
               "\" and \"" + part.text +
               "\". After its name, a column has a heading, a width such as 20% or 3cm, an "
               "alignment (left, right, center, justified) and filters.");
    } else {
        column.heading = part.text;
    }
}

ColumnRequest takeColumn(Parts& parts) {
    ColumnRequest column;
    column.name = parts.take().text;
    if (column.name.empty()) {
        refuse("A column has no name. Write names with commas between them.");
    }
    while (parts.takeSign(':')) {
        if (std::find(std::begin(filterNames), std::end(filterNames), parts.untilSign()) !=
            std::end(filterNames)) {
            const Part filters = parts.takeColumn();
            std::string error;
            column.filters = filtersIn(filters.text, error);
            if (!error.empty()) {
                refuse("The filter \"" + filters.text + "\" of the column \"" + column.name +
                       "\": " + error + ".");
            }
            break;
        }
        takeProperty(parts, column);
    }
    return column;
}

}  // namespace

std::vector<ColumnRequest> columnRequests(std::string_view text) {
    Parts parts(text);
    std::vector<ColumnRequest> columns;
    do {
        columns.push_back(takeColumn(parts));
    } while (parts.takeSign(','));
    if (!parts.isAtEnd()) {
        refuse("\"" + std::string(parts.rest()) +
               "\" cannot stand after a quotation mark; write a comma or a colon before it.");
    }
    return columns;
}

}  // namespace quorvane::data
