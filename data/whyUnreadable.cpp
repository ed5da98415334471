#include "data/whyUnreadable.h"

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "quorvane/base/platform/utf8Path.h"

namespace quorvane::data {

std::error_code whyUnreadable(const std::string& path) {
    const std::filesystem::path file = pathFromUtf8(path);
    std::error_code failure;
    switch (std::filesystem::status(file, failure).type()) {
        case std::filesystem::file_type::directory:
            return std::make_error_code(std::errc::is_a_directory);
        case std::filesystem::file_type::regular: {
            const bool opens = std::ifstream(file).is_open();
            return opens ? std::error_code() : std::error_code(errno, std::generic_category());
        }
        default:
            return failure;
    }
}

}  // namespace quorvane::data
