#include "quorvane/formatting/upgradeDescription.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/description/NullPlatform.h"
#include "quorvane/driver/DocumentBuilder.h"
#include "quorvane/driver/withoutFullStop.h"
#include "quorvane/formatting/ColumnUpgrade.h"
#include "quorvane/formatting/LineDepths.h"
#include "quorvane/formatting/PageUpgrade.h"
#include "quorvane/formatting/StyleNameUpgrade.h"
#include "quorvane/formatting/TextUpgrade.h"
#include "quorvane/formatting/UpgradedLines.h"
#include "quorvane/formatting/lineEndOf.h"
#include "quorvane/formatting/messageWithHint.h"
#include "quorvane/formatting/upgradedValue.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

/// True for what makes rendering with and without checks differ, or is not in the document.
bool isAmbiguous(const Diagnostic& diagnostic) {
    return diagnostic.id == DiagnosticId::RepeatedOpener ||
           diagnostic.id == DiagnosticId::OutsideDocument;
}

std::vector<UpgradeRemark> descriptionErrors(std::string_view text) {
    std::vector<UpgradeRemark> errors;
    for (const Diagnostic& diagnostic : checkDescription(text, nullptr, TextEncoding::Utf8)) {
        if (diagnostic.severity == Severity::Error || isAmbiguous(diagnostic)) {
            errors.push_back({static_cast<int>(diagnostic.place.line),
                              messageWithHint(diagnostic) + " (correct this before the upgrade)"});
        }
    }
    return errors;
}

/// Upgrades one description, which has no errors.
class DescriptionUpgrade {
public:
    DescriptionUpgrade(std::string_view text, const std::optional<std::string>& styleSheet)
        : text_(text),
          source_(PreProcessRawData(text)),
          tree_(source_.size() / 2),
          lines_(source_, unicodeDialect(), LineDepths::Extent::Document, tree_),
          document_(builtWith(styleSheet)),
          page_(*document_, doc()),
          columns_(*document_, table_),
          styles_(styleSheet),
          texts_(*document_, styleSheet.has_value()),
          upgraded_(lineEndOf(text)) {}

    Upgrade run(NameForm names) && {
        upgraded_.add(extendedMark, 1);
        findPlaceForPage();
        auto entry = lines_.entries().begin();
        int number = 0;
        for (LineReader lines(text_); !lines.atEnd();) {
            const std::string_view line = trimWhitespace(lines.next());
            ++number;
            if (entry != lines_.entries().end() && entry->number == number) {
                add(*entry++);
            } else {
                upgraded_.add(line, number);
            }
        }
        addErrorsAfter();
        if (!errors_.empty()) {
            return {.errors = std::move(errors_)};
        }
        return {.text = formattedDescription(upgraded_.text(), names)};
    }

private:
    using Entry = LineDepths::Entry;

    Ref<CRtfDoc> builtWith(const std::optional<std::string>& styleSheet) {
        Ref<CRtfDoc> document = CRtfDoc::create(platform_);
        if (styleSheet) {
            document->setExtendedStyleSheets(true);
            document->LoadStyleSheetFromMemmory(*styleSheet);
        }
        table_ = DocumentBuilder(*document, unicodeDialect()).build(doc());
        return document;
    }

    DescriptionNode& doc() { return tree_.root().child(documentNumber); }

    /// After the leaves of the document that stand before its rows.
    void findPlaceForPage() {
        const auto rows = doc().children();
        placeForPage_ = doc().line;
        for (const Leaf& leaf : std::as_const(doc()).leaves()) {
            if (!rows.empty() && leaf.line < rows.begin()->line) {
                placeForPage_ = leaf.line;
            }
        }
    }

    void add(const Entry& entry) {
        const std::string_view comment = trimWhitespace(entry.line.rest);
        if (!comment.empty()) {
            upgraded_.add(comment, entry.number);
        }
        switch (entry.line.type) {
            case LineType::Opener:
                open(entry);
                break;
            case LineType::Closer:
                close(entry.line.name, entry.number);
                break;
            case LineType::Leaf:
                addLeaf(entry);
                break;
            case LineType::Unreadable:
                break;
        }
        if (entry.number == placeForPage_) {
            addPage();
        }
    }

    void open(const Entry& entry) {
        while (open_.size() > entry.depth) {
            close(open_.back(), entry.number);
        }
        upgraded_.add("(" + std::string(entry.line.name), entry.number);
        open_.push_back(entry.line.name);
        if (entry.line.kind == NodeKind::Row) {
            addColumns(columns_.ofRow(*entry.node), entry.number);
        } else if (entry.line.kind == NodeKind::Para &&
                   !contains(entry.node->keys, DescriptionKey::ParaStyle)) {
            addStyle(entry.line.name.size() > 1 ? "para-style" : "ps", styles_.inPlaceOfNone(),
                     entry.number);
        }
    }

    void close(std::string_view name, int number) {
        open_.pop_back();
        upgraded_.add(std::string(name) + ")", number);
    }

    void addPage() {
        for (const std::string& line : page_.missingLines()) {
            upgraded_.add(line, placeForPage_);
        }
        addColumns(columns_.ofDocument(), placeForPage_);
    }

    void addColumns(const std::string& value, int number) {
        if (!value.empty()) {
            upgraded_.add("(columns=" + value + ")", number);
        }
    }

    void addStyle(std::string_view key, const std::string& name, int number) {
        if (!name.empty()) {
            addLeaf(key, name, number);
        }
    }

    void addLeaf(const Entry& entry) {
        const DescriptionKey known = originalVocabulary().leafKey(entry.line.key).known;
        const Leaf& leaf = *entry.node->find(known);
        if (entry.node->kind == NodeKind::Doc) {
            for (const std::string& line : page_.linesFor(leaf)) {
                upgraded_.add(line, entry.number);
            }
        } else if (known == DescriptionKey::ParaText) {
            addText(leaf, entry.depth);
        } else if (known == DescriptionKey::ParaStyle) {
            addStyle(leaf.writtenKey, styles_.nameFor(leaf, StyleKind::Paragraph), entry.number);
        } else if (known == DescriptionKey::CellStyle) {
            addStyle(leaf.writtenKey, styles_.nameFor(leaf, StyleKind::Cell), entry.number);
        } else if (known != DescriptionKey::CellWidth && !isWithoutEffect(leaf)) {
            addLeaf(entry.line.key, upgradedValue(leaf), entry.number);
        }
    }

    void addText(const Leaf& leaf, std::size_t depth) {
        constexpr std::size_t indentationOfLevel = 2;
        UpgradedText values = texts_.upgraded(leaf.text, (depth + 1) * indentationOfLevel);
        if (!values.error.empty()) {
            errors_.push_back({leaf.line, std::move(values.error)});
            values.text.emplace();
        }
        if (values.rtf) {
            addLeaf("rtf", *values.rtf, leaf.line);
        }
        if (values.text) {
            addLeaf(leaf.writtenKey, *values.text, leaf.line);
        }
    }

    void addLeaf(std::string_view key, const std::string& value, int number) {
        upgraded_.add("(" + std::string(key) + "=" + value + ")", number);
    }

    /// What stands in the upgraded text although the language does not take it.
    void addErrorsAfter() {
        for (const Diagnostic& diagnostic :
             checkDescription(upgraded_.text(), nullptr, TextEncoding::Utf8)) {
            if (diagnostic.severity == Severity::Error) {
                errors_.push_back({upgraded_.originOf(diagnostic.place.line),
                                   cannotExpress(messageWithHint(diagnostic))});
            }
        }
        std::stable_sort(
            errors_.begin(), errors_.end(),
            [](const UpgradeRemark& a, const UpgradeRemark& b) { return a.line < b.line; });
    }

    std::string_view text_;
    std::vector<SourceLine> source_;
    DescriptionTree tree_;
    LineDepths lines_;
    NullPlatform platform_;
    BuiltTable table_;
    Ref<CRtfDoc> document_;
    PageUpgrade page_;
    ColumnUpgrade columns_;
    StyleNameUpgrade styles_;
    TextUpgrade texts_;
    UpgradedLines upgraded_;
    // The names with which the nodes were opened that are open.
    std::vector<std::string_view> open_;
    // The line after which the page stands.
    int placeForPage_ = 0;
    std::vector<UpgradeRemark> errors_;
};

}  // namespace

Upgrade upgradedDescription(std::string_view text, const std::optional<std::string>& styleSheet,
                            NameForm names) {
    if (isMarkedExtended(text)) {
        return {.text = std::string(text)};
    }
    if (std::vector<UpgradeRemark> errors = descriptionErrors(text); !errors.empty()) {
        return {.errors = std::move(errors)};
    }
    try {
        return DescriptionUpgrade(text, styleSheet).run(names);
    } catch (const RtfError& error) {
        return {
            .errors = {{std::max(error.line, 1), std::string(withoutFullStop(error.description))}}};
    }
}

}  // namespace quorvane
