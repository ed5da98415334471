#include "quorvane/diagnostics/text/mojibake.h"

#include <cstddef>
#include <map>
#include <utility>

namespace quorvane {

namespace {

constexpr std::string_view ofOthers = " Other characters are affected too.";

}  // namespace

void keepFirstMojibake(std::vector<Diagnostic>& diagnostics) {
    std::vector<Diagnostic> kept;
    std::map<DiagnosticId, std::size_t> firsts;
    for (Diagnostic& diagnostic : diagnostics) {
        if (!diagnostic.isMojibake) {
            kept.push_back(std::move(diagnostic));
            continue;
        }
        const auto [first, isNew] = firsts.emplace(diagnostic.id, kept.size());
        if (isNew) {
            kept.push_back(std::move(diagnostic));
        } else if (std::string& message = kept[first->second].message;
                   !message.ends_with(ofOthers)) {
            message += ofOthers;
        }
    }
    diagnostics = std::move(kept);
}

}  // namespace quorvane
