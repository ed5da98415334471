// documentAsJson DESCRIPTION STYLESHEET DOCUMENT: renders a description, and prints what the object
// model holds then.

#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/support/currentError.h"

namespace {

using namespace quorvane;
using nlohmann::json;

json cellOf(CRtfTableCell& cell) {
    json paragraphs = json::array();
    const Ref<CRtfParagraphs> list = cell.Paragraphs();
    for (std::int32_t i = 1; i <= list->Count(); ++i) {
        const Ref<CRtfParagraph> paragraph = list->Item(i);
        paragraphs.push_back({{"text", paragraph->Text()},
                              {"style", paragraph->Style()},
                              {"color", std::int32_t{paragraph->ForeColor()}},
                              {"align", std::int32_t{paragraph->Align()}}});
    }
    return {{"style", cell.Style()},
            {"fill", std::int32_t{cell.BackColor()}},
            {"width", cell.Width(eTwips)},
            {"borders",
             {std::int32_t{cell.TopBorder()}, std::int32_t{cell.RightBorder()},
              std::int32_t{cell.BottomBorder()}, std::int32_t{cell.LeftBorder()}}},
            {"paragraphs", paragraphs}};
}

json rowsOf(const CRtfDoc& document) {
    json rows = json::array();
    const Ref<CRtfTableRows> list = document.TableRows();
    for (std::int32_t i = 1; i <= list->Count(); ++i) {
        const Ref<CRtfTableCells> cells = list->Item(i)->TableCells();
        json row = json::array();
        for (std::int32_t j = 1; j <= cells->Count(); ++j) {
            row.push_back(cellOf(*cells->Item(j)));
        }
        rows.push_back(row);
    }
    return rows;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 4) {
        std::cerr << "documentAsJson DESCRIPTION STYLESHEET DOCUMENT\n";
        return 2;
    }
    try {
        int errors = 0;
        const Ref<CRtfDriver> driver = CRtfDriver::create();
        driver->setNotifyErrorHandler([&errors](CRtfDriver&) {
            std::cerr << currentError()->what() << "\n";
            ++errors;
        });
        driver->setStyleSheetFile(arguments[2]);
        driver->ParseFile(arguments[1]);
        driver->Commit(arguments[3]);
        std::cout << rowsOf(*driver->RtfObject()) << "\n";
        driver->setNotifyErrorHandler({});
        return errors == 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
