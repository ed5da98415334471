// Any text as a record string, through every member of CString and the functions beside it.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/support/CIsisStringCompare.h"
#include "quorvane/support/CString.h"
#include "quorvane/support/recordStrings.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/documentChecks.h"

namespace {

using namespace quorvane;

std::vector<std::string> charactersOf(const std::string& text) {
    std::vector<std::string> characters;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8CharacterAt(text, at).length;
        characters.push_back(text.substr(at, length));
        at += length;
    }
    return characters;
}

struct PlainSubField {
    std::string code;
    std::string content;
};

/// What stands before the first subfield, and the subfields.
struct PlainRecord {
    std::string before;
    std::vector<PlainSubField> subFields;

    explicit PlainRecord(const std::string& text) {
        const std::vector<std::string> characters = charactersOf(text);
        std::size_t at = 0;
        for (; at < characters.size() && characters[at] != "^"; ++at) {
            before += characters[at];
        }
        while (at < characters.size()) {
            PlainSubField field;
            ++at;
            if (at < characters.size()) {
                field.code = characters[at];
                // A "^" that is a code opens the next subfield too.
                at += field.code == "^" ? 0 : 1;
            }
            for (; at < characters.size() && characters[at] != "^"; ++at) {
                field.content += characters[at];
            }
            subFields.push_back(field);
        }
    }

    std::string content(const std::string& code) const {
        for (const PlainSubField& field : subFields) {
            if (!code.empty() && lowerCase(field.code) == lowerCase(code)) {
                return field.content;
            }
        }
        return {};
    }
};

std::string plainReplaced(const std::string& text, const std::string& search,
                          const std::string& replacement) {
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        if (!search.empty() && text.compare(at, search.size(), search) == 0) {
            result += replacement;
            at += search.size();
        } else {
            result += text[at++];
        }
    }
    return result;
}

std::int32_t plainOccs(const std::string& text, const std::string& part) {
    std::int32_t count = 0;
    for (std::size_t at = 0; at < text.size() && !part.empty(); ++at) {
        count += text.compare(at, part.size(), part) == 0 ? 1 : 0;
    }
    return count;
}

std::string joined(const CStringList& list) {
    std::string all;
    for (const std::string& text : list.NewEnum()) {
        all += text;
    }
    return all;
}

bool isAsciiOnly(const std::string& text) {
    return asciiRunEnd(text, 0) == text.size();
}

void checkReading(const std::string& text, const std::string& other, const PlainRecord& plain) {
    const CString record(text);
    const bool isFormatted = text.size() > 1 && text[0] == '^';
    require(record.IsisFormated() == isFormatted, "a record begins with ^ and a code");

    std::string codes;
    bool areEmpty = isFormatted;
    for (const PlainSubField& field : plain.subFields) {
        codes += field.code;
        areEmpty = areEmpty && field.content.find_first_not_of(' ') == std::string::npos;
    }
    requireEqual(record.GetDelims(), codes, "the codes follow each ^");
    require(record.AllSubFieldsEmpty() == (text.empty() || areEmpty), "blanks are nothing");
    require(joined(record.GetSubFields()) == (isFormatted ? text : ""),
            "the subfields joined are the text");
    require(!isFormatted ||
                record.GetSubFields().Count() == static_cast<std::int32_t>(plain.subFields.size()),
            "there are as many subfields as ^");
    for (const PlainSubField& field : plain.subFields) {
        requireEqual(record.SubField(field.code), plain.content(field.code),
                     "a code gives the content of its first subfield");
    }
    std::string contents;
    for (const std::string& code : charactersOf(other)) {
        contents += plain.content(code);
    }
    requireEqual(record.SubField(other), contents, "codes give their contents joined");
    require(record.Occs(other) == plainOccs(text, other), "overlapping occurrences count");
    require(record.Occs(other, TextCompare::IgnoringCase) ==
                plainOccs(lowerCase(text), lowerCase(other)),
            "occurrences count without regard to case");
    requireEqual(record.StrZ(), text.substr(0, text.find('\0')) + '\0',
                 "a text ends at its first NUL");
    require(record.StrToBytes(20, '.').size() >= 20, "bytes are filled up");
    requireEqual(record.StrToBytes(), codePage1252FromUtf8(text), "bytes are those of the file");
    const std::size_t separator = other.empty() ? std::string::npos : text.find(other);
    require(separator != std::string::npos || GetValue(text, other).empty(),
            "there is no value without a separator");
}

void checkParsing(const std::string& text, const std::string& other) {
    const CStringList pieces = CString(text).Parse(other);
    std::string all;
    for (const std::string& piece : pieces.NewEnum()) {
        require(other.empty() || piece.find(other) == std::string::npos || piece == text,
                "no piece holds the delimiter");
        all += piece + other;
    }
    require(all == (text.empty() ? "" : text + other), "the pieces make the text");
}

void checkWriting(const std::string& text, const std::string& code, const std::string& content,
                  const PlainRecord& plain) {
    CString record(text);
    record.ReplaceString(code, content);
    requireEqual(record.Text(), plainReplaced(text, code, content), "every occurrence goes");

    record.setText(text);
    const bool isCode = charactersOf(code).size() == 1 && code != "^";
    const std::int32_t error = errorOfCall([&] { record.setSubField(code, content); });
    require(error == (isCode ? 0 : 5), "a subfield's code is one character");
    if (error != 0) {
        requireEqual(record.Text(), text, "a failed call changes nothing");
    } else if (content.find('^') == std::string::npos && isAsciiOnly(code + content + text)) {
        requireEqual(record.SubField(code), content, "what was set is there");
    }

    record.setText(text);
    record.RemoveSubField(code);
    std::string kept = plain.before;
    for (const PlainSubField& field : plain.subFields) {
        bool isNamed = false;
        for (const std::string& character : charactersOf(code)) {
            isNamed = isNamed || lowerCase(character) == lowerCase(field.code);
        }
        if (!isNamed || field.code.empty()) {
            // The second "^" of a code "^" opens the next subfield.
            kept += "^" + (field.code == "^" ? "" : field.code) + field.content;
        }
    }
    requireEqual(record.Text(), kept, "every subfield of the codes goes");

    record.setText(text);
    record.SortSubFields();
    if (text.find('\0') == std::string::npos) {
        require(record.Text().size() == text.size(), "sorting loses nothing");
    }
}

void checkCharacters(const std::string& text, std::int32_t position, const std::string& character) {
    const std::vector<std::string> characters = charactersOf(text);
    const bool isThere = position >= 1 && position <= static_cast<std::int64_t>(characters.size());
    CString record(text);
    std::string found;
    require(errorOfCall([&] { found = record.Char(position); }) == (isThere ? 0 : 5),
            "a character is there or it is error 5");
    if (isThere) {
        requireEqual(found, characters[static_cast<std::size_t>(position) - 1],
                     "it is the one of that position");
    }
    const bool isOne = charactersOf(character).size() == 1;
    const std::int32_t error = errorOfCall([&] { record.setChar(position, character); });
    require(error == (isThere && isOne ? 0 : 5), "one character takes the place of one");
    if (error != 0) {
        requireEqual(record.Text(), text, "a failed call changes nothing");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const std::int32_t position = input.number();
    const std::string other = input.text(6);
    const std::string content = input.text(12);
    const std::string text(input.rest());
    const PlainRecord plain(text);
    checkReading(text, other, plain);
    checkParsing(text, other);
    checkWriting(text, other, content, plain);
    checkCharacters(text, position, other);

    CIsisStringCompare compare;
    compare.Create(other);
    require(compare.comp(text, content) == -compare.comp(content, text),
            "comparing the other way round gives the opposite");
    require(compare.comp(text, text) == 0, "a text is equal to itself");
    return 0;
}
