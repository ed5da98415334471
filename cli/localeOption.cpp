#include "cli/localeOption.h"

#include "cli/UsageError.h"

namespace quorvane::cli {

data::Locale localeOf(const std::optional<std::string>& option) {
    if (!option) {
        return {};
    }
    std::string error;
    data::Locale locale = data::localeNamed(*option, error);
    if (!error.empty()) {
        throw UsageError("--locale: " + error);
    }
    locale.isChosen = true;
    return locale;
}

}  // namespace quorvane::cli
