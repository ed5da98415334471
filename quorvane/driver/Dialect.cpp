#include "quorvane/driver/Dialect.h"

namespace quorvane {

const Dialect& originalDialect() {
    // "(r" and "(c" stand in "(row" and "(cell" too.
    static const Dialect dialect{
        .vocabulary = originalVocabulary(),
        .marks = {},
        .numbers = {{{1000, 1999}, {2000, 2999}, {3000, 3999}, {0, 999}}},
        .frame = {.opener = "(doc", .closer = "doc)", .elements = {"(r", "(c"}},
        .repair = {.rowOpener = "(r", .rowCloser = "r)", .cellCloser = "c)"},
        .texts = {},
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

}  // namespace quorvane
