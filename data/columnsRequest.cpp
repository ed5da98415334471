#include "data/columnsRequest.h"

#include <algorithm>
#include <iterator>

#include "data/columnsParts.h"
#include "data/refuse.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/engine/nearestWord.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane::data {

namespace {

struct NamedAlignment {
    std::string_view name;
    tCellAlign align;
};

constexpr NamedAlignment alignments[] = {
    {"left", eLeft},         {"right", eRight},         {"center", eCentered},
    {"centered", eCentered}, {"justified", eJustified},
};

constexpr std::string_view filterNames[] = {"number", "money", "date", "upper", "lower", "default"};
// All words that can follow the name of a field.
constexpr std::string_view words[] = {"auto",  "left", "right", "center", "justified", "number",
                                      "money", "date", "upper", "lower",  "default"};

template <std::size_t count>
bool isWord(const std::string_view (&known)[count], std::string_view text) {
    return std::find(std::begin(known), std::end(known), text) != std::end(known);
}

/// True for "rigth" and the like: a heading in small letters is taken for a misspelled word.
bool looksMisspelled(const ColumnsPart& part) {
    return !part.isQuoted && !part.text.empty() &&
           std::all_of(part.text.begin(), part.text.end(),
                       [](char letter) { return letter >= 'a' && letter <= 'z'; });
}

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

void takeProperty(ColumnsParts& parts, ColumnRequest& column) {
    const ColumnsPart part = parts.take();
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
        refuse("\"" + part.text + "\" after the column \"" + column.name +
               "\" is not a width; write " + part.text + "% or " + part.text +
               "mm, or put a heading into quotation marks.");
    } else if (column.heading) {
        refuse("The column \"" + column.name + "\" has two headings, \"" + *column.heading +
               "\" and \"" + part.text +
               "\". After its name, a column has a heading, a width such as 20% or 3cm, an "
               "alignment (left, right, center, justified) and filters.");
    } else if (looksMisspelled(part)) {
        const std::string guess = didYouMean(part.text, words);
        refuse("\"" + part.text + "\" after the column \"" + column.name +
               "\" is not a width, an alignment or a filter; " +
               (guess.empty() ? "put a heading into quotation marks."
                              : guess + " Put a heading into quotation marks."));
    } else {
        column.heading = part.text;
    }
}

ColumnRequest takeColumn(ColumnsParts& parts) {
    ColumnRequest column;
    column.name = parts.take().text;
    if (column.name.empty()) {
        refuse("A column has no name. Write names with commas between them.");
    }
    while (parts.takeSign(':')) {
        if (isWord(filterNames, parts.untilSign())) {
            const ColumnsPart filters = parts.takeColumn();
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
    ColumnsParts parts(text);
    std::vector<ColumnRequest> columns;
    do {
        columns.push_back(takeColumn(parts));
    } while (parts.takeSign(','));
    parts.requireEnd();
    return columns;
}

}  // namespace quorvane::data
