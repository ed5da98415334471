#include "cli/StandardOutputFile.h"

#include <utility>

#include "cli/process.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

StandardOutputFile::StandardOutputFile(std::unique_ptr<OutputFile> file,
                                       MeansClosedPipe meansClosedPipe) noexcept
    : file_(std::move(file)), meansClosedPipe_(meansClosedPipe) {}

void StandardOutputFile::write(std::string_view bytes) {
    try {
        file_->write(bytes);
    } catch (const RtfError& error) {
        if (error.cause && meansClosedPipe_(error.cause->number)) {
            throw ClosedPipe();
        }
        throw;
    }
}

void StandardOutputFile::close() {
    file_->close();
}

}  // namespace quorvane::cli
