#include "tests/com/faces/ComFace.h"
#include "tests/com/host/LateBound.h"

namespace quorvane::host {

namespace {

class LateBoundFace : public ComFace {
protected:
    std::string answerOf(IDispatch& object, const std::string& member,
                         const Arguments& arguments) override {
        const std::size_t dot = member.find('.');
        const std::size_t blank = member.find(' ', dot);
        const std::string kind = member.substr(dot + 1, blank - dot - 1);
        const std::string name = member.substr(blank + 1);
        std::vector<Variant> values;
        for (const Value& argument : arguments) {
            values.push_back(variantOf(argument));
        }
        const LateBound target{ComPtr<IDispatch>(&object)};
        return textOfOutcome(kind == "get"   ? target.get(name, values)
                             : kind == "set" ? target.set(name, values)
                                             : target.call(name, values));
    }

private:
    std::string textOfOutcome(const Outcome& outcome) {
        const VARIANT& value = outcome.value.get();
        if (!outcome.succeeded()) {
            return textOf(outcome.error);
        }
        switch (value.vt) {
            case VT_EMPTY:
                return okText;
            case VT_BOOL:
                return answerText(outcome.value.truth());
            case VT_I4:
                return answerText(static_cast<std::int32_t>(value.lVal));
            case VT_BSTR:
                return answerText(outcome.value.text());
            case VT_DISPATCH:
                return renderObject(outcome.value.object());
            case VT_UNKNOWN:
                return renderEnumerator(ComPtr<IUnknown>(value.punkVal));
            default:
                return describe(value);
        }
    }
};

}  // namespace

std::unique_ptr<Face> lateBoundFace() {
    return std::make_unique<LateBoundFace>();
}

}  // namespace quorvane::host
