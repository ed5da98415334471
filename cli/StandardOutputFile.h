#pragma once

#include <memory>
#include <string_view>

#include "quorvane/base/platform/Files.h"

namespace quorvane::cli {

/// Standard output: a file whose `write` throws `ClosedPipe` where the system's error means that
/// nobody reads the pipe any more.
class StandardOutputFile : public OutputFile {
public:
    using MeansClosedPipe = bool (*)(int systemError);

    StandardOutputFile(std::unique_ptr<OutputFile> file, MeansClosedPipe meansClosedPipe) noexcept;

    void write(std::string_view bytes) override;
    void close() override;

private:
    std::unique_ptr<OutputFile> file_;
    MeansClosedPipe meansClosedPipe_;
};

}  // namespace quorvane::cli
