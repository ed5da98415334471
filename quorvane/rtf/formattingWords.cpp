#include "quorvane/rtf/formattingWords.h"

#include <algorithm>
#include <iterator>

namespace quorvane {

namespace {

// Sorted.
// clang-format off
constexpr std::string_view formattingWords[] = {
    "ab", "acccircle", "acccomma", "accdot", "accnone", "accunderdot", "acf", "adjustright", "af",
    "afs", "ai", "alang", "b", "bgbdiag", "bgcross", "bgdcross", "bgdkbdiag", "bgdkcross",
    "bgdkdcross", "bgdkfdiag", "bgdkhoriz", "bgdkvert", "bgfdiag", "bghoriz", "bgvert", "box",
    "brdrb", "brdrbar", "brdrbtw", "brdrcf", "brdrdash", "brdrdashd", "brdrdashdd",
    "brdrdashdotstr", "brdrdashsm", "brdrdb", "brdrdot", "brdremboss", "brdrengrave", "brdrframe",
    "brdrhair", "brdrinset", "brdrl", "brdrnil", "brdrnone", "brdroutset", "brdrr", "brdrs",
    "brdrsh", "brdrt", "brdrth", "brdrthtnlg", "brdrthtnmg", "brdrthtnsg", "brdrtnthlg",
    "brdrtnthmg", "brdrtnthsg", "brdrtnthtnlg", "brdrtnthtnmg", "brdrtnthtnsg", "brdrtriple",
    "brdrw", "brdrwavy", "brdrwavydb", "brsp", "caps", "cb", "cbpat", "cf", "cfpat", "charscalex",
    "chbrdr", "chcbpat", "chcfpat", "chshdng", "contextualspace", "cufi", "culi", "curi", "dbch",
    "dn", "embo", "expnd", "expndtw", "f", "faauto", "facenter", "fafixed", "fahang", "faroman",
    "favar", "fi", "fs", "hich", "highlight", "hyphpar", "i", "impr", "indmirror", "keep", "keepn",
    "kerning", "lang", "langfe", "langfenp", "langnp", "li", "lin", "lisa", "lisb", "loch", "ltrch",
    "ltrpar", "noline", "noproof", "noqfpromote", "nosupersub", "nowidctlpar", "outl",
    "outlinelevel", "pagebb", "qc", "qd", "qj", "qk", "ql", "qr", "ri", "rin", "rtlch",
    "rtlpar", "sa", "saauto", "sb", "sbauto", "scaps", "shad", "shading", "sl", "slmult", "strike",
    "striked", "sub", "super", "tb", "tldot", "tleq", "tlhyph", "tlmdot", "tlth", "tlul", "tqc",
    "tqdec", "tqr", "tx", "ul", "ulc", "uld", "uldash", "uldashd", "uldashdd", "uldb", "ulhwave",
    "ulldash", "ulnone", "ulth", "ulthd", "ulthdash", "ulthdashd", "ulthdashdd", "ulthldash",
    "ululdbwave", "ulw", "ulwave", "up", "widctlpar",
};
// clang-format on

static_assert(std::is_sorted(std::begin(formattingWords), std::end(formattingWords)));

}  // namespace

bool isFormattingWord(std::string_view word) {
    return std::binary_search(std::begin(formattingWords), std::end(formattingWords), word);
}

}  // namespace quorvane
