#include "data/keptRows.h"

#include <algorithm>
#include <cstring>

namespace quorvane::data {

namespace {

constexpr std::size_t blockSize = std::size_t{1024} * 1024;

/// What stands before the lengths and the texts of the fields.
struct RowHead {
    std::int64_t line;
    std::uint64_t count;
};

RowHead headOf(const char* place) {
    RowHead head{};
    std::memcpy(&head, place, sizeof head);
    return head;
}

}  // namespace

void KeptRows::add(std::span<const std::string_view> fields, std::int64_t line) {
    std::size_t size = sizeof(RowHead) + fields.size() * sizeof(std::uint32_t);
    for (const std::string_view field : fields) {
        size += field.size();
    }
    char* to = allocate(size);
    rows_.push_back({to, nullptr, 0, static_cast<std::uint32_t>(rows_.size())});
    const RowHead head{line, fields.size()};
    std::memcpy(to, &head, sizeof head);
    to += sizeof head;
    for (const std::string_view field : fields) {
        const auto length = static_cast<std::uint32_t>(field.size());
        std::memcpy(to, &length, sizeof length);
        to += sizeof length;
    }
    for (const std::string_view field : fields) {
        to += field.copy(to, field.size());
    }
}

void KeptRows::read(std::size_t index, std::vector<std::string_view>& fields) const {
    const char* lengths = rows_[index].place + sizeof(RowHead);
    const std::uint64_t count = headOf(rows_[index].place).count;
    const char* text = lengths + count * sizeof(std::uint32_t);
    fields.clear();
    for (std::uint64_t i = 0; i < count; ++i) {
        std::uint32_t length = 0;
        std::memcpy(&length, lengths + i * sizeof length, sizeof length);
        fields.emplace_back(text, length);
        text += length;
    }
}

std::int64_t KeptRows::line(std::size_t index) const {
    return headOf(rows_[index].place).line;
}

void KeptRows::sort(const AppendKey& appendKey) {
    std::vector<std::string_view> fields;
    std::string key;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        read(i, fields);
        key.clear();
        appendKey(fields, key);
        char* const place = allocate(key.size());
        key.copy(place, key.size());
        rows_[i].key = place;
        rows_[i].keySize = static_cast<std::uint32_t>(key.size());
    }
    // Not stable_sort, which would need more memory.
    std::sort(rows_.begin(), rows_.end(), [](const Row& a, const Row& b) {
        const int order = a.keyText().compare(b.keyText());
        return order != 0 ? order < 0 : a.number < b.number;
    });
}

/// The memory of rows and keys is never given back one by one.
char* KeptRows::allocate(std::size_t size) {
    if (size > left_) {
        left_ = std::max(size, blockSize);
        blocks_.push_back(std::unique_ptr<char[]>(new char[left_]));
        free_ = blocks_.back().get();
    }
    char* const place = free_;
    free_ += size;
    left_ -= size;
    return place;
}

}  // namespace quorvane::data
