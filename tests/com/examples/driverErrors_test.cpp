#include <gtest/gtest.h>
#include <windows.h>

#include <regex>
#include <string>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/EventConnection.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

/// The class of the example in Visual Basic that listens to the event. It cannot be run in Wine;
/// the calls that it makes can.
class DriverErrors : public testing::Test {
protected:
    /// What stands in the source in the place of the pattern's group.
    std::string written(const std::string& pattern) const {
        std::smatch found;
        return std::regex_search(source_, found, std::regex(pattern)) ? found[1].str() : "";
    }

    /// Calls the member as the source's ReadMember does.
    HRESULT readMember(IErrorInfo* info, const std::string& variable, void* target) const {
        const int place =
            std::stoi(written("ReadMember info, ([0-9]+), VarPtr\\(" + variable + "\\)"));
        VARIANT argument;
        VariantInit(&argument);
#ifdef _WIN64
        VARTYPE type = VT_I8;
        V_I8(&argument) = reinterpret_cast<LONGLONG>(target);
#else
        VARTYPE type = VT_I4;
        V_I4(&argument) = reinterpret_cast<LONG>(target);
#endif
        V_VT(&argument) = type;
        VARIANT* arguments = &argument;
        VARIANT result;
        VariantInit(&result);
        const auto convention =
            static_cast<CALLCONV>(std::stoi(written("standardCall As Long = ([0-9]+)")));
        const HRESULT called = DispCallFunc(info, static_cast<ULONG_PTR>(place) * sizeof arguments,
                                            convention, VT_I4, 1, &type, &arguments, &result);
        return FAILED(called) ? called : V_I4(&result);
    }

    std::string source_ =
        bytesOfFile(wideText(std::string(QUORVANE_EXAMPLES) + "/DriverErrors.cls"));
    Component component_;
    ComPtr<_CRtfDriver> driver_ = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
};

TEST_F(DriverErrors, ListensToTheDriversEvent) {
    std::wstring event;
    const EventConnection connection(driver_.get(), [&](const std::wstring& name, DISPPARAMS&) {
        event = name;
        return S_OK;
    });

    driver_->ParseFromMemmory(Bstr(L"nothing").get());

    EXPECT_EQ(
        wideText(written("Private Sub driver_(\\w+)\\(ByVal Sender As Quorvane.CRtfDriver\\)")),
        event);
}

TEST_F(DriverErrors, ReadsSourceDescriptionAndNumberOfTheErrorObject) {
    Bstr source;
    Bstr description;
    LONG number = 0;
    Bstr expectedSource;
    const EventConnection connection(driver_.get(), [&](const std::wstring&, DISPPARAMS&) {
        if (number != 0) {
            return S_OK;
        }
        ComPtr<IErrorInfo> info;
        EXPECT_EQ(GetErrorInfo(0, info.out()), S_OK);
        EXPECT_EQ(readMember(info.get(), "source", source.out()), S_OK);
        EXPECT_EQ(readMember(info.get(), "description", description.out()), S_OK);
        EXPECT_EQ(readMember(info.get(), "number", &number), S_OK);
        EXPECT_EQ(info->GetSource(expectedSource.out()), S_OK);
        return S_OK;
    });

    driver_->ParseFromMemmory(Bstr(L"nothing").get());

    EXPECT_NE(source.utf8(), "");
    EXPECT_EQ(source.utf8(), expectedSource.utf8());
    EXPECT_EQ(description.utf8(), "The provided file isn't a correct rtfspec file.");
    EXPECT_EQ(number, static_cast<LONG>(0x80040000 + eWrongFileType));
}

}  // namespace
}  // namespace quorvane::host
