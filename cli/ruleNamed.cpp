#include "cli/ruleNamed.h"

#include "cli/UsageError.h"
#include "quorvane/diagnostics/engine/nearestWord.h"

namespace quorvane::cli {

const DiagnosticRule& ruleNamed(std::string_view option, const std::string& identifier) {
    if (const DiagnosticRule* rule = findDiagnosticRule(identifier)) {
        return *rule;
    }
    const std::string hint = didYouMean(identifier, diagnosticIdentifiers());
    throw UsageError(std::string(option) + ": there is no diagnostic " + identifier + "; " +
                     (hint.empty() ? "list them with quorvane check --list" : hint));
}

}  // namespace quorvane::cli
