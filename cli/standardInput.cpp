#include <array>

#include "cli/process.h"

namespace quorvane::cli {

std::string readStandardInput() {
    std::string bytes;
    std::array<char, std::size_t{64} * 1024> block;
    while (const std::size_t count = readStandardInput(block)) {
        bytes.append(block.data(), count);
    }
    return bytes;
}

}  // namespace quorvane::cli
