#include "cli/colors.h"

#include <cstdlib>

namespace quorvane::cli {

Colors wantedColors(bool isTerminal) {
    const char* noColor = std::getenv("NO_COLOR");
    const bool isRefused = noColor != nullptr && *noColor != '\0';
    return isTerminal && !isRefused ? Colors::On : Colors::Off;
}

}  // namespace quorvane::cli
