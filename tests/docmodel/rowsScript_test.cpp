#include <gtest/gtest.h>

#include "tests/docmodel/documentParts.h"
#include "tests/docmodel/fixedGroups.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

// A host's session with the rows of a document, call by call: keys, positions and errors.
TEST(Script, OfRows) {
    FakePlatform platform;
    const Ref<CRtfDoc> document = CRtfDoc::create(platform);
    const Ref<CRtfTableRows> rows = document->TableRows();
    const auto add = [&](const Value& key, const Value& before = Missing{},
                         const Value& after = Missing{}) {
        return errorNumberOf([&] { rows->add(key, before, after); });
    };
    const auto remove = [&](const Value& index) {
        return errorNumberOf([&] { rows->Remove(index); });
    };
    const auto setTopBorder = [&](const char* key, int width) {
        rows->Item(key)->setTopBorder(static_cast<tBorderWidth>(width));
    };
    const auto topBorder = [&](const Value& index) {
        return static_cast<int>(rows->Item(index)->TopBorder());
    };

    EXPECT_EQ(rows->Count(), 0);
    EXPECT_EQ(rows->PeekHead(), nullptr);
    EXPECT_EQ(rows->PeekTail(), nullptr);
    rows->AddHead("caf\xC3\xA9");
    rows->AddHead();
    rows->AddTail("b");
    EXPECT_EQ(add("CAF\xC3\x89"), 457);
    EXPECT_EQ(add("c", 1), 0);
    EXPECT_EQ(add("d", Missing{}, "B"), 0);
    EXPECT_EQ(add(Missing{}, Missing{}, 1), 0);
    EXPECT_EQ(add("e", 1, 1), 5);
    EXPECT_EQ(add("e", 99), 5);
    EXPECT_EQ(add(7), 13);
    EXPECT_EQ(add(Empty{}), 0);
    EXPECT_EQ(add(Null{}), 13);
    EXPECT_EQ(rows->Count(), 7);

    setTopBorder("c", 1);
    setTopBorder("CAF\xC3\x89", 2);
    setTopBorder("b", 3);
    setTopBorder("d", 4);
    EXPECT_EQ(errorNumberOf([&] { topBorder(0); }), 5);
    EXPECT_EQ(topBorder(1), 1);
    EXPECT_EQ(topBorder(2), -1);
    EXPECT_EQ(topBorder(3), -1);
    EXPECT_EQ(topBorder(4), 2);
    EXPECT_EQ(topBorder(5), 3);
    EXPECT_EQ(topBorder(6), 4);
    EXPECT_EQ(topBorder(7), -1);
    EXPECT_EQ(errorNumberOf([&] { topBorder(8); }), 5);
    EXPECT_EQ(topBorder(1.5), -1);
    EXPECT_EQ(errorNumberOf([&] { topBorder(0.5); }), 5);
    EXPECT_EQ(errorNumberOf([&] { topBorder(Empty{}); }), 13);

    EXPECT_EQ(remove("nosuch"), 5);
    EXPECT_EQ(remove("c"), 0);
    EXPECT_EQ(remove(99), 5);
    rows->RemoveHead();
    rows->removeTail();
    EXPECT_EQ(rows->Count(), 4);
    document->setChanged(false);
    EXPECT_EQ(remove(99), 5);
    EXPECT_FALSE(document->Changed());
    EXPECT_EQ(remove(1), 0);
    EXPECT_TRUE(document->Changed());

    document->Commit("out.rtf");
    EXPECT_EQ(platform.files.at("out.rtf"),
              std::string("{") + fixedGroups +
                  "\r\n\\deftab360\\defformat\\margb1418\\margl1701\\margt1418\\margr1701"
                  "\\paperw12242\\paperh15842\\pgnstart2\\widowctrl\r\n"
                  "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}"
                  "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}"
                  "\r\n{\\intbl\\trowd\\trql\\trgaph70\\trleft0\\row}}");
}

}  // namespace
}  // namespace quorvane
