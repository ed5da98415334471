#include "tests/com/host/typeLibraryText.h"

#include <cstdio>
#include <functional>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/text.h"

namespace quorvane::host {

namespace {

std::string guidText(const GUID& guid) {
    wchar_t text[40];
    const int length = StringFromGUID2(guid, text, 40);
    return utf8Text(std::wstring_view(text, static_cast<std::size_t>(length) - 1));
}

std::string hexText(unsigned long number) {
    char text[12];
    std::snprintf(text, sizeof text, "0x%lX", number);
    return text;
}

struct Documentation {
    std::string name;
    std::string help;
};

Documentation documentationOf(ITypeInfo& type, MEMBERID member) {
    Bstr name;
    Bstr help;
    type.GetDocumentation(member, name.out(), help.out(), nullptr, nullptr);
    return {name.utf8(), help.utf8()};
}

std::string quoted(const std::string& help) {
    return " \"" + help + "\"";
}

const char* kindText(TYPEKIND kind) {
    switch (kind) {
        case TKIND_ENUM:
            return "enum";
        case TKIND_INTERFACE:
            return "interface";
        case TKIND_DISPATCH:
            return "dispinterface";
        case TKIND_COCLASS:
            return "coclass";
        case TKIND_ALIAS:
            return "alias";
        default:
            return "other";
    }
}

std::string simpleTypeText(VARTYPE type) {
    switch (type) {
        case VT_I4:
            return "long";
        case VT_BOOL:
            return "VARIANT_BOOL";
        case VT_BSTR:
            return "BSTR";
        case VT_VARIANT:
            return "VARIANT";
        case VT_DISPATCH:
            return "IDispatch*";
        case VT_UNKNOWN:
            return "IUnknown*";
        case VT_HRESULT:
            return "HRESULT";
        case VT_VOID:
            return "void";
        default:
            return "type " + std::to_string(type);
    }
}

std::string typeText(ITypeInfo& owner, const TYPEDESC& type) {
    if (type.vt == VT_PTR) {
        return typeText(owner, *type.lptdesc) + "*";
    }
    if (type.vt != VT_USERDEFINED) {
        return simpleTypeText(type.vt);
    }
    ComPtr<ITypeInfo> referred;
    owner.GetRefTypeInfo(type.hreftype, referred.out());
    return referred ? documentationOf(*referred.get(), MEMBERID_NIL).name : "unknown type";
}

const char* invokeText(INVOKEKIND kind) {
    switch (kind) {
        case INVOKE_PROPERTYGET:
            return "get";
        case INVOKE_PROPERTYPUT:
            return "set";
        case INVOKE_FUNC:
            return "call";
        default:
            return "setRef";
    }
}

std::string parameterFlagsText(USHORT flags) {
    const struct {
        USHORT flag;
        const char* text;
    } names[] = {{PARAMFLAG_FIN, "in "},
                 {PARAMFLAG_FOUT, "out "},
                 {PARAMFLAG_FOPT, "optional "},
                 {PARAMFLAG_FRETVAL, "retval "},
                 {PARAMFLAG_FHASDEFAULT, "defaulted "},
                 {PARAMFLAG_FLCID, "lcid "}};
    std::string text;
    for (const auto& name : names) {
        text += flags & name.flag ? name.text : "";
    }
    return text;
}

std::string parametersText(ITypeInfo& type, const FUNCDESC& function) {
    const UINT limit = 16;
    BSTR names[limit] = {};
    UINT count = 0;
    type.GetNames(function.memid, names, limit, &count);
    std::string text;
    for (int i = 0; i < function.cParams; ++i) {
        const ELEMDESC& parameter = function.lprgelemdescParam[i];
        const UINT place = static_cast<UINT>(i) + 1;
        // The value of a property that is set has no name of its own.
        const std::string name = place < count ? " " + utf8Text(textOf(names[place])) : "";
        text += (i > 0 ? ", " : "") + parameterFlagsText(parameter.paramdesc.wParamFlags) +
                typeText(type, parameter.tdesc) + name;
    }
    for (UINT i = 0; i < count; ++i) {
        SysFreeString(names[i]);
    }
    return "(" + text + ")";
}

void forEachFunction(ITypeInfo& type,
                     const std::function<void(const FUNCDESC& function)>& callback) {
    TYPEATTR* attributes = nullptr;
    type.GetTypeAttr(&attributes);
    const UINT count = attributes->cFuncs;
    type.ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
        FUNCDESC* function = nullptr;
        if (SUCCEEDED(type.GetFuncDesc(i, &function))) {
            callback(*function);
            type.ReleaseFuncDesc(function);
        }
    }
}

std::string functionsText(ITypeInfo& type) {
    std::string text;
    forEachFunction(type, [&](const FUNCDESC& function) {
        const Documentation documentation = documentationOf(type, function.memid);
        text += "  id " + std::to_string(function.memid);
        if (function.funckind == FUNC_PUREVIRTUAL) {
            text += " slot " + std::to_string(static_cast<unsigned>(function.oVft) / sizeof(void*));
        }
        text += std::string(" ") + invokeText(function.invkind) + " " +
                typeText(type, function.elemdescFunc.tdesc) + " " + documentation.name +
                parametersText(type, function);
        if (function.cParamsOpt != 0) {
            text += " optional arguments " + std::to_string(function.cParamsOpt);
        }
        if (function.wFuncFlags != 0) {
            text += " flags " + hexText(function.wFuncFlags);
        }
        text += quoted(documentation.help) + "\n";
    });
    return text;
}

std::string valuesText(ITypeInfo& type, UINT count) {
    std::string text;
    for (UINT i = 0; i < count; ++i) {
        VARDESC* variable = nullptr;
        if (SUCCEEDED(type.GetVarDesc(i, &variable))) {
            const Documentation documentation = documentationOf(type, variable->memid);
            text += "  " + documentation.name + " = " + std::to_string(variable->lpvarValue->lVal) +
                    quoted(documentation.help) + "\n";
            type.ReleaseVarDesc(variable);
        }
    }
    return text;
}

std::string interfacesText(ITypeInfo& type, UINT count) {
    std::string text;
    for (UINT i = 0; i < count; ++i) {
        int flags = 0;
        HREFTYPE reference = 0;
        ComPtr<ITypeInfo> implemented;
        type.GetImplTypeFlags(i, &flags);
        type.GetRefTypeOfImplType(i, &reference);
        type.GetRefTypeInfo(reference, implemented.out());
        text += "  implements " +
                (implemented ? documentationOf(*implemented.get(), MEMBERID_NIL).name
                             : std::string("unknown type")) +
                " flags " + hexText(static_cast<unsigned long>(flags)) + "\n";
    }
    return text;
}

// The view of a dual interface that has the vtable.
ComPtr<ITypeInfo> vtableView(ITypeInfo& type) {
    const UINT vtableSide = static_cast<UINT>(-1);
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> view;
    if (SUCCEEDED(type.GetRefTypeOfImplType(vtableSide, &reference))) {
        type.GetRefTypeInfo(reference, view.out());
    }
    return view;
}

std::string typeInfoText(ITypeInfo& type) {
    TYPEATTR* attributes = nullptr;
    type.GetTypeAttr(&attributes);
    const Documentation documentation = documentationOf(type, MEMBERID_NIL);
    std::string text = std::string(kindText(attributes->typekind)) + " " + documentation.name +
                       " " + guidText(attributes->guid) + " flags " +
                       hexText(attributes->wTypeFlags) + quoted(documentation.help) + "\n";
    if (attributes->typekind == TKIND_ENUM) {
        text += valuesText(type, attributes->cVars);
    } else if (attributes->typekind == TKIND_COCLASS) {
        text += interfacesText(type, attributes->cImplTypes);
    } else if (const ComPtr<ITypeInfo> view = vtableView(type)) {
        text += interfacesText(*view.get(), 1) + functionsText(*view.get());
    } else {
        text += functionsText(type);
    }
    type.ReleaseTypeAttr(attributes);
    return text;
}

void forEachType(ITypeLib& library, const std::function<void(ITypeInfo& type)>& callback) {
    for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> type;
        if (SUCCEEDED(library.GetTypeInfo(i, type.out()))) {
            callback(*type.get());
        }
    }
}

}  // namespace

std::string typeLibraryText(ITypeLib& library) {
    TLIBATTR* attributes = nullptr;
    library.GetLibAttr(&attributes);
    Bstr name;
    Bstr help;
    library.GetDocumentation(-1, name.out(), help.out(), nullptr, nullptr);
    std::string text = "library " + name.utf8() + " " + guidText(attributes->guid) + " version " +
                       std::to_string(attributes->wMajorVerNum) + "." +
                       std::to_string(attributes->wMinorVerNum) + quoted(help.utf8()) + "\n";
    library.ReleaseTLibAttr(attributes);
    forEachType(library, [&text](ITypeInfo& type) { text += "\n" + typeInfoText(type); });
    return text;
}

std::vector<std::string> publishedMembers(ITypeLib& library) {
    std::vector<std::string> members;
    forEachType(library, [&members](ITypeInfo& type) {
        if (const ComPtr<ITypeInfo> view = vtableView(type)) {
            const std::string owner = documentationOf(type, MEMBERID_NIL).name;
            forEachFunction(*view.get(), [&](const FUNCDESC& function) {
                members.push_back(owner + "." + invokeText(function.invkind) + " " +
                                  documentationOf(type, function.memid).name);
            });
        }
    });
    return members;
}

}  // namespace quorvane::host
