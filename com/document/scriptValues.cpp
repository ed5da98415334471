#include "com/document/scriptValues.h"

#include <new>
#include <string_view>

#include "com/OwnedVariant.h"
#include "com/document/documentErrors.h"
#include "com/document/scriptArrays.h"
#include "com/hostText.h"
#include "com/hostValue.h"
#include "data/csvTable.h"
#include "quorvane/compose/widthsIn.h"

namespace quorvane::com {

namespace {

/// A value as one of another type; error "wrong-value" if it cannot be one.
OwnedVariant converted(const VARIANT& value, VARTYPE type, const char* refusal) {
    OwnedVariant result;
    const HRESULT outcome = VariantChangeTypeEx(result.get(), const_cast<VARIANT*>(&value),
                                                LOCALE_USER_DEFAULT, VARIANT_ALPHABOOL, type);
    if (outcome == E_OUTOFMEMORY) {
        throw std::bad_alloc();
    }
    if (FAILED(outcome)) {
        refuseValue(refusal);
    }
    return result;
}

bool isText(const VARIANT& value) noexcept {
    return (V_VT(&value) & ~VT_BYREF) == VT_BSTR;
}

bool isArray(const VARIANT& value) noexcept {
    return (V_VT(&value) & VT_ARRAY) != 0;
}

std::vector<std::string> textsOf(const HostValues& values) {
    std::vector<std::string> texts;
    texts.reserve(values.size());
    for (const OwnedVariant& value : values) {
        texts.push_back(textOf(*value));
    }
    return texts;
}

Width widthOf(const VARIANT& given) {
    const VARIANT& value = referredValue(given);
    if (isText(value)) {
        return Width(textOf(value));
    }
    return Width(V_R8(converted(value, VT_R8, "A width is a number of percent or a text.").get()));
}

}  // namespace

std::string textOf(const VARIANT& given) {
    const VARIANT& value = referredValue(given);
    switch (V_VT(&value)) {
        case VT_BSTR:
            return textOf(V_BSTR(&value));
        case VT_EMPTY:
        case VT_NULL:
            return {};
        default:
            constexpr const char* refusal =
                "This is neither a text nor a number. Give a text, a number, a date, or an array "
                "of them.";
            if (isArray(value)) {
                refuseValue(refusal);
            }
            return textOf(V_BSTR(converted(value, VT_BSTR, refusal).get()));
    }
}

bool isMissing(const VARIANT* value) noexcept {
    return !value || (V_VT(value) == VT_ERROR && V_ERROR(value) == DISP_E_PARAMNOTFOUND);
}

std::string textOf(const VARIANT* value) {
    return isMissing(value) ? std::string() : textOf(*value);
}

std::vector<std::string> textsOf(const VARIANT* value) {
    if (isMissing(value)) {
        return {};
    }
    if (const std::optional<HostValues> elements = elementsOf(*value)) {
        return textsOf(*elements);
    }
    return {textOf(*value)};
}

std::vector<std::vector<std::string>> textRowsOf(const VARIANT& value) {
    std::vector<std::vector<std::string>> texts;
    if (const std::optional<std::vector<HostValues>> rows = rowsOf(value)) {
        for (const HostValues& row : *rows) {
            texts.push_back(textsOf(row));
        }
        return texts;
    }
    const std::optional<HostValues> rows = elementsOf(value);
    if (!rows) {
        refuseValue("The rows are an array with two dimensions, or an array of arrays.");
    }
    for (const OwnedVariant& row : *rows) {
        texts.push_back(textsOf(&*row));
    }
    return texts;
}

std::vector<std::vector<std::string>> textTableOf(const VARIANT& value) {
    const VARIANT& referred = referredValue(value);
    return isText(referred) ? data::csvTable(textOf(referred)) : textRowsOf(value);
}

std::vector<Width> widthsOf(const VARIANT& value) {
    const std::optional<HostValues> elements = elementsOf(value);
    if (!elements) {
        const VARIANT& single = referredValue(value);
        return isText(single) ? widthsIn(textOf(single)) : std::vector<Width>{widthOf(single)};
    }
    std::vector<Width> widths;
    for (const OwnedVariant& element : *elements) {
        widths.push_back(widthOf(*element));
    }
    return widths;
}

Length lengthOf(const VARIANT& given) {
    const VARIANT& value = referredValue(given);
    if (isText(value)) {
        return Length(textOf(value));
    }
    constexpr const char* refusal =
        "A length is a whole number of twips, or a text such as \"2cm\".";
    return {static_cast<std::int32_t>(V_I4(converted(value, VT_I4, refusal).get()))};
}

Length lengthOf(const VARIANT* value, const Length& otherwise) {
    return isMissing(value) ? otherwise : lengthOf(*value);
}

}  // namespace quorvane::com
