#include "quorvane/diagnostics/description/DescriptionCheck.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/description/CheckRecovery.h"
#include "quorvane/diagnostics/description/FilledDescriptionCheck.h"
#include "quorvane/diagnostics/description/NullPlatform.h"
#include "quorvane/diagnostics/description/StyleUses.h"
#include "quorvane/diagnostics/description/ViolationReport.h"
#include "quorvane/diagnostics/description/descriptionWarnings.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/diagnostics/engine/ignoreComments.h"
#include "quorvane/diagnostics/fileEncoding.h"
#include "quorvane/diagnostics/text/mojibake.h"
#include "quorvane/diagnostics/textFile.h"
#include "quorvane/driver/DescriptionFrame.h"
#include "quorvane/driver/DescriptionParser.h"
#include "quorvane/driver/DescriptionRules.h"
#include "quorvane/driver/DocumentBuilder.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

const Dialect& dialectOf(const SourceText& source) {
    if (isMarkedExtended(source.text())) {
        return extendedDialect();
    }
    return isUtf8(source.encoding()) ? unicodeDialect() : originalDialect();
}

class DescriptionCheck {
public:
    DescriptionCheck(const SourceText& source, KnownStyles* styles, const PictureSource& pictures,
                     DiagnosticEngine& engine)
        : source_(source), styles_(styles), engine_(engine), pictures_(pictures) {}

    void run() {
        std::vector<SourceLine> lines = PreProcessRawData(source_.text(), dialect_.marks.block);
        frame_ = frameOf(source_.text(), lines, dialect_);
        run(std::move(lines));
    }

    void runOnFilled(const FilledLines& filled) {
        const std::vector<SourceLine>& lines = filled.lines;
        isComplete_ = filled.areComplete;
        frame_ = frameOf(lines, dialect_);
        run(lines);
    }

private:
    void run(std::vector<SourceLine> lines) {
        const std::string_view firstLine =
            lines.empty() ? source_.text().substr(0, 0) : lines.front().text;
        checkFrame(lines);
        passOverByteOrderMark(lines);
        if (!frame_.hasOpener && !holdsLines(lines)) {
            // Prose or the like: an error for each of its lines would not help.
            return;
        }
        if (!dialect_.values.areExtended) {
            lines = repairLines(lines, dialect_, &recovery_);
        }
        recovery_.setLines(lines);
        DescriptionTree tree(lines.size() / 2);
        DescriptionParser(dialect_, &recovery_).treeWalkerBuild(tree, lines);
        DescriptionNode* doc = documentOf(tree);
        if (frame_.begins && (!doc || doc->number != documentNumber)) {
            engine_.reportText(DiagnosticId::NoDocument, source_.placeOf(firstLine),
                               driverError(DriverFault::NoDocument).description);
        }
        if (doc) {
            checkDocument(*doc);
        }
    }

    void checkFrame(const std::vector<SourceLine>& lines) {
        for (const Violation& violation : frameViolations(frame_, source_.text(), lines)) {
            engine_.reportText(diagnosticOf(violation.fault), source_.placeOf(violation.part),
                               violation.error.description, frameHint(violation));
            if (violation.fault == DriverFault::NotADescription) {
                // The others follow from it.
                return;
            }
        }
    }

    Hint frameHint(const Violation& violation) const {
        if (violation.fault == DriverFault::NotADescription) {
            return isUtf16(source_.text()) ? std::string(utf16Hint)
                                           : "a description begins with (doc and ends with doc)";
        }
        if (violation.fault != DriverFault::WrongRoot) {
            return {};
        }
        if (frame_.begins) {
            return "the last line must be doc)";
        }
        return afterByteOrderMark(violation.part).size() < violation.part.size()
                   ? "the file begins with a UTF-8 byte order mark; save it in Windows-1252"
                   : Hint();
    }

    /// A mark before the first line is reported with the frame; it hides nothing of what follows.
    void passOverByteOrderMark(std::vector<SourceLine>& lines) const {
        if (lines.empty()) {
            return;
        }
        std::string_view& first = lines.front().text;
        first = trimWhitespace(afterByteOrderMark(first));
        if (first.empty() || first.front() == dialect_.marks.comment) {
            lines.erase(lines.begin());
        }
    }

    bool holdsLines(const std::vector<SourceLine>& lines) const {
        return std::any_of(lines.begin(), lines.end(), [&](const SourceLine& line) {
            return descriptionLine(line.text, dialect_).isReadable();
        });
    }

    /// The first doc node that no other node holds; null when there is none.
    static DescriptionNode* documentOf(DescriptionTree& tree) {
        const auto nodes = tree.root().children();
        const auto doc = std::find_if(nodes.begin(), nodes.end(),
                                      [](const DescriptionNode& node) { return !node.isOutside; });
        return doc == nodes.end() ? nullptr : &*doc;
    }

    void checkDocument(DescriptionNode& doc) {
        std::optional<StyleUses> uses;
        if (styles_) {
            uses.emplace(*styles_, source_, engine_);
        }
        const ViolationReport report(source_, dialect_.vocabulary, uses ? &*uses : nullptr,
                                     engine_);
        const DescriptionRules rules(dialect_, report, MisplacedNodes::ByKind);
        rules.docWalkerSyntax(doc);
        if (!dialect_.values.areExtended) {
            rules.treeWalkerSemantic(doc);
            rules.checkBuiltValues(doc);
        }
        NullPlatform platform;
        const Ref<CRtfDoc> document = CRtfDoc::create(platform);
        if (styles_) {
            document->setExtendedStyleSheets(true);
            document->LoadStyleSheetFromMemmory(styles_->soundText());
        }
        DocumentBuilder builder(*document, dialect_, report, pictures_);
        if (!isComplete_) {
            builder.leaveLayoutUnchecked();
        }
        BuiltTable table = builder.build(doc);
        if (!dialect_.texts.isLiteral) {
            findDescriptionWarnings(doc, *document, table, styles_, source_, engine_);
        } else if (uses) {
            findLiteralTextWarnings(doc, *uses);
        }
    }

    const SourceText& source_;
    KnownStyles* styles_;
    DiagnosticEngine& engine_;
    const PictureSource& pictures_;
    const Dialect& dialect_ = dialectOf(source_);
    DescriptionFrame frame_;
    bool isComplete_ = true;
    CheckRecovery recovery_{source_, dialect_, engine_};
};

}  // namespace

std::vector<Diagnostic> checkDescription(std::string_view text, KnownStyles* styles,
                                         TextEncoding encoding, const PictureSource& pictures) {
    std::vector<Diagnostic> diagnostics;
    const SourceText source(text, encoding);
    if (isMarkedExtended(text)) {
        if (std::optional<Diagnostic> stray = findByteNotOfUtf8(source)) {
            diagnostics.push_back(std::move(*stray));
            return diagnostics;
        }
    }
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    DescriptionCheck(source, styles, pictures, engine).run();
    findWrongIgnoreComments(source, CheckedLanguage::Description, engine);
    sortByPlace(diagnostics);
    keepFirstMojibake(diagnostics);
    return diagnostics;
}

std::vector<Diagnostic> checkFilledDescription(const SourceText& source, const FilledLines& filled,
                                               KnownStyles* styles, const PictureSource& pictures) {
    std::vector<Diagnostic> diagnostics;
    DiagnosticEngine engine(
        [&](Diagnostic diagnostic) { diagnostics.push_back(std::move(diagnostic)); });
    DescriptionCheck(source, styles, pictures, engine).runOnFilled(filled);
    findWrongIgnoreComments(source, CheckedLanguage::Description, engine);
    sortByPlace(diagnostics);
    return diagnostics;
}

}  // namespace quorvane
