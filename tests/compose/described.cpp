#include "tests/compose/described.h"

#include <gtest/gtest.h>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/driver/CRtfDriver.h"

namespace quorvane {

std::string described(std::string_view body, std::string_view styleSheet) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->RtfObject()->setExtendedStyleSheets(true);
    if (!styleSheet.empty()) {
        driver->LoadStyleSheetFromMemmory(styleSheet);
    }
    driver->setReadsExtended(true);
    driver->setPictureSource([](const std::string&) { return logoPng(); });
    driver->setNotifyErrorHandler([](CRtfDriver&, const RtfError& error) {
        ADD_FAILURE() << error.line << ": " << error.description;
    });
    driver->ParseFromMemmory("; quorvane 2\n(doc\n" + std::string(body) + "doc)\n");
    return codePage1252FromUtf8(driver->Contents());
}

std::string logoPng() {
    using namespace std::string_literals;
    return "\x89PNG\r\n\x1a\n"s
           "\0\0\0\rIHDR\0\0\0\x01\0\0\0\x01\x08\x02\0\0\0\x90\x77\x53\xde"s
           "\0\0\0\x0cIDAT\x08\xd7\x63\xf8\xcf\xc0\0\0\x03\x01\x01\0\x18\xdd\x8d\xb0"s
           "\0\0\0\0IEND\xae\x42\x60\x82"s;
}

}  // namespace quorvane
