#include <windows.h>

#include <cstdint>
#include <functional>
#include <map>
#include <stdexcept>
#include <tuple>
#include <type_traits>
#include <utility>

#include "tests/com/faces/ComFace.h"
#include "tests/com/host/interfaces.h"

namespace quorvane::host {

namespace {

class EarlyBoundFace;
using Member = std::function<std::string(EarlyBoundFace&, IDispatch&, const Arguments&)>;

const std::map<std::string, Member>& members();

class EarlyBoundFace : public ComFace {
protected:
    std::string answerOf(IDispatch& object, const std::string& member,
                         const Arguments& arguments) override {
        return members().at(member)(*this, object, arguments);
    }
};

// A parameter of a vtable function: what is passed for it and, of a result, what it returns.
template <class Parameter>
class Slot;

template <>
class Slot<BSTR> {
public:
    explicit Slot(const Value* value) : text_(value->text()) {}
    BSTR pass() { return text_.get(); }

private:
    Bstr text_;
};

template <>
class Slot<VARIANT> {
public:
    explicit Slot(const Value* value) : value_(variantOf(*value)) {}
    VARIANT pass() { return value_.get(); }

private:
    Variant value_;
};

template <>
class Slot<VARIANT*> {
public:
    explicit Slot(const Value* value) : value_(variantOf(*value)) {}
    VARIANT* pass() { return input(value_.get()); }

private:
    Variant value_;
};

// Numbers, enumerations and Booleans.
template <class Plain>
class Slot {
public:
    explicit Slot(const Value* value) : value_(static_cast<Plain>(variantOf(*value).number())) {}
    Plain pass() { return value_; }

private:
    Plain value_;
};

template <class Answered>
class Slot<Answered*> {
public:
    explicit Slot(const Value*) {}
    Answered* pass() { return &value_; }
    std::string render(EarlyBoundFace&) { return answerText(static_cast<std::int32_t>(value_)); }

private:
    Answered value_{};
};

template <>
class Slot<VARIANT_BOOL*> {
public:
    explicit Slot(const Value*) {}
    VARIANT_BOOL* pass() { return &value_; }
    std::string render(EarlyBoundFace&) {
        // Visual Basic takes any other number for neither.
        if (value_ != VARIANT_TRUE && value_ != VARIANT_FALSE) {
            return "bad Boolean " + std::to_string(value_);
        }
        return answerText(value_ == VARIANT_TRUE);
    }

private:
    VARIANT_BOOL value_ = 17;
};

template <>
class Slot<BSTR*> {
public:
    explicit Slot(const Value*) {}
    BSTR* pass() { return text_.out(); }
    std::string render(EarlyBoundFace&) { return answerText(text_.utf8()); }

private:
    Bstr text_;
};

template <>
class Slot<IUnknown**> {
public:
    explicit Slot(const Value*) {}
    IUnknown** pass() { return object_.out(); }
    std::string render(EarlyBoundFace& face) { return face.renderEnumerator(object_); }

private:
    ComPtr<IUnknown> object_;
};

template <class Interface>
class Slot<Interface**> {
public:
    explicit Slot(const Value*) {}
    Interface** pass() { return object_.out(); }
    std::string render(EarlyBoundFace& face) { return face.renderObject(object_); }

private:
    ComPtr<Interface> object_;
};

template <class Parameter>
constexpr bool isResult = std::is_pointer_v<Parameter> && !std::is_same_v<Parameter, BSTR> &&
                          !std::is_same_v<Parameter, VARIANT*>;

class Table {
public:
    explicit Table(std::string prefix) : prefix_(std::move(prefix) + ".") {}

    template <class Interface, class... Parameters>
    void add(const std::string& name,
             HRESULT (STDMETHODCALLTYPE Interface::*function)(Parameters...)) {
        members_[prefix_ + name] = [function](EarlyBoundFace& face, IDispatch& object,
                                              const Arguments& arguments) {
            std::size_t taken = 0;
            [[maybe_unused]] const auto next = [&](bool result) {
                return result ? nullptr : &arguments.at(taken++);
            };
            std::tuple<Slot<Parameters>...> slots{Slot<Parameters>(next(isResult<Parameters>))...};
            const HRESULT status = std::apply(
                [&](auto&... slot) {
                    return (static_cast<Interface&>(object).*function)(slot.pass()...);
                },
                slots);
            if (FAILED(status)) {
                return textOf(takeErrorObject(status));
            }
            std::string text = okText;
            std::apply([&](auto&... slot) { (renderResult(face, slot, text), ...); }, slots);
            return text;
        };
    }
    template <class Interface, class Getter, class Setter>
    void property(const std::string& name, Getter getter, Setter setter) {
        add<Interface>("get " + name, getter);
        add<Interface>("set " + name, setter);
    }
    template <class Interface>
    void collection() {
        add("get Count", &Interface::get_Count);
        add("get Parent", &Interface::get_Parent);
        add("get Item", &Interface::get_Item);
        add("get NewEnum", &Interface::get_NewEnum);
        add("call add", &Interface::add);
        add("call Remove", &Interface::Remove);
        add("call AddHead", &Interface::AddHead);
        add("call PeekHead", &Interface::PeekHead);
        add("call RemoveHead", &Interface::RemoveHead);
        add("call AddTail", &Interface::AddTail);
        add("call PeekTail", &Interface::PeekTail);
        add("call removeTail", &Interface::removeTail);
    }
    template <class Interface>
    void borders() {
        property("BottomBorder", &Interface::get_BottomBorder, &Interface::put_BottomBorder);
        property("TopBorder", &Interface::get_TopBorder, &Interface::put_TopBorder);
        property("LeftBorder", &Interface::get_LeftBorder, &Interface::put_LeftBorder);
        property("RightBorder", &Interface::get_RightBorder, &Interface::put_RightBorder);
        property("BackColor", &Interface::get_BackColor, &Interface::put_BackColor);
    }
    template <class Getter, class Setter>
    void property(const std::string& name, Getter getter, Setter setter) {
        add("get " + name, getter);
        add("set " + name, setter);
    }

    std::map<std::string, Member> takeMembers() { return std::move(members_); }

private:
    template <class Kind>
    static void renderResult(EarlyBoundFace& face, Kind& slot, std::string& text) {
        if constexpr (requires { slot.render(face); }) {
            text = slot.render(face);
        }
    }

    std::string prefix_;
    std::map<std::string, Member> members_;
};

std::map<std::string, Member> documentMembers() {
    using Interface = _CRtfDoc;
    Table table("_CRtfDoc");
    table.add("get Contents", &Interface::get_Contents);
    table.property("Changed", &Interface::get_Changed, &Interface::put_Changed);
    table.property("StyleSheetFile", &Interface::get_StyleSheetFile,
                   &Interface::put_StyleSheetFile);
    table.add("get StyleSheetOk", &Interface::get_StyleSheetOk);
    table.property("BottomMargin", &Interface::get_BottomMargin, &Interface::put_BottomMargin);
    table.property("TopMargin", &Interface::get_TopMargin, &Interface::put_TopMargin);
    table.property("LeftMargin", &Interface::get_LeftMargin, &Interface::put_LeftMargin);
    table.property("RightMargin", &Interface::get_RightMargin, &Interface::put_RightMargin);
    table.property("PageNumberStart", &Interface::get_PageNumberStart,
                   &Interface::put_PageNumberStart);
    table.property("PageHeight", &Interface::get_PageHeight, &Interface::put_PageHeight);
    table.property("PageWidth", &Interface::get_PageWidth, &Interface::put_PageWidth);
    table.add("get TableRows", &Interface::get_TableRows);
    table.add("call Commit", &Interface::Commit);
    table.add("call LoadStyleSheetFromMemmory", &Interface::LoadStyleSheetFromMemmory);
    table.add("call Refresh", &Interface::Refresh);
    table.add("call getCellStyleBackColor", &Interface::getCellStyleBackColor);
    table.add("call ClearStructure", &Interface::ClearStructure);
    return table.takeMembers();
}

std::map<std::string, Member> rowsMembers() {
    Table table("_CRtfTableRows");
    table.collection<_CRtfTableRows>();
    return table.takeMembers();
}

std::map<std::string, Member> rowMembers() {
    Table table("_CRtfTableRow");
    table.add("get Parent", &_CRtfTableRow::get_Parent);
    table.add("get TableCells", &_CRtfTableRow::get_TableCells);
    table.borders<_CRtfTableRow>();
    return table.takeMembers();
}

std::map<std::string, Member> cellsMembers() {
    Table table("_CRtfTableCells");
    table.collection<_CRtfTableCells>();
    table.add("call SetUniformWidths", &_CRtfTableCells::SetUniformWidths);
    return table.takeMembers();
}

std::map<std::string, Member> cellMembers() {
    using Interface = _CRtfTableCell;
    Table table("_CRtfTableCell");
    table.add("get Parent", &Interface::get_Parent);
    table.borders<Interface>();
    table.property("Width", &Interface::get_Width, &Interface::put_Width);
    table.add("get Paragraphs", &Interface::get_Paragraphs);
    table.property("Align", &Interface::get_Align, &Interface::put_Align);
    table.property("Style", &Interface::get_Style, &Interface::put_Style);
    table.add("call asMarkedField", &Interface::asMarkedField);
    return table.takeMembers();
}

std::map<std::string, Member> paragraphsMembers() {
    Table table("_CRtfParagraphs");
    table.collection<_CRtfParagraphs>();
    return table.takeMembers();
}

std::map<std::string, Member> paragraphMembers() {
    using Interface = _CRtfParagraph;
    Table table("_CRtfParagraph");
    table.add("get Parent", &Interface::get_Parent);
    table.property("Text", &Interface::get_Text, &Interface::put_Text);
    table.property("Style", &Interface::get_Style, &Interface::put_Style);
    table.property("ForeColor", &Interface::get_ForeColor, &Interface::put_ForeColor);
    table.property("Align", &Interface::get_Align, &Interface::put_Align);
    table.add("call asMarkedField", &Interface::asMarkedField);
    return table.takeMembers();
}

std::map<std::string, Member> driverMembers() {
    using Interface = _CRtfDriver;
    Table table("_CRtfDriver");
    table.add("call ParseFile", &Interface::ParseFile);
    table.add("call ParseFromMemmory", &Interface::ParseFromMemmory);
    table.add("call LoadStyleSheetFromMemmory", &Interface::LoadStyleSheetFromMemmory);
    table.add("call Commit", &Interface::Commit);
    table.property("ErroneousInput", &Interface::get_ErroneousInput,
                   &Interface::put_ErroneousInput);
    table.property("notifyError", &Interface::get_notifyError, &Interface::put_notifyError);
    table.add("get Contents", &Interface::get_Contents);
    table.add("get RtfObject", &Interface::get_RtfObject);
    table.property("StyleSheetFile", &Interface::get_StyleSheetFile,
                   &Interface::put_StyleSheetFile);
    return table.takeMembers();
}

const std::map<std::string, Member>& members() {
    static const std::map<std::string, Member> all = [] {
        std::map<std::string, Member> merged;
        for (auto part :
             {documentMembers(), rowsMembers(), rowMembers(), cellsMembers(), cellMembers(),
              paragraphsMembers(), paragraphMembers(), driverMembers()}) {
            merged.merge(part);
        }
        return merged;
    }();
    return all;
}

}  // namespace

std::unique_ptr<Face> earlyBoundFace() {
    return std::make_unique<EarlyBoundFace>();
}

std::vector<std::string> earlyBoundMembers() {
    std::vector<std::string> names;
    for (const auto& [name, member] : members()) {
        names.push_back(name);
    }
    return names;
}

}  // namespace quorvane::host
