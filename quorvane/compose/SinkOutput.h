#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextOutput.h"

namespace quorvane {

/// An output that passes the text on to a function, in Windows-1252.
class SinkOutput final : public TextOutput {
public:
    using Sink = std::function<void(std::string_view bytes)>;

    explicit SinkOutput(Sink sink);

private:
    void take(std::string_view text) override;

    Sink sink_;
    std::unique_ptr<char[]> buffer_;
    std::string bytes_;
};

}  // namespace quorvane
