#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/textCase.h"

// Stylesheets as their rules state them, without regard to speed: texts are read character by
// character, entries searched one by one and texts joined.

namespace quorvane::plain {

/// The content of the first subfield with this code; empty when there is none.
inline std::string subField(const std::string& record, char code) {
    for (std::size_t at = 0; at + 1 < record.size(); ++at) {
        if (record[at] == '^' && record[at + 1] == code) {
            const std::size_t begin = at + 2;
            return record.substr(begin, record.find('^', begin) - begin);
        }
    }
    return {};
}

/// The styles of one kind and what is asked of them.
class Styles {
public:
    struct Entry {
        std::string name;
        std::string record;
    };
    std::vector<Entry> entries;

    /// 1-based position; -1 when there is none.
    int find(const std::string& name) const {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const std::string entry = "^t" + entries[i].name + entries[i].record + "^";
            if (entry.find("^t" + name + "^") != std::string::npos) {
                return static_cast<int>(i) + 1;
            }
        }
        return -1;
    }

    const std::string& recordAt(int position) const {
        return entries[static_cast<std::size_t>(position) - 1].record;
    }

    std::string paragraphEntry(std::size_t i) const {
        const auto& [name, record] = entries[i];
        std::string words;
        if (name != "normal") {
            words = "\\" + subField(record, 'd') + std::to_string(i + 100);
        }
        words += " " + subField(record, 'f');
        if (record.find("^ayes") != std::string::npos) {
            words += " \\additive";
        }
        words += reference("sbasedon", subField(record, 'b'));
        words += reference("snext", subField(record, 'n'));
        words += " " + name;
        while (words.starts_with(' ')) {
            words.erase(0, 1);
        }
        while (words.ends_with(' ')) {
            words.pop_back();
        }
        return "{" + words + ";}";
    }

    std::string characterEntry(std::size_t i) const {
        const auto& [name, record] = entries[i];
        std::string words = "\\*\\" + subField(record, 'd') + std::to_string(i + 100);
        if (record.find("^ayes") != std::string::npos) {
            words += " \\additive";
        }
        words += reference("sbasedon", subField(record, 'b'));
        return "{" + words + " " + subField(record, 'f') + " " + name + ";}";
    }

    std::string lookup(const std::string& name) const {
        const int position = find(name);
        return position < 0 ? "" : words(position, position + 99);
    }

    /// Where the name is unknown, the first style stands in.
    std::string paragraphLookup(const std::string& name) const {
        return find(name) >= 0 || entries.empty() ? lookup(name) : words(1, 0);
    }

private:
    std::string words(int position, int number) const {
        const std::string& record = recordAt(position);
        return "\\" + subField(record, 'd') + std::to_string(number) + subField(record, 'f') + " ";
    }

    std::string reference(const std::string& word, const std::string& name) const {
        const int position = name.empty() ? -1 : find(name);
        return position < 0 ? "" : " \\" + word + std::to_string(position + 99);
    }
};

/// What a stylesheet comes to: its first error, or its styles. Until one is loaded everything is
/// empty.
class StyleSheet {
public:
    struct Error {
        std::int32_t number = 0;
        std::string description;
    };

    StyleSheet() = default;
    explicit StyleSheet(const std::string& text) {
        try {
            load(text);
            isLoaded_ = true;
        } catch (const Error& found) {
            *this = {};
            error_ = found;
        }
    }

    bool isLoaded() const { return isLoaded_; }
    /// Number 0 when there is none.
    const Error& error() const { return error_; }

    std::string group() const {
        if (!isLoaded_) {
            return {};
        }
        std::string rtf = "\r\n{\\stylesheet";
        for (std::size_t i = 0; i < paragraphStyles_.entries.size(); ++i) {
            rtf += "\r\n" + paragraphStyles_.paragraphEntry(i);
        }
        for (std::size_t i = 0; i < characterStyles_.entries.size(); ++i) {
            rtf += "\r\n" + characterStyles_.characterEntry(i);
        }
        return rtf + "}";
    }

    // Names are looked up in lower case, with the blanks around them.

    std::string paragraphWords(const std::string& name) const {
        return paragraphStyles_.paragraphLookup(searched(name));
    }
    std::string characterWords(const std::string& name) const {
        return characterStyles_.lookup(searched(name));
    }
    std::string cellFormat(const std::string& name) const {
        const int position = cellStyles_.find(searched(name));
        return position < 0 ? "" : subField(cellStyles_.recordAt(position), 'f');
    }
    std::int32_t cellColor(const std::string& name) const {
        static const std::array<std::string, 57> colors = {"aquamarine",
                                                           "bisque",
                                                           "black",
                                                           "blue",
                                                           "brown",
                                                           "chartreuse",
                                                           "cyan",
                                                           "dark-cyan",
                                                           "dark-gray",
                                                           "dark-green",
                                                           "dark-magenta",
                                                           "dark-red",
                                                           "dark-slate-blue",
                                                           "dark-yellow",
                                                           "deep-sky-blue",
                                                           "gold",
                                                           "gray",
                                                           "green",
                                                           "light-blue",
                                                           "light-green",
                                                           "light-yellow",
                                                           "lime-green",
                                                           "magenta",
                                                           "navy-blue",
                                                           "olive-green",
                                                           "orange",
                                                           "peach-puff",
                                                           "pink",
                                                           "purple",
                                                           "red",
                                                           "sea-green",
                                                           "silver",
                                                           "slate-blue",
                                                           "sky-blue",
                                                           "turquoise",
                                                           "white",
                                                           "yellow",
                                                           "brick",
                                                           "cork",
                                                           "yellow-cork",
                                                           "dark-cork",
                                                           "dark-silver",
                                                           "gray-blue",
                                                           "dark-navy-blue",
                                                           "light-royal-blue",
                                                           "violet",
                                                           "dodger-blue",
                                                           "sargasso-green",
                                                           "royal-blue",
                                                           "light-sea-green",
                                                           "deep-purple",
                                                           "steel-blue",
                                                           "asphalt",
                                                           "dark-golden-rod",
                                                           "dark-grass",
                                                           "grass",
                                                           "red-brick"};
        const std::string format = cellFormat(name);
        for (std::size_t i = 0; i < colors.size(); ++i) {
            if (colors[i] == format) {
                return static_cast<std::int32_t>(i) + 1;
            }
        }
        return 0;
    }
    bool isDefined(const std::string& name) const {
        const std::string wanted = searched(name);
        return paragraphStyles_.find(wanted) > 0 || characterStyles_.find(wanted) > 0 ||
               cellStyles_.find(wanted) > 0;
    }

private:
    static std::string without(std::string text, const std::string& characters) {
        while (!text.empty() && characters.find(text.front()) != std::string::npos) {
            text.erase(0, 1);
        }
        while (!text.empty() && characters.find(text.back()) != std::string::npos) {
            text.pop_back();
        }
        return text;
    }
    static std::string searched(const std::string& name) { return lowerCase(name); }
    static std::string trimmedItem(const std::string& text) { return without(text, " \t\r\n"); }

    static std::vector<std::string> split(const std::string& text, char separator) {
        std::vector<std::string> pieces{""};
        for (const char character : text) {
            if (character == separator) {
                pieces.emplace_back();
            } else {
                pieces.back() += character;
            }
        }
        return pieces;
    }

    [[noreturn]] static void failItem(const std::string& message) {
        throw Error{445, "Error while processing stylesheet.\r\n" + message};
    }

    void load(const std::string& text) {
        std::vector<std::size_t> opens;
        std::vector<std::size_t> closes;
        for (std::size_t at = 0; at < text.size(); ++at) {
            if (text[at] == '{') {
                opens.push_back(at);
            } else if (text[at] == '}') {
                closes.push_back(at);
            }
        }
        if (opens.size() < closes.size()) {
            throw Error{31037,
                        "Error in stylesheet\r\n"
                        "Braces stack underflow: there are more } than {."};
        }
        if (opens.size() > closes.size()) {
            throw Error{31037,
                        "Error in stylesheet\r\n"
                        "Braces stack overflow: there are more { than }"};
        }
        for (std::size_t i = 0; i < opens.size(); ++i) {
            const std::size_t length = closes[i] > opens[i] ? closes[i] - opens[i] - 1 : 0;
            define(text.substr(opens[i] + 1, length));
        }
    }

    void define(const std::string& definition) {
        std::vector<std::string> names;
        std::string record;
        std::vector<std::string> items = split(definition, ';');
        if (trimmedItem(items.back()).empty()) {
            items.pop_back();
        }
        for (const std::string& item : items) {
            const std::size_t colon = item.find(':');
            const std::string keyword = lowerCase(trimmedItem(item.substr(0, colon)));
            const std::string value =
                colon == std::string::npos ? "" : lowerCase(trimmedItem(item.substr(colon + 1)));
            if (!names.empty()) {
                record += recordOf(keyword, value);
            } else if (keyword == "name") {
                for (const std::string& name : split(value, ',')) {
                    names.push_back(trimmedItem(name));
                }
            } else {
                failItem(keyword + " is not a valid keyword.");
            }
        }
        if (names.empty()) {
            failItem(" is not a valid keyword.");
        }
        const std::string kind = subField(record, 'd');
        Styles& styles = kind == "s"    ? paragraphStyles_
                         : kind == "cs" ? characterStyles_
                                        : cellStyles_;
        for (const std::string& name : names) {
            styles.entries.push_back({name, record});
        }
    }

    static std::string recordOf(const std::string& keyword, const std::string& value) {
        const std::string badValue = value + " is not a valid value for " + keyword;
        if (keyword == "style-def") {
            if (value != "s" && value != "cs" && value != "cell") {
                throw Error{445, badValue};
            }
            return "^d" + value;
        }
        if (keyword == "additive") {
            if (value != "yes" && value != "no") {
                failItem(badValue);
            }
            return "^a" + value;
        }
        if (keyword == "format") {
            const bool hasSubFields = value.size() > 1 && value[0] == '^';
            return "^f" + (hasSubFields
                               ? subField(value, 'v') + subField(value, 'f') + subField(value, 'p')
                               : value);
        }
        if (keyword == "based-on") {
            return "^b" + value;
        }
        if (keyword == "next") {
            return "^n" + value;
        }
        failItem(keyword + " is not a valid keyword.");
    }

    bool isLoaded_ = false;
    Error error_;
    Styles paragraphStyles_;
    Styles characterStyles_;
    Styles cellStyles_;
};

}  // namespace quorvane::plain
