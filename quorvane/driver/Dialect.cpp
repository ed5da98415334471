#include "quorvane/driver/Dialect.h"

#include <limits>

namespace quorvane {

const Dialect& originalDialect() {
    // "(r" and "(c" stand in "(row" and "(cell" too.
    static const Dialect dialect{
        .vocabulary = originalVocabulary(),
        .marks = {},
        .numbers = {{{1000, 1999}, {2000, 2999}, {3000, 3999}, {0, 999}}},
        .frame = {.opener = "(doc", .closer = "doc)", .elements = {"(r", "(c"}},
        .repair = {.rowOpener = "(r", .rowCloser = "r)", .cellCloser = "c)"},
        .misplacedOpeners = MisplacedOpeners::CloseNodes,
        .texts = {},
        .values = {},
    };
    return dialect;
}

const Dialect& unicodeDialect() {
    static const Dialect dialect = [] {
        Dialect unicode = originalDialect();
        unicode.texts.writesUnicode = true;
        return unicode;
    }();
    return dialect;
}

const Dialect& extendedDialect() {
    // Numbers are keys only: no kind has its own range, and only memory limits them. Keys that
    // people write are not so large.
    static constexpr std::int32_t last = std::numeric_limits<std::int32_t>::max();
    static constexpr NodeNumbers documents{0, last};
    static constexpr NodeNumbers others{10'000'000, last};
    static const Dialect dialect{
        .vocabulary = extendedVocabulary(),
        .marks = {.commentsFollow = false, .block = "\"\"\""},
        .numbers = {{others, others, others, documents}},
        .frame = originalDialect().frame,
        .repair = originalDialect().repair,
        .misplacedOpeners = MisplacedOpeners::AreErrors,
        .texts = {.writesUnicode = true, .isLiteral = true},
        .values = {.areExtended = true,
                   .pageComesFirst = true,
                   .paragraphContent = setOf(
                       {DescriptionKey::ParaText, DescriptionKey::Rtf, DescriptionKey::Picture})},
        .page = PageDefaults{.width = 11906, .height = 16838, .firstNumber = 1},
    };
    return dialect;
}

}  // namespace quorvane
