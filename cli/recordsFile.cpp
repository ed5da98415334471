#include "cli/recordsFile.h"

#include <cstddef>
#include <span>

#include "cli/RenderOptions.h"
#include "cli/process.h"
#include "data/recordsFile.h"

namespace quorvane::cli {

namespace {

std::size_t readInput(std::span<char> block) {
    try {
        return readStandardInput(block);
    } catch (const RtfError& error) {
        throw data::UnreadableInput(error);
    }
}

}  // namespace

data::BlockReader openRecords(const std::string& path) {
    return path == standardStream ? readInput : data::openRecordsFile(path);
}

}  // namespace quorvane::cli
