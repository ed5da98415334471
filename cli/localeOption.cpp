#include "cli/localeOption.h"

#include "cli/UsageError.h"

namespace quorvane::cli {

data::Locale localeOf(const std::optional<std::string>& option) {
    std::string error;
    data::Locale locale = data::chosenLocale(option, error);
    if (!error.empty()) {
        throw UsageError("--locale: " + error);
    }
    return locale;
}

}  // namespace quorvane::cli
