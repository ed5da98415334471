#include <gmock/gmock.h>
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/com/faces/Face.h"
#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"
#include "tests/com/host/typeLibraryText.h"

namespace quorvane::host {
namespace {

/// The members of the classes that the library has too.
std::vector<std::string> members() {
    ComPtr<ITypeLib> library;
    if (FAILED(LoadTypeLibEx(componentFile().c_str(), REGKIND_NONE, library.out()))) {
        throw std::runtime_error("the component has no type library");
    }
    std::vector<std::string> members = publishedMembers(*library.get());
    std::erase_if(members,
                  [](const std::string& member) { return member.starts_with("_Document"); });
    return members;
}

struct Operation {
    int object;
    std::string member;
    Arguments arguments;
};

std::string describe(const Operation& operation) {
    std::string text = operation.member + " of " + std::to_string(operation.object) + " (";
    for (const Value& argument : operation.arguments) {
        text += argument.isText()     ? "\"" + argument.text() + "\" "
                : argument.isNumber() ? std::to_string(argument.number()) + " "
                                      : "other ";
    }
    return text + ")";
}

/// The same operations on the library's classes and on the component, early and late bound.
class Members : public testing::Test {
protected:
    /// Performs an operation on all three; their results must agree. Returns the library's.
    std::string perform(int object, const std::string& member, const Arguments& arguments = {}) {
        const std::string expected = native_->perform(object, member, arguments);
        const std::string where = describe({object, member, arguments});
        EXPECT_EQ(early_->perform(object, member, arguments), expected) << "early bound, " << where;
        EXPECT_EQ(late_->perform(object, member, arguments), expected) << "late bound, " << where;
        performed_.insert(member);
        return expected;
    }
    void releaseObject(int object) {
        native_->releaseObject(object);
        early_->releaseObject(object);
        late_->releaseObject(object);
    }
    /// The bytes that a document writes, which must be the same on all three.
    std::string committed(int object, const std::string& member) {
        const std::wstring file = temporaryFile(L"members.rtf");
        const Arguments path = {utf8Text(file)};
        EXPECT_EQ(native_->perform(object, member, path), "ok");
        const std::string expected = bytesOfFile(file);
        EXPECT_EQ(early_->perform(object, member, path), "ok");
        EXPECT_EQ(bytesOfFile(file), expected);
        EXPECT_EQ(late_->perform(object, member, path), "ok");
        EXPECT_EQ(bytesOfFile(file), expected);
        performed_.insert(member);
        return expected;
    }

    std::unique_ptr<Face> native_ = nativeFace();
    std::unique_ptr<Face> early_ = earlyBoundFace();
    std::unique_ptr<Face> late_ = lateBoundFace();
    std::set<std::string> performed_;

    static constexpr int document = 0;
    static constexpr int driver = 1;
};

TEST(MemberTables, HaveEveryPublishedMember) {
    EXPECT_THAT(nativeMembers(), testing::UnorderedElementsAreArray(members()));
    EXPECT_THAT(earlyBoundMembers(), testing::UnorderedElementsAreArray(members()));
}

constexpr const char* styles =
    "{name: normal; style-def: s; format: \\f9\\fs20}"
    "{name: title; style-def: s; format: \\f0\\fs28\\b}"
    "{name: bold-red; style-def: cs; format: \\b\\cf30}"
    "{name: head; style-def: cell; format: navy-blue}";
constexpr const char* badStyles = "{name: x; nosuch: 1}";
constexpr const char* unbalancedStyles = "{name: x";

TEST_F(Members, ReturnTheSameEarlyAndLateBoundAsTheLibrary) {
    const Value none{Missing{}};
    // The document.
    EXPECT_EQ(perform(document, "_CRtfDoc.get Contents"), "\"{}\"");
    perform(document, "_CRtfDoc.get StyleSheetFile");
    perform(document, "_CRtfDoc.get StyleSheetOk");
    for (const char* margin : {"BottomMargin", "TopMargin", "LeftMargin", "RightMargin",
                               "PageNumberStart", "PageHeight", "PageWidth"}) {
        const std::string name = margin;
        perform(document, "_CRtfDoc.get " + name);
        for (const std::int32_t value : {700, -1, 2000000000}) {
            perform(document, "_CRtfDoc.set Changed", {false});
            perform(document, "_CRtfDoc.set " + name, {value});
            perform(document, "_CRtfDoc.get " + name);
            perform(document, "_CRtfDoc.get Changed");
        }
    }
    perform(document, "_CRtfDoc.call ClearStructure");
    perform(document, "_CRtfDoc.get PageWidth");
    perform(document, "_CRtfDoc.call LoadStyleSheetFromMemmory", {unbalancedStyles});
    perform(document, "_CRtfDoc.call LoadStyleSheetFromMemmory", {badStyles});
    perform(document, "_CRtfDoc.call LoadStyleSheetFromMemmory", {styles});
    perform(document, "_CRtfDoc.get StyleSheetOk");
    perform(document, "_CRtfDoc.call getCellStyleBackColor", {"head"});
    perform(document, "_CRtfDoc.call getCellStyleBackColor", {"nosuch"});

    // Rows.
    const int rows = 2;
    ASSERT_EQ(perform(document, "_CRtfDoc.get TableRows"), "_CRtfTableRows 2");
    perform(rows, "_CRtfTableRows.get Parent");
    perform(rows, "_CRtfTableRows.call PeekHead");
    perform(rows, "_CRtfTableRows.call PeekTail");
    perform(rows, "_CRtfTableRows.call RemoveHead");
    perform(rows, "_CRtfTableRows.call removeTail");
    perform(rows, "_CRtfTableRows.call AddHead", {"caf\xC3\xA9"});
    perform(rows, "_CRtfTableRows.call AddTail", {none});
    perform(rows, "_CRtfTableRows.call add", {"b", 1, none});
    perform(rows, "_CRtfTableRows.call add", {"CAF\xC3\x89", none, none});
    perform(rows, "_CRtfTableRows.call add", {"c", none, "nosuch"});
    perform(rows, "_CRtfTableRows.call add", {7, none, none});
    perform(rows, "_CRtfTableRows.call add", {Null{}, none, none});
    perform(rows, "_CRtfTableRows.call add", {none, 1, 1});
    EXPECT_EQ(perform(rows, "_CRtfTableRows.get NewEnum"),
              "enumerates _CRtfTableRow 3 _CRtfTableRow 4 _CRtfTableRow 5");
    perform(rows, "_CRtfTableRows.get Count");
    EXPECT_EQ(perform(rows, "_CRtfTableRows.get Item", {2.5}), "_CRtfTableRow 4");
    perform(rows, "_CRtfTableRows.get Item", {true});
    perform(rows, "_CRtfTableRows.get Item", {9});
    perform(rows, "_CRtfTableRows.call Remove", {9});
    perform(rows, "_CRtfTableRows.call Remove", {"CAF\xC3\x89"});
    perform(rows, "_CRtfTableRows.call PeekHead");
    EXPECT_EQ(perform(rows, "_CRtfTableRows.call PeekTail"), "_CRtfTableRow 5");

    // A row and its cells.
    const int row = 3;
    perform(row, "_CRtfTableRow.get Parent");
    const int cells = 6;
    ASSERT_EQ(perform(row, "_CRtfTableRow.get TableCells"), "_CRtfTableCells 6");
    perform(cells, "_CRtfTableCells.get Parent");
    perform(cells, "_CRtfTableCells.call SetUniformWidths");
    perform(cells, "_CRtfTableCells.call removeTail");
    perform(cells, "_CRtfTableCells.call RemoveHead");
    perform(cells, "_CRtfTableCells.call PeekHead");
    perform(cells, "_CRtfTableCells.call AddTail", {"x"});
    perform(cells, "_CRtfTableCells.call AddHead", {none});
    perform(cells, "_CRtfTableCells.call add", {none, none, 1});
    perform(cells, "_CRtfTableCells.get Count");
    ASSERT_EQ(perform(cells, "_CRtfTableCells.get NewEnum"),
              "enumerates _CRtfTableCell 7 _CRtfTableCell 8 _CRtfTableCell 9");
    perform(cells, "_CRtfTableCells.get Item", {"X"});
    perform(cells, "_CRtfTableCells.call PeekTail");
    perform(cells, "_CRtfTableCells.call Remove", {2});
    perform(cells, "_CRtfTableCells.call SetUniformWidths");
    const int cell = 7;
    perform(cell, "_CRtfTableCell.get Parent");
    for (const char* measure :
         {"BackColor", "BottomBorder", "TopBorder", "LeftBorder", "RightBorder"}) {
        const std::string name = measure;
        perform(row, "_CRtfTableRow.get " + name);
        perform(row, "_CRtfTableRow.set " + name, {30});
        perform(row, "_CRtfTableRow.get " + name);
        perform(cell, "_CRtfTableCell.get " + name);
        perform(cell, "_CRtfTableCell.set " + name, {-1});
        perform(cell, "_CRtfTableCell.get " + name);
    }
    perform(cell, "_CRtfTableCell.set BackColor", {0});
    for (const std::int32_t unit : {0, 1, 9}) {
        perform(cell, "_CRtfTableCell.set Width", {unit, 40});
        perform(cell, "_CRtfTableCell.get Width", {unit});
    }
    perform(cell, "_CRtfTableCell.set Width", {0, 300000});
    perform(8, "_CRtfTableCell.get Width", {1});
    perform(cell, "_CRtfTableCell.set Align", {4});
    perform(cell, "_CRtfTableCell.get Align");
    perform(cell, "_CRtfTableCell.set Style", {"head"});
    perform(cell, "_CRtfTableCell.get Style");
    for (const Value& data : {Value("AB"), Value(70000), Value(std::int16_t{-5}), Value(2.0),
                              Value(true), Value(Date{37716}), Value(Empty{}), Value(Null{})}) {
        perform(cell, "_CRtfTableCell.call asMarkedField", {data});
    }

    // Paragraphs.
    const int paragraphs = 10;
    ASSERT_EQ(perform(cell, "_CRtfTableCell.get Paragraphs"), "_CRtfParagraphs 10");
    perform(paragraphs, "_CRtfParagraphs.get Parent");
    perform(paragraphs, "_CRtfParagraphs.call PeekHead");
    perform(paragraphs, "_CRtfParagraphs.call removeTail");
    perform(paragraphs, "_CRtfParagraphs.call RemoveHead");
    perform(paragraphs, "_CRtfParagraphs.call AddHead", {"k"});
    perform(paragraphs, "_CRtfParagraphs.call AddTail", {none});
    perform(paragraphs, "_CRtfParagraphs.call add", {none, "K", none});
    perform(paragraphs, "_CRtfParagraphs.get Count");
    ASSERT_EQ(perform(paragraphs, "_CRtfParagraphs.get NewEnum"),
              "enumerates _CRtfParagraph 11 _CRtfParagraph 12 _CRtfParagraph 13");
    perform(paragraphs, "_CRtfParagraphs.get Item", {3});
    perform(paragraphs, "_CRtfParagraphs.call PeekTail");
    perform(paragraphs, "_CRtfParagraphs.call Remove", {Empty{}});
    perform(paragraphs, "_CRtfParagraphs.call Remove", {3});
    const int paragraph = 11;
    perform(paragraph, "_CRtfParagraph.get Parent");
    perform(paragraph, "_CRtfParagraph.set Text", {"<bold-red=\xE2\x82\xAC 5> \xC3\x89t\xC3\xA9"});
    perform(paragraph, "_CRtfParagraph.set Text", {""});
    perform(paragraph, "_CRtfParagraph.get Text");
    perform(paragraph, "_CRtfParagraph.set Style", {"title"});
    perform(paragraph, "_CRtfParagraph.get Style");
    perform(paragraph, "_CRtfParagraph.set ForeColor", {36});
    perform(paragraph, "_CRtfParagraph.get ForeColor");
    perform(paragraph, "_CRtfParagraph.set Align", {5});
    perform(paragraph, "_CRtfParagraph.get Align");
    for (const Value& data : {Value("AB"), Value(70000), Value(2.0), Value(Empty{})}) {
        perform(paragraph, "_CRtfParagraph.call asMarkedField", {data});
    }

    perform(document, "_CRtfDoc.call Refresh");
    perform(document, "_CRtfDoc.get Changed");
    perform(document, "_CRtfDoc.get Contents");
    perform(paragraph, "_CRtfParagraph.get Align");
    perform(cell, "_CRtfTableCell.get BackColor");
    EXPECT_THAT(committed(document, "_CRtfDoc.call Commit"), testing::HasSubstr("\x80 5"));

    // The driver.
    for (const char* text : {"(doc\n(r\n(c\n(p\n(pt=x)\np)\nc)\nr)\ndoc)", "(row\nrow)", "",
                             "(doc\n(r\n(c\n(p\n(pt=y)\nc)\nr)\ndoc)",
                             "(doc\n(r\n(colour=1)\n(c\n(bc=nosuch)\nc)\nr)\ndoc)"}) {
        for (const bool check : {false, true}) {
            perform(driver, "_CRtfDriver.get ErroneousInput");
            perform(driver, "_CRtfDriver.set ErroneousInput", {check});
            perform(driver, "_CRtfDriver.call ParseFromMemmory", {text});
            perform(driver, "_CRtfDriver.get Contents");
        }
    }
    perform(driver, "_CRtfDriver.get notifyError");
    perform(driver, "_CRtfDriver.set notifyError", {false});
    EXPECT_EQ(perform(driver, "_CRtfDriver.call ParseFromMemmory", {"nothing"}), "ok");
    perform(driver, "_CRtfDriver.set notifyError", {true});
    EXPECT_THAT(perform(driver, "_CRtfDriver.call ParseFromMemmory", {"nothing"}),
                testing::HasSubstr("event"));
    perform(driver, "_CRtfDriver.call ParseFile", {""});
    perform(driver, "_CRtfDriver.call ParseFile", {"nosuch.rtfspec"});
    const std::wstring description = temporaryFile(L"members.rtfspec");
    writeFile(description, "(doc\r\n(r\r\n(c\r\n(p\r\n(pt=\xC9t\xE9)\r\np)\r\nc)\r\nr)\r\ndoc)");
    perform(driver, "_CRtfDriver.call ParseFile", {utf8Text(description)});
    const std::wstring styleSheet = temporaryFile(L"members.rtfss");
    const std::wstring badStyleSheet = temporaryFile(L"bad.rtfss");
    writeFile(styleSheet, styles);
    perform(driver, "_CRtfDriver.set StyleSheetFile", {"styles.txt"});
    perform(driver, "_CRtfDriver.get StyleSheetFile");
    perform(driver, "_CRtfDriver.set StyleSheetFile", {utf8Text(styleSheet)});
    perform(driver, "_CRtfDriver.get StyleSheetFile");
    writeFile(badStyleSheet, badStyles);
    perform(driver, "_CRtfDriver.set StyleSheetFile", {utf8Text(badStyleSheet)});
    perform(document, "_CRtfDoc.set StyleSheetFile", {utf8Text(badStyleSheet)});
    perform(document, "_CRtfDoc.set StyleSheetFile", {"nosuch.rtfss"});
    perform(document, "_CRtfDoc.set StyleSheetFile", {utf8Text(styleSheet)});
    perform(driver, "_CRtfDriver.call LoadStyleSheetFromMemmory", {unbalancedStyles});
    perform(driver, "_CRtfDriver.call LoadStyleSheetFromMemmory", {styles});
    perform(driver, "_CRtfDriver.get RtfObject");
    committed(driver, "_CRtfDriver.call Commit");

    EXPECT_THAT(std::vector<std::string>(performed_.begin(), performed_.end()),
                testing::UnorderedElementsAreArray(members()));
}

TEST_F(Members, ReturnTheSameWhenTheOwnersAreGone) {
    perform(document, "_CRtfDoc.get TableRows");
    perform(2, "_CRtfTableRows.call AddTail", {Missing{}});
    perform(2, "_CRtfTableRows.get Item", {1});
    perform(3, "_CRtfTableRow.get TableCells");
    perform(4, "_CRtfTableCells.call AddTail", {Missing{}});
    perform(4, "_CRtfTableCells.get Item", {1});
    perform(5, "_CRtfTableCell.get Paragraphs");
    perform(6, "_CRtfParagraphs.call AddTail", {Missing{}});
    perform(6, "_CRtfParagraphs.get Item", {1});
    releaseObject(document);

    EXPECT_EQ(perform(2, "_CRtfTableRows.get Parent"), "Nothing");
    EXPECT_EQ(perform(3, "_CRtfTableRow.get Parent"), "Nothing");
    EXPECT_EQ(perform(2, "_CRtfTableRows.get Count"), "0");
    perform(2, "_CRtfTableRows.call AddTail", {Missing{}});
    perform(3, "_CRtfTableRow.set BackColor", {4});
    perform(3, "_CRtfTableRow.get BackColor");
    perform(5, "_CRtfTableCell.get Width", {0});
    perform(7, "_CRtfParagraph.set Text", {"abc"});
    perform(7, "_CRtfParagraph.get Text");
    perform(7, "_CRtfParagraph.get Parent");
    releaseObject(2);
    releaseObject(3);
    releaseObject(4);
    perform(5, "_CRtfTableCell.get Parent");
    releaseObject(5);
    releaseObject(6);
    // A paragraph keeps its cell, for which the host gets an object again.
    EXPECT_EQ(perform(7, "_CRtfParagraph.get Parent"), "_CRtfTableCell 8");
    EXPECT_EQ(perform(8, "_CRtfTableCell.get Parent"), "Nothing");
    EXPECT_EQ(perform(7, "_CRtfParagraph.get Text"), "\"abc\"");
}

/// Random operations on whatever objects there are.
class RandomOperations {
public:
    explicit RandomOperations(unsigned seed) : random_(seed), members_(members()) {}

    Operation next(const Face& face) {
        for (;;) {
            const int object = upTo(face.objectCount());
            std::vector<std::string> fitting;
            const std::string prefix = face.interfaceOf(object) + ".";
            std::copy_if(members_.begin(), members_.end(), std::back_inserter(fitting),
                         [&prefix](const std::string& member) {
                             return member.starts_with(prefix) && !member.ends_with(" Commit") &&
                                    !member.ends_with(" StyleSheetFile") &&
                                    !member.ends_with(" ParseFile");
                         });
            if (!fitting.empty()) {
                const std::string member =
                    fitting[static_cast<std::size_t>(upTo(static_cast<int>(fitting.size())))];
                return {object, member, argumentsFor(member)};
            }
        }
    }
    bool oneIn(int chances) { return upTo(chances) == 0; }
    int upTo(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }

private:
    Arguments argumentsFor(const std::string& member) {
        const auto is = [&member](const char* end) { return member.ends_with(end); };
        if (is(" add")) {
            return {key(), oneIn(3) ? index() : Missing{}, oneIn(3) ? index() : Missing{}};
        }
        if (is(" AddHead") || is(" AddTail")) {
            return {key()};
        }
        if (is(" Item") || is(" Remove")) {
            return {index()};
        }
        if (is(" asMarkedField")) {
            return {oneIn(4) ? Value(2.5) : oneIn(2) ? Value(number()) : Value(text())};
        }
        if (is("get Width")) {
            return {upTo(3)};
        }
        if (is("set Width")) {
            return {upTo(3), number()};
        }
        if (is("set Changed") || is("set ErroneousInput") || is("set notifyError")) {
            return {oneIn(2)};
        }
        if (is(" ParseFromMemmory")) {
            return {description()};
        }
        if (is(" LoadStyleSheetFromMemmory")) {
            return {oneIn(4) ? badStyles : styles};
        }
        if (is("set Text") || is("set Style") || is(" getCellStyleBackColor")) {
            return {text()};
        }
        return member.find(".set ") != std::string::npos ? Arguments{number()} : Arguments{};
    }
    Value key() { return oneIn(2) ? Value(Missing{}) : oneIn(8) ? Value(3) : Value(text()); }
    Value index() {
        switch (upTo(8)) {
            case 0:
                return text();
            case 1:
                return upTo(7) / 2.0;
            case 2:
                return Empty{};
            default:
                return upTo(5);
        }
    }
    std::int32_t number() {
        const std::int32_t numbers[] = {-1, 0, 3, 5, 10, 20, 24, 30, 36, 50, 100, 900, 5000, 30000};
        return numbers[upTo(14)];
    }
    std::string text() {
        const char* texts[] = {
            "", "a", "A", "b", "head", "title", "<bold-red=x>", "\xC3\xA9t\xC3\xA9"};
        return texts[upTo(8)];
    }
    std::string description() {
        std::string lines = "(doc\n";
        for (int row = upTo(3); row >= 0; --row) {
            lines += "(r\n(c\n(p\n(pt=" + text() + ")\np)\n";
            lines += oneIn(4) ? "(bc=green)\n" : "";
            lines += oneIn(8) ? "" : "c)\nr)\n";
        }
        return lines + "doc)";
    }

    std::mt19937 random_;
    std::vector<std::string> members_;
};

TEST_F(Members, ReturnTheSameToRandomOperations) {
    RandomOperations random(20031);
    for (int step = 0; step < 20000 && !HasFailure(); ++step) {
        const Operation operation = random.next(*native_);
        perform(operation.object, operation.member, operation.arguments);
        if (random.oneIn(20)) {
            const int object = random.upTo(native_->objectCount());
            // The driver stays, and with it always something to go on with.
            if (object != driver && !native_->interfaceOf(object).empty()) {
                releaseObject(object);
            }
        }
    }
}

}  // namespace
}  // namespace quorvane::host
