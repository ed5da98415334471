#pragma once

#include <xmmintrin.h>

namespace quorvane::com {

// Some hosts let invalid operations of the floating-point unit raise exceptions, round in another
// way or flush small numbers to zero. The library computes as if none of them did, and leaves the
// host's settings, and what they have recorded, as they were.

/// The processor's floating-point settings.
class Arithmetic {
public:
    /// The settings of this thread as they are.
    static Arithmetic current() noexcept;
    /// True for the settings that programs begin with: nothing traps, results are rounded to the
    /// nearest.
    static bool isUsual() noexcept {
        unsigned short coprocessor = 0;
        __asm__ volatile("fnstcw %0" : "=m"(coprocessor));
        return (coprocessor & coprocessorMasks) == coprocessorMasks &&
               (_mm_getcsr() & settings) == usualControl;
    }
    /// Sets this thread to those.
    static void setUsual() noexcept;
    /// Sets this thread to these.
    void set() const noexcept;

private:
    /// As the instruction FNSTENV writes it.
    struct Environment {
        unsigned words[7];
    };

    // Without what operations have recorded, which is not a setting.
    static constexpr unsigned settings = 0xFFC0;
    static constexpr unsigned usualControl = 0x1F80;
    static constexpr unsigned short coprocessorMasks = 0x3F;

    Environment coprocessor_;
    unsigned control_;
};

/// Sets the thread to the usual settings as long as it lives.
class UsualArithmetic {
public:
    UsualArithmetic() noexcept : isHosts_(Arithmetic::isUsual()) {
        if (!isHosts_) {
            hosts_ = Arithmetic::current();
            Arithmetic::setUsual();
        }
    }
    UsualArithmetic(const UsualArithmetic&) = delete;
    UsualArithmetic& operator=(const UsualArithmetic&) = delete;
    ~UsualArithmetic() {
        if (!isHosts_) {
            hosts_.set();
        }
    }

private:
    friend class HostsArithmetic;

    bool isHosts_;
    Arithmetic hosts_;
};

/// Gives the thread back the host's settings while the host is called.
class HostsArithmetic {
public:
    /// `usual` is what replaced them; null when nothing did.
    explicit HostsArithmetic(const UsualArithmetic* usual) noexcept
        : replaced_(usual && !usual->isHosts_) {
        if (replaced_) {
            usual->hosts_.set();
        }
    }
    HostsArithmetic(const HostsArithmetic&) = delete;
    HostsArithmetic& operator=(const HostsArithmetic&) = delete;
    ~HostsArithmetic() {
        if (replaced_) {
            Arithmetic::setUsual();
        }
    }

private:
    bool replaced_;
};

}  // namespace quorvane::com
