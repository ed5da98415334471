#include <gmock/gmock.h>
#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

#include <string>
#include <thread>
#include <vector>

#include "tests/com/host/ComObject.h"
#include "tests/com/host/ComPtr.h"
#include "tests/com/host/Component.h"
#include "tests/com/host/EventConnection.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/Outcome.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Events : public testing::Test {
protected:
    /// Analyzes a text that is not a description: its one error is that the doc node is missing.
    void parseRejectedText() const {
        EXPECT_EQ(driver_->ParseFromMemmory(Bstr(L"nothing").get()), S_OK);
    }
    ComPtr<IConnectionPoint> point() const {
        ComPtr<IConnectionPoint> point;
        driver_.as<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__CRtfDriver),
                                                                     point.out());
        return point;
    }
    EventHandler recording(std::vector<HostError>& errors) const {
        return [&errors](const std::wstring&, DISPPARAMS&) {
            errors.push_back(takeErrorObject(S_OK));
            return S_OK;
        };
    }
    EventHandler counting(int& count) const {
        return [&count](const std::wstring&, DISPPARAMS&) {
            ++count;
            return S_OK;
        };
    }

    Component component_;
    ComPtr<_CRtfDriver> driver_ = component_.create<_CRtfDriver>(__uuidof(::CRtfDriver));
};

TEST_F(Events, AreFoundThroughTheClass) {
    const auto provider = driver_.as<IProvideClassInfo2>();
    GUID events{};
    ComPtr<ITypeInfo> info;
    Bstr name;

    EXPECT_EQ(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_TRUE(IsEqualGUID(events, __uuidof(__CRtfDriver)));
    ASSERT_EQ(provider->GetClassInfo(info.out()), S_OK);
    info->GetDocumentation(MEMBERID_NIL, name.out(), nullptr, nullptr, nullptr);
    EXPECT_EQ(name.utf8(), "CRtfDriver");
    EXPECT_TRUE(FAILED(provider->GetGUID(99, &events)));
}

TEST_F(Events, AreNoneOfADocument) {
    const auto document = component_.create<_CRtfDoc>(__uuidof(::CRtfDoc));
    GUID events{};

    EXPECT_TRUE(FAILED(
        document.as<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events)));
    EXPECT_FALSE(document.as<IConnectionPointContainer>());
}

TEST_F(Events, PassTheirNameAndTheirSender) {
    std::vector<std::wstring> names;
    ComPtr<IUnknown> sender;
    const EventConnection connection(
        driver_.get(), [&](const std::wstring& name, DISPPARAMS& arguments) {
            names.push_back(name);
            EXPECT_EQ(arguments.cArgs, 1U);
            EXPECT_EQ(arguments.rgvarg[0].vt, VT_DISPATCH);
            sender = ComPtr<IDispatch>(arguments.rgvarg[0].pdispVal).as<IUnknown>();
            return S_OK;
        });
    ASSERT_EQ(connection.outcome(), S_OK);

    parseRejectedText();

    EXPECT_THAT(names, testing::Each(L"notifyError"));
    EXPECT_THAT(names, testing::Not(IsEmpty()));
    EXPECT_EQ(sender.get(), driver_.as<IUnknown>().get());
}

TEST_F(Events, ShowThePendingErrorToEverySink) {
    std::vector<HostError> first;
    std::vector<HostError> second;
    const EventConnection one(driver_.get(), recording(first));
    const EventConnection two(driver_.get(), recording(second));

    parseRejectedText();

    ASSERT_THAT(first, testing::Not(IsEmpty()));
    EXPECT_EQ(first[0].description, "The provided file isn't a correct rtfspec file.");
    EXPECT_FALSE(first[0].source.empty());
    EXPECT_EQ(static_cast<HRESULT>(first[0].helpContext),
              static_cast<HRESULT>(0x80040000 + eWrongFileType));
    EXPECT_EQ(second, first);
}

TEST_F(Events, LeaveNoErrorBehind) {
    int count = 0;
    const EventConnection connection(driver_.get(), counting(count));

    parseRejectedText();

    ComPtr<IErrorInfo> left;
    EXPECT_GT(count, 0);
    EXPECT_EQ(GetErrorInfo(0, left.out()), S_FALSE);
}

TEST_F(Events, CanBeSwitchedOff) {
    int count = 0;
    const EventConnection connection(driver_.get(), counting(count));
    driver_->put_notifyError(VARIANT_FALSE);
    parseRejectedText();
    EXPECT_EQ(count, 0);

    driver_->put_notifyError(VARIANT_TRUE);
    parseRejectedText();
    EXPECT_GT(count, 0);
}

TEST_F(Events, EndWithTheConnection) {
    int ended = 0;
    int kept = 0;
    EventConnection first(driver_.get(), counting(ended));
    const EventConnection second(driver_.get(), counting(kept));

    EXPECT_EQ(first.end(), S_OK);
    parseRejectedText();

    EXPECT_EQ(ended, 0);
    EXPECT_GT(kept, 0);
}

TEST_F(Events, CanEndTheirConnectionWhileTheyLast) {
    int count = 0;
    int others = 0;
    EventConnection connection(driver_.get(), [&](const std::wstring&, DISPPARAMS&) {
        ++count;
        connection.end();
        return S_OK;
    });
    const EventConnection other(driver_.get(), counting(others));

    parseRejectedText();
    parseRejectedText();

    EXPECT_EQ(count, 1);
    EXPECT_GT(others, 1);
}

TEST_F(Events, CanEndAnothersConnectionWhileTheyLast) {
    int others = 0;
    EventConnection other;
    const EventConnection first(driver_.get(), [&](const std::wstring&, DISPPARAMS&) {
        other.end();
        return S_OK;
    });
    other = EventConnection(driver_.get(), counting(others));

    parseRejectedText();

    EXPECT_EQ(others, 0);
}

TEST_F(Events, CanConnectAnotherSinkWhileTheyLast) {
    int others = 0;
    EventConnection other;
    const EventConnection first(driver_.get(), [&](const std::wstring&, DISPPARAMS&) {
        if (other.outcome() == S_FALSE) {
            other = EventConnection(driver_.get(), counting(others));
        }
        return S_OK;
    });
    parseRejectedText();
    others = 0;

    parseRejectedText();

    EXPECT_GT(others, 0);
}

TEST_F(Events, LetTheSinkUseTheDriver) {
    std::vector<HostError> errors;
    std::string contents;
    const EventConnection first(driver_.get(), [&](const std::wstring&, DISPPARAMS& arguments) {
        const LateBound sender(ComPtr<IDispatch>(arguments.rgvarg[0].pdispVal));
        contents = sender.get("Contents").value.text();
        EXPECT_EQ(sender.call("ParseFile", {""}).error.description, "Path is empty!");
        return S_OK;
    });
    const EventConnection second(driver_.get(), recording(errors));

    parseRejectedText();

    EXPECT_EQ(contents.front(), '{');
    ASSERT_THAT(errors, testing::Not(IsEmpty()));
    EXPECT_EQ(errors[0].description, "The provided file isn't a correct rtfspec file.");
}

TEST_F(Events, MayReleaseTheDriver) {
    class Releasing : public ComObject<IDispatch> {
    public:
        explicit Releasing(ComPtr<_CRtfDriver>& driver) : driver_(driver) {}
        HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*,
                                         EXCEPINFO*, UINT*) override {
            driver_.reset();
            return S_OK;
        }

    private:
        ComPtr<_CRtfDriver>& driver_;
    };
    DWORD cookie = 0;
    ASSERT_EQ(point()->Advise(makeCom<Releasing>(driver_).get(), &cookie), S_OK);

    EXPECT_EQ(driver_.get()->ParseFromMemmory(Bstr(L"nothing").get()), S_OK);

    EXPECT_FALSE(driver_);
    EXPECT_EQ(component_.canUnloadNow(), S_OK);
}

TEST_F(Events, LetASinkComeBackToADriverThatEnds) {
    /// Keeps a driver that it does not count, as one that the driver keeps itself must.
    class Returning : public ComObject<IDispatch> {
    public:
        Returning(_CRtfDriver* driver, IConnectionPoint* point, HRESULT& outcome)
            : driver_(driver), point_(point), outcome_(outcome) {}
        ~Returning() override {
            driver_->AddRef();
            outcome_ = point_->Unadvise(1);
            driver_->Release();
        }
        HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
        HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
            return E_NOTIMPL;
        }
        HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*,
                                         EXCEPINFO*, UINT*) override {
            return S_OK;
        }

    private:
        _CRtfDriver* driver_;
        IConnectionPoint* point_;
        HRESULT& outcome_;
    };
    DWORD cookie = 0;
    HRESULT outcome = S_OK;
    IConnectionPoint* uncounted = point().get();
    ASSERT_EQ(
        uncounted->Advise(makeCom<Returning>(driver_.get(), uncounted, outcome).get(), &cookie),
        S_OK);
    ASSERT_EQ(cookie, 1U);

    driver_.reset();

    EXPECT_EQ(outcome, CONNECT_E_NOCONNECTION);
    EXPECT_EQ(component_.canUnloadNow(), S_OK);
}

TEST_F(Events, IgnoreWhatASinkReturns) {
    int count = 0;
    const EventConnection failing(driver_.get(),
                                  [](const std::wstring&, DISPPARAMS&) { return E_FAIL; });
    const EventConnection connection(driver_.get(), counting(count));

    parseRejectedText();

    EXPECT_GT(count, 0);
}

TEST_F(Events, HaveOneConnectionPoint) {
    const auto container = driver_.as<IConnectionPointContainer>();
    ComPtr<IEnumConnectionPoints> points;
    ComPtr<IConnectionPoint> only;
    ComPtr<IConnectionPoint> more;
    ComPtr<IConnectionPointContainer> owner;
    IID events{};
    ULONG fetched = 0;

    ASSERT_EQ(container->EnumConnectionPoints(points.out()), S_OK);
    EXPECT_EQ(points->Next(1, only.out(), &fetched), S_OK);
    EXPECT_EQ(points->Next(1, more.out(), &fetched), S_FALSE);
    EXPECT_EQ(only.as<IUnknown>().get(), point().as<IUnknown>().get());
    EXPECT_EQ(only->GetConnectionInterface(&events), S_OK);
    EXPECT_TRUE(IsEqualGUID(events, __uuidof(__CRtfDriver)));
    EXPECT_EQ(only->GetConnectionPointContainer(owner.out()), S_OK);
    EXPECT_EQ(owner.as<IUnknown>().get(), driver_.as<IUnknown>().get());
    EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, more.out()), CONNECT_E_NOCONNECTION);
    EXPECT_FALSE(more);
}

TEST_F(Events, ListTheirConnections) {
    int count = 0;
    const EventConnection one(driver_.get(), counting(count));
    EventConnection two(driver_.get(), counting(count));
    const auto connections = [this] {
        ComPtr<IEnumConnections> enumerator;
        std::vector<DWORD> cookies;
        CONNECTDATA data{};
        EXPECT_EQ(point()->EnumConnections(enumerator.out()), S_OK);
        while (enumerator->Next(1, &data, nullptr) == S_OK) {
            EXPECT_NE(data.pUnk, nullptr);
            data.pUnk->Release();
            cookies.push_back(data.dwCookie);
        }
        return cookies;
    };

    EXPECT_EQ(connections().size(), 2U);
    EXPECT_NE(connections()[0], connections()[1]);
    two.end();
    EXPECT_EQ(connections().size(), 1U);
}

TEST_F(Events, RefuseWhatIsNotAConnection) {
    DWORD cookie = 99;
    class Deaf : public ComObject<IUnknown> {};

    EXPECT_EQ(point()->Unadvise(4711), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(point()->Unadvise(0), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(point()->Advise(makeCom<Deaf>().get(), &cookie), CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(cookie, 0U);
    EXPECT_EQ(point()->Advise(nullptr, &cookie), E_POINTER);
    EXPECT_EQ(point()->Advise(makeCom<Deaf>().get(), nullptr), E_POINTER);
}

TEST_F(Events, NeedAPlaceForEveryResult) {
    const ComPtr<IConnectionPointContainer> container = driver_.as<IConnectionPointContainer>();
    EXPECT_EQ(container->EnumConnectionPoints(nullptr), E_POINTER);
    EXPECT_EQ(container->FindConnectionPoint(__uuidof(__CRtfDriver), nullptr), E_POINTER);
    EXPECT_EQ(point()->GetConnectionInterface(nullptr), E_POINTER);
    EXPECT_EQ(point()->GetConnectionPointContainer(nullptr), E_POINTER);
    EXPECT_EQ(point()->EnumConnections(nullptr), E_POINTER);
    EXPECT_EQ(point()->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(Events, NeverUseANumberOfAConnectionTwice) {
    int count = 0;
    DWORD first = 0;
    {
        const EventConnection one(driver_.get(), counting(count));
        ComPtr<IEnumConnections> enumerator;
        CONNECTDATA data{};
        point()->EnumConnections(enumerator.out());
        ASSERT_EQ(enumerator->Next(1, &data, nullptr), S_OK);
        data.pUnk->Release();
        first = data.dwCookie;
    }
    const EventConnection two(driver_.get(), counting(count));

    EXPECT_NE(first, 0U);
    EXPECT_EQ(point()->Unadvise(first), CONNECT_E_NOCONNECTION);
}

/// Handles the event in the apartment of the thread that made it.
class RecordingSink : public ComObject<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override {
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        ComPtr<IErrorInfo> error;
        thread = GetCurrentThreadId();
        errorObject = GetErrorInfo(0, error.out());
        return S_OK;
    }

    DWORD thread = 0;
    HRESULT errorObject = E_UNEXPECTED;
};

// Calls of other apartments come as messages.
void handleMessagesUntil(HANDLE event) {
    while (MsgWaitForMultipleObjects(1, &event, FALSE, 30000, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageW(&message);
        }
    }
}

/// A thread with an apartment of its own and a sink in it, which ends with this object.
class ThreadWithSink {
public:
    ThreadWithSink() : thread_([this] { run(); }) { WaitForSingleObject(ready_, INFINITE); }
    ThreadWithSink(const ThreadWithSink&) = delete;
    ThreadWithSink& operator=(const ThreadWithSink&) = delete;
    ~ThreadWithSink() {
        end();
        CloseHandle(ready_);
        CloseHandle(end_);
    }

    /// The sink, for the calling thread.
    ComPtr<IDispatch> proxy() {
        ComPtr<IDispatch> proxy;
        CoGetInterfaceAndReleaseStream(stream_, IID_IDispatch, proxy.outVoid());
        return proxy;
    }
    void end() {
        if (thread_.joinable()) {
            SetEvent(end_);
            thread_.join();
        }
    }

    DWORD id = 0;
    DWORD calledOn = 0;
    HRESULT errorObject = E_UNEXPECTED;

private:
    void run() {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        auto* const sink = new RecordingSink;
        CoMarshalInterThreadInterfaceInStream(IID_IDispatch, sink, &stream_);
        SetEvent(ready_);
        handleMessagesUntil(end_);
        id = GetCurrentThreadId();
        calledOn = sink->thread;
        errorObject = sink->errorObject;
        sink->Release();
        CoUninitialize();
    }

    HANDLE ready_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE end_ = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    IStream* stream_ = nullptr;
    std::thread thread_;
};

TEST_F(Events, ReachAnotherApartmentWithoutTheErrorObject) {
    ThreadWithSink other;
    DWORD cookie = 0;
    {
        const ComPtr<IDispatch> proxy = other.proxy();
        ASSERT_EQ(point()->Advise(proxy.get(), &cookie), S_OK);
        parseRejectedText();
        EXPECT_EQ(point()->Unadvise(cookie), S_OK);
    }
    other.end();

    EXPECT_EQ(other.calledOn, other.id);
    EXPECT_EQ(other.errorObject, S_FALSE);
}

}  // namespace
}  // namespace quorvane::host
