// Documents of random rows are built by the modern interface and by the description of the same
// rows: both write the same bytes.

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <string_view>

#include "quorvane/compose/Document.h"
#include "tests/compose/described.h"

namespace quorvane {
namespace {

constexpr std::string_view styles =
    "{ name: normal; style-def: s; format: \\f0\\fs20 }\n"
    "{ name: title; style-def: s; format: \\f0\\fs30\\b }\n"
    "{ name: strong; style-def: cs; format: \\b }\n"
    "{ name: shaded; style-def: cell; format: navy-blue }\n";

/// Builds a document and its description step by step.
class TwoBuilds {
public:
    explicit TwoBuilds(unsigned seed) : random_(seed) {
        document.setStyleSheet(styles);
        if (chance(3)) {
            document.setPage("letter-landscape");
            description += "(page=letter-landscape)\n";
        }
        if (chance(3)) {
            document.setMargins({.left = "1cm", .right = 700});
            description += "(left-margin=1cm)\n(right-margin=700)\n";
        }
        if (chance(2)) {
            document.setColumns({20, "30%", "2cm", 15});
            description += "(columns=20 30% 2cm 15)\n";
        }
        if (chance(3)) {
            document.setFooter({.left = "a & b", .right = "{page}"});
            description += "(footer=a & b||{page})\n";
        }
        for (std::size_t count = 1 + below(5); count > 0; --count) {
            addRow();
        }
    }

    Document document;
    std::string description;

private:
    std::size_t below(std::size_t count) { return random_() % count; }
    bool chance(std::size_t of) { return below(of) == 0; }

    std::string text() {
        constexpr std::array<std::string_view, 12> parts = {
            "a", " ", "{", "}", "\\", "<b", "ř", "é", "😀", "=1>", "\\par", "long word"};
        std::string made = "t";
        for (std::size_t count = below(8); count > 0; --count) {
            made += parts[below(parts.size())];
        }
        return made + "t";
    }

    std::string_view color() {
        constexpr std::array<std::string_view, 4> colors = {"silver", "navy-blue", "#1f4e79",
                                                            "#010203"};
        return colors[below(colors.size())];
    }

    void addRow() {
        // Settings come before the cells in one half of the rows, and after them in the other.
        Row row = document.addRow();
        const bool settingsFirst = chance(2);
        const bool isColored = chance(3);
        const std::string rowColor(color());
        const bool hasBorders = chance(3);
        const bool keeps = chance(3);
        const auto set = [&] {
            row.setKeep(keeps);
            if (isColored) {
                row.setBackColor(rowColor);
            }
            if (hasBorders) {
                row.setTopBorder(eThin).setRightBorder(eThick);
            }
        };
        description += "(row\n";
        description += keeps ? "(row-keep=yes)\n" : "";
        description += isColored ? "(row-backcolor=" + rowColor + ")\n" : "";
        description += hasBorders ? "(row-top-border=thin)\n(row-right-border=thick)\n" : "";
        if (settingsFirst) {
            set();
        }
        for (std::size_t count = 1 + below(4); count > 0; --count) {
            addCell(row);
        }
        if (!settingsFirst) {
            set();
        }
        description += "row)\n";
    }

    void addCell(const Row& row) {
        const std::string first = text();
        Cell cell = chance(2) ? row.addCell(first) : row.insertCell(row.size(), first);
        description += "(cell\n";
        if (chance(4)) {
            cell.setStyle("shaded");
            description += "(cell-style=shaded)\n";
        }
        if (chance(4)) {
            cell.setAlign(eRight);
            description += "(cell-alignment=right)\n";
        }
        describeParagraph(cell[0], first);
        for (std::size_t count = below(3); count > 0; --count) {
            const std::string more = text();
            describeParagraph(cell.addParagraph(more), more);
        }
        description += "cell)\n";
    }

    void describeParagraph(const Paragraph& paragraph, const std::string& shown) {
        description += "(para\n";
        if (chance(3)) {
            paragraph.setText(shown + styled("strong", "{total} é"));
            description += "(pt=" + shown + "<strong={total} é>)\n";
        } else {
            description += "(pt=" + shown + ")\n";
        }
        if (chance(2)) {
            paragraph.setStyle("title");
            description += "(ps=title)\n";
        }
        if (chance(4)) {
            paragraph.setAlign(eCentered);
            description += "(pa=centered)\n";
        }
        description += "para)\n";
    }

    std::mt19937 random_;
};

TEST(RandomDocuments, AreTheSameFromHandlesAndFromTheirDescription) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        TwoBuilds builds(seed);
        ASSERT_EQ(builds.document.rtf(), described(builds.description, styles))
            << "seed " << seed << '\n'
            << builds.description;
    }
}

}  // namespace
}  // namespace quorvane
