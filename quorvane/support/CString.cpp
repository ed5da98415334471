#include "quorvane/support/CString.h"

#include <optional>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/textSearch.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/support/CStringCompare.h"
#include "quorvane/support/published.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

bool isOneCharacter(std::string_view text) {
    return !text.empty() && utf8CharacterAt(text, 0).length == text.size();
}

bool isOneOfTheCharacters(std::string_view code, std::string_view codes) {
    for (std::size_t at = 0; at < codes.size();) {
        const std::size_t length = utf8CharacterAt(codes, at).length;
        if (equalIgnoringCase(codes.substr(at, length), code)) {
            return true;
        }
        at += length;
    }
    return false;
}

}  // namespace

CStringList CString::GetSubFields() const {
    CStringList subFields;
    if (!IsisFormated()) {
        return subFields;
    }
    std::optional<SubFieldView> field = findSubField(text_);
    while (field) {
        subFields.AddTail(std::string(field->whole));
        field = findSubField(text_, field->position + 1);
    }
    return subFields;
}

std::string CString::StrZ() const {
    return std::string(text_.c_str()) + '\0';
}

bool CString::hasSubfield(std::string_view Code) const {
    return !Code.empty() && lowerCase(GetDelims()).find(lowerCase(Code)) != std::string::npos;
}

std::int32_t CString::Occs(std::string_view Sub, TextCompare Compare) const {
    const auto found = Compare == TextCompare::Binary
                           ? findAll(text_, Sub, Occurrences::Overlapping)
                           : findAll(lowerCase(text_), lowerCase(Sub), Occurrences::Overlapping);
    return static_cast<std::int32_t>(found.size());
}

bool CString::IsisFormated() const {
    return IsIsisFormated(text_);
}

std::string CString::GetDelims() const {
    std::string codes;
    std::optional<SubFieldView> field = findSubField(text_);
    while (field) {
        codes += field->code;
        field = findSubField(text_, field->position + 1);
    }
    return codes;
}

CStringList CString::Parse(std::string_view Delims) const {
    CStringList pieces;
    for (std::string& piece : quorvane::Parse(text_, Delims)) {
        pieces.AddTail(std::move(piece));
    }
    return pieces;
}

void CString::ReplaceString(std::string_view search, std::string_view replacement) {
    setText(quorvane::ReplaceString(text_, search, replacement));
}

std::string CString::StrToBytes(std::int32_t length, char fill) const {
    std::string bytes = codePage1252FromUtf8(text_);
    if (length > 0 && bytes.size() < static_cast<std::size_t>(length)) {
        bytes.resize(static_cast<std::size_t>(length), fill);
    }
    return bytes;
}

std::string CString::SubField(std::string_view Code) const {
    return subFieldContents(text_, Code);
}

void CString::setSubField(std::string_view Code, std::string_view content) {
    published([Code] {
        if (!isOneCharacter(Code) || Code == "^") {
            raise(RunTimeError::InvalidProcedureCall);
        }
    });
    const std::optional<SubFieldView> field = findSubFieldOf(text_, Code);
    std::string changed = text_;
    if (field) {
        const std::size_t contentBegin =
            field->position + field->whole.size() - field->content.size();
        changed.replace(contentBegin, field->content.size(), content);
    } else {
        changed.append("^").append(Code).append(content);
    }
    setText(std::move(changed));
}

void CString::SortSubFields() {
    if (!IsisFormated()) {
        return;
    }
    CStringList subFields = GetSubFields();
    subFields.Sort(CStringCompare());
    setText(subFields.ConCat(""));
}

bool CString::AllSubFieldsEmpty() const {
    return quorvane::AllSubFieldsEmpty(text_);
}

void CString::RemoveSubField(std::string_view Code) {
    std::optional<SubFieldView> field = findSubField(text_);
    std::string kept = text_.substr(0, field ? field->position : text_.size());
    while (field) {
        if (!isOneOfTheCharacters(field->code, Code)) {
            kept += field->whole;
        }
        field = findSubField(text_, field->position + 1);
    }
    setText(std::move(kept));
}

std::string CString::Char(std::int32_t Position) const {
    return published([&] { return std::string(characterAt(Position)); });
}

void CString::setChar(std::int32_t Position, std::string_view character) {
    const std::string_view replaced = published([&] {
        const std::string_view found = characterAt(Position);
        if (!isOneCharacter(character)) {
            raise(RunTimeError::InvalidProcedureCall);
        }
        return found;
    });
    std::string changed = text_;
    changed.replace(static_cast<std::size_t>(replaced.data() - text_.data()), replaced.size(),
                    character);
    setText(std::move(changed));
}

std::string_view CString::characterAt(std::int32_t position) const {
    std::size_t offset = 0;
    for (std::int32_t i = 1; i < position && offset < text_.size(); ++i) {
        offset += utf8CharacterAt(text_, offset).length;
    }
    if (position < 1 || offset == text_.size()) {
        raise(RunTimeError::InvalidProcedureCall);
    }
    return std::string_view(text_).substr(offset, utf8CharacterAt(text_, offset).length);
}

}  // namespace quorvane
