#include "com/Arithmetic.h"

#include <xmmintrin.h>

namespace quorvane::com {

Arithmetic Arithmetic::current() noexcept {
    Arithmetic arithmetic;
    arithmetic.control_ = _mm_getcsr();
    // It masks all exceptions of the coprocessor, too: loaded again at once, they are as before.
    __asm__ volatile("fnstenv %0" : "=m"(arithmetic.coprocessor_));
    __asm__ volatile("fldenv %0" : : "m"(arithmetic.coprocessor_));
    return arithmetic;
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
