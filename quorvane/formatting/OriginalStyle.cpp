#include "quorvane/formatting/OriginalStyle.h"

#include <cstddef>
#include <optional>
#include <set>
#include <utility>

#include "quorvane/base/text/textCase.h"
#include "quorvane/stylesheet/StyleList.h"
#include "quorvane/stylesheet/stylesheetParser.h"
#include "quorvane/stylesheet/stylesheetSyntax.h"

namespace quorvane {

std::vector<OriginalStyle> readOriginalStyles(std::string_view text) {
    std::vector<OriginalStyle> styles;
    std::set<std::pair<StyleKind, std::string>> known;
    BracedTexts bodies(text);
    parseStyleSheet(text, [&](const StyleDefinition& definition) {
        const Style style{{}, definition.record};
        const std::optional<BracedText> body = bodies.next();
        OriginalStyle read{styleKindNamed(style.kind()),
                           {},
                           style.format(),
                           style.basedOn(),
                           style.next(),
                           body->open,
                           body->close};
        StyleItems items(body->body);
        for (const std::string_view name : styleNamesIn(items.next()->value)) {
            if (known.emplace(read.kind, lowerCase(name)).second) {
                read.names.push_back(name);
            }
        }
        styles.push_back(std::move(read));
    });
    return styles;
}

}  // namespace quorvane
