#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// The bytes of a fuzzer's input, read as decisions. At its end everything is 0 and empty.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}

    bool isEmpty() const { return rest_.empty(); }
    std::string_view rest() const { return rest_; }

    std::uint8_t byte() {
        if (rest_.empty()) {
            return 0;
        }
        const auto value = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return value;
    }

    bool flag() { return byte() % 2 != 0; }
    std::size_t below(std::size_t count) { return byte() % count; }

    /// Small numbers mostly, any 32-bit number and the outermost ones sometimes.
    std::int32_t number() {
        const std::uint8_t kind = byte();
        if (kind < 200) {
            return static_cast<std::int32_t>(kind) - 20;
        }
        if (kind < 230) {
            return byte() * 256 + byte();
        }
        if (kind >= 248) {
            const std::int32_t distance = byte();
            return kind % 2 == 0 ? INT32_MIN + distance : INT32_MAX - distance;
        }
        std::uint32_t bits = 0;
        for (int i = 0; i < 4; ++i) {
            bits = bits << 8 | byte();
        }
        return static_cast<std::int32_t>(bits);
    }

    double real() {
        std::uint64_t bits = 0;
        for (int i = 0; i < 8; ++i) {
            bits = bits << 8 | byte();
        }
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

    std::string text(std::size_t longest) {
        const std::size_t length = std::min(below(longest + 1), rest_.size());
        std::string taken(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return taken;
    }

    /// The pieces of what is left, cut at a character.
    std::vector<std::string> pieces(char separator, std::size_t most) {
        std::vector<std::string> result;
        while (!rest_.empty() && result.size() < most) {
            const std::size_t end = std::min(rest_.find(separator), rest_.size());
            result.emplace_back(rest_.substr(0, end));
            rest_.remove_prefix(std::min(end + 1, rest_.size()));
        }
        result.resize(most);
        return result;
    }

private:
    std::string_view rest_;
};

}  // namespace quorvane
