#include "quorvane/diagnostics/KnownStyles.h"

#include "quorvane/stylesheet/stylesheetParser.h"
#include "quorvane/support/RtfError.h"
#include "quorvane/support/textCase.h"
#include "quorvane/support/trimming.h"

namespace quorvane {

namespace {

std::string searched(std::string_view name) {
    return lowerCase(TrimEx(name));
}

StyleKind kindOf(const std::string& word) {
    return word == "s" ? StyleKind::Paragraph
                       : (word == "cs" ? StyleKind::Character : StyleKind::Cell);
}

}  // namespace

std::string_view styleKindName(StyleKind kind) {
    constexpr std::string_view names[] = {"paragraph", "character", "cell"};
    return names[static_cast<std::size_t>(kind)];
}

KnownStyles::KnownStyles(std::string_view styleSheet) : text_(styleSheet) {
    try {
        parseStyleSheet(text_, [this](const StyleDefinition& definition) {
            for (const std::string& name : definition.names) {
                const StyleKind kind = kindOf(Style{name, definition.record}.kind());
                lists_[static_cast<std::size_t>(kind)].add(name, definition.record);
            }
        });
        areLoaded_ = true;
    } catch (const RtfError&) {
        for (StyleList& list : lists_) {
            list.clear();
        }
    }
}

int KnownStyles::find(StyleKind kind, std::string_view name) const {
    return styles(kind).find(searched(name));
}

void KnownStyles::markUsed(StyleKind kind, std::string_view name) {
    used_[static_cast<std::size_t>(kind)].insert(searched(name));
}

bool KnownStyles::isUsed(StyleKind kind, std::string_view name) const {
    return used_[static_cast<std::size_t>(kind)].contains(searched(name));
}

}  // namespace quorvane
