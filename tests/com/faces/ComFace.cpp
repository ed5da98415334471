#include "tests/com/faces/ComFace.h"

#include <oaidl.h>

#include <stdexcept>
#include <variant>

#include "tests/com/host/interfaces.h"

namespace quorvane::host {

namespace {

// The name of the interface that the object's type information describes, and the object by that
// interface's pointer.
std::string describedInterface(IDispatch& object, ComPtr<IDispatch>& byInterface) {
    ComPtr<ITypeInfo> type;
    Bstr name;
    TYPEATTR* attributes = nullptr;
    if (FAILED(object.GetTypeInfo(0, LOCALE_USER_DEFAULT, type.out())) ||
        FAILED(type->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr)) ||
        FAILED(type->GetTypeAttr(&attributes))) {
        throw std::runtime_error("an object without type information");
    }
    const HRESULT outcome = object.QueryInterface(attributes->guid, byInterface.outVoid());
    type->ReleaseTypeAttr(attributes);
    if (FAILED(outcome)) {
        throw std::runtime_error("an object without the interface that it describes");
    }
    return name.utf8();
}

}  // namespace

ComFace::ComFace() {
    renderObject(component_.create<_CRtfDoc>(__uuidof(::CRtfDoc)));
    const auto driver = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
    renderObject(driver);
    events_ = EventConnection(driver.get(), [this](const std::wstring&, DISPPARAMS&) {
        // Only here does an error object have its number, as its help context.
        HostError error = takeErrorObject(S_OK);
        error.number = static_cast<HRESULT>(error.helpContext);
        addEvent(textOf(error));
        return S_OK;
    });
}

ComFace::~ComFace() {
    events_.end();
}

std::string ComFace::renderEnumerator(const ComPtr<IUnknown>& enumerator) {
    const auto elements = enumerator.as<IEnumVARIANT>();
    if (!elements) {
        return "no enumerator";
    }
    std::string text = "enumerates";
    Variant element;
    while (elements->Next(1, element.out(), nullptr) == S_OK) {
        text += " " + renderObject(element.object());
    }
    return text;
}

std::string ComFace::answer(int object, const std::string& member, const Arguments& arguments) {
    return answerOf(*held_.at(static_cast<std::size_t>(object)).get(), member, arguments);
}

void ComFace::release(int object) {
    held_[static_cast<std::size_t>(object)].reset();
}

std::string ComFace::renderHeld(const ComPtr<IDispatch>& object) {
    ComPtr<IDispatch> byInterface;
    const std::string interfaceName = describedInterface(*object.get(), byInterface);
    const Numbered numbered = number(object.as<IUnknown>().get(), interfaceName);
    if (numbered.isNew) {
        held_.push_back(byInterface);
    }
    return answerText(numbered.number, interfaceName);
}

Variant variantOf(const Value& value) {
    struct Visitor {
        Variant operator()(Missing) const { return Variant::missing(); }
        Variant operator()(Empty) const { return {}; }
        Variant operator()(Null) const { return Variant::null(); }
        Variant operator()(bool truth) const { return truth; }
        Variant operator()(std::int16_t number) const { return static_cast<short>(number); }
        Variant operator()(std::int32_t number) const { return static_cast<long>(number); }
        Variant operator()(float number) const {
            VARIANT single{};
            single.vt = VT_R4;
            single.fltVal = number;
            return Variant(single);
        }
        Variant operator()(double number) const { return number; }
        Variant operator()(Date date) const {
            VARIANT day{};
            day.vt = VT_DATE;
            day.date = date.days;
            return Variant(day);
        }
        Variant operator()(const std::string& text) const { return text; }
        Variant operator()(const std::shared_ptr<Object>&) const {
            throw std::runtime_error("objects are no arguments here");
        }
    };
    return std::visit(Visitor{}, value.data());
}

std::string textOf(const HostError& error) {
    return errorText(static_cast<std::uint32_t>(error.number), error.description, error.source);
}

}  // namespace quorvane::host
