#include "quorvane/rtf/RtfLexer.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quorvane {
namespace {

using testing::ElementsAre;

std::string shown(const RtfLexer& lexer, RtfLexer::Token token) {
    const RtfLexer::Position& begin = lexer.begin();
    const std::string place = std::to_string(begin.line) + ":" +
                              std::to_string(begin.offset - begin.lineBegin + 1) + "@" +
                              std::to_string(begin.offset) + " ";
    const RtfControl& control = lexer.control();
    switch (token) {
        case RtfLexer::Token::Open:
            return place + "{";
        case RtfLexer::Token::Close:
            return place + "}";
        case RtfLexer::Token::Text:
            return place + "text " + std::string(lexer.text());
        case RtfLexer::Token::Control:
            if (control.word.empty()) {
                return place + "symbol " + control.symbol + (control.isBadEscape() ? " bad" : "");
            }
            return place + (lexer.word() ? "word " : "unknown ") + std::string(control.word) +
                   (control.number ? " " + std::to_string(*control.number) : "");
        case RtfLexer::Token::None:
            break;
    }
    return "none";
}

/// The tokens of a text that is handed over in pieces of so many bytes. Text is put together.
std::vector<std::string> tokensOf(const std::string& rtf, std::size_t size) {
    RtfLexer lexer;
    std::vector<std::string> tokens;
    bool endsInText = false;
    std::int64_t textEnd = 0;
    const auto add = [&](RtfLexer::Token token) {
        const bool isText = token == RtfLexer::Token::Text;
        const bool goesOn = lexer.begin().offset == textEnd;
        if (isText) {
            textEnd = lexer.begin().offset + std::ssize(lexer.text());
        }
        if (isText && endsInText && goesOn) {
            tokens.back() += lexer.text();
        } else {
            tokens.push_back(shown(lexer, token));
        }
        endsInText = isText;
    };
    for (std::size_t at = 0; at < rtf.size(); at += size) {
        const std::string piece = rtf.substr(at, size);
        lexer.feed(piece);
        for (auto token = lexer.next(); token != RtfLexer::Token::None; token = lexer.next()) {
            add(token);
        }
    }
    if (const auto token = lexer.finish(); token != RtfLexer::Token::None) {
        add(token);
    }
    if (lexer.isInBinary()) {
        tokens.emplace_back("in binary");
    }
    return tokens;
}

std::vector<std::string> tokensOf(const std::string& rtf) {
    return tokensOf(rtf, rtf.size());
}

TEST(RtfLexer, CutsTextIntoBracesControlsAndWhatIsBetweenThem) {
    EXPECT_THAT(tokensOf("{\\rtf1\\ansi a b\\~c}"),
                ElementsAre("1:1@0 {", "1:2@1 word rtf 1", "1:7@6 word ansi", "1:13@12 text a b",
                            "1:16@15 symbol ~", "1:18@17 text c", "1:19@18 }"));
}

TEST(RtfLexer, KnowsTheWordsOfRtf) {
    EXPECT_THAT(tokensOf("\\odd\\b"), ElementsAre("1:1@0 unknown odd", "1:5@4 word b"));
}

TEST(RtfLexer, CountsLinesAndPassesOverTheirEnds) {
    EXPECT_THAT(
        tokensOf("a\r\nb\nc\rd\\\ne\\\r\nf"),
        ElementsAre("1:1@0 text a", "2:1@3 text b", "3:1@5 text c", "4:1@7 text d",
                    "4:2@8 symbol \n", "5:1@10 text e", "5:2@11 symbol \r", "6:1@14 text f"));
}

TEST(RtfLexer, PassesOverBinaryData) {
    EXPECT_THAT(tokensOf("\\bin4 }}{\n{"), ElementsAre("1:1@0 word bin 4", "2:1@10 {"));
    EXPECT_THAT(tokensOf("\\bin0{"), ElementsAre("1:1@0 word bin 0", "1:6@5 {"));
    EXPECT_THAT(tokensOf("\\bin-4{"), ElementsAre("1:1@0 word bin -4", "1:7@6 {"));
    EXPECT_THAT(tokensOf("\\bin4 }}{"), ElementsAre("1:1@0 word bin 4", "in binary"));
}

TEST(RtfLexer, EndsWithTheControlThatTheTextEndsWithin) {
    EXPECT_THAT(tokensOf("a\\"), ElementsAre("1:1@0 text a", std::string("1:2@1 symbol \0", 14)));
    EXPECT_THAT(tokensOf("\\b"), ElementsAre("1:1@0 word b"));
    EXPECT_THAT(tokensOf("\\'e"), ElementsAre("1:1@0 symbol ' bad"));
}

TEST(RtfLexer, KeepsTheDigitOfABadEscapeAndALoneMinusAsText) {
    EXPECT_THAT(tokensOf("\\'ex"), ElementsAre("1:1@0 symbol ' bad", "1:3@2 text ex"));
    EXPECT_THAT(tokensOf("\\b-x"), ElementsAre("1:1@0 word b", "1:3@2 text -x"));
}

TEST(RtfLexer, CutsControlsOfAnyLength) {
    const std::string letters(600, 'x');
    EXPECT_THAT(tokensOf("\\" + letters), ElementsAre("1:1@0 unknown " + letters.substr(0, 255),
                                                      "1:257@256 text " + letters.substr(255)));
}

TEST(RtfLexer, ReadsTheSameInPiecesOfAnySize) {
    const std::string rtf =
        "{\\rtf1\\ansi caf\\'e9 \\'ez \\'z \\b-x\\b-1x\\u8364?\r\n{\\*\\odd \\{\\~}\\\r\nz\\bin5 "
        "}\r\n}{a}" +
        ("\\" + std::string(300, 'y')) + "\\fs" + std::string(300, '0') + "7 b}\\";
    const std::vector<std::string> whole = tokensOf(rtf);
    EXPECT_EQ(whole.size(), 33u);
    for (std::size_t size = 1; size < rtf.size(); ++size) {
        ASSERT_EQ(tokensOf(rtf, size), whole) << size;
    }
}

}  // namespace
}  // namespace quorvane
