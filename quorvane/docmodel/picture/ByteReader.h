#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvane {

/// Reads numbers of a picture file, the most significant byte first. What is beyond the end is 0.
class ByteReader {
public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

    std::size_t size() const noexcept { return bytes_.size(); }

    std::uint32_t byte(std::size_t at) const noexcept {
        return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0U;
    }
    std::uint32_t number16(std::size_t at) const noexcept { return byte(at) << 8U | byte(at + 1); }
    std::uint32_t number32(std::size_t at) const noexcept {
        return number16(at) << 16U | number16(at + 2);
    }
    /// The bytes from here on, `count` at most.
    std::string_view bytes(std::size_t at, std::size_t count) const noexcept {
        return at < bytes_.size() ? bytes_.substr(at, count) : std::string_view();
    }

private:
    std::string_view bytes_;
};

}  // namespace quorvane
