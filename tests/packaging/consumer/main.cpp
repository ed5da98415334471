// Uses the installed library from its lowest to its highest folder. Ends with 0 when it works.

#include <quorvane/quorvane.h>

#include <cstdio>
#include <string>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/driver/CRtfDriver.h"

int main() {
    const auto driver = quorvane::CRtfDriver::create();
    driver->LoadStyleSheetFromMemmory("{name: normal; style-def: s; format: \\f0\\fs24}");
    driver->ParseFromMemmory("(doc\n(r\n(c\n(p\n(pt=Good morning.)\np)\nc)\nr)\ndoc)\n");
    const std::string bytes = quorvane::codePage1252FromUtf8(driver->Contents());
    const bool hasText = bytes.find("Good morning.") != std::string::npos;
    const bool hasStyle = bytes.find("\\f0\\fs24") != std::string::npos;
    if (!hasText || !hasStyle || driver->RtfObject()->TableRows()->Count() != 1) {
        std::fputs(bytes.c_str(), stderr);
        return 1;
    }
    quorvane::Document document;
    document.addRow({"Good", "evening."}).setKeep();
    if (document.rtf().find("evening.\\cell") == std::string::npos) {
        std::fputs("the modern interface writes no text", stderr);
        return 1;
    }
    return 0;
}
