#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/support/textCase.h"
#include "tests/fuzz/require.h"

namespace quorvane {

/// The first error of a stylesheet as its grammar tells it, item by item; empty when there is none.
class PlainStyleSheet {
public:
    static std::string firstError(const std::string& text) {
        int balance = 0;
        for (const char character : text) {
            balance += character == '{' ? 1 : character == '}' ? -1 : 0;
        }
        if (balance != 0) {
            return balance < 0 ? told(31037,
                                      "Error in stylesheet\r\nBraces stack underflow: there are "
                                      "more } than {.")
                               : told(31037,
                                      "Error in stylesheet\r\nBraces stack overflow: there are "
                                      "more { than }");
        }
        std::vector<std::size_t> opens;
        std::vector<std::size_t> closes;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] == '{') {
                opens.push_back(at);
            } else if (text[at] == '}') {
                closes.push_back(at);
            }
        }
        for (std::size_t i = 0; i < opens.size(); ++i) {
            const std::size_t length = closes[i] > opens[i] ? closes[i] - opens[i] - 1 : 0;
            const std::string error = errorOf(text.substr(opens[i] + 1, length));
            if (!error.empty()) {
                return error;
            }
        }
        return {};
    }

private:
    static std::string told(int number, const std::string& description) {
        return std::to_string(number) + " in line 0: " + description + " ()\n";
    }
    static std::string toldItem(const std::string& message) {
        return told(445, "Error while processing stylesheet.\r\n" + message);
    }

    static std::string trimmed(std::string text) {
        const auto isSpace = [](char character) {
            return character == ' ' || character == '\t' || character == '\r' || character == '\n';
        };
        while (!text.empty() && isSpace(text.front())) {
            text.erase(0, 1);
        }
        while (!text.empty() && isSpace(text.back())) {
            text.pop_back();
        }
        return text;
    }

    static std::string errorOf(const std::string& definition) {
        bool isNamed = false;
        std::string item;
        for (std::size_t at = 0; at <= definition.size(); ++at) {
            if (at < definition.size() && definition[at] != ';') {
                item += definition[at];
                continue;
            }
            if (!trimmed(item).empty()) {
                const std::string error = errorOfItem(item, isNamed);
                if (!error.empty()) {
                    return error;
                }
                isNamed = true;
            }
            item.clear();
        }
        return isNamed ? "" : toldItem(" is not a valid keyword.");
    }

    static std::string errorOfItem(const std::string& item, bool isNamed) {
        std::string keyword;
        std::string value;
        bool isBehindColon = false;
        for (const char character : item) {
            if (character == ':' && !isBehindColon) {
                isBehindColon = true;
            } else {
                (isBehindColon ? value : keyword) += character;
            }
        }
        keyword = lowerCase(trimmed(keyword));
        value = lowerCase(trimmed(value));
        const std::string badValue = value + " is not a valid value for " + keyword;
        if (!isNamed) {
            return keyword == "name" ? "" : toldItem(keyword + " is not a valid keyword.");
        }
        if (keyword == "style-def") {
            return value == "s" || value == "cs" || value == "cell" ? "" : told(445, badValue);
        }
        if (keyword == "additive") {
            return value == "yes" || value == "no" ? "" : toldItem(badValue);
        }
        return keyword == "format" || keyword == "based-on" || keyword == "next"
                   ? ""
                   : toldItem(keyword + " is not a valid keyword.");
    }
};

/// The error of a stylesheet is the one that its grammar tells.
inline void requirePlainAnswer(std::string_view text, const std::string& error) {
    requireEqual(error, PlainStyleSheet::firstError(std::string(text)),
                 "a stylesheet has the error that its grammar tells");
}

}  // namespace quorvane
