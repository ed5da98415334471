#include "quorvane/diagnostics/text/mojibake.h"

#include <cstddef>
#include <map>
#include <utility>

namespace quorvane {

namespace {

constexpr std::string_view inUtf8 = ", because the file is in UTF-8";
constexpr std::string_view ofOthers = " Other characters are affected too.";

bool isAboutMisreadCharacter(const Diagnostic& diagnostic) {
    return (diagnostic.id == DiagnosticId::Utf8Text ||
            diagnostic.id == DiagnosticId::UnencodableCharacter) &&
           diagnostic.message.find(inUtf8) != std::string::npos;
}

}  // namespace

std::string mojibakeText(std::string_view shown) {
    return std::string(shown) + std::string(inUtf8);
}

void keepFirstMojibake(std::vector<Diagnostic>& diagnostics) {
    std::vector<Diagnostic> kept;
    std::map<DiagnosticId, std::size_t> firsts;
    for (Diagnostic& diagnostic : diagnostics) {
        if (!isAboutMisreadCharacter(diagnostic)) {
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
