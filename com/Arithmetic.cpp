#include "com/Arithmetic.h"

#include <xmmintrin.h>

namespace quorvane::com {

namespace {

// Without what operations have recorded, which is no setting.
constexpr unsigned settings = 0xFFC0;
constexpr unsigned usualControl = 0x1F80;
constexpr unsigned short masks = 0x3F;

}  // namespace

Arithmetic Arithmetic::current() noexcept {
    Arithmetic arithmetic;
    arithmetic.control_ = _mm_getcsr();
    // It masks all exceptions of the coprocessor, too: loaded again at once, they are as before.
    __asm__ volatile("fnstenv %0" : "=m"(arithmetic.coprocessor_));
    __asm__ volatile("fldenv %0" : : "m"(arithmetic.coprocessor_));
    return arithmetic;
}

bool Arithmetic::isUsual() noexcept {
    unsigned short control = 0;
    __asm__ volatile("fnstcw %0" : "=m"(control));
    return (_mm_getcsr() & settings) == usualControl && (control & masks) == masks;
}

void Arithmetic::setUsual() noexcept {
    Environment masked;
    __asm__ volatile("fnstenv %0" : "=m"(masked));
    _mm_setcsr(usualControl);
}

void Arithmetic::set() const noexcept {
    __asm__ volatile("fldenv %0" : : "m"(coprocessor_));
    _mm_setcsr(control_);
}

}  // namespace quorvane::com
