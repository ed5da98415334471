#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/CRtfDriver.h"
#include "tests/com/faces/Face.h"

namespace quorvane::host {

namespace {

using Held = std::variant<std::monostate, Ref<CRtfDoc>, Ref<CRtfTableRows>, Ref<CRtfTableRow>,
                          Ref<CRtfTableCells>, Ref<CRtfTableCell>, Ref<CRtfParagraphs>,
                          Ref<CRtfParagraph>, Ref<CRtfDriver>>;

template <class Class>
constexpr const char* interfaceName = nullptr;
template <>
constexpr const char* interfaceName<CRtfDoc> = "_CRtfDoc";
template <>
constexpr const char* interfaceName<CRtfTableRows> = "_CRtfTableRows";
template <>
constexpr const char* interfaceName<CRtfTableRow> = "_CRtfTableRow";
template <>
constexpr const char* interfaceName<CRtfTableCells> = "_CRtfTableCells";
template <>
constexpr const char* interfaceName<CRtfTableCell> = "_CRtfTableCell";
template <>
constexpr const char* interfaceName<CRtfParagraphs> = "_CRtfParagraphs";
template <>
constexpr const char* interfaceName<CRtfParagraph> = "_CRtfParagraph";
template <>
constexpr const char* interfaceName<CRtfDriver> = "_CRtfDriver";

class NativeFace;
using Member = std::function<std::string(NativeFace&, const Held&, const Arguments&)>;

const std::map<std::string, Member>& members();

// How a host sees the number of an error, and the source of one that has none. The error of a file
// that cannot be deleted has no source for a host either.
std::string textOf(const RtfError& error) {
    const auto number = static_cast<std::uint32_t>(error.number);
    const bool isNamed = !error.source.empty() || error.is(RunTimeError::PathFileAccessError);
    return errorText(number < 0x10000 ? 0x800A0000U + number : number, error.description,
                     isNamed ? error.source : "Quorvane");
}

class NativeFace : public Face {
public:
    NativeFace() {
        render(CRtfDoc::create());
        const Ref<CRtfDriver> driver = CRtfDriver::create();
        driver->setNotifyErrorHandler([this](CRtfDriver&, const RtfError& error) {
            addEvent(errorText(static_cast<std::uint32_t>(error.number), error.description,
                               error.source));
        });
        render(driver);
    }

    std::string render(bool value) const { return answerText(value); }
    std::string render(std::int32_t value) const { return answerText(value); }
    std::string render(const std::string& value) const { return answerText(value); }
    template <class Class>
    std::string render(const Ref<Class>& object) {
        if (!object) {
            return nothingText;
        }
        const Numbered numbered = number(object.get(), interfaceName<Class>);
        if (numbered.isNew) {
            held_.emplace_back(object);
        }
        return answerText(numbered.number, interfaceName<Class>);
    }

protected:
    std::string resultOf(int object, const std::string& member,
                         const Arguments& arguments) override {
        try {
            return members().at(member)(*this, held_.at(static_cast<std::size_t>(object)),
                                        arguments);
        } catch (const RtfError& error) {
            return textOf(error);
        }
    }
    void release(int object) override {
        // What lives in it may not be seen half gone.
        const Held released = std::exchange(held_[static_cast<std::size_t>(object)], {});
    }

private:
    std::vector<Held> held_;
};

template <class Parameter>
Parameter argument(const Value& value) {
    using Plain = std::remove_cvref_t<Parameter>;
    if constexpr (std::is_same_v<Plain, Value>) {
        return value;
    } else if constexpr (std::is_same_v<Plain, bool>) {
        return std::get<bool>(value.data());
    } else if constexpr (std::is_same_v<Plain, std::string> ||
                         std::is_same_v<Plain, std::string_view>) {
        return value.text();
    } else {
        return static_cast<Plain>(std::get<std::int32_t>(value.data()));
    }
}

class Table {
public:
    template <class Class, class Owner, class Result, class... Parameters>
    void add(const std::string& name, Result (Owner::*function)(Parameters...)) {
        addCall<Class, Result, Parameters...>(name, function);
    }
    template <class Class, class Owner, class Result, class... Parameters>
    void add(const std::string& name, Result (Owner::*function)(Parameters...) const) {
        addCall<Class, Result, Parameters...>(name, function);
    }
    template <class Class, class Getter, class Setter>
    void property(const std::string& name, Getter getter, Setter setter) {
        add<Class>("get " + name, getter);
        add<Class>("set " + name, setter);
    }
    // What the enumerator of a collection passes.
    template <class Class>
    void enumerator() {
        members_[std::string(interfaceName<Class>) + ".get NewEnum"] =
            [](NativeFace& face, const Held& held, const Arguments&) {
                Class& collection = *std::get<Ref<Class>>(held);
                std::string text = "enumerates";
                for (std::int32_t i = 1; i <= collection.Count(); ++i) {
                    text += " " + face.render(collection.Item(i));
                }
                return text;
            };
    }
    template <class Class>
    void collection() {
        add<Class>("get Count", &Class::Count);
        add<Class>("get Parent", &Class::Parent);
        add<Class>("get Item", &Class::Item);
        enumerator<Class>();
        add<Class>("call add", &Class::add);
        add<Class>("call Remove", &Class::Remove);
        add<Class>("call AddHead", &Class::AddHead);
        add<Class>("call PeekHead", &Class::PeekHead);
        add<Class>("call RemoveHead", &Class::RemoveHead);
        add<Class>("call AddTail", &Class::AddTail);
        add<Class>("call PeekTail", &Class::PeekTail);
        add<Class>("call removeTail", &Class::removeTail);
    }

    std::map<std::string, Member> takeMembers() { return std::move(members_); }

private:
    template <class Class, class Result, class... Parameters, class Function>
    void addCall(const std::string& name, Function function) {
        members_[std::string(interfaceName<Class>) + "." + name] =
            [function](NativeFace& face, const Held& held, const Arguments& arguments) {
                return perform<Class, Result, Parameters...>(
                    face, *std::get<Ref<Class>>(held), function, arguments,
                    std::index_sequence_for<Parameters...>());
            };
    }
    template <class Class, class Result, class... Parameters, class Function, std::size_t... places>
    static std::string perform(NativeFace& face, Class& object, Function function,
                               [[maybe_unused]] const Arguments& arguments,
                               std::index_sequence<places...>) {
        const auto call = [&]() -> Result {
            return (object.*function)(argument<Parameters>(arguments.at(places))...);
        };
        if constexpr (std::is_void_v<Result>) {
            call();
            return okText;
        } else if constexpr (std::is_enum_v<Result>) {
            return face.render(static_cast<std::int32_t>(call()));
        } else {
            return face.render(call());
        }
    }

    std::map<std::string, Member> members_;
};

template <class Class>
void addBorders(Table& table) {
    table.property<Class>("BottomBorder", &Class::BottomBorder, &Class::setBottomBorder);
    table.property<Class>("TopBorder", &Class::TopBorder, &Class::setTopBorder);
    table.property<Class>("LeftBorder", &Class::LeftBorder, &Class::setLeftBorder);
    table.property<Class>("RightBorder", &Class::RightBorder, &Class::setRightBorder);
    table.property<Class>("BackColor", &Class::BackColor, &Class::setBackColor);
}

void addDocument(Table& table) {
    using Class = CRtfDoc;
    table.add<Class>("get Contents", &Class::Contents);
    table.property<Class>("Changed", &Class::Changed, &Class::setChanged);
    table.property<Class>("StyleSheetFile", &Class::StyleSheetFile, &Class::setStyleSheetFile);
    table.add<Class>("get StyleSheetOk", &Class::StyleSheetOk);
    table.property<Class>("BottomMargin", &Class::BottomMargin, &Class::setBottomMargin);
    table.property<Class>("TopMargin", &Class::TopMargin, &Class::setTopMargin);
    table.property<Class>("LeftMargin", &Class::LeftMargin, &Class::setLeftMargin);
    table.property<Class>("RightMargin", &Class::RightMargin, &Class::setRightMargin);
    table.property<Class>("PageNumberStart", &Class::PageNumberStart, &Class::setPageNumberStart);
    table.property<Class>("PageHeight", &Class::PageHeight, &Class::setPageHeight);
    table.property<Class>("PageWidth", &Class::PageWidth, &Class::setPageWidth);
    table.add<Class>("get TableRows", &Class::TableRows);
    table.add<Class>("call Commit", &Class::Commit);
    table.add<Class>("call LoadStyleSheetFromMemmory", &Class::LoadStyleSheetFromMemmory);
    table.add<Class>("call Refresh", &Class::Refresh);
    table.add<Class>("call getCellStyleBackColor", &Class::getCellStyleBackColor);
    table.add<Class>("call ClearStructure", &Class::ClearStructure);
}

void addTable(Table& table) {
    table.collection<CRtfTableRows>();
    table.add<CRtfTableRow>("get Parent", &CRtfTableRow::Parent);
    table.add<CRtfTableRow>("get TableCells", &CRtfTableRow::TableCells);
    addBorders<CRtfTableRow>(table);
    table.collection<CRtfTableCells>();
    table.add<CRtfTableCells>("call SetUniformWidths", &CRtfTableCells::SetUniformWidths);
    table.add<CRtfTableCell>("get Parent", &CRtfTableCell::Parent);
    addBorders<CRtfTableCell>(table);
    table.property<CRtfTableCell>("Width", &CRtfTableCell::Width, &CRtfTableCell::setWidth);
    table.add<CRtfTableCell>("get Paragraphs", &CRtfTableCell::Paragraphs);
    table.property<CRtfTableCell>("Align", &CRtfTableCell::Align, &CRtfTableCell::setAlign);
    table.property<CRtfTableCell>("Style", &CRtfTableCell::Style, &CRtfTableCell::setStyle);
    table.add<CRtfTableCell>("call asMarkedField", &CRtfTableCell::asMarkedField);
}

void addParagraphs(Table& table) {
    using Class = CRtfParagraph;
    table.collection<CRtfParagraphs>();
    table.add<Class>("get Parent", &Class::Parent);
    table.property<Class>("Text", &Class::Text, &Class::setText);
    table.property<Class>("Style", &Class::Style, &Class::setStyle);
    table.property<Class>("ForeColor", &Class::ForeColor, &Class::setForeColor);
    table.property<Class>("Align", &Class::Align, &Class::setAlign);
    table.add<Class>("call asMarkedField", &Class::asMarkedField);
}

void addDriver(Table& table) {
    using Class = CRtfDriver;
    table.add<Class>("call ParseFile", &Class::ParseFile);
    table.add<Class>("call ParseFromMemmory", &Class::ParseFromMemmory);
    table.add<Class>("call LoadStyleSheetFromMemmory", &Class::LoadStyleSheetFromMemmory);
    table.add<Class>("call Commit", &Class::Commit);
    table.property<Class>("ErroneousInput", &Class::ErroneousInput, &Class::setErroneousInput);
    table.property<Class>("notifyError", &Class::notifyError, &Class::setNotifyError);
    table.add<Class>("get Contents", &Class::Contents);
    table.add<Class>("get RtfObject", &Class::RtfObject);
    table.property<Class>("StyleSheetFile", &Class::StyleSheetFile, &Class::setStyleSheetFile);
}

const std::map<std::string, Member>& members() {
    static const std::map<std::string, Member> all = [] {
        Table table;
        addDocument(table);
        addTable(table);
        addParagraphs(table);
        addDriver(table);
        return table.takeMembers();
    }();
    return all;
}

}  // namespace

std::unique_ptr<Face> nativeFace() {
    return std::make_unique<NativeFace>();
}

std::vector<std::string> nativeMembers() {
    std::vector<std::string> names;
    for (const auto& [name, member] : members()) {
        names.push_back(name);
    }
    return names;
}

}  // namespace quorvane::host
