// documentAsJson DESCRIPTION STYLESHEET DOCUMENT: renders a description, and prints what the object
// model holds then.

#include <cctype>
#include <iostream>
#include <nlohmann/json.hpp>
#include <regex>
#include <string>

#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/support/currentError.h"

namespace {

using namespace quorvane;
using nlohmann::json;

/// The number behind the last `\cf` of some control words, or else the one given.
std::int32_t colorOf(const std::string& words, std::int32_t otherwise) {
    const std::size_t at = words.rfind("\\cf");
    const bool isColor = at != std::string::npos && std::isdigit(words[at + 3]) != 0;
    return isColor ? std::stoi(words.substr(at + 3)) : otherwise;
}

/// The colours of the parts of a paragraph's text: those of its inline styles, and that of the
/// rest.
json colorsOf(const CRtfDoc& document, const CRtfParagraph& paragraph) {
    json colors = json::array();
    const std::int32_t own = paragraph.ForeColor();
    const std::int32_t ofParagraph =
        own != 0 ? own : colorOf(std::string(document.GetParagraphStyle(paragraph.Style())), 0);
    std::string rest = paragraph.Text();
    const auto add = [&](const std::string& text, std::int32_t color) {
        if (text.find_first_not_of(' ') != std::string::npos) {
            colors.push_back(color);
        }
    };
    std::smatch token;
    while (std::regex_search(rest, token, std::regex("<([A-Za-z][^=<>]*)=([^<>]*)>"))) {
        add(token.prefix(), ofParagraph);
        add(token[2],
            colorOf(std::string(document.GetCharacterStyle(token[1].str())), ofParagraph));
        rest = token.suffix().str();
    }
    add(rest, ofParagraph);
    return colors;
}

json cellOf(const CRtfDoc& document, CRtfTableCell& cell) {
    json paragraphs = json::array();
    const Ref<CRtfParagraphs> list = cell.Paragraphs();
    for (std::int32_t i = 1; i <= list->Count(); ++i) {
        const Ref<CRtfParagraph> paragraph = list->Item(i);
        paragraphs.push_back({{"text", paragraph->Text()},
                              {"style", paragraph->Style()},
                              {"colors", colorsOf(document, *paragraph)},
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
