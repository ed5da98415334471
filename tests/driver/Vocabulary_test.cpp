#include "quorvane/driver/Vocabulary.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace quorvane {
namespace {

using testing::ElementsAre;

const Vocabulary& vocabulary = originalVocabulary();

using Pairs = std::vector<std::pair<std::string, std::string>>;
using Words = std::vector<std::string>;

const Pairs shortForms = {
    {"r", "row"},
    {"c", "cell"},
    {"p", "para"},
    {"rb", "row-backcolor"},
    {"rtb", "row-top-border"},
    {"rbb", "row-bottom-border"},
    {"rlb", "row-left-border"},
    {"rrb", "row-right-border"},
    {"cb", "cell-backcolor"},
    {"ctb", "cell-top-border"},
    {"cbb", "cell-bottom-border"},
    {"clb", "cell-left-border"},
    {"crb", "cell-right-border"},
    {"cw", "cell-width"},
    {"ca", "cell-alignment"},
    {"cs", "cell-style"},
    {"pt", "para-text"},
    {"ps", "para-style"},
    {"pa", "para-alignment"},
    {"pmf", "para-marked-field"},
    {"cmf", "cell-marked-field"},
};

const Words docKeys = {"paper-height", "paper-width",   "page-number-start", "left-margin",
                       "right-margin", "bottom-margin", "top-margin"};
const Words rowKeys = {"row-backcolor",   "row-top-border",   "row-bottom-border",
                       "row-left-border", "row-right-border", "row-key"};
const Words cellKeys = {"cell-alignment",     "cell-backcolor",   "cell-top-border",
                        "cell-bottom-border", "cell-left-border", "cell-right-border",
                        "cell-key",           "cell-width",       "cell-style",
                        "cell-marked-field"};
const Words paraKeys = {"para-text", "para-style", "para-key", "para-alignment",
                        "para-marked-field"};

DescriptionKey known(std::string_view key) {
    return vocabulary.leafKey(key).known;
}

Words allKeys() {
    Words all;
    for (const Words& keys : {docKeys, rowKeys, cellKeys, paraKeys}) {
        all.insert(all.end(), keys.begin(), keys.end());
    }
    return all;
}

template <class Predicate>
Words selected(Predicate predicate) {
    Words words = allKeys();
    std::erase_if(words, [&](const std::string& word) { return !predicate(word); });
    return words;
}

TEST(Vocabulary, ExpandsEveryShortForm) {
    for (const auto& [shortForm, longForm] : shortForms) {
        EXPECT_EQ(vocabulary.expand(shortForm), longForm);
    }
}

TEST(Vocabulary, LeavesLongFormsAsTheyAre) {
    for (const auto& [shortForm, longForm] : shortForms) {
        EXPECT_EQ(vocabulary.expand(longForm), longForm);
    }
}

TEST(Vocabulary, LeavesKeysWithoutAShortFormAsTheyAre) {
    for (const char* key :
         {"paper-height", "paper-width", "page-number-start", "left-margin", "right-margin",
          "bottom-margin", "top-margin", "row-key", "cell-key", "para-key"}) {
        EXPECT_EQ(vocabulary.expand(key), key);
    }
}

TEST(Vocabulary, HasNoOtherShortFormOfUpToThreeLetters) {
    Words expanded;
    std::vector<std::string> words{""};
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string word = words[i];
        if (vocabulary.expand(word) != word) {
            expanded.push_back(word);
        }
        for (char letter = 'a'; word.size() < 3 && letter <= 'z'; ++letter) {
            words.push_back(word + letter);
        }
    }
    Words expected;
    for (const auto& [shortForm, longForm] : shortForms) {
        expected.push_back(shortForm);
    }
    EXPECT_THAT(expanded, testing::UnorderedElementsAreArray(expected));
}

TEST(Vocabulary, ExpandsToTheLetterOnly) {
    for (const char* word : {"R", "Pt", "PT", " pt", "pt ", "", "ptx", "d", "doc"}) {
        EXPECT_EQ(vocabulary.expand(word), word);
    }
}

TEST(Vocabulary, KnowsTheNamesOfNodesInBothForms) {
    EXPECT_EQ(vocabulary.nodeKind("doc"), NodeKind::Doc);
    EXPECT_EQ(vocabulary.nodeKind("row"), NodeKind::Row);
    EXPECT_EQ(vocabulary.nodeKind("r"), NodeKind::Row);
    EXPECT_EQ(vocabulary.nodeKind("cell"), NodeKind::Cell);
    EXPECT_EQ(vocabulary.nodeKind("c"), NodeKind::Cell);
    EXPECT_EQ(vocabulary.nodeKind("para"), NodeKind::Para);
    EXPECT_EQ(vocabulary.nodeKind("p"), NodeKind::Para);
}

TEST(Vocabulary, KnowsTheNamesOfNodesInAnyCase) {
    EXPECT_EQ(vocabulary.nodeKind("DOC"), NodeKind::Doc);
    EXPECT_EQ(vocabulary.nodeKind("Row"), NodeKind::Row);
    EXPECT_EQ(vocabulary.nodeKind("R"), NodeKind::Row);
    EXPECT_EQ(vocabulary.nodeKind("cElL"), NodeKind::Cell);
    EXPECT_EQ(vocabulary.nodeKind("C"), NodeKind::Cell);
    EXPECT_EQ(vocabulary.nodeKind("PARA"), NodeKind::Para);
    EXPECT_EQ(vocabulary.nodeKind("P"), NodeKind::Para);
}

TEST(Vocabulary, KnowsNoOtherNameOfANode) {
    for (const char* name : {"", "d", "rb", "rows", " r", "r ", "row-backcolor", "pt", "paras"}) {
        EXPECT_EQ(vocabulary.nodeKind(name), NodeKind::None) << name;
    }
}

TEST(Vocabulary, NumbersTheKindsOfNodes) {
    EXPECT_EQ(static_cast<int>(NodeKind::Row), 0);
    EXPECT_EQ(static_cast<int>(NodeKind::Cell), 1);
    EXPECT_EQ(static_cast<int>(NodeKind::Para), 2);
    EXPECT_EQ(static_cast<int>(NodeKind::Doc), 3);
    EXPECT_EQ(static_cast<int>(NodeKind::None), 4);
}

TEST(Vocabulary, KnowsTheKeysOfEachNodeAndNoOthers) {
    const auto keysOf = [](NodeKind kind) {
        return selected([kind](const std::string& key) { return vocabulary.isKeyOf(kind, key); });
    };
    EXPECT_EQ(keysOf(NodeKind::Doc), docKeys);
    EXPECT_EQ(keysOf(NodeKind::Row), rowKeys);
    EXPECT_EQ(keysOf(NodeKind::Cell), cellKeys);
    EXPECT_EQ(keysOf(NodeKind::Para), paraKeys);
}

TEST(Vocabulary, KnowsKeysToTheLetterAndInTheLongFormOnly) {
    EXPECT_FALSE(vocabulary.isKeyOf(NodeKind::Para, "Para-Text"));
    EXPECT_FALSE(vocabulary.isKeyOf(NodeKind::Para, "pt"));
    EXPECT_FALSE(vocabulary.isKeyOf(NodeKind::Para, ""));
}

TEST(Vocabulary, NumbersTheKeysInTheOrderOfTheirNames) {
    std::set<std::string_view> names;
    std::vector<std::string_view> numbered(knownKeyCount);
    for (const NodeKind kind : nodeKinds) {
        for (const std::string_view key : extendedVocabulary().keysOf(kind)) {
            const LeafKey found = extendedVocabulary().leafKey(key);
            ASSERT_LT(static_cast<std::size_t>(found.known), numbered.size()) << key;
            numbered[static_cast<std::size_t>(found.known)] = found.name;
            names.insert(key);
        }
    }
    EXPECT_EQ(numbered, std::vector(names.begin(), names.end()));
}

TEST(Vocabulary, HasTheKeysOfThePublishedLanguageInTheExtendedOne) {
    for (const NodeKind kind : nodeKinds) {
        EXPECT_EQ(extendedVocabulary().keySetOf(kind) & vocabulary.keySetOf(kind),
                  vocabulary.keySetOf(kind));
    }
    EXPECT_FALSE(vocabulary.isKey("columns"));
    EXPECT_TRUE(extendedVocabulary().isKeyOf(NodeKind::Doc, "columns"));
    EXPECT_TRUE(extendedVocabulary().isKeyOf(NodeKind::Row, "columns"));
    EXPECT_FALSE(extendedVocabulary().isKeyOf(NodeKind::Cell, "columns"));
}

TEST(Vocabulary, TakesTheShortFormOfAKeyForTheKey) {
    for (const auto& [shortForm, longForm] : shortForms) {
        EXPECT_EQ(vocabulary.leafKey(shortForm).name, longForm);
        EXPECT_EQ(vocabulary.leafKey(shortForm).known, vocabulary.leafKey(longForm).known);
    }
}

TEST(Vocabulary, NumbersNoKeyThatItDoesNotKnow) {
    for (const char* word : {"", "PT", "Para-Text", "para-tex", "para-texts", "row", "r", "colour",
                             "cell-widtH", "x"}) {
        EXPECT_EQ(vocabulary.leafKey(word).known, DescriptionKey::Unknown) << word;
        EXPECT_EQ(vocabulary.leafKey(word).name, vocabulary.expand(word));
    }
}

TEST(Vocabulary, KnowsTheColorKeys) {
    EXPECT_THAT(selected([](const std::string& key) { return contains(colorKeys, known(key)); }),
                ElementsAre("row-backcolor", "cell-backcolor"));
}

TEST(Vocabulary, KnowsTheBorderKeys) {
    EXPECT_THAT(selected([](const std::string& key) { return contains(borderKeys, known(key)); }),
                ElementsAre("row-top-border", "row-bottom-border", "row-left-border",
                            "row-right-border", "cell-top-border", "cell-bottom-border",
                            "cell-left-border", "cell-right-border"));
}

TEST(Vocabulary, TakesNumbersOnlyForMeasuresAndKeys) {
    EXPECT_THAT(
        selected([](const std::string& key) { return !contains(textOrNumberKeys, known(key)); }),
        ElementsAre("paper-height", "paper-width", "page-number-start", "left-margin",
                    "right-margin", "bottom-margin", "top-margin", "row-key", "cell-key",
                    "cell-width", "para-key"));
}

TEST(Vocabulary, TakesNumbersOnlyForKeysThatItDoesNotKnow) {
    EXPECT_FALSE(contains(textOrNumberKeys, known("colour")));
    EXPECT_FALSE(contains(textOrNumberKeys, known("Para-Text")));
}

const std::vector<std::pair<std::string, int>> colors = {
    {"black", 3},          {"blue", 4},
    {"cyan", 7},           {"green", 18},
    {"magenta", 23},       {"red", 30},
    {"yellow", 37},        {"white", 36},
    {"navy-blue", 24},     {"dark-cyan", 8},
    {"dark-green", 10},    {"dark-magenta", 11},
    {"dark-red", 12},      {"dark-yellow", 14},
    {"deep-sky-blue", 15}, {"gray", 17},
    {"silver", 32},        {"dark-gray", 9},
    {"brown", 5},          {"olive-green", 25},
    {"slate-blue", 34},    {"dark-slate-blue", 13},
    {"orange", 26},        {"lime-green", 22},
    {"sea-green", 31},     {"aquamarine", 1},
    {"light-blue", 19},    {"purple", 29},
    {"gold", 16},          {"chartreuse", 6},
    {"turquoise", 35},     {"sky-blue", 33},
    {"peach-puff", 27},    {"bisque", 2},
    {"pink", 28},          {"light-yellow", 21},
    {"light-green", 20},   {"none", 0},
};

TEST(Vocabulary, KnowsTheNamesOfTheColors) {
    for (const auto& [name, value] : colors) {
        EXPECT_EQ(vocabulary.colorNamed(name), static_cast<tColorIndex>(value)) << name;
    }
}

TEST(Vocabulary, NamesTheColorsUpTo37OnceEach) {
    std::vector<int> values;
    for (const auto& [name, value] : colors) {
        values.push_back(value);
    }
    std::sort(values.begin(), values.end());
    std::vector<int> all(38);
    std::generate(all.begin(), all.end(), [next = 0]() mutable { return next++; });
    EXPECT_EQ(values, all);
}

TEST(Vocabulary, KnowsTheNamesOfColorsInAnyCase) {
    EXPECT_EQ(vocabulary.colorNamed("Light-Yellow"), eLightYellow);
    EXPECT_EQ(vocabulary.colorNamed("NONE"), eNoColor);
}

TEST(Vocabulary, HasNoNamesForTheColorsFrom38) {
    for (const char* name : {"brick",           "cork",        "yellow-cork",    "dark-cork",
                             "dark-silver",     "gray-blue",   "dark-navy-blue", "light-royal-blue",
                             "violet",          "dodger-blue", "sargasso-green", "royal-blue",
                             "light-sea-green", "deep-purple", "steel-blue",     "asphalt",
                             "dark-golden-rod", "dark-grass",  "grass",          "red-brick"}) {
        EXPECT_EQ(vocabulary.colorNamed(name), std::nullopt) << name;
    }
}

Leaf leafOf(std::string_view key, std::string_view text) {
    return {.key = vocabulary.leafKey(key), .text = text};
}

Leaf numberLeafOf(std::string_view key, double number) {
    return {.key = vocabulary.leafKey(key), .number = number, .kind = LeafKind::Number};
}

TEST(Vocabulary, RefusesOtherWordsAndNumbersForColors) {
    for (const char* word : {"crimson", "", "light yellow", "lightyellow", " red", "30"}) {
        EXPECT_EQ(vocabulary.colorNamed(word), std::nullopt) << word;
        EXPECT_EQ(vocabulary.colorNamed(leafOf("rb", word)), std::nullopt) << word;
    }
    EXPECT_EQ(vocabulary.colorNamed(numberLeafOf("rb", 30)), std::nullopt);
}

TEST(Vocabulary, KnowsTheNamesOfTheBorders) {
    EXPECT_EQ(vocabulary.borderNamed("none"), eNone);
    EXPECT_EQ(vocabulary.borderNamed("hair"), eHair);
    EXPECT_EQ(vocabulary.borderNamed("thin"), eThin);
    EXPECT_EQ(vocabulary.borderNamed("normal"), eNormal);
    EXPECT_EQ(vocabulary.borderNamed("thick"), eThick);
    EXPECT_EQ((std::vector<int>{eNone, eHair, eThin, eNormal, eThick}),
              (std::vector<int>{-1, 5, 10, 20, 30}));
}

TEST(Vocabulary, KnowsTheNamesOfBordersInAnyCase) {
    EXPECT_EQ(vocabulary.borderNamed("Thick"), eThick);
    EXPECT_EQ(vocabulary.borderNamed("NONE"), eNone);
}

TEST(Vocabulary, RefusesOtherWordsAndNumbersForBorders) {
    for (const char* word : {"medium", "", "10"}) {
        EXPECT_EQ(vocabulary.borderNamed(word), std::nullopt) << word;
        EXPECT_EQ(vocabulary.borderNamed(leafOf("rtb", word)), std::nullopt) << word;
    }
    EXPECT_EQ(vocabulary.borderNamed(numberLeafOf("rtb", 10)), std::nullopt);
    EXPECT_EQ(vocabulary.borderNamed(numberLeafOf("rtb", -1)), std::nullopt);
}

TEST(Vocabulary, KnowsTheNamesOfTheAlignments) {
    EXPECT_EQ(vocabulary.alignmentNamed("left"), eLeft);
    EXPECT_EQ(vocabulary.alignmentNamed("right"), eRight);
    EXPECT_EQ(vocabulary.alignmentNamed("centered"), eCentered);
    EXPECT_EQ(vocabulary.alignmentNamed("justified"), eJustified);
    EXPECT_EQ(vocabulary.alignmentNamed("none"), eNoDefault);
    EXPECT_EQ((std::vector<int>{eLeft, eRight, eCentered, eJustified, eNoDefault}),
              (std::vector<int>{2, 3, 1, 4, 0}));
}

TEST(Vocabulary, KnowsTheNamesOfAlignmentsInAnyCase) {
    EXPECT_EQ(vocabulary.alignmentNamed("Centered"), eCentered);
    EXPECT_EQ(vocabulary.alignmentNamed("RIGHT"), eRight);
}

TEST(Vocabulary, RefusesOtherWordsAndNumbersForAlignments) {
    for (const char* word : {"center", "", "3"}) {
        EXPECT_EQ(vocabulary.alignmentNamed(word), std::nullopt) << word;
        EXPECT_EQ(vocabulary.alignmentNamed(leafOf("ca", word)), std::nullopt) << word;
    }
    EXPECT_EQ(vocabulary.alignmentNamed(numberLeafOf("ca", 3)), std::nullopt);
    EXPECT_EQ(vocabulary.alignmentNamed(numberLeafOf("ca", 0)), std::nullopt);
}

TEST(Vocabulary, HasTheValuesThatNamesAndNumbersOfLeavesSet) {
    EXPECT_EQ(vocabulary.colorOf(leafOf("rb", "Red")), eRed);
    EXPECT_EQ(vocabulary.colorOf(numberLeafOf("rb", 30)), eRed);
    EXPECT_EQ(vocabulary.borderOf(leafOf("rtb", "hair")), eHair);
    EXPECT_EQ(vocabulary.borderOf(numberLeafOf("rtb", -1)), eNone);
    EXPECT_EQ(vocabulary.alignmentOf(leafOf("ca", "right")), eRight);
    EXPECT_EQ(vocabulary.alignmentOf(numberLeafOf("ca", 4)), eJustified);
}

TEST(Vocabulary, HasNoValueForOtherNamesAndNumbersOfLeaves) {
    EXPECT_EQ(vocabulary.colorOf(leafOf("rb", "crimson")), std::nullopt);
    EXPECT_EQ(vocabulary.colorOf(numberLeafOf("rb", 58)), std::nullopt);
    EXPECT_EQ(vocabulary.colorOf(numberLeafOf("rb", 1.5)), std::nullopt);
    EXPECT_EQ(vocabulary.borderOf(leafOf("rtb", "medium")), std::nullopt);
    EXPECT_EQ(vocabulary.borderOf(numberLeafOf("rtb", 6)), std::nullopt);
    EXPECT_EQ(vocabulary.alignmentOf(leafOf("ca", "center")), std::nullopt);
    EXPECT_EQ(vocabulary.alignmentOf(numberLeafOf("ca", 5)), std::nullopt);
}

TEST(Vocabulary, KnowsAKeyOfAnyNodeInBothForms) {
    for (const char* key : {"para-text", "pt", "paper-width", "row-key", "cmf"}) {
        EXPECT_TRUE(vocabulary.isKey(key)) << key;
    }
    for (const char* word : {"", "r", "row", "PT", "colour"}) {
        EXPECT_FALSE(vocabulary.isKey(word)) << word;
    }
}

TEST(Vocabulary, ShortensWhatHasAShortForm) {
    EXPECT_EQ(vocabulary.shorten("row"), "r");
    EXPECT_EQ(vocabulary.shorten("cell-marked-field"), "cmf");
    EXPECT_EQ(vocabulary.shorten("row-key"), "row-key");
    EXPECT_EQ(vocabulary.shorten("r"), "r");
    EXPECT_EQ(vocabulary.shorten("Row"), "Row");
}

TEST(Vocabulary, KnowsNoKeyOfWhatIsNotANode) {
    EXPECT_FALSE(vocabulary.isKeyOf(NodeKind::None, "para-text"));
    EXPECT_FALSE(vocabulary.isKeyOf(NodeKind::None, ""));
}

TEST(Vocabulary, ListsItsWords) {
    EXPECT_EQ(vocabulary.keysOf(NodeKind::Doc).size(), 7u);
    EXPECT_EQ(vocabulary.keysOf(NodeKind::None).size(), 0u);
    for (const NodeKind kind : {NodeKind::Row, NodeKind::Cell, NodeKind::Para, NodeKind::Doc}) {
        for (const std::string_view key : vocabulary.keysOf(kind)) {
            EXPECT_TRUE(vocabulary.isKeyOf(kind, key)) << key;
        }
    }
    EXPECT_EQ(vocabulary.colorNames().size(), 38u);
    EXPECT_EQ(vocabulary.borderNames().size(), 5u);
    EXPECT_EQ(vocabulary.alignmentNames().size(), 5u);
}

}  // namespace
}  // namespace quorvane
