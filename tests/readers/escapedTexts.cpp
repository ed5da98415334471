// Writes a document with a paragraph for each of many escaped texts, which together hold every
// character that a document can show, and prints the texts themselves as a JSON list.

#include <cstdint>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "quorvane/base/text/utf8.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfParagraph.h"
#include "quorvane/docmodel/CRtfParagraphs.h"
#include "quorvane/docmodel/CRtfTableCell.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/rtf/escape.h"

using namespace quorvane;

namespace {

bool isControl(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

bool isCharacter(char32_t code) {
    const bool isSurrogate = code >= 0xD800 && code < 0xE000;
    const bool isNoncharacter = (code & 0xFFFE) == 0xFFFE || (code >= 0xFDD0 && code < 0xFDF0);
    return !isControl(code) && !isSurrogate && !isNoncharacter;
}

/// Every character up to U+FFFF and one in 37 of those beyond, a few hundred to a text.
std::vector<std::string> textsOfAllCharacters() {
    constexpr std::size_t longEnough = 600;
    std::vector<std::string> texts(1);
    for (char32_t code = 0x20; code <= 0x10FFFF; code += code < 0x10000 ? 1 : 37) {
        if (isCharacter(code)) {
            appendUtf8(code, texts.back());
        }
        if (texts.back().size() > longEnough) {
            texts.emplace_back();
        }
    }
    return texts;
}

/// Texts that mix what RTF reads with characters of several scripts.
std::vector<std::string> mixedTexts() {
    const std::vector<std::string> parts{
        "\\",     "{",      "}",          "<",      ">",        "=",      " ",       "\t",
        "\n",     "\\'",    "\\u123",     "a",      "5",        "\u00E9", "e\u0301", "\u05D0\u05D1",
        "\u0639", "\u4E2D", "\U0001F600", "\u20AC", "<strong=", "  ",     "\\line",  "\u0159",
        "\uFFFD"};
    std::mt19937 random(1);
    std::vector<std::string> texts(500);
    for (std::string& text : texts) {
        for (auto length = 1 + random() % 20; length > 0; --length) {
            text += parts[random() % parts.size()];
        }
    }
    return texts;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " FILE\n";
        return 2;
    }
    std::vector<std::string> texts = textsOfAllCharacters();
    const std::vector<std::string> mixed = mixedTexts();
    texts.insert(texts.end(), mixed.begin(), mixed.end());

    const Ref<CRtfDoc> document = CRtfDoc::create();
    for (const std::string& text : texts) {
        document->TableRows()->AddTail();
        const Ref<CRtfTableCells> cells = document->TableRows()->PeekTail()->TableCells();
        cells->AddTail();
        const Ref<CRtfParagraphs> paragraphs = cells->PeekTail()->Paragraphs();
        paragraphs->AddTail();
        paragraphs->PeekTail()->setText(rtfText(text));
    }
    document->Commit(argv[1]);
    std::cout << nlohmann::json(texts).dump() << "\n";
    return 0;
}
