// Any sequence of calls on documents, rows, cells and paragraphs, held and released in any order.
// Each call has the result or the error that it has on a plain document, and so have the texts and
// the errors that reach the error module only.

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/support/CMap.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/PlainDocument.h"
#include "tests/fuzz/documentChecks.h"

namespace {

using namespace quorvane;

constexpr const char* styleSheet =
    "{name: normal; style-def: s; format: \\f0}{name: title; style-def: s; format: \\b}"
    "{name: a; style-def: cs; format: \\i}{name: b; style-def: cs; format: \\b\xE2\x82\xAC}"
    "{name: dark; style-def: cell; format: navy-blue}{name: none; style-def: cell}";

constexpr std::array<const char*, 12> styleSheets{
    styleSheet, "", "{name: title, dark; style-def: cell; format: slate-blue}",
    "{name: TITLE, x; style-def: s; format: \\i; based-on: x; next: title; additive: yes}",
    "{name: a, b; style-def: cs; additive: yes; format: \\ul; based-on: b}",
    // Words that hold tokens of inline styles.
    "{name: a; style-def: cs; format: <b=}{name: b; style-def: cs; format: <a=>}",
    "{name: a; style-def: cs; format: \\b<a=x>}",
    "{name: early; style-def: s}{name: late; colour: red}", "{name: title; style-def: x}",
    "{name: title; additive: perhaps}", "{name: title", "}"};

/// A reference that the host holds, and what the plain document has in its place.
template <class Original, class Plain>
struct Held {
    Ref<Original> original;
    Plain plain;
};

template <class Plain>
std::int32_t errorOfPlain(Plain&& call) {
    try {
        call();
    } catch (int number) {
        return number;
    } catch (const RtfError& error) {
        return error.number;
    }
    return 0;
}

/// Makes a call on both; they have the same error or none. True when they have none.
template <class Call, class Plain>
bool both(Call&& call, Plain&& plain) {
    const std::int32_t expected = errorOfPlain(plain);
    const std::int32_t actual = errorOfCall(call);
    if (actual != expected) {
        std::fprintf(stderr, "error %d, should be %d\n", actual, expected);
    }
    require(actual == expected, "a call raises the expected error");
    return actual == 0;
}

class Calls {
public:
    explicit Calls(FuzzInput input) : input_(input), countsRows_(!holdsRowWords(input.rest())) {}

    void run() {
        constexpr int mostCalls = 600;
        // An endless text takes its time before it is given up.
        constexpr int mostFailedRenderings = 4;
        addDocument();
        for (int i = 0;
             i < mostCalls && !input_.isEmpty() && failedRenderings_ < mostFailedRenderings; ++i) {
            call();
            keepCells();
            requireEqual(observed_, absorbed_, "the error module receives the expected errors");
        }
        for (auto& document : documents_) {
            checkText(document);
            checkDocument(document);
        }
        // What is left goes in an order of the input's choice.
        while (documents_.size() + rows_.size() + cells_.size() + paragraphs_.size() +
                   rowLists_.size() + cellLists_.size() + paragraphLists_.size() >
               0) {
            releaseOne();
            keepCells();
        }
    }

private:
    using HeldDocument = Held<CRtfDoc, std::shared_ptr<plain::Document>>;
    using HeldRow = Held<CRtfTableRow, std::shared_ptr<plain::Row>>;
    using HeldCell = Held<CRtfTableCell, std::shared_ptr<plain::Cell>>;
    using HeldParagraph = Held<CRtfParagraph, std::shared_ptr<plain::Paragraph>>;

    Value value() {
        switch (input_.below(16)) {
            case 0:
                return Missing{};
            case 1:
                return Empty{};
            case 2:
                return Null{};
            case 3:
                return input_.flag();
            case 4:
                return static_cast<std::int16_t>(input_.number());
            case 5:
                return static_cast<float>(input_.real());
            case 6:
                return input_.real();
            case 7:
                return Date{input_.real()};
            case 8:
                return std::make_shared<CMap>();
            case 9:
                return static_cast<double>(input_.byte()) / 4;
            case 10:
            case 11:
                return input_.text(20);
            default:
                return index();
        }
    }

    /// A position or key that may well be there.
    Value index() {
        static constexpr std::array<const char*, 6> keys{"a", "A", "b", "\xC3\xA9", "\xC3\x89", ""};
        const std::uint8_t choice = input_.byte();
        return choice < 128 ? Value(std::int32_t{choice % 8}) : Value(keys[choice % keys.size()]);
    }

    Value optional() { return input_.below(4) != 0 ? Value(Missing{}) : value(); }

    std::string text() {
        static constexpr std::array<const char*, 8> texts{"",
                                                          "x",
                                                          "<a=x>",
                                                          "<b=>y<a=x>",
                                                          "a long text that is kept elsewhere",
                                                          "dark",
                                                          "title",
                                                          "\xC3\xA9\xF0\x9F\x98\x80"};
        const std::uint8_t choice = input_.byte();
        return choice < 200 ? texts[choice % texts.size()] : input_.text(30);
    }

    std::string styleName() {
        static constexpr std::array<const char*, 8> names{"normal", " Title ", "TITLE", "B",
                                                          "dark ",  "none",    "early", "\t"};
        return input_.flag() ? names[input_.below(names.size())] : text();
    }

    std::string sheet() {
        const std::uint8_t choice = input_.byte();
        return choice < 200 ? styleSheets[choice % styleSheets.size()] : input_.text(90);
    }

    template <class List>
    auto& oneOf(List& list) {
        return list[input_.below(list.size())];
    }

    void addDocument() {
        HeldDocument held{CRtfDoc::create(platform_), std::make_shared<plain::Document>()};
        held.plain->original = held.original.get();
        held.plain->rows->owner = held.plain;
        held.plain->rows->original = held.original->TableRows().get();
        held.original->setAbsorbedErrorObserver([this](const AbsorbedError& absorbed) {
            observed_ += absorbedError(absorbed.error.number, absorbed.procedureName);
        });
        if (input_.flag()) {
            held.original->LoadStyleSheetFromMemmory(styleSheet);
            held.plain->load(styleSheet);
        }
        checkDocument(held);
        rowLists_.push_back({held.original->TableRows(), {held.plain->rows}});
        documents_.push_back(std::move(held));
    }

    /// A host mostly takes what it added, and what it is to fill.
    void hold(const Ref<CRtfTableRow>& row, const std::shared_ptr<plain::Row>& plain) {
        rows_.push_back({row, plain});
        cellLists_.push_back({row->TableCells(), plain::CellsView(plain)});
    }
    void hold(const Ref<CRtfTableCell>& cell, const std::shared_ptr<plain::Cell>& plain) {
        cells_.push_back({cell, plain});
        paragraphLists_.push_back({cell->Paragraphs(), {plain}});
    }
    void hold(const Ref<CRtfParagraph>& paragraph, const std::shared_ptr<plain::Paragraph>& plain) {
        paragraphs_.push_back({paragraph, plain});
    }

    /// Who holds a paragraph holds its cell.
    void keepCells() {
        std::vector<std::shared_ptr<plain::Cell>> kept;
        for (const HeldParagraph& paragraph : paragraphs_) {
            kept.push_back(paragraph.plain->owner.lock());
        }
        keptCells_.swap(kept);
    }

    template <class List>
    void releaseOneOf(List& list) {
        if (!list.empty()) {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(input_.below(list.size())));
        }
    }

    void releaseOne() {
        const std::size_t kind = input_.isEmpty() ? nextKind_++ % 7 : input_.below(7);
        switch (kind) {
            case 0:
                return releaseOneOf(documents_);
            case 1:
                return releaseOneOf(rows_);
            case 2:
                return releaseOneOf(cells_);
            case 3:
                return releaseOneOf(paragraphs_);
            case 4:
                return releaseOneOf(rowLists_);
            case 5:
                return releaseOneOf(cellLists_);
            default:
                return releaseOneOf(paragraphLists_);
        }
    }

    void call() {
        switch (input_.below(16)) {
            case 0:
                if (documents_.size() < 3) {
                    addDocument();
                }
                return;
            case 1:
                return releaseOne();
            case 2:
            case 3:
                return documents_.empty() ? void() : callDocument(oneOf(documents_));
            case 4:
            case 5:
                return rows_.empty() ? void() : callRow(oneOf(rows_));
            case 6:
            case 7:
                return cells_.empty() ? void() : callCell(oneOf(cells_));
            case 8:
            case 9:
                return paragraphs_.empty() ? void() : callParagraph(oneOf(paragraphs_));
            case 10:
            case 11:
                return rowLists_.empty() ? void() : callList(oneOf(rowLists_), rows_);
            case 12:
            case 13:
                return cellLists_.empty() ? void() : callCells(oneOf(cellLists_));
            default:
                return paragraphLists_.empty() ? void()
                                               : callList(oneOf(paragraphLists_), paragraphs_);
        }
    }

    void callDocument(HeldDocument& held) {
        CRtfDoc& document = *held.original;
        plain::Document& plain = *held.plain;
        const std::int32_t number = input_.number();
        switch (input_.below(18)) {
            case 0:
                plain.setMargin(plain.bottom, number, plain.height, plain.top, 0);
                document.setBottomMargin(number);
                break;
            case 1:
                plain.setMargin(plain.top, number, plain.height, plain.bottom, 2);
                document.setTopMargin(number);
                break;
            case 2:
                plain.setMargin(plain.left, number, plain.width, plain.right, 1);
                document.setLeftMargin(number);
                break;
            case 3:
                plain.setMargin(plain.right, number, plain.width, plain.left, 3);
                document.setRightMargin(number);
                break;
            case 4:
                plain.changed = plain.changed || plain.pageNumber != (number > 0 ? number : 2);
                plain.pageNumber = number > 0 ? number : 2;
                document.setPageNumberStart(number);
                break;
            case 5:
                plain.height = number;
                plain.changed = true;
                document.setPageHeight(number);
                break;
            case 6:
                plain.width = number;
                plain.changed = true;
                document.setPageWidth(number);
                break;
            case 7:
                plain.changed = number % 2 != 0;
                document.setChanged(plain.changed);
                break;
            case 8:
                document.ClearStructure();
                plain.setDefaultPage();
                plain.rows = std::make_shared<plain::Rows>();
                plain.rows->owner = held.plain;
                plain.rows->original = document.TableRows().get();
                break;
            case 9:
                checkText(held);
                break;
            case 10:
                if (number % 2 == 0) {
                    checkContents(held);
                } else {
                    commit(held);
                }
                break;
            case 11:
            case 12:
                loadStyles(held);
                break;
            case 13:
            case 14:
            case 15:
                checkStyles(held, styleName());
                break;
            default:
                rowLists_.push_back({document.TableRows(), {plain.rows}});
        }
        checkDocument(held);
    }

    static void checkDocument(const HeldDocument& held) {
        const CRtfDoc& document = *held.original;
        const plain::Document& plain = *held.plain;
        require(document.Changed() == plain.changed, "a document is changed when something did");
        require(document.BottomMargin() == plain.bottom && document.LeftMargin() == plain.left &&
                    document.TopMargin() == plain.top && document.RightMargin() == plain.right,
                "margins are as expected");
        require(document.PageWidth() == plain.width && document.PageHeight() == plain.height &&
                    document.PageNumberStart() == plain.pageNumber,
                "a page is as expected");
        std::int32_t actual = 0;
        std::int32_t expected = 0;
        both([&] { actual = document.TextAreaWidth(); }, [&] { expected = plain.usableWidth(); });
        require(actual == expected, "the usable width is what the margins leave");
        require(document.StyleSheetOk() == plain.styles.isLoaded(),
                "a sheet is loaded unless it is bad or not there");
        requireEqual(document.StyleSheetFile(), plain.styleSheetFile,
                     "a sheet has the name of its file");
        require(document.TableRows().get() == plain.rows->original,
                "the rows are the same until the structure is cleared");
    }

    static void checkStyles(const HeldDocument& held, const std::string& name) {
        const CRtfDoc& document = *held.original;
        const plain::Document& plain = *held.plain;
        requireEqual(document.GetParagraphStyle(name), plain.paragraphStyle(name),
                     "a paragraph style has the expected words");
        requireEqual(document.GetCharacterStyle(name), plain.styles.characterWords(name),
                     "a character style has the expected words");
        require(document.getCellStyleBackColor(name) == plain.styles.cellColor(name),
                "a cell style has the expected color");
    }

    void loadStyles(const HeldDocument& held) {
        CRtfDoc& document = *held.original;
        plain::Document& plain = *held.plain;
        const std::size_t way = input_.below(4);
        if (way < 2) {
            const std::string text = sheet();
            both([&] { document.LoadStyleSheetFromMemmory(text); }, [&] { plain.load(text); });
            return;
        }
        static const std::array<std::string, 3> names{"a.rtfss", "b.txt", ""};
        // The document's own text of the name, which it forgets while it loads.
        const std::string& name =
            way == 2 ? document.StyleSheetFile() : names[input_.below(names.size())];
        const std::string nameBefore = name;
        if (input_.flag() && !name.empty()) {
            platform_.files[name] = sheet();
        }
        const bool isUnreadable = input_.below(8) == 7;
        if (isUnreadable) {
            platform_.fail("readFile", RunTimeError::PathFileAccessError);
        }
        both([&] { document.setStyleSheetFile(name); },
             [&] {
                 const auto file = platform_.files.find(nameBefore);
                 plain.forgetStyles();
                 if (file != platform_.files.end()) {
                     plain.load(isUnreadable ? "" : utf8FromCodePage1252(file->second));
                 }
                 plain.styleSheetFile = nameBefore;
             });
        platform_.repair("readFile");
    }

    static std::string absorbedError(std::int32_t number, const std::string& procedure) {
        return std::to_string(number) + " in " + procedure + "\n";
    }

    void commit(const HeldDocument& held) {
        static const std::array<std::string, 5> operations{"", "deleteFile", "createFile", "write",
                                                           "close"};
        const std::string path = input_.flag() ? "a.rtf" : "b.rtf";
        const std::string& failing = operations[input_.below(operations.size())];
        const std::int32_t number = input_.flag() ? 75 : 70;
        if (!failing.empty()) {
            platform_.fail(failing, static_cast<RunTimeError>(number));
        }
        const bool isThere = platform_.files.contains(path);
        bool isWritten = false;
        both([&] { held.original->Commit(path); },
             [&] {
                 if (held.plain->changed && !held.plain->refresh()) {
                     absorbed_ += absorbedError(6, "Commit");
                 } else if (failing == "deleteFile" && isThere) {
                     absorbed_ += absorbedError(number, "saveStringToFile");
                     if (number == 75) {
                         throw number;
                     }
                     absorbed_ += absorbedError(number, "Commit");
                 } else if (!failing.empty() && failing != "deleteFile") {
                     absorbed_ += absorbedError(number, "saveString");
                 } else {
                     isWritten = true;
                 }
             });
        if (!failing.empty()) {
            platform_.repair(failing);
        }
        countFailure(held);
        require(platform_.openFiles == 0, "no file stays open");
        if (isWritten) {
            require(platform_.files[path] == codePage1252FromUtf8(held.plain->contents),
                    "a committed file holds the document's text");
        }
    }

    /// The text that is there, or made because it is stale.
    void checkContents(const HeldDocument& held) {
        if (held.plain->changed && !held.plain->refresh()) {
            absorbed_ += absorbedError(6, "Contents");
        }
        requireEqual(held.original->Contents(), held.plain->contents,
                     "a document has the expected text");
        countFailure(held);
    }

    /// A document that could not be rendered still counts as changed.
    void countFailure(const HeldDocument& held) {
        failedRenderings_ += held.plain->changed ? 1 : 0;
    }

    void checkText(const HeldDocument& held) {
        const std::string text = renderedTwice(*held.original);
        const bool isMade = held.plain->refresh();
        if (!isMade) {
            // By Refresh and by Contents, twice.
            for (const char* procedure : {"Refresh", "Contents", "Refresh", "Contents"}) {
                absorbed_ += absorbedError(6, procedure);
            }
        }
        countFailure(held);
        requireEqual(text, held.plain->contents, "a document has the expected text");
        if (countsRows_ && isMade && !holdsRowWords(held.plain->styles.group())) {
            requireBalancedRows(*held.original, text);
        }
    }

    static void setPlainBorder(plain::Borders& borders, std::size_t side, std::int32_t width) {
        borders[side] = width;
    }

    template <class Original>
    static void setBorder(Original& original, std::size_t side, tBorderWidth width) {
        side == 0   ? original.setBottomBorder(width)
        : side == 1 ? original.setLeftBorder(width)
        : side == 2 ? original.setRightBorder(width)
                    : original.setTopBorder(width);
    }

    template <class Original>
    static void checkBorders(const Original& original, const plain::Borders& borders) {
        require(original.BottomBorder() == borders[0] && original.LeftBorder() == borders[1] &&
                    original.RightBorder() == borders[2] && original.TopBorder() == borders[3],
                "borders are as they were set");
    }

    static void checkChanged(const std::shared_ptr<plain::Document>& document) {
        require(!document || document->original->Changed() == document->changed,
                "a document is changed when something did");
    }

    void callRow(const HeldRow& held) {
        CRtfTableRow& row = *held.original;
        plain::Row& plain = *held.plain;
        const auto document = plain.owner.lock();
        const std::int32_t number = input_.number();
        switch (input_.below(4)) {
            case 0:
                both([&] { row.setBackColor(static_cast<tColorIndex>(number)); },
                     [&] { plain::setBackColorOf(plain, number); });
                break;
            case 1: {
                const std::size_t side = input_.below(4);
                both([&] { setBorder(row, side, static_cast<tBorderWidth>(number)); },
                     [&] { plain::setBorderOf(plain, side, number); });
                break;
            }
            default:
                cellLists_.push_back({row.TableCells(), plain::CellsView(held.plain)});
        }
        require(row.BackColor() == plain.backColor, "a color is as it was set");
        checkBorders(row, plain.borders);
        require(row.Parent().get() == (document ? document->original : nullptr),
                "a row knows its document as long as it is there");
        checkChanged(document);
    }

    void callCell(const HeldCell& held) {
        CRtfTableCell& cell = *held.original;
        plain::Cell& plain = *held.plain;
        const auto document = plain::documentOf(plain);
        const std::int32_t number = input_.number();
        const auto width = static_cast<std::int32_t>(std::int64_t{number} * 10 % INT32_MAX);
        const auto units = static_cast<tWidthUnit>(input_.below(3));
        switch (input_.below(9)) {
            case 0:
                both([&] { cell.setBackColor(static_cast<tColorIndex>(number)); },
                     [&] {
                         if (plain.backColor != number) {
                             plain.setBackColor(number);
                             plain::markChanged(document);
                         }
                     });
                break;
            case 1: {
                const std::size_t side = input_.below(4);
                both([&] { setBorder(cell, side, static_cast<tBorderWidth>(number)); },
                     [&] {
                         if (plain.borders[side] != number) {
                             plain.borders[side] = number;
                             plain::markChanged(document);
                         }
                     });
                break;
            }
            case 2:
            case 3:
                both([&] { cell.setWidth(units, width); },
                     [&] { plain::setWidthOf(plain, units, width); });
                break;
            case 4: {
                std::int32_t actual = 0;
                std::int32_t expected = 0;
                both([&] { actual = cell.Width(units); },
                     [&] { expected = plain::widthOf(plain, units); });
                require(actual == expected, "a width is the expected one");
                break;
            }
            case 5:
                cell.setAlign(static_cast<tCellAlign>(number));
                plain.align = number;
                break;
            case 6: {
                const std::string name = text();
                both([&] { cell.setStyle(name); },
                     [&] {
                         plain.style = name;
                         plain::markChanged(document);
                     });
                break;
            }
            case 7: {
                const Value data = value();
                cell.asMarkedField(data);
                if (const auto digits = plain::fieldData(data)) {
                    plain.field = digits;
                } else if (document) {
                    absorbed_ += absorbedError(-2147219990, "asMarkedField");
                }
                break;
            }
            default:
                paragraphLists_.push_back({cell.Paragraphs(), {held.plain}});
        }
        require(cell.BackColor() == plain.backColor && cell.Align() == plain.align &&
                    cell.Style() == plain.style,
                "a cell holds what was set");
        checkBorders(cell, plain.borders);
        const auto row = plain.owner.lock();
        require(cell.Parent().get() == (row ? row->original : nullptr),
                "a cell knows its row as long as it is there");
        checkChanged(document);
    }

    void callParagraph(const HeldParagraph& held) {
        CRtfParagraph& paragraph = *held.original;
        plain::Paragraph& plain = *held.plain;
        const auto document = plain::documentOf(plain);
        const std::int32_t number = input_.number();
        switch (input_.below(5)) {
            case 0: {
                const std::string newText = text();
                both([&] { paragraph.setText(newText); },
                     [&] {
                         if (!newText.empty()) {
                             plain.text = newText;
                             plain::markChanged(document);
                         }
                     });
                break;
            }
            case 1: {
                const std::string name = text();
                both([&] { paragraph.setStyle(name); },
                     [&] {
                         plain.style = name;
                         plain::markChanged(document);
                     });
                break;
            }
            case 2:
                both([&] { paragraph.setForeColor(static_cast<tColorIndex>(number)); },
                     [&] {
                         plain.foreColor = number;
                         plain::markChanged(document);
                     });
                break;
            case 3:
                paragraph.setAlign(static_cast<tCellAlign>(number));
                plain.align = number;
                break;
            default: {
                const Value data = value();
                paragraph.asMarkedField(data);
                const auto digits = plain::fieldData(data);
                plain.field = digits ? *digits : plain.field.value_or("");
            }
        }
        require(paragraph.Text() == plain.text && paragraph.Style() == plain.style &&
                    paragraph.ForeColor() == plain.foreColor && paragraph.Align() == plain.align,
                "a paragraph holds what was set");
        require(paragraph.Parent().get() == plain.owner.lock()->original,
                "a paragraph keeps its cell");
        checkChanged(document);
    }

    void callCells(const Held<CRtfTableCells, plain::CellsView>& held) {
        if (input_.below(12) != 0) {
            return callList(held, cells_);
        }
        both([&] { held.original->SetUniformWidths(); },
             [&] {
                 plain::Document& document = plain::required(held.plain.document());
                 plain::spread(*held.plain.row.lock(),
                               plain::evenWidth(document, held.plain.list().count()));
                 document.changed = true;
             });
    }

    template <class Original, class View, class Elements>
    void callList(const Held<Original, View>& list, Elements& elements) {
        // Copies: the vectors that they are in can grow.
        const Ref<Original> original = list.original;
        const View view = list.plain;
        const auto insert = [&view](const Value& key, const Value& before, const Value& after) {
            plain::Document& document = plain::required(view.document());
            view.insert(view.list().place(key, before, after), key);
            document.changed = true;
        };
        const auto removeEnd = [&view](bool isTail) {
            plain::Document& document = plain::required(view.document());
            if (view.list().count() > 0) {
                view.remove(isTail ? view.list().count() : 1);
            }
            document.changed = true;
        };
        const Value key = optional();
        switch (input_.below(12)) {
            case 0: {
                const Value before = optional();
                const Value after = optional();
                both([&] { original->add(key, before, after); },
                     [&] { insert(key, before, after); });
                break;
            }
            case 1:
            case 2:
                both([&] { original->AddHead(key); },
                     [&] {
                         insert(key, view.list().count() > 0 ? Value(1) : Value(Missing{}),
                                Missing{});
                     });
                break;
            case 3:
            case 4:
            case 5:
                both([&] { original->AddTail(key); }, [&] { insert(key, Missing{}, Missing{}); });
                break;
            case 6: {
                const Value which = value();
                both([&] { original->Remove(which); },
                     [&] {
                         plain::Document& document = plain::required(view.document());
                         view.remove(view.list().position(which, 13));
                         document.changed = true;
                     });
                break;
            }
            case 7:
                both([&] { original->RemoveHead(); }, [&] { removeEnd(false); });
                break;
            case 8:
                both([&] { original->removeTail(); },
                     [&] {
                         view.checkTail();
                         removeEnd(true);
                     });
                break;
            case 9:
                refile(original, view, elements);
                break;
            case 10:
                if constexpr (!std::is_same_v<Original, CRtfTableRows>) {
                    find(*original, view, elements);
                    break;
                }
                [[fallthrough]];
            default:
                fetch(original, view, elements);
        }
        checkList(*original, view);
        checkChanged(view.document());
    }

    /// Takes an element into the host's hands.
    template <class Original, class View, class Elements>
    void fetch(const Ref<Original>& original, const View& view, Elements& elements) {
        const Value which = value();
        decltype(original->Item(which)) element;
        std::size_t position = 0;
        if (both([&] { element = original->Item(which); },
                 [&] { position = view.list().position(which, 13); })) {
            require(element.get() == view.list().at(position)->original,
                    "an index names the expected element");
            elements.push_back({element, view.list().at(position)});
        }
    }

    /// Asks for the position of an element of the list, of any that is held, or of nothing.
    template <class Original, class View, class Elements>
    void find(const Original& original, const View& view, Elements& elements) {
        typename Elements::value_type element;
        const std::uint8_t choice = input_.byte();
        if (choice % 2 != 0 && view.list().count() > 0) {
            const std::size_t position = 1 + choice / 2 % view.list().count();
            element = {original.Item(static_cast<std::int32_t>(position)),
                       view.list().at(position)};
        } else if (choice % 16 != 0 && !elements.empty()) {
            element = oneOf(elements);
        }
        std::int32_t actual = 0;
        std::size_t expected = 0;
        both([&] { actual = original.indexOf(element.original.get()); },
             [&] {
                 if (!element.plain) {
                     throw 91;
                 }
                 expected = view.list().positionOf(element.plain.get());
             });
        require(actual == static_cast<std::int32_t>(expected),
                "an element has the expected position");
    }

    template <class Original, class View, class Elements>
    void refile(const Ref<Original>& original, const View& view, Elements& elements) {
        if (elements.empty()) {
            return;
        }
        const auto old = oneOf(elements);
        const std::string key = text();
        decltype(original->refile(old.original, key)) fresh;
        std::shared_ptr<typename View::Element> plainFresh;
        if (both([&] { fresh = original->refile(old.original, key); },
                 [&] { plainFresh = view.refile(old.plain, key); })) {
            plainFresh->original = fresh.get();
            elements.push_back({fresh, plainFresh});
        }
    }

    static void checkOwner(const CRtfTableRows& rows, const plain::RowsView& view) {
        const auto document = view.document();
        require(rows.Parent().get() == (document ? document->original : nullptr),
                "rows know their document as long as it is there");
    }
    static void checkOwner(const CRtfTableCells& cells, const plain::CellsView& view) {
        const Ref<CRtfTableRow> row = cells.Parent();
        const auto plainRow = view.row.lock();
        require(row.get() == (plainRow ? plainRow->original : nullptr),
                "cells know their row as long as it is there");
        require(!row || row->TableCells().get() == &cells, "a row has the same cells every time");
    }
    static void checkOwner(const CRtfParagraphs& paragraphs, const plain::ParagraphsView& view) {
        const Ref<CRtfTableCell> cell = paragraphs.Parent();
        require(cell.get() == view.cell->original && cell->Paragraphs().get() == &paragraphs,
                "a cell and its paragraphs know each other");
    }

    template <class Original, class View>
    void checkList(const Original& original, const View& view) {
        checkOwner(original, view);
        auto& list = view.list();
        require(original.Count() == static_cast<std::int32_t>(list.count()),
                "a list has its count");
        for (std::size_t position = 1; position <= list.count(); ++position) {
            const auto element = original.Item(static_cast<std::int32_t>(position));
            auto& plain = *list.at(position);
            if (!plain.original) {
                plain.original = element.get();
                if (input_.below(4) != 0) {
                    hold(element, list.at(position));
                }
            }
            require(element.get() == plain.original, "an element stands where it is expected");
            const auto& key = list.entries[position - 1].key;
            require(!key || original.Item(*key).get() == plain.original, "a key names its element");
        }
        require(original.PeekHead().get() == (list.count() ? list.at(1)->original : nullptr),
                "the head is the first");
        require(
            original.PeekTail().get() == (list.count() ? list.at(list.count())->original : nullptr),
            "the tail is the last");
    }

    FuzzInput input_;
    bool countsRows_;
    FakePlatform platform_;
    std::vector<HeldDocument> documents_;
    std::vector<HeldRow> rows_;
    std::vector<HeldCell> cells_;
    std::vector<HeldParagraph> paragraphs_;
    std::vector<std::shared_ptr<plain::Cell>> keptCells_;
    std::vector<Held<CRtfTableRows, plain::RowsView>> rowLists_;
    std::vector<Held<CRtfTableCells, plain::CellsView>> cellLists_;
    std::vector<Held<CRtfParagraphs, plain::ParagraphsView>> paragraphLists_;
    std::size_t nextKind_ = 0;
    int failedRenderings_ = 0;
    // The errors that the error module received, and those that it should receive.
    std::string observed_;
    std::string absorbed_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Calls(FuzzInput(data, size)).run();
    return 0;
}
