#include "quorvane/diagnostics/text/TextReporter.h"

#include <utility>

namespace quorvane {

void TextReporter::report(DiagnosticId id, std::string_view part,
                          std::initializer_list<std::string_view> arguments, Hint hint) {
    if (isAmongFirst(id)) {
        engine_.report(id, source_.placeOf(part), arguments, std::move(hint));
    }
}

void TextReporter::reportMojibake(DiagnosticId id, std::string_view part,
                                  std::initializer_list<std::string_view> arguments, Hint hint) {
    if (isAmongFirst(id)) {
        engine_.reportMojibake(id, source_.placeOf(part), arguments, std::move(hint));
    }
}

bool TextReporter::isAmongFirst(DiagnosticId id) {
    constexpr int maxOfAKind = 10;
    return ++counts_[id] <= maxOfAKind;
}

}  // namespace quorvane
