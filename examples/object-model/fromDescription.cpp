// Makes a document from a description and a stylesheet, and works on it:
// fromDescription DESCRIPTION STYLESHEET FILE

#include <iostream>

#include "quorvane/driver/CRtfDriver.h"

int main(int argc, char** argv) {
    using namespace quorvane;
    if (argc != 4) {
        std::cerr << "usage: fromDescription DESCRIPTION STYLESHEET FILE\n";
        return 2;
    }
    const auto driver = CRtfDriver::create();
    driver->setErroneousInput(true);
    int errors = 0;
    driver->setNotifyErrorHandler([&errors](CRtfDriver&, const RtfError& error) {
        ++errors;
        std::cerr << "line " << error.line << ": " << error.description << '\n';
    });
    try {
        driver->setStyleSheetFile(argv[2]);
        driver->ParseFile(argv[1]);
        if (errors > 0) {
            return 1;
        }
        // The first row has the key 1001.
        const auto row = driver->RtfObject()->TableRows()->Item("1001");
        row->TableCells()->Item(1)->Paragraphs()->Item(1)->setForeColor(eSteelBlue);
        driver->Commit(argv[3]);
    } catch (const RtfError& error) {
        std::cerr << error.description << '\n';
        return 1;
    }
}
