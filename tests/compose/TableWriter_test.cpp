#include "quorvane/compose/TableWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/compose/TableDescription.h"
#include "quorvane/driver/CRtfDriver.h"

namespace quorvane {
namespace {

using testing::HasSubstr;
using Row = std::vector<std::string_view>;

struct WrittenRow {
    enum class Kind { Plain, Group, Total } kind = Kind::Plain;
    Row cells;
};

std::string written(const TableSetup& setup, const std::vector<WrittenRow>& rows) {
    std::string document;
    TableWriter writer(setup, [&](std::string_view bytes) { document += bytes; });
    for (const WrittenRow& row : rows) {
        switch (row.kind) {
            case WrittenRow::Kind::Plain:
                writer.addRow(row.cells);
                break;
            case WrittenRow::Kind::Group:
                writer.addGroup(row.cells.front());
                break;
            case WrittenRow::Kind::Total:
                writer.addTotal(row.cells);
                break;
        }
    }
    writer.finish();
    return document;
}

std::string described(const TableSetup& setup, const std::vector<WrittenRow>& rows) {
    const TableDescription description(setup);
    TableStripes stripes;
    std::string text = description.beginning();
    for (const WrittenRow& row : rows) {
        TableRowKind kind = TableRowKind::Total;
        if (row.kind == WrittenRow::Kind::Plain) {
            kind = stripes.next();
        } else if (row.kind == WrittenRow::Kind::Group) {
            kind = TableRowKind::Group;
            stripes.beginGroup();
        }
        text += description.row(kind, row.cells);
    }
    text += TableDescription::end();
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->RtfObject()->setExtendedStyleSheets(true);
    driver->LoadStyleSheetFromMemmory(
        setup.styleSheet.empty() ? standardTableStyles() : std::string_view(setup.styleSheet));
    driver->setReadsExtended(true);
    driver->setNotifyErrorHandler(
        [](CRtfDriver&, const RtfError& error) { ADD_FAILURE() << error.description; });
    driver->ParseFromMemmory(text);
    return driver->Contents();
}

TableSetup prices() {
    return {.columns = {{"Article", "60%"}, {"Price", "40%", eRight}}};
}

template <class Action>
std::string errorOf(Action action) {
    try {
        action();
    } catch (const RtfError& error) {
        EXPECT_EQ(error.number, 5);
        return error.description;
    }
    return "no error";
}

TEST(TableDescription, WritesATextThatNoValueCanHoldAsRawRtf) {
    TableSetup setup = prices();
    setup.styleSheet = standardTableStyles();
    const TableDescription description(setup);
    const auto cellOf = [&](const char* text) {
        const std::string row = description.row(TableRowKind::Plain, Row{text});
        const std::size_t begin = row.find("(para-style=table-cell)\n") + 24;
        return row.substr(begin, row.find("para)\n", begin) - begin);
    };
    EXPECT_EQ(cellOf("\"\"\" {quoted}"), "(rtf={}\"\"\" \\{quoted\\})\n");
    EXPECT_EQ(cellOf(" \u0159 <b=1>"), "(rtf={} \u0159 \\'3Cb=1\\'3E)\n");
    EXPECT_EQ(cellOf("a < b"), "(para-text=a < b)\n");
    EXPECT_EQ(cellOf("a\r\nb\r"), "(para-text=\"\"\"\na\nb\n\n\"\"\")\n");
}

TEST(TableDescription, RefusesATextThatNoDocumentCanShow) {
    const TableDescription description(prices());
    EXPECT_EQ(errorOf([&] {
                  description.row(TableRowKind::Plain, Row{"a", "b\x01"});
              }),
              "Cell 2: No document can show the control character U+0001");
}

TEST(TableWriter, WritesWhatTheDescriptionOfTheSameTableIsRenderedAs) {
    TableSetup setup = prices();
    setup.title = "Prices {spring}";
    setup.page = "letter-landscape";
    setup.header = {"Novák & Söhne", {}, "{page}"};
    const std::vector<WrittenRow> rows = {
        {WrittenRow::Kind::Group, {"Glass"}},
        {.cells = {"Křišťálová váza {blue} <b=1> \\ 😀", "1 250.00"}},
        {.cells = {"two\nlines", ""}},
        {.cells = {" blanks  around ", "1\t2"}},
        {.cells = {"one cell"}},
        {.cells = {"a \"\"\"", ")"}},
        {WrittenRow::Kind::Group, {"Wood"}},
        {.cells = {"; no comment", "(pt=x)"}},
        {WrittenRow::Kind::Total, {"", "1 250.00"}},
    };
    EXPECT_EQ(written(setup, rows), described(setup, rows));
}

TEST(TableWriter, BeginsAPageWithEachGroupButTheFirst) {
    TableSetup setup = prices();
    setup.groupsStartPages = true;
    const std::vector<WrittenRow> rows = {
        {WrittenRow::Kind::Group, {"Glass"}},
        {.cells = {"jar", "1"}},
        {.cells = {"vase", "1"}},
        {WrittenRow::Kind::Group, {"Wood"}},
        {.cells = {"box", "2"}},
        {WrittenRow::Kind::Total, {"", "3"}},
    };
    const std::string document = written(setup, rows);
    EXPECT_EQ(document, described(setup, rows));
    const std::size_t page = document.find("\\pagebb");
    EXPECT_GT(page, document.find("vase"));
    EXPECT_LT(page, document.find("Wood"));
    EXPECT_EQ(document.find("\\pagebb", page + 1), std::string::npos);
}

TEST(TableWriter, AddsAGroupOnlyWithItsFirstRow) {
    const auto writtenWith = [](auto addGroup) {
        std::ostringstream stream;
        TableWriter writer(prices(), stream);
        writer.addRow(Row{"a", "1"});
        addGroup(writer);
        writer.addRow(Row{"c", "3"});
        writer.finish();
        return stream.str();
    };
    EXPECT_EQ(writtenWith([](TableWriter& writer) {
                  writer.addGroup("G", Row{"b", "2"});
              }),
              writtenWith([](TableWriter& writer) {
                  writer.addGroup("G");
                  writer.addRow(Row{"b", "2"});
              }));
    const auto nothing = [](TableWriter&) {};
    EXPECT_EQ(writtenWith([](TableWriter& writer) {
                  EXPECT_THROW(writer.addGroup("G", Row{"b\x01"}), RtfError);
                  EXPECT_THROW(writer.addGroup("G\x01", Row{"b"}), RtfError);
                  EXPECT_THROW(writer.addGroup("G", Row{"b", "2", "x"}), RtfError);
              }),
              writtenWith(nothing));
}

TEST(TableWriter, WritesTheSameWithBordersAndAStylesheetWithoutStripesAndHeading) {
    TableSetup setup = prices();
    setup.border = "hair";
    setup.stripe = "none";
    setup.hasHeading = false;
    setup.footer = {};
    setup.styleSheet =
        "{name: table-cell, table-heading, table-group, table-total; style-def: s; format: \\fs16}";
    const std::vector<WrittenRow> rows = {{.cells = {"a", "1"}}, {.cells = {"b", "2"}}};
    EXPECT_EQ(written(setup, rows), described(setup, rows));
}

TEST(TableWriter, WritesARowAsTheObjectModelDoes) {
    const std::string document = written(prices(), {{.cells = {"Vase", "12"}}});
    EXPECT_THAT(document,
                testing::EndsWith("\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\trkeep"
                                  " \\cellx5783 \\cellx9638 \r\n\r\n\r\n"
                                  "\\pard\\plain\\intbl\\s100\\f0\\fs18\\sb40\\sa40 Vase\\cell "
                                  "\r\n\r\n\r\n"
                                  "\\pard\\plain\\intbl\\s100\\f0\\fs18\\sb40\\sa40 \\qr 12"
                                  "\\cell\\row}\\pard\\plain\\sl-20\\slmult0\\fs2\\par}"));
}

TEST(TableWriter, RepeatsTitleAndHeadingInThePageHeader) {
    TableSetup setup = prices();
    setup.title = "Spring";
    const std::string document = written(setup, {});
    const std::size_t header = document.find("{\\header");
    ASSERT_NE(header, std::string::npos);
    EXPECT_LT(header, document.find("Spring"));
    EXPECT_LT(document.find("Spring"), document.find("Article"));
    EXPECT_EQ(document.find("Article"), document.rfind("Article"));
}

TEST(TableWriter, GivesEverySecondRowAStripeAndBeginsAgainAfterAGroup) {
    TableSetup setup = prices();
    setup.stripe = "light-yellow";
    setup.hasHeading = false;
    const std::string document = written(setup, {{.cells = {"a"}},
                                                 {.cells = {"b"}},
                                                 {.cells = {"c"}},
                                                 {WrittenRow::Kind::Group, {"g"}},
                                                 {.cells = {"d"}},
                                                 {.cells = {"e"}}});
    std::string stripes;
    std::size_t at = document.find("\\trowd");
    while (at != std::string::npos) {
        const std::size_t next = document.find("\\trowd", at + 1);
        stripes += document.substr(at, next - at).find("clcbpat") == std::string::npos ? '-' : '#';
        at = next;
    }
    EXPECT_EQ(stripes, "-#---#");
}

TEST(TableWriter, LeavesAWrongRowOutAndGoesOn) {
    std::string document;
    TableWriter writer(prices(), [&](std::string_view bytes) { document += bytes; });
    writer.addRow(Row{"a", "1"});
    EXPECT_EQ(errorOf([&] {
                  writer.addRow(Row{"x", "\x07"});
              }),
              "Cell 2: No document can show the control character U+0007 (byte 1)");
    EXPECT_EQ(errorOf([&] { writer.addRow(Row{"\xFF"}); }),
              "Cell 1: Byte FF is not UTF-8 (byte 1)");
    EXPECT_EQ(errorOf([&] {
                  writer.addRow(Row{"x", "y", "z"});
              }),
              "The row has 3 cells; the table has 2 columns.");
    writer.addRow(Row{"b", "2"});
    writer.finish();
    EXPECT_EQ(document, written(prices(), {{.cells = {"a", "1"}}, {.cells = {"b", "2"}}}));
}

TEST(TableWriter, RefusesASetupThatDoesNotFitTogether) {
    const auto sink = [](std::string_view) {};
    const auto errorOfSetup = [&](auto change) {
        TableSetup setup = prices();
        change(setup);
        return errorOf([&] { TableWriter(setup, sink); });
    };
    EXPECT_EQ(errorOfSetup([](TableSetup& setup) { setup.columns.clear(); }),
              "A table has 1 to 63 columns, not 0.");
    EXPECT_EQ(errorOfSetup([](TableSetup& setup) { setup.columns.resize(64); }),
              "A table has 1 to 63 columns, not 64.");
    EXPECT_EQ(errorOfSetup([](TableSetup& setup) { setup.columns[1].width = ""; }),
              "Give all columns a width, or none of them.");
    EXPECT_THAT(errorOfSetup([](TableSetup& setup) { setup.page = "a44"; }),
                HasSubstr("\"a44\" is not a page"));
    EXPECT_THAT(errorOfSetup([](TableSetup& setup) { setup.stripe = "crimsonish"; }),
                HasSubstr("crimsonish"));
    EXPECT_THAT(errorOfSetup([](TableSetup& setup) { setup.columns[0].width = "61%"; }),
                HasSubstr("101 %"));
    EXPECT_NE(errorOfSetup([](TableSetup& setup) { setup.columns[0].width = "3 4"; }), "no error");
    EXPECT_NE(errorOfSetup([](TableSetup& setup) { setup.margin = "20cm"; }), "no error");
}

TEST(TableWriter, RefusesAStylesheetWithoutTheStylesOfTables) {
    TableSetup setup = prices();
    setup.styleSheet = "; quorvane 2\n{ name: table-cell; style-def: paragraph; size: 9pt }";
    EXPECT_THAT(errorOf([&] { TableWriter(setup, [](std::string_view) {}); }),
                HasSubstr("table-heading"));
}

TEST(TableWriter, WritesATableWithoutWidthsInEqualColumns) {
    const TableSetup setup{.columns = {{"a"}, {"b"}}};
    EXPECT_THAT(written(setup, {{.cells = {"1", "2"}}}), HasSubstr("\\cellx4819 \\cellx9638"));
}

TEST(TableWriter, WritesIntoAStreamAndReportsItsFailure) {
    std::ostringstream stream;
    TableWriter writer(prices(), stream);
    writer.addRow(Row{"a", "1"});
    writer.finish();
    EXPECT_EQ(stream.str(), written(prices(), {{.cells = {"a", "1"}}}));

    std::ostringstream broken;
    TableWriter toBroken(prices(), broken);
    broken.setstate(std::ios::badbit);
    EXPECT_THROW(toBroken.finish(), RtfError);
    EXPECT_EQ(errorOf([&] { toBroken.addRow(Row{"a"}); }),
              "The document has ended, or could not be written.");
}

class MemoryFile final : public OutputFile {
public:
    explicit MemoryFile(std::string& log) : log_(log) {}
    ~MemoryFile() override { log_ += "destroyed"; }
    void write(std::string_view bytes) override { log_ += bytes.substr(0, 0); }
    void close() override { log_ += "closed "; }

private:
    std::string& log_;
};

TEST(TableWriter, ClosesItsFileOnlyWhenTheDocumentIsWhole) {
    std::string log;
    {
        TableWriter writer(prices(), std::make_unique<MemoryFile>(log));
        writer.addRow(Row{"a"});
    }
    EXPECT_EQ(log, "destroyed");
    log.clear();
    {
        TableWriter writer(prices(), std::make_unique<MemoryFile>(log));
        writer.finish();
        EXPECT_EQ(errorOf([&] { writer.finish(); }),
                  "The document has ended, or could not be written.");
    }
    EXPECT_EQ(log, "closed destroyed");
}

}  // namespace
}  // namespace quorvane
