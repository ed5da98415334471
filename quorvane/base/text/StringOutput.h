#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "quorvane/base/text/TextOutput.h"

namespace quorvane {

/// An output that appends to a string.
class StringOutput final : public TextOutput {
public:
    /// The string must outlive the output and be left alone until `flush`.
    explicit StringOutput(std::string& text) noexcept : text_(text) {
        setBuffer(buffer_.data(), buffer_.size());
    }

private:
    void take(std::string_view text) override;
    void makeRoom(std::size_t size);

    std::string& text_;
    std::array<char, 8192> buffer_;
};

}  // namespace quorvane
