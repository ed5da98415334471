#include "data/optionLocale.h"

#include "data/OptionError.h"

namespace quorvane::data {

Locale optionLocale(const std::optional<std::string>& option) {
    std::string error;
    Locale locale = chosenLocale(option, error);
    if (!error.empty()) {
        throw OptionError(error, "locale");
    }
    return locale;
}

}  // namespace quorvane::data
