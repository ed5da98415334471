#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <new>
#include <utility>

#include "com/Arithmetic.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::com {

/// What COM calls an error: 0x800A0000 plus the number of a run-time error, any other number
/// itself.
HRESULT resultOf(std::int32_t number) noexcept;

/// What an error that names no source has as its source for the host: the library's name, or
/// nothing.
enum class Source { Added, AsRaised };

/// Leaves the error on the thread as its error object, with source and description, for whoever
/// asks next. `helpContext` goes with it.
void setErrorObject(const RtfError& error, REFIID interfaceId, Source source,
                    DWORD helpContext = 0) noexcept;

/// Forgets the thread's error object.
void clearErrorObject() noexcept;

/// Returns a failure that has no error object.
HRESULT plainFailure(HRESULT result) noexcept;

/// Runs the body of a COM method that computes with no floating-point number. What it throws
/// becomes the method's result: an error of the library with an error object, E_OUTOFMEMORY when
/// memory is short, otherwise E_UNEXPECTED.
template <Source source = Source::Added, class Body>
HRESULT toHresultAsIs(REFIID interfaceId, Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
        return S_OK;
    } catch (const RtfError& error) {
        setErrorObject(error, interfaceId, source);
        return resultOf(error.number);
    } catch (const std::bad_alloc&) {
        return plainFailure(E_OUTOFMEMORY);
    } catch (...) {
        return plainFailure(E_UNEXPECTED);
    }
}

/// The same for a body that may compute: the thread has the usual floating-point settings
/// meanwhile.
template <Source source = Source::Added, class Body>
HRESULT toHresult(REFIID interfaceId, Body&& body) noexcept {
    const UsualArithmetic arithmetic;
    return toHresultAsIs<source>(interfaceId, std::forward<Body>(body));
}

}  // namespace quorvane::com
