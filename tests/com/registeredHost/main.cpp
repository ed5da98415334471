// A host of the registered component: creates its objects by name, calls them early and late bound,
// and from threads of other apartments. Prints what does not work; the exit status is the number of
// such things.

#include <windows.h>

#include <cstdio>
#include <string>

#include "tests/com/host/ComPtr.h"
#include "tests/com/host/LateBound.h"
#include "tests/com/host/Outcome.h"
#include "tests/com/host/Thread.h"
#include "tests/com/host/interfaces.h"
#include "tests/com/host/text.h"

namespace quorvane::host {
namespace {

int failures = 0;

void expect(bool condition, const std::string& what) {
    if (!condition) {
        std::printf("%s\n", what.c_str());
        ++failures;
    }
}

void expectSuccess(HRESULT result, const std::string& what) {
    char number[16];
    std::snprintf(number, sizeof number, ": %08lX", static_cast<unsigned long>(result));
    expect(result == S_OK, what + number);
}

template <class Interface>
ComPtr<Interface> create(const wchar_t* programId) {
    CLSID id{};
    ComPtr<Interface> object;
    expectSuccess(CLSIDFromProgID(programId, &id), "the class of " + utf8Text(programId));
    expectSuccess(
        CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), object.outVoid()),
        "an object of " + utf8Text(programId));
    return object;
}

void callEarlyBound() {
    const auto document = create<_CRtfDoc>(L"Quorvane.CRtfDoc");
    const auto driver = create<_CRtfDriver>(L"Quorvane.CRtfDriver.1");
    LONG width = 0;
    if (document && driver) {
        expectSuccess(document->put_PageWidth(9000), "PageWidth = 9000");
        expectSuccess(document->get_PageWidth(&width), "PageWidth");
        expect(width == 9000, "PageWidth is another");
        expectSuccess(driver->ParseFromMemmory(Bstr(L"(doc\n(r\n(c\nc)\nr)\ndoc)").get()),
                      "ParseFromMemmory");
    }
}

void callLateBound() {
    const auto object = create<IDispatch>(L"Quorvane.CRtfDoc");
    if (object) {
        const LateBound document(object);
        expect(document.set("PageWidth", {9000}).succeeded(), "PageWidth = 9000, late bound");
        expect(document.get("PageWidth").value.number() == 9000, "PageWidth, late bound");
    }
}

/// What a thread of another apartment does with a document.
void callFromOutside(_CRtfDoc* document, const std::string& whose) {
    ComPtr<_CRtfTableRows> rows;
    ComPtr<_CRtfTableRow> row;
    Variant key("key");
    LONG count = 0;
    expectSuccess(document->put_PageWidth(8000), "PageWidth" + whose);
    expectSuccess(document->get_TableRows(rows.out()), "TableRows" + whose);
    if (rows) {
        expectSuccess(rows->AddTail(key.reference()), "AddTail" + whose);
        expectSuccess(rows->get_Count(&count), "Count" + whose);
        expectSuccess(rows->get_Item(key.get(), row.out()), "Item" + whose);
        expect(count == 1, "Count is another" + whose);
        expect(rows->get_Item(Variant(7).get(), row.out()) == runTimeError(5),
               "the error of Item" + whose);
    }
}

void callFrom(Thread::Apartment apartment, const std::string& whose) {
    const auto document = create<_CRtfDoc>(L"Quorvane.CRtfDoc");
    ComPtr<IStream> stream;
    LONG width = 0;
    if (!document) {
        return;
    }
    const HRESULT marshalled =
        CoMarshalInterThreadInterfaceInStream(__uuidof(_CRtfDoc), document.get(), stream.out());
    expectSuccess(marshalled, "marshalling" + whose);
    if (FAILED(marshalled)) {
        return;
    }
    const Thread thread(
        [&] {
            ComPtr<_CRtfDoc> outside;
            const HRESULT result = CoGetInterfaceAndReleaseStream(
                stream.detach(), __uuidof(_CRtfDoc), outside.outVoid());
            expectSuccess(result, "unmarshalling" + whose);
            if (SUCCEEDED(result)) {
                callFromOutside(outside.get(), whose);
            }
        },
        apartment);
    thread.waitWithCalls();
    document->get_PageWidth(&width);
    expect(width == 8000, "PageWidth is another" + whose);
}

}  // namespace
}  // namespace quorvane::host

int main() {
    using namespace quorvane::host;
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    callEarlyBound();
    callLateBound();
    callFrom(Thread::Apartment::MultiThreaded, " for free threads");
    callFrom(Thread::Apartment::SingleThreaded, " for another apartment");
    CoUninitialize();
    return failures;
}
