#pragma once

#include <string>
#include <utility>

#include "com/Wrapper.h"
#include "com/document/documentErrors.h"
#include "com/document/documentWrappers.h"

namespace quorvane::com {

/// What `Quorvane.Document` and its parts have in common: their errors.
template <class Self, class Interface, class Native>
class DocumentPart : public Wrapper<Self, Interface, Native> {
public:
    using Wrapper<Self, Interface, Native>::Wrapper;

protected:
    ~DocumentPart() = default;

    /// A method that returns nothing.
    template <class Body>
    HRESULT perform(Body&& body) const noexcept {
        return this->template run<Source::AsRaised>(
            [&] { withDocumentErrors(std::forward<Body>(body)); });
    }

    /// A method that returns what its body does.
    template <class Result, class Body>
    HRESULT fetch(Result* result, Body&& body) const noexcept {
        if (!result) {
            return plainFailure(E_POINTER);
        }
        *result = Result{};
        return perform([&] { give(result, std::forward<Body>(body)()); });
    }
};

}  // namespace quorvane::com
