#include "quorvane/diagnostics/description/misreadCharacters.h"

#include <cstddef>
#include <map>
#include <utility>

namespace quorvane {

namespace {

constexpr std::string_view inUtf8 = ", because the file is in UTF-8";
constexpr std::string_view ofOthers = " Other characters are affected too.";

bool isAboutMisreadCharacter(const Diagnostic& finding) {
    return (finding.id == DiagnosticId::Utf8Text ||
            finding.id == DiagnosticId::UnencodableCharacter) &&
           finding.message.find(inUtf8) != std::string::npos;
}

}  // namespace

std::string misreadText(std::string_view shown) {
    return std::string(shown) + std::string(inUtf8);
}

void keepFirstMisreadCharacters(std::vector<Diagnostic>& findings) {
    std::vector<Diagnostic> kept;
    std::map<DiagnosticId, std::size_t> firsts;
    for (Diagnostic& finding : findings) {
        if (!isAboutMisreadCharacter(finding)) {
            kept.push_back(std::move(finding));
            continue;
        }
        const auto [first, isNew] = firsts.emplace(finding.id, kept.size());
        if (isNew) {
            kept.push_back(std::move(finding));
        } else if (std::string& message = kept[first->second].message;
                   !message.ends_with(ofOthers)) {
            message += ofOthers;
        }
    }
    findings = std::move(kept);
}

}  // namespace quorvane
