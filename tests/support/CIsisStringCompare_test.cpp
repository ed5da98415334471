#include "quorvane/support/CIsisStringCompare.h"

#include <gtest/gtest.h>

#include "quorvane/support/currentError.h"

namespace quorvane {
namespace {

CIsisStringCompare comparerFor(std::string code) {
    CIsisStringCompare comparer;
    comparer.Create(std::move(code));
    return comparer;
}

TEST(CIsisStringCompareTest, HasNoCodeAtFirst) {
    EXPECT_EQ(CIsisStringCompare().SubField(), "");
}

TEST(CIsisStringCompareTest, TakesItsCodeFromCreateOrTheProperty) {
    CIsisStringCompare comparer;
    comparer.Create("a");
    EXPECT_EQ(comparer.SubField(), "a");
    comparer.setSubField("b");
    EXPECT_EQ(comparer.SubField(), "b");
}

TEST(CIsisStringCompareTest, ComparesWholeStringsWithoutACode) {
    const CIsisStringCompare comparer;
    EXPECT_EQ(comparer.comp("^aX^bY", "^Ax^By"), 0);
    EXPECT_EQ(comparer.comp("^aX^bY", "^aX^bZ"), -1);
    EXPECT_EQ(comparer.comp("^bA", "^aB"), 1);
}

TEST(CIsisStringCompareTest, ComparesTheContentOfTheSubfield) {
    const CIsisStringCompare comparer = comparerFor("b");
    EXPECT_EQ(comparer.comp("^aX^bJohn", "^aA^bMary"), -1);
    EXPECT_EQ(comparer.comp("^aX^bJohn", "^aA^bJohn"), 0);
    EXPECT_EQ(comparer.comp("^aA^bMary", "^aX^bJohn"), 1);
}

TEST(CIsisStringCompareTest, DisregardsTheCaseOfContentAndCode) {
    const CIsisStringCompare comparer = comparerFor("B");
    EXPECT_EQ(comparer.comp("^bJOHN", "^bjohn"), 0);
    EXPECT_EQ(comparer.comp("^b\xC3\x89va", "^B\xC3\xA9VA"), 0);
}

TEST(CIsisStringCompareTest, TakesAnAbsentSubfieldAsEmpty) {
    const CIsisStringCompare comparer = comparerFor("b");
    EXPECT_EQ(comparer.comp("^aX", "^aX^bJohn"), -1);
    EXPECT_EQ(comparer.comp("^aX^bJohn", ""), 1);
    EXPECT_EQ(comparer.comp("^aX", "^b"), 0);
}

TEST(CIsisStringCompareTest, PutsABeginningBeforeTheWhole) {
    const CIsisStringCompare comparer = comparerFor("b");
    EXPECT_EQ(comparer.comp("^bJo", "^bJohn"), -1);
    EXPECT_EQ(comparer.comp("^bJohn", "^bJo"), 1);
}

TEST(CIsisStringCompareTest, JoinsTheContentsForALongerCode) {
    const CIsisStringCompare comparer = comparerFor("ba");
    EXPECT_EQ(comparer.comp("^aX^bY", "^bYX"), 0);
    EXPECT_EQ(comparer.comp("^aX^bY", "^aY^bX"), 1);
    EXPECT_EQ(comparer.comp("^aX", "^aX^bY"), -1);
}

TEST(CIsisStringCompareTest, RaisesNothing) {
    static_assert(noexcept(CIsisStringCompare().comp("", "")));
    clearCurrentError();
    EXPECT_EQ(comparerFor("no such code").comp("\xFF^", "^\xFF"), 0);
    EXPECT_EQ(currentError(), nullptr);
}

}  // namespace
}  // namespace quorvane
