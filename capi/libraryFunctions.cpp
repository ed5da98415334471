#include <quorvane.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "capi/arguments.h"

// The functions that need no handle.

namespace {

constexpr std::string_view features[] = {"data-tables", "documents", "extended-language", "tables",
                                         "templates"};

constexpr const char* statusNames[] = {"ok",         "wrong call", "out of memory", "wrong content",
                                       "file error", "stopped",    "internal error"};

#define QUORVANE_AS_TEXT(number) #number
#define QUORVANE_JOINED(major, minor, patch) \
    QUORVANE_AS_TEXT(major) "." QUORVANE_AS_TEXT(minor) "." QUORVANE_AS_TEXT(patch)

}  // namespace

const char* quorvane_version(void) {
    return QUORVANE_JOINED(QUORVANE_VERSION_MAJOR, QUORVANE_VERSION_MINOR, QUORVANE_VERSION_PATCH);
}

int quorvane_has_feature(const char* name, size_t length) {
    if (!name) {
        return 0;
    }
    const std::string_view wanted = quorvane::capi::textArgument(name, length);
    return std::find(std::begin(features), std::end(features), wanted) != std::end(features) ? 1
                                                                                             : 0;
}

const char* quorvane_status_name(int status) {
    const auto number = static_cast<std::size_t>(status);
    return number < std::size(statusNames) ? statusNames[number] : "unknown";
}

void quorvane_free(void* memory) {
    delete[] static_cast<char*>(memory);
}
