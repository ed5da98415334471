#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "tests/docmodel/fixedGroups.h"
#include "tests/docmodel/withCharacterStyles.h"
#include "tests/fuzz/plainStyleSheet.h"

// A document as its rules state it, without regard to speed: what the fuzzers compare the library
// with. Where a call is to fail, the number of its error is thrown.

namespace quorvane::plain {

inline std::int32_t measure(std::int64_t value) {
    if (value < INT32_MIN || value > INT32_MAX) {
        throw 6;
    }
    return static_cast<std::int32_t>(value);
}

inline std::int32_t quotient(std::int64_t a, std::int64_t b) {
    if (b == 0) {
        throw 11;
    }
    return measure(
        static_cast<std::int64_t>(std::nearbyint(static_cast<double>(a) / static_cast<double>(b))));
}

template <class Element>
struct List {
    struct Entry {
        std::shared_ptr<Element> element;
        std::optional<std::string> key;
    };
    std::vector<Entry> entries;

    std::size_t count() const { return entries.size(); }
    std::shared_ptr<Element> at(std::size_t position) const {
        return entries[position - 1].element;
    }

    bool hasKey(const std::string& key) const { return positionOfKey(key) != 0; }
    std::size_t positionOfKey(const std::string& key) const {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (entries[i].key && lowerCase(*entries[i].key) == lowerCase(key)) {
                return i + 1;
            }
        }
        return 0;
    }

    std::size_t position(const Value& index, int errorOfOtherTypes) const {
        double number = 0;
        if (index.isText()) {
            number = static_cast<double>(positionOfKey(index.text()));
        } else if (index.isNumber()) {
            number = std::nearbyint(index.number());
        } else {
            throw errorOfOtherTypes;
        }
        if (!(number >= 1 && number <= static_cast<double>(count()))) {
            throw 5;
        }
        return static_cast<std::size_t>(number);
    }

    std::size_t place(const Value& key, const Value& before, const Value& after) const {
        std::size_t result = count() + 1;
        if (!key.isAbsent() && !key.isText()) {
            throw 13;
        }
        if (!before.isAbsent() && !after.isAbsent()) {
            throw 5;
        }
        if (!before.isAbsent()) {
            result = position(before, 5);
        } else if (!after.isAbsent()) {
            result = position(after, 5) + 1;
        }
        if (key.isText() && hasKey(key.text())) {
            throw 457;
        }
        return result;
    }

    void insert(std::size_t position, const Value& key, std::shared_ptr<Element> element) {
        entries.insert(
            entries.begin() + static_cast<std::ptrdiff_t>(position - 1),
            {std::move(element), key.isText() ? std::optional(key.text()) : std::nullopt});
    }

    void erase(std::size_t position) {
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(position - 1));
    }

    std::size_t positionOf(const Element* element) const {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (entries[i].element.get() == element) {
                return i + 1;
            }
        }
        throw 5;
    }

    std::size_t placeOfRefiled(const Element* old, const std::string& key) const {
        const std::size_t position = positionOf(old);
        if (hasKey(key)) {
            throw 457;
        }
        return position;
    }
};

/// Hexadecimal digits of a marked field's data; nothing for data that is refused.
inline std::optional<std::string> fieldData(const Value& value) {
    std::string text;
    if (value.isText()) {
        text = value.text();
    } else if (value.holds<std::int16_t>() || value.holds<std::int32_t>()) {
        text = std::to_string(static_cast<std::int32_t>(value.number()));
    } else {
        return std::nullopt;
    }
    std::string digits;
    for (const char byte : codePage1252FromUtf8(text)) {
        const auto number = static_cast<unsigned char>(byte);
        constexpr const char* hex = "0123456789ABCDEF";
        if (number >= 16) {
            digits += hex[number / 16];
        }
        digits += hex[number % 16];
    }
    return digits;
}

inline std::string wrapped(const std::string& rtf, const std::optional<std::string>& field) {
    if (!field) {
        return rtf;
    }
    return "{\\*\\txfieldstart\\txfieldtype0\\txfieldflags128\\txfieldbin" +
           (field->empty() ? "" : "\\txfielddata " + *field) + "}" + rtf + "{\\*\\txfieldend}";
}

// Bottom, left, right, top.
using Borders = std::array<std::int32_t, 4>;

struct Document;
struct Row;
struct Cell;

struct Paragraph {
    const void* original = nullptr;
    std::weak_ptr<Cell> owner;
    std::string text;
    std::string style;
    std::int32_t foreColor = 0;
    std::int32_t align = 0;
    std::optional<std::string> field;
};

struct Cell {
    const void* original = nullptr;
    std::weak_ptr<Row> owner;
    Borders borders{-1, -1, -1, -1};
    std::int32_t backColor = 0;
    std::int32_t align = 0;
    std::int32_t edge = 0;
    std::string style;
    std::optional<std::string> field;
    List<Paragraph> paragraphs;

    void setBackColor(std::int32_t color) {
        static const std::set<std::int32_t> dark = {3,  4,  5,  8,  9,  10, 11, 12, 13, 14,
                                                    15, 17, 24, 25, 29, 31, 38, 39, 41, 43,
                                                    44, 46, 48, 49, 51, 52, 53, 55, 57};
        if (backColor == color) {
            return;
        }
        backColor = color;
        if (dark.contains(color)) {
            for (auto& entry : paragraphs.entries) {
                entry.element->foreColor = 36;
            }
        }
    }
};

struct Row {
    Row() = default;
    Row(const Row&) = delete;
    Row& operator=(const Row&) = delete;
    /// Its collection is torn down with it, whoever holds that.
    ~Row() { cells->entries.clear(); }

    const void* original = nullptr;
    /// Where its collection of cells stands, which outlives it in the hands of a host.
    const void* originalCells = nullptr;
    std::weak_ptr<Document> owner;
    Borders borders{-1, -1, -1, -1};
    std::int32_t backColor = 0;
    std::shared_ptr<List<Cell>> cells = std::make_shared<List<Cell>>();

    std::int32_t width(std::size_t position) const {
        const std::int64_t left = position == 1 ? 0 : cells->at(position - 1)->edge;
        return measure(cells->at(position)->edge - left);
    }
};

struct Rows {
    const void* original = nullptr;
    std::weak_ptr<Document> owner;
    List<Row> rows;
};

struct Document {
    Document() = default;
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    /// Its rows are torn down with it, whoever holds them.
    ~Document() { rows->rows.entries.clear(); }

    /// Where inline styles find their words.
    const CRtfDoc* original = nullptr;
    std::shared_ptr<Rows> rows = std::make_shared<Rows>();
    StyleSheet styles;
    std::string styleSheetFile;
    bool changed = false;
    /// The text that was made last.
    std::string contents = "{}";
    std::int32_t bottom = 1418, left = 1701, top = 1418, right = 1701;
    std::int32_t width = 12242, height = 15842, pageNumber = 2;

    void setDefaultPage() {
        bottom = top = 1418;
        left = right = 1701;
        width = 12242;
        height = 15842;
        pageNumber = 2;
    }

    void setMargin(std::int32_t& margin, std::int32_t value, std::int32_t paper,
                   std::int32_t opposite, std::int32_t fallback) {
        if (!(value >= 1 && value < paper * 0.9 - opposite)) {
            value = fallback;
        }
        changed = changed || margin != value;
        margin = value;
    }

    std::int32_t usableWidth() const {
        return measure(std::int64_t{measure(std::int64_t{width} - right)} - left);
    }

    /// A bad sheet leaves no styles and no name of a file.
    void load(const std::string& sheet) {
        forgetStyles();
        styleSheetFile.clear();
        styles = StyleSheet(sheet);
        if (!styles.isLoaded()) {
            throw styles.error().number;
        }
        changed = true;
    }

    /// What was loaded goes, and the text with it.
    void forgetStyles() {
        changed = changed || styles.isLoaded();
        styles = {};
    }

    std::string paragraphStyle(const std::string& name) const {
        const std::string words = styles.paragraphWords(name);
        return words.empty() ? " " : words;
    }

    /// False when the text cannot be made, which then is the one before.
    bool refresh() {
        changed = true;
        try {
            const std::string page = render();
            contents = std::string("{") + fixedGroups + styles.group() + page;
            changed = false;
        } catch (const RtfError&) {
        }
        return !changed;
    }

    /// The page setup and the rows, which a document ends with.
    std::string render() {
        std::string rtf = "\r\n\\deftab360\\defformat\\margb" + std::to_string(bottom) + "\\margl" +
                          std::to_string(left) + "\\margt" + std::to_string(top) + "\\margr" +
                          std::to_string(right) + "\\paperw" + std::to_string(width) + "\\paperh" +
                          std::to_string(height) + "\\pgnstart" + std::to_string(pageNumber) +
                          "\\widowctrl\r\n";
        for (auto& entry : rows->rows.entries) {
            rtf += renderRow(*entry.element);
        }
        return rtf + "}";
    }

private:
    std::string renderRow(Row& row) const {
        std::string rtf = "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0";
        for (auto& entry : row.cells->entries) {
            rtf += " " + renderDefinition(*entry.element);
        }
        for (auto& entry : row.cells->entries) {
            rtf += " " + renderContent(*entry.element) + "\\cell";
        }
        return rtf + "\\row}";
    }

    std::string renderDefinition(Cell& cell) const {
        static constexpr std::array<const char*, 4> sides{"b", "l", "r", "t"};
        std::string rtf;
        for (std::size_t side = 0; side < sides.size(); ++side) {
            if (cell.borders[side] != -1) {
                rtf += std::string("\\clbrdr") + sides[side] + "\\brdrs\\brdrw" +
                       std::to_string(cell.borders[side]);
            }
        }
        if (cell.backColor == 0 && !cell.style.empty()) {
            cell.setBackColor(styles.cellColor(cell.style));
            rtf += "\\clcbpat" + std::to_string(cell.backColor);
        } else if (cell.backColor != 0) {
            rtf += "\\clcbpat" + std::to_string(cell.backColor);
        }
        return rtf + "\\cellx" + std::to_string(cell.edge);
    }

    std::string renderContent(Cell& cell) const {
        std::string rtf = "\r\n";
        for (std::size_t position = 1; position <= cell.paragraphs.count(); ++position) {
            Paragraph& paragraph = *cell.paragraphs.at(position);
            if (cell.align != 0) {
                paragraph.align = cell.align;
            }
            rtf += "\r\n" + renderParagraph(paragraph, position);
        }
        return wrapped(rtf, cell.field);
    }

    std::string renderParagraph(const Paragraph& paragraph, std::size_t position) const {
        std::string rtf;
        if (!paragraph.text.empty()) {
            static constexpr std::array<const char*, 5> words{"", "\\qc ", "\\ql ", "\\qr ",
                                                              "\\qj "};
            std::string body = paragraph.text;
            if (paragraph.align >= 1 && paragraph.align <= 4) {
                body = words[static_cast<std::size_t>(paragraph.align)] + body;
            }
            if (paragraph.foreColor != 0) {
                body = "\\cf" + std::to_string(paragraph.foreColor) + " " + body;
            }
            rtf = position >= 2 ? "\r\n\\par\\pard\\plain\\intbl" : "\r\n\\pard\\plain\\intbl";
            rtf += paragraphStyle(paragraph.style);
            rtf += withCharacterStyles(inner(*original), body);
        }
        return wrapped(rtf, paragraph.field);
    }
};

inline std::shared_ptr<Document> ownerOf(const Rows& rows) {
    return rows.owner.lock();
}
inline std::shared_ptr<Document> ownerOf(const Row& row) {
    return row.owner.lock();
}
inline std::shared_ptr<Document> documentOf(const Cell& cell) {
    const auto row = cell.owner.lock();
    return row ? row->owner.lock() : nullptr;
}
inline std::shared_ptr<Document> documentOf(const Paragraph& paragraph) {
    const auto cell = paragraph.owner.lock();
    return cell ? documentOf(*cell) : nullptr;
}

/// Throws 91 when the document is gone.
inline Document& required(const std::shared_ptr<Document>& document) {
    if (!document) {
        throw 91;
    }
    return *document;
}

inline void markChanged(const std::shared_ptr<Document>& document) {
    required(document).changed = true;
}

inline void setBackColorOf(Row& row, std::int32_t color) {
    if (row.backColor != color) {
        row.backColor = color;
        required(row.owner.lock());
        for (auto& entry : row.cells->entries) {
            entry.element->setBackColor(color);
        }
        markChanged(row.owner.lock());
    }
}

/// A row hands all its borders to its cells, whichever is set.
inline void setBorderOf(Row& row, std::size_t side, std::int32_t width) {
    if (row.borders[side] != width) {
        row.borders[side] = width;
        required(row.owner.lock());
        for (auto& entry : row.cells->entries) {
            entry.element->borders = row.borders;
        }
        markChanged(row.owner.lock());
    }
}

/// Width of each of so many cells; throws when they do not fit in 32 bits.
inline std::int32_t evenWidth(const Document& document, std::size_t count) {
    const std::int32_t width =
        std::max(quotient(document.usableWidth(), static_cast<std::int64_t>(count)), 200);
    measure(std::int64_t{width} * static_cast<std::int64_t>(count));
    return width;
}

inline void spread(Row& row, std::int32_t width) {
    for (std::size_t position = 1; position <= row.cells->count(); ++position) {
        row.cells->at(position)->edge = width * static_cast<std::int32_t>(position);
    }
}

// The three kinds of collection, alike for the fuzzer.

struct RowsView {
    using Element = Row;
    std::shared_ptr<Rows> rows;

    List<Row>& list() const { return rows->rows; }
    std::shared_ptr<Document> document() const { return rows->owner.lock(); }
    void insert(std::size_t place, const Value& key) const {
        auto row = std::make_shared<Row>();
        row->owner = rows->owner;
        list().insert(place, key, row);
    }
    void remove(std::size_t position) const { list().erase(position); }
    void checkTail() const {}
    std::shared_ptr<Row> refile(const std::shared_ptr<Row>& old, const std::string& key) const {
        Document& document = required(this->document());
        const std::size_t position = list().placeOfRefiled(old.get(), key);
        auto fresh = std::make_shared<Row>();
        fresh->owner = rows->owner;
        fresh->borders = old->borders;
        fresh->backColor = old->backColor;
        std::swap(fresh->cells->entries, old->cells->entries);
        for (auto& entry : fresh->cells->entries) {
            entry.element->owner = fresh;
        }
        list().entries[position - 1] = {fresh, key};
        document.changed = true;
        return fresh;
    }
};

struct CellsView {
    using Element = Cell;

    CellsView() = default;
    CellsView(const std::shared_ptr<Row>& owner) : row(owner), cells(owner->cells) {}

    std::weak_ptr<Row> row;
    std::shared_ptr<List<Cell>> cells;

    List<Cell>& list() const { return *cells; }
    std::shared_ptr<Document> document() const {
        const auto owner = row.lock();
        return owner ? owner->owner.lock() : nullptr;
    }
    void insert(std::size_t place, const Value& key) const {
        const std::int32_t width = evenWidth(*document(), list().count() + 1);
        auto cell = std::make_shared<Cell>();
        cell->owner = row;
        list().insert(place, key, cell);
        spread(*row.lock(), width);
    }
    void remove(std::size_t position) const {
        const std::int32_t edge = list().at(position)->edge;
        list().erase(position);
        if (list().count() != 1 && position != 1) {
            list().at(position - 1)->edge = edge;
        }
    }
    void checkTail() const {
        if (list().count() == 0) {
            throw 5;
        }
    }
    std::shared_ptr<Cell> refile(const std::shared_ptr<Cell>& old, const std::string& key) const {
        Document& document = required(this->document());
        const std::size_t position = list().placeOfRefiled(old.get(), key);
        auto fresh = std::make_shared<Cell>();
        fresh->owner = row;
        fresh->borders = old->borders;
        fresh->backColor = old->backColor;
        fresh->edge = old->edge;
        fresh->paragraphs = std::move(old->paragraphs);
        old->paragraphs = {};
        for (auto& entry : fresh->paragraphs.entries) {
            entry.element->owner = fresh;
        }
        list().entries[position - 1] = {fresh, key};
        document.changed = true;
        return fresh;
    }
};

struct ParagraphsView {
    using Element = Paragraph;
    std::shared_ptr<Cell> cell;

    List<Paragraph>& list() const { return cell->paragraphs; }
    std::shared_ptr<Document> document() const { return documentOf(*cell); }
    void insert(std::size_t place, const Value& key) const {
        auto paragraph = std::make_shared<Paragraph>();
        paragraph->owner = cell;
        list().insert(place, key, paragraph);
    }
    void remove(std::size_t position) const { list().erase(position); }
    void checkTail() const {}
    std::shared_ptr<Paragraph> refile(const std::shared_ptr<Paragraph>& old,
                                      const std::string& key) const {
        Document& document = required(this->document());
        const std::size_t position = list().placeOfRefiled(old.get(), key);
        auto fresh = std::make_shared<Paragraph>();
        fresh->owner = cell;
        fresh->text = old->text;
        fresh->style = old->style;
        list().entries[position - 1] = {fresh, key};
        document.changed = true;
        return fresh;
    }
};

/// Width of a cell, in twips or, for any unit but 1, in percent.
inline std::int32_t widthOf(const Cell& cell, std::int32_t units) {
    const auto row = cell.owner.lock();
    if (!row) {
        throw 91;
    }
    const std::int32_t twips = row->width(row->cells->positionOf(&cell));
    if (units == 1) {
        return twips;
    }
    const Document& document = required(row->owner.lock());
    return quotient(measure(std::int64_t{twips} * 100), document.usableWidth());
}

inline void setWidthOf(const Cell& cell, std::int32_t units, std::int32_t value) {
    const auto row = cell.owner.lock();
    if (!row) {
        throw 91;
    }
    Document& document = required(row->owner.lock());
    const std::int32_t twips =
        units == 0 ? quotient(measure(std::int64_t{document.usableWidth()} * value), 100) : value;
    const std::size_t position = row->cells->positionOf(&cell);
    const std::size_t count = row->cells->count();
    const auto edge = [&row](std::size_t at) { return std::int64_t{row->cells->at(at)->edge}; };
    std::size_t changed = position;
    std::int64_t wanted = position == 1 ? twips : measure(edge(position - 1) + twips);
    std::int64_t lower = 200;
    std::int64_t upper = 0;
    if (count == 1) {
        upper = document.usableWidth();
    } else if (position < count) {
        lower = measure(measure(edge(position) - row->width(position)) + std::int64_t{200});
        upper = measure(edge(position + 1) - 200);
    } else {
        changed = position - 1;
        wanted = measure(edge(position) - twips);
        lower = measure(measure(edge(changed) - row->width(changed)) + std::int64_t{200});
        upper = measure(edge(position) - 200);
    }
    wanted = wanted > upper ? upper : wanted < lower ? lower : wanted;
    row->cells->at(changed)->edge = static_cast<std::int32_t>(wanted);
    document.changed = true;
}

}  // namespace quorvane::plain
