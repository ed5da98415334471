// The built program's "table".

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

#include "quorvane/compose/TableSetup.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "tests/cli/ProgramTest.h"
#include "tests/cli/runProgram.h"

namespace quorvane::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class TableTest : public ProgramTest {
protected:
    TableTest() : ProgramTest({"table"}) {}

    /// The description of the table, with the columns and rows alone.
    std::string described(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "--as-description");
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.errors, "");
        return result.output;
    }

    /// The texts of a description, with blanks between those of a row.
    static std::string textsOf(const std::string& description) {
        std::string texts;
        for (std::size_t at = 0; at < description.size();) {
            const std::size_t end = description.find('\n', at);
            const std::string line = description.substr(at, end - at);
            if (line.starts_with("(para-text=")) {
                texts += line.substr(11, line.size() - 12) + " ";
            } else if (line == "(rtf={})") {
                texts += "- ";
            } else if (line == "row)") {
                texts.back() = '/';
            }
            at = end + 1;
        }
        return texts;
    }
};

constexpr const char* prices =
    "No.;Article;Price\r\n0017;Vase;1 250,00\r\n0018;Bowl;79,90\r\n0023;\"Candle; red\";9,50\r\n";

TEST_F(TableTest, WritesADocumentBesideTheData) {
    folder.write("prices.csv", prices);
    const ProgramResult result = run({"prices.csv"});
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.status, 0);
    const std::string document = folder.read("prices.rtf");
    EXPECT_THAT(document, AllOf(StartsWith("{\\rtf1"), HasSubstr("Candle; red\\cell")));
    EXPECT_THAT(checkRtf(document), IsEmpty());
}

TEST_F(TableTest, WritesTheDocumentOfStandardInputToStandardOutput) {
    start.input = prices;
    const ProgramResult result = run({"-"});
    EXPECT_EQ(result.errors, "");
    folder.write("prices.csv", prices);
    run({"prices.csv"});
    EXPECT_EQ(result.output, folder.read("prices.rtf"));
}

TEST_F(TableTest, WritesWhatItsDescriptionIsRenderedAs) {
    folder.write("prices.csv", std::string(prices) +
                                   "5;\"two\nlines\";\r\n6;  <b=1> {x} \\ \U0001F600;-3,00\r\n");
    const std::vector<std::string> options = {
        "prices.csv", "--title", "Prices (spring)", "--border", "hair",   "--stripe", "silver",
        "--group-by", "No.",     "--total",         "Price",    "--page", "a5"};
    const auto with = [&](std::vector<std::string> more) {
        more.insert(more.begin(), options.begin(), options.end());
        return run(more);
    };
    EXPECT_EQ(with({"-o", "direct.rtf"}).errors, "");
    EXPECT_EQ(with({"--as-description", "-o", "prices.rtfspec"}).errors, "");
    EXPECT_EQ(run({"--as-stylesheet", "-o", "table.rtfss"}).errors, "");
    start.arguments = {"render", "-s", "table.rtfss", "prices.rtfspec", "-o", "rendered.rtf"};
    EXPECT_EQ(runProgram(start).errors, "");
    EXPECT_EQ(folder.read("rendered.rtf"), folder.read("direct.rtf"));
}

TEST_F(TableTest, AlignsNumbersAndLeavesNamesAlone) {
    folder.write("a.csv", "No.,Name,Price\n0017,x,1.5\n0018,y,20\n");
    EXPECT_THAT(described({"a.csv"}),
                AllOf(HasSubstr("(para-style=table-cell)\n(para-text=0017)"),
                      HasSubstr("(para-style=table-cell)\n(para-alignment=right)\n"
                                "(para-text=1.5)"),
                      HasSubstr("(para-style=table-heading)\n(para-alignment=right)\n"
                                "(para-text=Price)")));
}

TEST_F(TableTest, TurnsThePageForAWideTable) {
    const std::string text(30, 'x');
    std::string wide;
    for (int row = 0; row < 2; ++row) {
        for (int i = 0; i < 9; ++i) {
            wide += text + std::to_string(i) + (i < 8 ? "," : "\n");
        }
    }
    folder.write("wide.csv", wide);
    EXPECT_THAT(described({"wide.csv"}), HasSubstr("(page=a4-landscape)\n"));
    EXPECT_THAT(described({"wide.csv", "--page", "a3"}), HasSubstr("(page=a3)\n"));
    folder.write("narrow.csv", "a,b\n1,2\n");
    EXPECT_THAT(described({"narrow.csv"}), HasSubstr("(page=a4)\n"));
}

TEST_F(TableTest, ShowsTheColumnsThatItIsAskedFor) {
    folder.write("a.csv", "sku,name,price,day\n17,vase,1250,2027-01-31\n18,,79.9,\n");
    const std::string description =
        described({"a.csv", "--locale", "de-DE", "--columns",
                   "price:Preis:20%:money:2,name:\"Artikel, alle\":auto:center:upper|default:?,"
                   "day:3cm:date:d.M.yy"});
    EXPECT_EQ(textsOf(description), "Preis Artikel, alle day/1.250,00 VASE 31.1.27/79,90 ? -/");
    EXPECT_THAT(description, HasSubstr("(para-alignment=centered)\n(para-text=VASE)"));
    EXPECT_THAT(description, HasSubstr("(columns=20% 62.35% 3cm)\n"));
}

TEST_F(TableTest, FiltersNumbersAsOfficesWriteThem) {
    folder.write("a.csv", "name;price\na;1.234\nb;1.234,5\nc;-3\nd;\n");
    EXPECT_EQ(textsOf(described({"a.csv", "--columns", "name,price:money:2"})),
              "name price/a 1,234.00/b 1,234.50/c -3.00/d -/");
    EXPECT_EQ(textsOf(described({"a.csv", "--locale=de-DE", "--columns", "price:number:1"})),
              "price/1234,0/1234,5/-3,0/-/");
    folder.write("b.csv", "price\n\"1,234.50\"\n7\n");
    EXPECT_EQ(textsOf(described({"b.csv", "--columns", "price:number"})), "price/1234.50/7/");
}

TEST_F(TableTest, RefusesANumberWithAnotherDecimalSignThanThoseBefore) {
    folder.write("a.csv", "price\n\"12,50\"\n12.50\n");
    const ProgramResult result = run({"a.csv", "--columns", "price:money"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "a.csv:3: error: \"price\": \"12.50\" is not a number with a decimal comma, as the "
              "column or the locale has it.\n");
}

TEST_F(TableTest, RefusesToFilterANumberThatCanBeReadInTwoWays) {
    folder.write("a.csv", "article;price\na;1.299\n");
    EXPECT_EQ(run({"a.csv", "--columns", "price:money"}).errors,
              "a.csv:2: error: \"price\": \"1.299\" can be read in two ways. Choose one with "
              "--locale, such as en-US or de-DE.\n");
    EXPECT_EQ(textsOf(described({"a.csv", "--columns", "price:money", "--locale=de-DE"})),
              "price/1.299,00/");
}

TEST_F(TableTest, LeavesRoomForTheTotalOfAColumn) {
    folder.write("a.csv", "article;price\na;900.000,00\nb;900.000,00\n");
    const auto widthOfPrice = [&](std::vector<std::string> arguments) {
        const std::string text = described(std::move(arguments));
        const std::string columns = text.substr(text.find("(columns=") + 9);
        return std::stod(columns.substr(columns.find(' ') + 1));
    };
    EXPECT_GT(widthOfPrice({"a.csv", "--total=price"}), 1.3 * widthOfPrice({"a.csv"}));
}

TEST_F(TableTest, ReadsTheNumbersOfAColumnInOneWay) {
    folder.write("a.csv", "n,p\na,1.500\nb,10.255\n");
    EXPECT_EQ(
        textsOf(described({"a.csv", "--columns", "p:number:3", "--total=p", "--locale=en-US"})),
        "p/1.500/10.255/11.755/");
    EXPECT_EQ(
        textsOf(described({"a.csv", "--columns", "n,p:number:1", "--total=p", "--locale=de-DE"})),
        "n p/a 1500,0/b 10255,0/Total 11755,0/");
    folder.write("a.json", R"([{"p":1249.5},{"p":1.125}])");
    EXPECT_EQ(textsOf(described({"a.json", "--columns", "p:money", "--total=p", "--locale=de-DE"})),
              "p/1.249,50/1,13/1.250,63/");
}

TEST_F(TableTest, NamesTheRowOfTotalsAsItIsAskedFor) {
    folder.write("a.csv", "name,price\na,1\n");
    EXPECT_EQ(textsOf(described({"a.csv", "--total=price", "--total-label=Summe"})),
              "name price/a 1/Summe 1/");
}

TEST_F(TableTest, ShowsHeadingsTitlesAndCellsAsTheyAre) {
    folder.write("a.rtfss", std::string(standardTableStyles()) +
                                "{name: strong; style-def: character; bold}\n");
    folder.write("a.csv", "<strong=Name>,\"\"\"\"\"\"\"\"\n\"a\r\",<strong=abc>\n");
    const std::vector<std::string> options{"a.csv", "-s", "a.rtfss", "--title=<strong=T>"};
    std::vector<std::string> arguments = options;
    EXPECT_EQ(run(arguments).status, 0);
    for (const char* text : {"\\'3Cstrong=Name\\'3E", "\"\"\"", "\\'3Cstrong=T\\'3E",
                             "\\'3Cstrong=abc\\'3E", "a\\line "}) {
        EXPECT_THAT(folder.read("a.rtf"), HasSubstr(text));
    }
    arguments.insert(arguments.end(), {"--as-description", "-o", "a.rtfspec"});
    EXPECT_EQ(run(arguments).status, 0);
    const std::string description = folder.read("a.rtfspec");
    EXPECT_THAT(description, HasSubstr("(rtf=\\'3Cstrong=abc\\'3E)\n"));
    EXPECT_THAT(description, HasSubstr("(para-text=\"\"\"\na\n\n\"\"\")\n"));
    // A description that was written before may be replaced.
    EXPECT_EQ(run(arguments).status, 0);
}

TEST_F(TableTest, FitsManyColumnsOfWhichSomeAreLong) {
    std::string row;
    for (int i = 0; i < 63; ++i) {
        row += (i > 0 ? "," : "") + (i % 2 == 0 ? std::string(2000, 'x') : std::string("y"));
    }
    folder.write("a.csv", row + "\n" + row + "\n");
    EXPECT_EQ(run({"a.csv", "-o", "-"}).errors, "");
}

TEST_F(TableTest, SaysThatADocumentOfAnOfficeProgramIsNotData) {
    folder.write("a.xlsx", std::string("PK\x03\x04\x14\0\x06\0", 8));
    const ProgramResult result = run({"a.xlsx"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors,
              "a.xlsx: error: This is a ZIP archive or the document of an office program, not a "
              "text file. Export the data as CSV or JSON.\n");
}

TEST_F(TableTest, LetsFiltersHoldCommasInQuotationMarks) {
    folder.write("a.csv", "n,p\na,\n");
    EXPECT_EQ(textsOf(described({"a.csv", "--columns", "n,p:default:\"x, y\""})), "n p/a x, y/");
}

TEST_F(TableTest, GroupsRowsAndAddsATotal) {
    folder.write("a.csv", "kind,name,price\nglass,vase,0.10\nglass,bowl,0.20\nwood,box,5\n");
    EXPECT_EQ(textsOf(described({"a.csv", "--group-by", "kind", "--total", "price"})),
              "name price/glass/vase 0.10/bowl 0.20/wood/box 5/Total 5.30/");
    EXPECT_EQ(textsOf(described({"a.csv", "--columns", "kind,price:money", "--total=price"})),
              "kind price/glass 0.10/glass 0.20/wood 5.00/Total 5.30/");
}

TEST_F(TableTest, SaysThatTheRowsOfGroupsDoNotFollowEachOther) {
    folder.write("a.csv", "kind,n\nx,1\ny,2\nx,3\n");
    const ProgramResult result = run({"a.csv", "--group-by=kind"});
    EXPECT_EQ(result.errors,
              "a.csv: Some groups begin several times, since their rows do not follow each other. "
              "Sort the rows: --sort \"kind\"\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(run({"a.csv", "--group-by=kind", "--sort=kind"}).errors, "");
    EXPECT_EQ(run({"a.csv", "--group-by=kind", "--sort=kind", "--split=1"}).errors, "");
}

TEST_F(TableTest, SortsRowsByFields) {
    folder.write("a.csv",
                 "name;price;day\nb;12,50;1.2.2027\nA;100,00;31.1.2027\n\u00E4;;\nc;3,00;\n");
    EXPECT_EQ(textsOf(described({"a.csv", "--sort", "price", "--columns", "name,price"})),
              "name price/c 3,00/b 12,50/A 100,00/\u00E4 -/");
    EXPECT_EQ(textsOf(described({"a.csv", "--sort=price:desc", "--columns", "name,price"})),
              "name price/A 100,00/b 12,50/c 3,00/\u00E4 -/");
    EXPECT_EQ(textsOf(described({"a.csv", "--sort=day,name:desc", "--columns", "name"})),
              "name/A/b/c/\u00E4/");
    EXPECT_EQ(textsOf(described({"a.csv", "--sort=name", "--limit=2", "--columns", "name"})),
              "name/A/\u00E4/");
}

TEST_F(TableTest, KeepsTheRowsOfAGroupTogetherWhenItSorts) {
    folder.write("a.csv", "kind,name,price\nwood,box,5\nglass,vase,3\nwood,bowl,2\nglass,jar,4\n");
    const auto sorted = [&](const char* fields) {
        return textsOf(described({"a.csv", "--group-by=kind", "--columns=name", "--sort", fields}));
    };
    EXPECT_EQ(sorted("price"), "name/wood/bowl/box/glass/vase/jar/");
    EXPECT_EQ(sorted("kind"), "name/glass/vase/jar/wood/box/bowl/");
    EXPECT_EQ(sorted("price:desc,kind"), "name/glass/jar/vase/wood/box/bowl/");
    folder.write("b.csv", "kind,n\nGlass,1\nglass,2\nGlass,3\n");
    EXPECT_EQ(textsOf(described({"b.csv", "--group-by=kind", "--sort=kind"})),
              "n/Glass/1/3/glass/2/");
}

TEST_F(TableTest, ReportsErrorsOfSortedRowsWithTheirLines) {
    folder.write("a.csv", "a,b\n2,\x07\n1,x\n");
    EXPECT_THAT(run({"a.csv", "--sort=a"}).errors, StartsWith("a.csv:2: error: Cell 2: "));
    folder.write("b.csv", "a,b\n2,y\n3\n1,x\n");
    EXPECT_THAT(run({"b.csv", "--sort=a"}).errors, StartsWith("b.csv:3: error: The row has 1"));
    EXPECT_EQ(run({"b.csv", "--sort=a", "--keep-going", "-o", "b.rtf"}).status, 1);
    EXPECT_THAT(checkRtf(folder.read("b.rtf")), IsEmpty());
}

TEST_F(TableTest, WritesDocumentsOfSoManyRows) {
    folder.write("a.csv", "kind,n\nx,1\nx,2\nx,3\ny,4\ny,5\n");
    EXPECT_EQ(run({"a.csv", "--split=2", "--group-by=kind", "--total=n", "--as-description", "-o",
                   "p.rtfspec"})
                  .errors,
              "");
    EXPECT_EQ(textsOf(folder.read("p-001.rtfspec")), "n/x/1/2/3/");
    EXPECT_EQ(textsOf(folder.read("p-002.rtfspec")), "n/x/3/y/4/7/");
    EXPECT_EQ(textsOf(folder.read("p-003.rtfspec")), "n/y/5/5/");
    EXPECT_FALSE(folder.has("p.rtfspec"));
    EXPECT_FALSE(folder.has("p-004.rtfspec"));
    EXPECT_EQ(run({"a.csv", "--split=5"}).errors, "");
    EXPECT_THAT(checkRtf(folder.read("a-001.rtf")), IsEmpty());
    EXPECT_FALSE(folder.has("a-002.rtf"));
    folder.write("empty.csv", "n\n");
    EXPECT_EQ(run({"empty.csv", "--split=5"}).errors, "");
    EXPECT_TRUE(folder.has("empty-001.rtf"));
}

TEST_F(TableTest, NeedsANameForTheDocumentsOfItsParts) {
    folder.write("a.csv", "n\n1\n2\n");
    std::filesystem::create_directory(folder.path() / "parts");
    for (const std::string output : {"parts", "parts/", "none/"}) {
        const ProgramResult result = run({"a.csv", "--split=1", "-o", output});
        EXPECT_EQ(result.status, 2) << output;
        EXPECT_THAT(result.errors, HasSubstr("--output names a folder; write the name that the "
                                             "files of --split begin with after it, such as "))
            << output;
    }
    EXPECT_FALSE(folder.has("parts-001"));
}

TEST_F(TableTest, WritesNoDocumentForRowsThatAreAllLeftOut) {
    folder.write("a.csv", "n\n1\n2\n\x07\n");
    EXPECT_EQ(run({"a.csv", "--split=2", "--keep-going"}).status, 1);
    EXPECT_TRUE(folder.has("a-001.rtf"));
    EXPECT_FALSE(folder.has("a-002.rtf"));
    EXPECT_EQ(run({"a.csv", "--split=1"}).status, 1);
    EXPECT_TRUE(folder.has("a-002.rtf"));
    EXPECT_FALSE(folder.has("a-003.rtf"));
}

TEST_F(TableTest, MakesACatalogOfTheListOfAnOffice) {
    const std::string description = described(
        {QUORVANE_EXAMPLES_FOLDER "/museum-shop.csv", "--group-by=Warengruppe", "--locale=de-DE",
         "--sort=Warengruppe,Bezeichnung", "--limit=6", "--total=Preis",
         "--columns=Artikel-Nr.:Nr.,Im Angebot seit:Neu:date:MM/yyyy|default:-,Preis:right"});
    EXPECT_EQ(textsOf(description),
              "Nr. Neu Preis/B\u00FCcher/01195 04/2024 0,00 \u20AC/01187 04/2024 12,80 \u20AC/"
              "01210 06/2026 48,00 \u20AC/01203 09/2025 24,00 \u20AC/Glas/00102 06/2026 34,00 "
              "\u20AC/00088 - 39,90 \u20AC/Total - 158,70 \u20AC/");
}

TEST_F(TableTest, BeginsPagesWithGroups) {
    folder.write("a.csv", "kind,n\nx,1\ny,2\n");
    const std::string description = described({"a.csv", "--group-by=kind", "--group-pages"});
    EXPECT_THAT(description, HasSubstr("(row-page-break=yes)\n"));
    run({"a.csv", "--group-by=kind", "--group-pages"});
    EXPECT_THAT(folder.read("a.rtf"), HasSubstr("\\pagebb"));
    EXPECT_EQ(run({"a.csv", "--group-pages"}).status, 2);
}

TEST_F(TableTest, ShowsNoHeadingOfAGroupWhoseRowsAreLeftOut) {
    folder.write("a.csv", "kind,n\nx,\x07\ny,2\n");
    run({"a.csv", "--group-by=kind", "--keep-going", "--as-description", "-o", "a.rtfspec"});
    EXPECT_EQ(textsOf(folder.read("a.rtfspec")), "n/y/2/");
}

TEST_F(TableTest, ReadsDatesAsTheColumnOrTheLocaleHasThem) {
    folder.write("a.csv", "day\n31.1.2027\n2027-02-03\n\n");
    EXPECT_EQ(textsOf(described({"a.csv", "--columns=day:date:d/M/yy"})), "day/31/1/27/3/2/27/");
    folder.write("b.csv", "day\n01/02/2027\n");
    EXPECT_EQ(run({"b.csv", "--columns=day:date:d.M."}).errors,
              "b.csv:2: error: \"day\": \"01/02/2027\" can begin with the day or the month. Choose "
              "one with --locale, such as en-GB or en-US.\n");
    EXPECT_EQ(textsOf(described({"b.csv", "--columns=day:date:d.M.", "--locale=en-GB"})),
              "day/1.2./");
    EXPECT_EQ(textsOf(described({"b.csv", "--columns=day:date:d.M.", "--locale=en-US"})),
              "day/2.1./");
    folder.write("c.csv", "day\n31.1.2027\nsoon\n");
    EXPECT_EQ(run({"c.csv", "--columns=day:date:d.M."}).errors,
              "c.csv:3: error: \"day\": \"soon\" is not an existing date of the form 2026-11-22 or "
              "22.11.2026.\n");
}

TEST_F(TableTest, ShowsNoBlankColumnsAndRowsOfSpreadsheets) {
    std::string rows = "a;b;;\r\n1;2;;\r\n;;;\r\n3;;;\r\n;;;\r\n";
    folder.write("a.csv", rows);
    EXPECT_EQ(textsOf(described({"a.csv"})), "a b/1 2/3 -/");
    for (int i = 0; i < 1000; ++i) {
        rows += "4;5;;\r\n";
    }
    folder.write("b.csv", rows + "6;7;;8\r\n");
    EXPECT_EQ(run({"b.csv"}).errors,
              "b.csv:1006: error: Field 4 has neither a heading nor a value in the first rows, "
              "so that the table has no column for it. Give it a heading.\n");
}

TEST_F(TableTest, ReadsNastyFilesOrSaysWhatToDo) {
    const auto shown = [&](const std::string& bytes) {
        folder.write("a.csv", bytes);
        return textsOf(described({"a.csv"}));
    };
    EXPECT_EQ(shown("\xEF\xBB\xBFsep=;\r\na;b\r\n=\"0012\";\"=\"\"7\"\"\"\r\n"), "a b/0012 7/");
    EXPECT_EQ(shown("a,b\r1,2\r3,4\r"), "a b/1 2/3 4/");
    EXPECT_EQ(shown("size\n5\"\n3 \"x\" 4\n"), "size/5\"/3 \"x\" 4/");
    EXPECT_EQ(shown("a,a\n1,2\n"), "a a/1 2/");
    const std::string commas(19'999, ',');
    EXPECT_EQ(shown("a" + commas + "\n1" + commas + "\n"), "a/1/");
    EXPECT_THAT(shown("\"two\nlines\",b\n1,2\n"), HasSubstr("b/1 2/"));
    const auto errorOf = [&](const std::string& bytes) {
        folder.write("a.csv", bytes);
        const ProgramResult result = run({"a.csv", "-o", "nasty.rtf"});
        EXPECT_FALSE(folder.has("nasty.rtf"));
        return result.errors.substr(0, result.errors.find('\n'));
    };
    EXPECT_EQ(errorOf(std::string("\xFF\xFE\x61\0\n\0\x62", 7)),
              "a.csv: error: The file ends in the middle of a character: it is not whole. Copy or "
              "export it again.");
    EXPECT_EQ(errorOf("a,b\n1,\"2\n"),
              "a.csv:2: error: A quotation mark opens a field, and none closes it.");
    std::string many = "a";
    for (int i = 1; i < 20'000; ++i) {
        many += ",b" + std::to_string(i);
    }
    EXPECT_EQ(errorOf(many + "\n"),
              "quorvane: The data has 20000 fields to show, and a table has at most 63 columns. "
              "Choose some with --columns.");
    EXPECT_THAT(errorOf("a\n" + std::string(5'000'000, 'x')),
                HasSubstr("a.csv:2: error: The row has more than 4 MB."));
    EXPECT_THAT(errorOf(std::string("a,b\n1,x\0y\n", 11)), HasSubstr("a.csv"));
}

TEST_F(TableTest, StopsAfterTheRowsThatItIsLimitedTo) {
    folder.write("a.csv", "a,b\n1,2\n3,4\n\"broken");
    EXPECT_EQ(textsOf(described({"a.csv", "--limit", "2"})), "a b/1 2/3 4/");
    EXPECT_EQ(textsOf(described({"a.csv", "--limit", "0"})), "a b/");
}

TEST_F(TableTest, ReadsJsonListsAndJsonLines) {
    folder.write("a.json", R"([{"name":"Vase","size":{"cm":24}},{"name":"Bowl","tags":["a",1]}])");
    EXPECT_EQ(textsOf(described({"a.json"})), "name size.cm tags/Vase 24 -/Bowl - a, 1/");
    start.input = "{\"a\":1}\n{\"a\":null}\n";
    EXPECT_EQ(textsOf(described({"-"})), "a/1/-/");
}

TEST_F(TableTest, ReportsAFieldThatComesTooLateForAColumn) {
    std::string json;
    for (int i = 0; i < 1000; ++i) {
        json += "{\"a\":1}\n";
    }
    folder.write("a.jsonl", json + "{\"b\":1}\n");
    const ProgramResult result = run({"a.jsonl"});
    EXPECT_EQ(result.errors,
              "a.jsonl:1001: error: The first records do not have the field \"b\", so that the "
              "table has no column for it. Name the columns with --columns.\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(run({"a.jsonl", "--columns", "a"}).errors, "");
}

TEST_F(TableTest, ReadsWhatOfficesExport) {
    folder.write("excel.csv", "\xEF\xBB\xBFName;Preis\r\nM\u00FCller;1,5\r\n");
    EXPECT_EQ(textsOf(described({"excel.csv"})), "Name Preis/M\u00FCller 1,5/");
    folder.write("windows.csv", "sep=;\r\nName;Preis\r\nM\xFCller;1,5 \x80\r\n");
    EXPECT_EQ(textsOf(described({"windows.csv"})), "Name Preis/M\u00FCller 1,5 \u20AC/");
    folder.write("unicode.txt", std::string("\xFF\xFE"
                                            "a\0\t\0b\0\r\0\n\0Y\x01\t\0"
                                            "1\0",
                                            18));
    EXPECT_EQ(textsOf(described({"unicode.txt"})), "a b/\u0159 1/");
    folder.write("comma.csv", "a;b,c\n1;2,3\n");
    EXPECT_EQ(textsOf(described({"comma.csv", "--delimiter", ","})), "a;b c/1;2 3/");
    folder.write("tab.csv", "a,b\tc\n1,2\t3\n");
    EXPECT_EQ(textsOf(described({"tab.csv", "--delimiter=tab"})), "a,b c/1,2 3/");
}

TEST_F(TableTest, WritesNothingForARowThatIsWrong) {
    folder.write("a.csv", "a,b\n1,2\n3\n5,6\n");
    folder.write("a.rtf", "before");
    const ProgramResult result = run({"a.csv"});
    EXPECT_EQ(result.errors, "a.csv:3: error: The row has 1 field, and the heading has 2.\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(folder.read("a.rtf"), "before");
    folder.write("b.csv", "a,b\n1,2\n3,\"4\n5,6\n");
    EXPECT_EQ(run({"b.csv"}).errors,
              "b.csv:3: error: A quotation mark opens a field, and none closes it.\n");
    folder.write("c.csv", "a,b\n1,\x07\n");
    EXPECT_EQ(run({"c.csv"}).errors,
              "c.csv:2: error: Cell 2: No document can show the control character U+0007 (byte "
              "1)\n");
    folder.write("d.csv", "a,b\n1,\xFF\n");
    EXPECT_EQ(run({"d.csv", "--encoding=utf-8"}).errors,
              "d.csv:2: error: Cell 2: Byte FF is not UTF-8 (byte 1)\n");
    EXPECT_FALSE(folder.has("b.rtf"));
}

TEST_F(TableTest, LeavesWrongRowsOutOnRequest) {
    folder.write("a.csv", "a,b\n1,2\n3\nx,\x07\n5,6\ny,\"z\"0\n");
    const ProgramResult result = run({"a.csv", "--keep-going", "--total", "b", "-o", "a.rtf"});
    EXPECT_THAT(result.errors,
                AllOf(HasSubstr("a.csv:3: error: "), HasSubstr("a.csv:4: error: "),
                      HasSubstr("a.csv:6: error: "), HasSubstr("a.csv: 3 rows were left out\n")));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(folder.read("a.rtf"), AllOf(HasSubstr("6\\cell"), HasSubstr(" 8\\cell\\row}")));
}

TEST_F(TableTest, SaysWhatIsMissingInAFileWithoutData) {
    folder.write("empty.csv", "");
    EXPECT_EQ(run({"empty.csv"}).errors,
              "empty.csv: error: There is no data. A table needs a row of names or a record.\n");
    folder.write("empty.json", "[]");
    EXPECT_EQ(run({"empty.json"}).status, 1);
    folder.write("heading.csv", "a,b\n");
    EXPECT_EQ(textsOf(described({"heading.csv"})), "a b/");
    EXPECT_EQ(run({"missing.csv"}).errors, "missing.csv: No such file or directory\n");
    EXPECT_EQ(run({"."}).errors, ".: Is a directory\n");
    EXPECT_EQ(run({"missing.csv"}).status, 2);
}

TEST_F(TableTest, RefusesOptionsThatDoNotSuitTheData) {
    folder.write("a.csv", "name,price,price\nx,1,2\n");
    const auto errorOf = [&](std::vector<std::string> options) {
        options.insert(options.begin(), "a.csv");
        const ProgramResult result = run(options);
        EXPECT_EQ(result.status, 2);
        EXPECT_FALSE(folder.has("a.rtf"));
        return result.errors.substr(0, result.errors.find('\n'));
    };
    EXPECT_EQ(errorOf({"--columns", "nmae"}),
              "quorvane: The data has no field \"nmae\"; did you mean name?");
    EXPECT_EQ(errorOf({"--columns", "price"}), "quorvane: The data has several fields \"price\".");
    EXPECT_EQ(errorOf({"--group-by", "kind"}),
              "quorvane: The data has no field \"kind\"; its fields are: name, price, price.");
    EXPECT_EQ(errorOf({"--total", "sum"}), "quorvane: the table has no column \"sum\" for a total");
    EXPECT_THAT(errorOf({"--page", "a44"}), HasSubstr("\"a44\" is not a page"));
    EXPECT_THAT(errorOf({"--stripe", "crimsno"}), HasSubstr("crimsno"));
    EXPECT_THAT(errorOf({"--border", "fat"}), HasSubstr("fat"));
    EXPECT_THAT(errorOf({"--locale", "xx"}), HasSubstr("xx"));
    EXPECT_THAT(errorOf({"--columns", "name:80%,name:40%"}), HasSubstr("120 %"));
    EXPECT_THAT(errorOf({"--delimiter", "ab"}), HasSubstr("ab is not a delimiter"));
    EXPECT_THAT(errorOf({"--limit", "x"}), HasSubstr("x is not a number of rows"));
    EXPECT_THAT(errorOf({"-o", "a.csv"}), HasSubstr("would replace a.csv"));
}

TEST_F(TableTest, RefusesATotalThatDoesNotExist) {
    folder.write("a.csv", "n\n\"1,500\"\n\"2,500\"\n");
    EXPECT_EQ(run({"a.csv", "--total", "n"}).errors,
              "a.csv: error: The numbers can be read with a decimal point, with the total 4000, or "
              "with a decimal comma, with the total 4.000. Choose one with a locale, such as en-US "
              "or de-DE.\n");
    EXPECT_EQ(textsOf(described({"a.csv", "--total", "n", "--locale", "en-US"})),
              "n/1,500/2,500/4,000/");
    folder.write("b.csv", "n,m\na,1\nb,x\n");
    EXPECT_EQ(run({"b.csv", "--total", "m"}).errors,
              "b.csv:3: error: \"x\" is not a number, so that there is no total.\n");
}

TEST_F(TableTest, TakesItsStylesFromAStylesheet) {
    folder.write("a.csv", "a\n1\n");
    folder.write("own.rtfss",
                 "; quorvane 2\n{ name: table-cell, table-heading, table-group, table-total; "
                 "style-def: paragraph; size: 31pt }\n");
    EXPECT_EQ(run({"a.csv", "-s", "own.rtfss"}).errors, "");
    EXPECT_THAT(folder.read("a.rtf"), HasSubstr("\\fs62"));
    folder.write("wrong.rtfss", "; quorvane 2\n\n{ name: x; style-def: paragraph; sise: 1pt }\n");
    const ProgramResult result = run({"a.csv", "-s", "wrong.rtfss"});
    EXPECT_THAT(result.errors, StartsWith("wrong.rtfss:3: error: "));
    EXPECT_EQ(result.status, 1);
    folder.write("lacking.rtfss", "; quorvane 2\n{ name: x; style-def: paragraph }\n");
    EXPECT_THAT(run({"a.csv", "-s", "lacking.rtfss"}).errors, HasSubstr("table-heading"));
    EXPECT_EQ(run({"a.csv", "-s", "missing.rtfss"}).errors,
              "missing.rtfss: No such file or directory\n");
}

TEST_F(TableTest, LeavesTheDocumentThatWasThereOnAFullDisk) {
    folder.write("a.csv", "a\n1\n");
    const ProgramResult result = run({"a.csv", "-o", "/dev/full"});
    EXPECT_EQ(result.errors, "/dev/full: No space left on device\n");
    EXPECT_EQ(result.status, 2);
}

TEST_F(TableTest, PrintsItsStylesheet) {
    EXPECT_EQ(run({"--as-stylesheet"}).output, standardTableStyles());
    EXPECT_EQ(run({"--as-stylesheet", "--as-description"}).status, 2);
    EXPECT_EQ(run({"--as-stylesheet", "a.csv"}).status, 2);
    EXPECT_EQ(run({}).status, 2);
}

}  // namespace
}  // namespace quorvane::cli
