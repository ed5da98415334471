#pragma once

#include <atomic>
#include <cstdint>

namespace quorvane {

/// A source of random numbers, for choices that must not be foreseen, such as a sort's pivots. Many
/// threads may use one at a time.
class RandomNumbers {
public:
    /// Seeded by the clock.
    RandomNumbers();
    /// Gives the same numbers for the same seed.
    explicit RandomNumbers(std::uint32_t seed) : state_(seed) {}

    /// The source of the whole process, seeded by the clock on the first call.
    static RandomNumbers& ofProcess();

    /// A whole number from low to high, both inclusive, each as likely as the other. `low` must not
    /// be above `high`.
    std::int32_t between(std::int32_t low, std::int32_t high);

private:
    /// A number in [0, 1).
    double next();

    std::atomic<std::uint64_t> state_;
};

}  // namespace quorvane
