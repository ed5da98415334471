#include "cli/SeenNames.h"

#include <utility>

namespace quorvane::cli {

namespace {

/// FNV-1a, with the bits mixed at the end. Never 0, which a free slot has.
std::uint64_t slotHash(std::string_view name) {
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

std::size_t SeenNames::Slots::find(std::uint64_t hash) const {
    const std::size_t mask = hashes.size() - 1;
    std::size_t slot = static_cast<std::size_t>(hash) & mask;
    while (hashes[slot] != 0 && hashes[slot] != hash) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

std::optional<std::uint32_t> SeenNames::add(std::string_view name, std::uint32_t number) {
    constexpr std::size_t fullness = 8;
    const std::size_t size = slots_.hashes.size();
    if (count_ > size - size / fullness) {
        grow();
    }
    const std::uint64_t hash = slotHash(name);
    const std::size_t slot = slots_.find(hash);
    if (slots_.hashes[slot] == hash) {
        return slots_.numbers[slot];
    }
    slots_.hashes[slot] = hash;
    slots_.numbers[slot] = number;
    ++count_;
    return std::nullopt;
}

void SeenNames::grow() {
    const Slots before = std::exchange(slots_, Slots(2 * slots_.hashes.size()));
    for (std::size_t i = 0; i < before.hashes.size(); ++i) {
        if (before.hashes[i] != 0) {
            const std::size_t slot = slots_.find(before.hashes[i]);
            slots_.hashes[slot] = before.hashes[i];
            slots_.numbers[slot] = before.numbers[i];
        }
    }
}

}  // namespace quorvane::cli
