#include "quorvane/rtf/RtfWord.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

/// Some words of every kind of control words that the format has.
constexpr std::string_view words[] = {
    // The document's head: character sets, fonts, files, colors, styles, lists, revisions.
    "ansi",
    "mac",
    "pc",
    "pca",
    "ansicpg",
    "deff",
    "adeff",
    "stshfdbch",
    "fbidi",
    "fprq",
    "panose",
    "falt",
    "fontemb",
    "filetbl",
    "fnetwork",
    "red",
    "ctint",
    "cmaindarkone",
    "sbasedon",
    "snext",
    "sautoupd",
    "shidden",
    "slink",
    "spriority",
    "tsrowd",
    "tscellwidthfts",
    "latentstyles",
    "lsdlocked",
    "listtemplateid",
    "levelnfcn",
    "levelpicturenosize",
    "lfolevel",
    "revtbl",
    "rsidroot",
    "protusertbl",
    "generator",
    "xmlnstbl",
    "colorschememapping",
    "themedata",
    "pgptbl",
    "ipgp",
    // What is known about the document, and how it is laid out.
    "info",
    "creatim",
    "nofcharsws",
    "vern",
    "hlinkbase",
    "userprops",
    "staticval",
    "deftab",
    "hyphhotz",
    "widowctrl",
    "viewkind",
    "ftnnruc",
    "aftnnzodiacl",
    "paperw",
    "gutterprl",
    "margmirror",
    "bookfold",
    "facingp",
    "rtldoc",
    "nogrowautofit",
    "noafcnsttbl",
    "krnprsnet",
    "oldas",
    "showxmlerrors",
    "ignoremixedcontent",
    "wrppunct",
    "mmathPr",
    "mdispDef",
    "pgbrdropt",
    "dghspace",
    "writereservhash",
    "mmodsoactive",
    "mmdatatypeodso",
    "mmfttypebarcode",
    "mmmaintypeletters",
    "mmdestnewdoc",
    // Sections, headers and footers.
    "sectd",
    "sbkpage",
    "colsx",
    "linemod",
    "pgnlcrm",
    "vertalj",
    "sftnnchosung",
    "saftnnzodiacd",
    "headery",
    "footery",
    "headerf",
    "footerl",
    // Paragraphs, tabs, bullets, borders, positions.
    "pard",
    "hyphpar",
    "irow",
    "itap",
    "keepn",
    "nowidctlpar",
    "outlinelevel",
    "qd",
    "fi",
    "lin",
    "slmult",
    "contextualspace",
    "tqdec",
    "tldot",
    "ptablmdot",
    "pmartabqr",
    "pindtabql",
    "pntext",
    "pndbnumk",
    "listtext",
    "brdrtnthtnlg",
    "brdrdashdotstr",
    "shading",
    "bgdkdcross",
    "absnoovrlp",
    "phcol",
    "posnegy",
    "dropcapt",
    "frmtxlrtbv",
    "nooverflow",
    "collapsed",
    "rsid",
    // Table rows and cells, nested ones too.
    "trowd",
    "irowband",
    "lastrow",
    "trgaph",
    "cellx",
    "clvmgf",
    "cltxbtlr",
    "clNoWrap",
    "clftsWidth",
    "clhidemark",
    "clinsdttm",
    "trftsWidthA",
    "tbllknorowband",
    "tposnegx",
    "trbrdrh",
    "rawclbgdkbdiag",
    "nesttableprops",
    "nestcell",
    "nestrow",
    "taprtl",
    // Characters, East Asian and bidirectional ones too.
    "plain",
    "animtext",
    "accunderdot",
    "charscalex",
    "cgrid",
    "chcbpat",
    "expndtw",
    "fittext",
    "highlight",
    "kerning",
    "langfenp",
    "noproof",
    "nosupersub",
    "outl",
    "super",
    "ulthdashdd",
    "ululdbwave",
    "webhidden",
    "loch",
    "hich",
    "dbch",
    "ltrch",
    "aoutl",
    "aulw",
    "chbrdr",
    "horzvert",
    "twoinone",
    "insrsid",
    "mvdate",
    "crauth",
    // Special characters.
    "chdate",
    "chdpl",
    "chpgn",
    "sectnum",
    "chftnsepc",
    "softlheight",
    "lbr",
    "tab",
    "emdash",
    "enspace",
    "qmspace",
    "bullet",
    "lquote",
    "rdblquote",
    "zwbo",
    "zwnbo",
    "zwj",
    "zwnj",
    "zwspace",
    "ltrmark",
    "u",
    "uc",
    "upr",
    "ud",
    // Bookmarks, pictures, objects, drawings, notes, fields, forms, index, marks of others.
    "bkmkcolf",
    "mvfmf",
    "pict",
    "shppict",
    "nonshppict",
    "picwgoal",
    "emfblip",
    "bliptag",
    "bin",
    "object",
    "objautlink",
    "objocx",
    "rsltmerge",
    "dptxbxtext",
    "dpcotright",
    "shpinst",
    "shpbxignore",
    "shptxt",
    "sn",
    "sv",
    "svb",
    "footnote",
    "ftnalt",
    "annotation",
    "atrfstart",
    "field",
    "fldinst",
    "fldrslt",
    "flddirty",
    "datafield",
    "formfield",
    "ffentrymcr",
    "ffl",
    "xe",
    "yxe",
    "pxe",
    "tc",
    "tcn",
    "bxe",
    "rtlmark",
    "xmlopen",
    "xmlattrns",
    "xmlsdttcell",
    "factoidname",
    "htmltag",
    "mhtmltag",
    "htmlrtf",
    // Formulas.
    "moMath",
    "moMathPara",
    "mlimLow",
    "msSubSupPr",
    "mzeroAsc",
    "margPr",
    "margSz",
    "mnaryLim",
    "mstrikeTLBR",
    "mr",
    "me",
    // The words of marked fields.
    "txfieldstart",
    "txfieldtype",
    "txfieldflags",
    "txfieldbin",
    "txfielddata",
    "txfieldend",
};

TEST(RtfWords, AreKnownInEverySectionOfTheFormat) {
    for (const std::string_view letters : words) {
        const RtfWord* const word = findRtfWord(letters);
        ASSERT_TRUE(word) << letters;
        EXPECT_EQ(std::string_view(word->word), letters);
    }
}

TEST(RtfWords, DoNotIncludeOtherWords) {
    for (const std::string_view word :
         {"", "bold", "italic", "budget", "nbsp", "PAR", "cellX", "texpage", "parr", "odd", "x"}) {
        EXPECT_FALSE(findRtfWord(word)) << word;
    }
}

TEST(RtfWords, AreEachFoundByTheirLetters) {
    EXPECT_GT(rtfWords().size(), 1800u);
    for (const RtfWord& word : rtfWords()) {
        // A word that stands in the table twice is not found where it stands.
        EXPECT_EQ(findRtfWord(word.word), &word) << std::string_view(word.word);
    }
}

RtfDestination destinationOf(std::string_view word) {
    return findRtfWord(word)->destination;
}

TEST(RtfWords, BeginDestinationsWhereTheirGroupsHaveAMeaningOfTheirOwn) {
    EXPECT_EQ(destinationOf("fonttbl"), RtfDestination::FontTable);
    EXPECT_EQ(destinationOf("fldinst"), RtfDestination::Instruction);
    for (const std::string_view word : {"headery", "footnote", "mlimLow", "pict", "ud"}) {
        EXPECT_EQ(destinationOf(word), RtfDestination::Other) << word;
    }
    for (const std::string_view word : {"rtf", "field", "fldrslt", "result", "upr"}) {
        EXPECT_EQ(destinationOf(word), RtfDestination::Text) << word;
    }
    for (const std::string_view word : {"b", "noproof", "trowd", "pard", "bin"}) {
        EXPECT_EQ(destinationOf(word), RtfDestination::None) << word;
    }
}

TEST(RtfWords, NameFontsColorsAndStylesByTheirNumbers) {
    const auto roleOf = [](std::string_view word) { return findRtfWord(word)->role; };
    for (const std::string_view word : {"f", "af"}) {
        EXPECT_EQ(roleOf(word), RtfRole::Font) << word;
    }
    for (const std::string_view word :
         {"cf", "acf", "cb", "highlight", "clcbpat", "brdrcf", "ulc"}) {
        EXPECT_TRUE(namesColor(roleOf(word))) << word;
    }
    for (const std::string_view word : {"s", "cs", "ds", "ts"}) {
        EXPECT_TRUE(namesStyle(roleOf(word))) << word;
    }
    for (const std::string_view word : {"fs", "deff", "b", "trowd", "chshdng"}) {
        EXPECT_FALSE(namesColor(roleOf(word)) || namesStyle(roleOf(word)) ||
                     roleOf(word) == RtfRole::Font)
            << word;
    }
}

TEST(RtfWords, ShowCharacters) {
    for (const std::string_view word : {"tab", "line", "par", "emspace"}) {
        EXPECT_EQ(findRtfWord(word)->shown, ' ') << word;
    }
    for (const std::string_view word : {"emdash", "bullet", "rquote", "chpgn"}) {
        EXPECT_EQ(findRtfWord(word)->shown, '?') << word;
    }
    for (const std::string_view word : {"b", "pard", "softline"}) {
        EXPECT_EQ(findRtfWord(word)->shown, '\0') << word;
    }
}

}  // namespace
}  // namespace quorvane
