#include <gmock/gmock.h>
#include <windows.h>
#include <xmmintrin.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/EventConnection.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// Settings of the floating-point unit for a host that lets invalid operations, divisions by zero
/// and overflows raise exceptions, and rounds up. An exception that is raised ends the test
/// program.
class TrappingArithmetic {
public:
    TrappingArithmetic() {
        __asm__ volatile("fnstcw %0" : "=m"(coprocessor_));
        const auto trapping = static_cast<unsigned short>((coprocessor_ & ~0x0DU) | 0x0800U);
        __asm__ volatile("fnclex; fldcw %0" : : "m"(trapping));
        _mm_setcsr(control);
    }
    TrappingArithmetic(const TrappingArithmetic&) = delete;
    TrappingArithmetic& operator=(const TrappingArithmetic&) = delete;
    ~TrappingArithmetic() {
        _mm_setcsr(before_);
        __asm__ volatile("fnclex; fldcw %0" : : "m"(coprocessor_));
    }

    /// True while the settings are these, and nothing was recorded of what others computed.
    static bool isSet() {
        unsigned short coprocessor = 0;
        __asm__ volatile("fnstcw %0" : "=m"(coprocessor));
        return _mm_getcsr() == control && (coprocessor & 0x0C0DU) == 0x0800U;
    }

private:
    static constexpr unsigned control = (0x1F80U & ~0x0680U) | 0x4000U;

    unsigned before_ = _mm_getcsr();
    unsigned short coprocessor_ = 0;
};

const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

/// What a host does with numbers that lead to exceptions where those are not masked; the results.
class FloatingPoint : public testing::Test {
protected:
    using Answers = std::vector<HRESULT>;

    void SetUp() override {
        rows_.call("AddTail", {"row"});
        const LateBound cells = rows_.object("Item", {1}).object("TableCells");
        cells.call("AddTail");
        cells.call("AddTail");
        cell_ = cells.object("Item", {1});
        cell_.object("Paragraphs").call("AddTail");
    }

    /// Every member that takes a number of any kind, with this one.
    Answers callAll(const Variant& number) const {
        const Variant text("1e999");
        const LateBound row = rows_.object("Item", {"row"});
        const LateBound cells = row.object("TableCells");
        const LateBound paragraphs = cell_.object("Paragraphs");
        const LateBound paragraph = paragraphs.object("Item", {1});
        Answers answers;
        const auto note = [&answers](const Outcome& outcome) {
            answers.push_back(outcome.error.number);
        };
        for (const LateBound& collection : {rows_, cells, paragraphs}) {
            note(collection.get("Item", {number}));
            note(collection.call("Remove", {number}));
            note(collection.call("add", {Variant::missing(), number}));
            note(collection.call("add", {Variant::missing(), Variant::missing(), number}));
            note(collection.call("AddTail", {number}));
            note(collection.call("AddHead", {number}));
        }
        for (const char* name : {"BottomMargin", "TopMargin", "LeftMargin", "RightMargin",
                                 "PageNumberStart", "PageHeight", "PageWidth"}) {
            note(document_.set(name, {number}));
            note(document_.set(name, {text}));
        }
        for (const LateBound& bordered : {row, cell_}) {
            for (const char* name :
                 {"BottomBorder", "TopBorder", "LeftBorder", "RightBorder", "BackColor"}) {
                note(bordered.set(name, {number}));
            }
        }
        for (const LateBound& aligned : {cell_, paragraph}) {
            note(aligned.set("Align", {number}));
            note(aligned.call("asMarkedField", {number}));
        }
        note(paragraph.set("ForeColor", {number}));
        note(cell_.set("Width", {0, number}));
        note(cell_.set("Width", {number, 5}));
        note(cell_.get("Width", {number}));
        return answers;
    }

    /// The same early bound, where a number of any kind can be given.
    Answers callEarlyBound(const Variant& number) const {
        const auto rows = ComPtr<IDispatch>(rows_.get()).as<_CRtfTableRows>();
        ComPtr<_CRtfTableRow> row;
        Variant variable(number);
        Variant none = Variant::missing();
        return {rows->get_Item(number.get(), row.out()), rows->Remove(number.get()),
                rows->add(none.reference(), variable.reference(), none.reference()),
                rows->AddTail(variable.reference())};
    }

    Component component_;
    LateBound document_{component_.create<IDispatch>(__uuidof(::CRtfDoc))};
    LateBound rows_ = document_.object("TableRows");
    LateBound cell_{ComPtr<IDispatch>()};
};

TEST_F(FloatingPoint, MayTrapWhateverNumberIsGiven) {
    for (const Variant& number :
         {Variant(notANumber), Variant(-notANumber), Variant(infinity), Variant(-infinity),
          Variant(1e300), Variant(-1e300), Variant(4294967296.0), Variant(1e-310),
          Variant::ofType(VT_R4, 0x7FC00000), Variant::ofType(VT_R4, 0x7F800000),
          Variant::ofType(VT_R4, 0x7F800001), Variant::ofType(VT_R8, 0x7FF0000000000001),
          Variant::ofType(VT_DATE, 0x7FF8000000000000)}) {
        const Answers expected = callAll(number);
        const Answers expectedEarly = callEarlyBound(number);
        Answers answers;
        Answers early;
        bool isSet = false;
        {
            const TrappingArithmetic trapping;
            answers = callAll(number);
            early = callEarlyBound(number);
            isSet = TrappingArithmetic::isSet();
        }

        EXPECT_EQ(answers, expected) << describe(number.get());
        EXPECT_EQ(early, expectedEarly) << describe(number.get());
        EXPECT_TRUE(isSet) << describe(number.get());
    }
}

TEST_F(FloatingPoint, IsLeftAloneByPropertiesThatAreStored) {
    cell_.set("Width", {0, 33});
    const LateBound driver(component_.create<IDispatch>(__uuidof(::CRtfDriver)));
    const LateBound row = rows_.object("Item", {1});
    const LateBound paragraph = cell_.object("Paragraphs").object("Item", {1});
    const auto read = [&] {
        std::vector<std::string> values;
        const auto add = [&values](const LateBound& object, std::vector<const char*> names) {
            for (const char* name : names) {
                values.push_back(describe(object.get(name).value.get()));
            }
        };
        add(document_, {"Changed", "StyleSheetOk", "BottomMargin", "TopMargin", "LeftMargin",
                        "RightMargin", "PageNumberStart", "PageHeight", "PageWidth"});
        for (const LateBound& bordered : {row, cell_}) {
            add(bordered, {"BottomBorder", "TopBorder", "LeftBorder", "RightBorder", "BackColor"});
        }
        add(cell_, {"Align"});
        add(paragraph, {"Align", "ForeColor"});
        add(rows_, {"Count"});
        add(driver, {"ErroneousInput", "notifyError"});
        return values;
    };
    const std::vector<std::string> expected = read();
    std::vector<std::string> actual;
    bool isSet = false;
    {
        const TrappingArithmetic trapping;
        actual = read();
        isSet = TrappingArithmetic::isSet();
    }

    EXPECT_EQ(actual, expected);
    EXPECT_TRUE(isSet);
}

TEST_F(FloatingPoint, OfItemWithoutANumberIsAnInvalidArgument) {
    HRESULT answer = S_OK;
    {
        const TrappingArithmetic trapping;
        answer = rows_.get("Item", {notANumber}).error.number;
    }

    EXPECT_EQ(answer, runTimeError(5));
}

TEST_F(FloatingPoint, MayRoundInAnotherWay) {
    const auto widths = [this] {
        document_.set("PageWidth", {12242});
        cell_.set("Width", {0, 33});
        const Outcome first = cell_.get("Width", {1});
        document_.set("PageWidth", {9000.5});
        const Outcome second = document_.get("PageWidth");
        return std::vector<long>{first.value.get().lVal, second.value.get().lVal};
    };
    const std::vector<long> expected = widths();
    std::vector<long> actual;
    {
        const TrappingArithmetic trapping;
        actual = widths();
    }

    EXPECT_EQ(actual, expected);
}

TEST_F(FloatingPoint, MayTrapInAnAnalysis) {
    const auto driver = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
    const Bstr description(
        L"(doc\n(paper-width=1e999)\n(paper-height=1e-999)\n(left-margin=0.1)\n(row\n(cell\n"
        L"(cell-width=33.3)\ncell)\n(cell\n(cell-width=1e300)\ncell)\nrow)\ndoc)");
    const auto analyze = [&] {
        Bstr contents;
        driver->ParseFromMemmory(description.get());
        driver->get_Contents(contents.out());
        return contents.utf8();
    };
    const std::string expected = analyze();
    std::string actual;
    {
        const TrappingArithmetic trapping;
        actual = analyze();
    }

    EXPECT_EQ(actual, expected);
}

TEST_F(FloatingPoint, IsTheHostsInAHandlerOfTheEvent) {
    const auto driver = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
    const Bstr nothing(L"nothing");
    int events = 0;
    int asSet = 0;
    bool isSetAfterwards = false;
    const EventConnection connection(driver.get(), [&](const std::wstring&, DISPPARAMS&) {
        ++events;
        asSet += TrappingArithmetic::isSet() ? 1 : 0;
        driver->ParseFile(nothing.get());
        return S_OK;
    });
    {
        const TrappingArithmetic trapping;
        driver->ParseFromMemmory(nothing.get());
        isSetAfterwards = TrappingArithmetic::isSet();
    }

    EXPECT_GT(events, 0);
    EXPECT_EQ(asSet, events);
    EXPECT_TRUE(isSetAfterwards);
}

}  // namespace
}  // namespace quorvane::host
