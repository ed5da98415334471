#include "quorvane/stylesheet/StyleList.h"

#include <algorithm>
#include <utility>

#include "quorvane/stylesheet/stylesheetSyntax.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

constexpr std::string_view nameMark = "^t";

// The text that is searched for a name: a name comes between "^t" and the next "^".
std::string searchText(const Style& style) {
    return "^t" + style.name + style.record + "^";
}

}  // namespace

StyleKind styleKindNamed(std::string_view word) {
    for (const StyleKind kind : {StyleKind::Paragraph, StyleKind::Character}) {
        if (word == styleKindWords[static_cast<std::size_t>(kind)]) {
            return kind;
        }
    }
    return StyleKind::Cell;
}

std::string Style::kind() const {
    return GetSubField(record, kindKeyword.subField);
}

std::string Style::format() const {
    return GetSubField(record, formatKeyword.subField);
}

std::string Style::basedOn() const {
    return GetSubField(record, basedOnKeyword.subField);
}

std::string Style::next() const {
    return GetSubField(record, nextKeyword.subField);
}

bool Style::isAdditive() const {
    const std::string additive = "^" + std::string(additiveKeyword.subField) + "yes";
    return record.find(additive) != std::string::npos;
}

std::string Style::writtenName() const {
    return GetSubField(record, writtenNameSubField);
}

void StyleList::add(std::string name, std::string record) {
    styles_.push_back({std::move(name), std::move(record)});
    const int position = static_cast<int>(styles_.size());
    const std::string text = searchText(styles_.back());
    for (std::size_t mark = text.find(nameMark); mark != std::string::npos;
         mark = text.find(nameMark, mark + 1)) {
        const std::size_t start = mark + nameMark.size();
        const std::size_t end = text.find('^', start);
        if (end != std::string::npos) {
            positions_.try_emplace(text.substr(start, end - start), position);
        }
    }
}

void StyleList::clear() noexcept {
    styles_.clear();
    positions_.clear();
}

int StyleList::find(std::string_view name) const {
    if (name.find('^') == std::string_view::npos) {
        const auto found = positions_.find(std::string(name));
        return found == positions_.end() ? -1 : found->second;
    }
    const std::string wanted = "^t" + std::string(name) + "^";
    for (std::size_t i = 0; i < styles_.size(); ++i) {
        if (searchText(styles_[i]).find(wanted) != std::string::npos) {
            return static_cast<int>(i) + 1;
        }
    }
    return -1;
}

SheetForm originalForm(const StyleList& paragraphStyles) {
    SheetForm form;
    form.unknown = paragraphStyles.empty() ? 0 : 1;
    return form;
}

SheetForm extendedForm(const StyleList& paragraphStyles) {
    SheetForm form;
    form.isExtended = true;
    form.unknown = std::max(paragraphStyles.find(normalStyle), 0);
    form.paragraph.zero = form.unknown;
    form.character.first += static_cast<int>(paragraphStyles.count());
    return form;
}

}  // namespace quorvane
