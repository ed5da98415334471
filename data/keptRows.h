#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane::data {

/// Rows of texts in memory, which can be sorted. A row takes its texts, and some 60 bytes and four
/// for each field.
class KeptRows {
public:
    void add(std::span<const std::string_view> fields, std::int64_t line);

    std::size_t size() const noexcept { return rows_.size(); }
    /// The texts of a row, good as long as the rows.
    void read(std::size_t index, std::vector<std::string_view>& fields) const;
    std::int64_t line(std::size_t index) const;

    /// Sorts the rows by the bytes that are appended to the key of each. Rows with the same key
    /// keep their order.
    using AppendKey =
        std::function<void(std::span<const std::string_view> fields, std::string& key)>;
    void sort(const AppendKey& appendKey);

private:
    struct Row {
        const char* place;
        const char* key;
        std::uint32_t keySize;
        // Its position before it was sorted.
        std::uint32_t number;

        std::string_view keyText() const { return {key, keySize}; }
    };

    char* allocate(std::size_t size);

    std::vector<std::unique_ptr<char[]>> blocks_;
    std::size_t left_ = 0;
    char* free_ = nullptr;
    std::vector<Row> rows_;
};

}  // namespace quorvane::data
