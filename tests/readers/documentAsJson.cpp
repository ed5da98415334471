// documentAsJson DESCRIPTION STYLESHEET DOCUMENT: renders a description, and prints what the object
// model holds then.

#include <iostream>
#include <nlohmann/json.hpp>
#include <regex>
#include <string>
#include <string_view>

#include "quorvane/driver/CRtfDriver.h"

namespace {

using namespace quorvane;
using nlohmann::json;

/// The parts of a paragraph's text, cut at its inline styles, with the control words that give
/// their format.
json partsOf(const CRtfDoc& document, const CRtfParagraph& paragraph) {
    json parts = json::array();
    const std::string words(document.GetParagraphStyle(paragraph.Style()));
    const std::string color =
        paragraph.ForeColor() != 0 ? "\\cf" + std::to_string(paragraph.ForeColor()) : "";
    const auto add = [&](const std::string& text, std::string_view moreWords) {
        parts.push_back({{"text", text}, {"words", words + color + std::string(moreWords)}});
    };
    std::string rest = paragraph.Text();
    std::smatch token;
    while (std::regex_search(rest, token, std::regex("<([A-Za-z][^=<>]*)=([^<>]*)>"))) {
        add(token.prefix(), "");
        add(token[2], document.GetCharacterStyle(token[1].str()));
        rest = token.suffix().str();
    }
    add(rest, "");
    return parts;
}

json cellOf(const CRtfDoc& document, CRtfTableCell& cell) {
    json paragraphs = json::array();
    const Ref<CRtfParagraphs> list = cell.Paragraphs();
    for (std::int32_t i = 1; i <= list->Count(); ++i) {
        const Ref<CRtfParagraph> paragraph = list->Item(i);
        paragraphs.push_back({{"text", paragraph->Text()},
                              {"style", paragraph->Style()},
                              {"parts", partsOf(document, *paragraph)},
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

json pageOf(const CRtfDoc& document) {
    return {{"page-width", document.PageWidth()},       {"page-height", document.PageHeight()},
            {"margin-top", document.TopMargin()},       {"margin-right", document.RightMargin()},
            {"margin-bottom", document.BottomMargin()}, {"margin-left", document.LeftMargin()}};
}

json rowsOf(const CRtfDoc& document) {
    json rows = json::array();
    const Ref<CRtfTableRows> list = document.TableRows();
    for (std::int32_t i = 1; i <= list->Count(); ++i) {
        const Ref<CRtfTableCells> cells = list->Item(i)->TableCells();
        json row = json::array();
        for (std::int32_t j = 1; j <= cells->Count(); ++j) {
            row.push_back(cellOf(document, *cells->Item(j)));
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
        driver->setNotifyErrorHandler([&errors](CRtfDriver&, const RtfError& error) {
            std::cerr << error.what() << "\n";
            ++errors;
        });
        driver->setStyleSheetFile(arguments[2]);
        driver->ParseFile(arguments[1]);
        driver->Commit(arguments[3]);
        const Ref<CRtfDoc> document = driver->RtfObject();
        std::cout << json{{"page", pageOf(*document)}, {"rows", rowsOf(*document)}} << "\n";
        driver->setNotifyErrorHandler({});
        return errors == 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
