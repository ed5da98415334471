#include "cli/SeenNames.h"

#include <utility>

namespace quorvane::cli {

namespace {

/// FNV-1a, with the bits mixed at the end. Never 0, which a free slot has.
std::uint64_t hashOf(std::string_view name) {
    constexpr std::uint64_t basis = 0xCBF29CE484222325U;
    constexpr std::uint64_t prime = 0x100000001B3U;
    constexpr std::uint64_t mixer = 0xFF51AFD7ED558CCDU;
    constexpr unsigned half = 32;
    std::uint64_t hash = basis;
    for (const char character : name) {
        hash = (hash ^ static_cast<unsigned char>(character)) * prime;
    }
    hash = (hash ^ (hash >> half)) * mixer;
    hash ^= hash >> half;
    return hash == 0 ? 1 : hash;
}

}  // namespace

bool SeenNames::add(std::string_view name) {
    constexpr std::size_t fullness = 8;
    if (count_ > slots_.size() - slots_.size() / fullness) {
        grow();
    }
    const bool isNew = put(hashOf(name));
    count_ += isNew ? 1 : 0;
    return isNew;
}

bool SeenNames::put(std::uint64_t hash) {
    std::size_t slot = hash & (slots_.size() - 1);
    while (slots_[slot] != 0) {
        if (slots_[slot] == hash) {
            return false;
        }
        slot = (slot + 1) & (slots_.size() - 1);
    }
    slots_[slot] = hash;
    return true;
}

void SeenNames::grow() {
    const std::vector<std::uint64_t> before =
        std::exchange(slots_, std::vector<std::uint64_t>(2 * slots_.size()));
    for (const std::uint64_t hash : before) {
        if (hash != 0) {
            put(hash);
        }
    }
}

}  // namespace quorvane::cli
