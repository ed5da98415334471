#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/com/faces/Face.h"
#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/EventConnection.h"
#include "tests/com/host/Outcome.h"
#include "tests/com/host/Variant.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

/// The component as a face: its objects, found again by their identity, and its events.
class ComFace : public Face {
public:
    ComFace();
    ~ComFace() override;

    /// An object that was returned; null is shown as Nothing.
    template <class Interface>
    std::string renderObject(const ComPtr<Interface>& object) {
        return object ? renderHeld(ComPtr<IDispatch>(object.get())) : nothingText;
    }
    std::string renderObject(const ComPtr<IDispatch>& object) {
        return object ? renderHeld(object) : nothingText;
    }
    /// Everything that an enumerator passes.
    std::string renderEnumerator(const ComPtr<IUnknown>& enumerator);

protected:
    /// Performs an operation on an object.
    virtual std::string answerOf(IDispatch& object, const std::string& member,
                                 const Arguments& arguments) = 0;

    std::string resultOf(int object, const std::string& member,
                         const Arguments& arguments) override;
    void release(int object) override;

private:
    std::string renderHeld(const ComPtr<IDispatch>& object);

    Component component_;
    std::vector<ComPtr<IDispatch>> held_;
    EventConnection events_;
};

/// The value as automation hands it over.
Variant variantOf(const Value& value);

std::string textOf(const HostError& error);

}  // namespace quorvane::host
