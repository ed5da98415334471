#include "quorvane/docmodel/InnerDocument.h"

#include <span>
#include <utility>

#include "quorvane/base/text/StringOutput.h"
#include "quorvane/base/text/quickHash.h"
#include "quorvane/docmodel/StreamedText.h"
#include "quorvane/docmodel/TableRendering.h"
#include "quorvane/docmodel/layout/LaidOutRows.h"
#include "quorvane/docmodel/layout/PageLines.h"
#include "quorvane/docmodel/measures.h"
#include "quorvane/support/GFileSystem.h"
#include "quorvane/support/published.h"

namespace quorvane {

namespace {

constexpr const char* moduleName = "CRtfDoc.cls";

std::string lockedFileMessage(const std::string& path) {
    return "Error accessing " + path +
           ". The file seems to be opened with exclusive rights by some other application (maybe "
           "MS Word) and Quorvane can't modify it.  Use a diferent file name or close it.";
}

/// Marks the text of a document as being written.
template <class State>
class BeingWritten {
public:
    explicit BeingWritten(State& state) noexcept
        : state_(state), before_(std::exchange(state, State::BeingWritten)) {}
    BeingWritten(const BeingWritten&) = delete;
    BeingWritten& operator=(const BeingWritten&) = delete;
    ~BeingWritten() { state_ = before_; }

private:
    State& state_;
    State before_;
};

}  // namespace

void retain(CRtfDoc* document) noexcept {
    retainDocument(inner(*document));
}

void release(CRtfDoc* document) noexcept {
    releaseDocument(inner(*document));
}

InnerDocument::InnerDocument(Platform& platform)
    : files_(platform),
      errors_(platform),
      styleSheet_(std::make_unique<CRtfGrpStyleSheetTable>(*this, platform)) {
    initAllGroups();
}

void InnerDocument::commit(const std::string& path) {
    refuseWhileWriting();
    checkLayout();
    std::optional<RtfError> failure;
    if (streams()) {
        failure = stream(path);
    } else if (refreshIfChanged("Commit")) {
        failure = GFileSystem::errorOfSaving(files_, errors_, path, contents_, false);
    }
    if (!failure) {
        return;
    }
    if (failure->is(RunTimeError::PathFileAccessError)) {
        RtfError locked(failure->number, lockedFileMessage(path));
        locked.cause = failure->cause;
        raise(std::move(locked));
    }
    errors_.handleError(*failure, moduleName, "Commit");
}

const std::string& InnerDocument::contents() {
    refuseWhileWriting();
    keepsText_ = true;
    checkLayout();
    if (refreshIfChanged("Contents") && textState_ == TextState::Written) {
        keepText();
    }
    return contents_;
}

void InnerDocument::refresh() {
    refuseWhileWriting();
    keepsText_ = true;
    setChanged(true);
    checkLayout();
    refreshIfChanged("Refresh");
}

// Renders a stale text into memory. A failure goes to the error module as one of this procedure;
// false then.
bool InnerDocument::refreshIfChanged(const char* procedure) {
    return !changed() || !errors_.absorbing(moduleName, procedure, [this] { render(); });
}

void InnerDocument::render() {
    std::string rtf;
    if (!styleSheet_->CharacterWordsHoldTokens() && textState_ == TextState::Kept) {
        // Only words that hold tokens can make a text endless. Without them the stale text makes
        // room: its memory serves the new one. Should rendering fail for want of memory, the
        // document still counts as changed.
        rtf = std::move(contents_);
        contents_ = "{}";
    }
    rtf.clear();
    renderInto(rtf);
    contents_ = std::move(rtf);
    textState_ = TextState::Kept;
    setChanged(false);
}

void InnerDocument::renderInto(std::string& rtf) {
    StringOutput out(rtf);
    TableRendering rendering(*this, out);
    render(rendering);
    out.flush();
}

void InnerDocument::renderOnce(TextOutput& out) {
    refuseWhileWriting();
    checkLayout();
    const BeingWritten here(textState_);
    TableRendering rendering(*this, out);
    render(rendering);
}

void InnerDocument::render(TableRendering& rendering) {
    renderBeginning(rendering);
    if (hasLayout()) {
        LaidOutRows(inner(*body_.TableRows()), *this).renderBody(rendering);
    } else {
        body_.render(rendering);
    }
    renderEnd(rendering.out);
}

void InnerDocument::renderBeginning(TableRendering& rendering) {
    TextOutput& out = rendering.out;
    out << "{";
    header_.render(out);
    const DocumentAdditions* additions = memory().additions.get();
    fontTable_.render(out, additions ? additions->fonts.entries() : std::span<const std::string>());
    colorTable_.render(out, additions ? additions->colors.list() : std::span<const RgbColor>());
    styleSheet_->render(out);
    format_->render(out);
    if (hasLayout()) {
        renderPageLines(rendering);
    }
}

void InnerDocument::renderEnd(TextOutput& out) const {
    if (page().endsInSmallParagraph) {
        out << R"(\pard\plain\sl-20\slmult0\fs2\par)";
    }
    out << "}";
}

void InnerDocument::renderPageLines(TableRendering& rendering) {
    const LaidOutRows laidOut(inner(*body_.TableRows()), *this);
    PageLines lines(rendering, *format_);
    lines.renderHeader(page().header, laidOut.hasPageHeading() ? &laidOut : nullptr);
    lines.renderFooter(page().footer);
}

void InnerDocument::setChanged(bool changed) noexcept {
    staleness_ = changed ? Staleness::Changed : Staleness::None;
}

void InnerDocument::checkLayout() {
    if (staleness_ == Staleness::Changed && hasLayout()) {
        LaidOutRows(inner(*body_.TableRows()), *this).check();
        TextAreaWidth();
        staleness_ = Staleness::Checked;
    }
}

bool InnerDocument::hasLayout() const {
    return memory().additions && memory().additions->hasLayout();
}

tColorIndex InnerDocument::addColor(RgbColor color) {
    return static_cast<tColorIndex>(
        numberIn(&DocumentAdditions::colors, color, TableUser::Document));
}

std::int32_t InnerDocument::addFont(std::string_view name) {
    return numberIn(&DocumentAdditions::fonts, name, TableUser::Document);
}

std::int32_t InnerDocument::colorNumber(const RgbColor& color) {
    return numberIn(&DocumentAdditions::colors, color, TableUser::StyleSheet);
}

std::int32_t InnerDocument::fontNumber(const std::string& name) {
    return numberIn(&DocumentAdditions::fonts, name, TableUser::StyleSheet);
}

void InnerDocument::releaseNumbers() noexcept {
    if (memory().additions) {
        memory().additions->colors.release(TableUser::StyleSheet);
        memory().additions->fonts.release(TableUser::StyleSheet);
    }
}

template <class Table, class Entry>
std::int32_t InnerDocument::numberIn(Table DocumentAdditions::*table, const Entry& entry,
                                     TableUser user) {
    // Made before the change, of which it is no part.
    Table& entries = memory().makeAdditions().*table;
    std::optional<std::int32_t> number = entries.number(entry);
    if (!number) {
        beforeChange();
        number = entries.add(entry);
        markChanged();
    }
    entries.use(user, *number);
    return *number;
}

const PageAdditions& InnerDocument::page() const noexcept {
    static const PageAdditions none;
    return memory().additions ? memory().additions->page : none;
}

// A text that nobody has asked for need not be in memory. An endless one must not begin a file.
bool InnerDocument::streams() const noexcept {
    return (changed() || textState_ == TextState::Written) && !keepsText_ &&
           !styleSheet_->CharacterWordsHoldTokens();
}

std::optional<RtfError> InnerDocument::stream(const std::string& path) {
    StreamedText text(files_, errors_, path);
    TableRendering rendering(*this, text);
    {
        const BeingWritten here(textState_);
        render(rendering);
        if (text.waits() && rendering.inlineStyles.keepsItsMemory() && styleSheet_->keepsNames() &&
            !hasLayout()) {
            text.begin();
            render(rendering);
        }
    }
    if (text.isWhole()) {
        contents_ = text.text();
        textState_ = TextState::Kept;
        setChanged(false);
        return GFileSystem::errorOfSaving(files_, errors_, path, contents_, false);
    }
    if (text.waits()) {
        render();
        text.begin();
        text << contents_;
    } else {
        std::string().swap(contents_);
        textState_ = TextState::Written;
        setChanged(false);
    }
    return text.end();
}

bool InnerDocument::holdsShortText() const noexcept {
    return textState_ == TextState::Kept && contents_.size() <= StreamedText::longestWholeText;
}

void InnerDocument::keepText() {
    refuseWhileWriting();
    std::string rtf;
    renderInto(rtf);
    contents_ = std::move(rtf);
    textState_ = TextState::Kept;
    keepsText_ = true;
}

void InnerDocument::refuseWhileWriting() const {
    if (textState_ == TextState::BeingWritten) {
        // Some of the procedures that call this have no other error.
        published([] { raise(RunTimeError::InvalidProcedureCall); });
    }
}

void InnerDocument::clearStructure() {
    beforeChange();
    initAllGroups();
}

void InnerDocument::setExtendedStyleSheets(bool accept) {
    styleSheet_->setExtendedTables(accept ? this : nullptr);
}

// The fixed groups hold nothing that could change, and the stylesheet stays: only page and table
// begin anew.
void InnerDocument::initAllGroups() {
    auto format = std::make_unique<CRtfGrpDocumentFormat>(*this);
    body_ = CRtfGrpBody<InnerRows>(Ref<InnerRows>(new InnerRows(*this)));
    format_ = std::move(format);
    if (memory().additions) {
        memory().additions->page = {};
        memory().additions->colors.release(TableUser::Document);
        memory().additions->fonts.release(TableUser::Document);
    }
}

void InnerDocument::releaseContents() noexcept {
    body_.destroy();
    format_.reset();
    styleSheet_.reset();
    std::string().swap(contents_);
    names_ = {};
    errors_.setObserver({});
    errors_.setLostCharacterObserver({});
}

std::int32_t InnerDocument::TextAreaWidth() const {
    return difference(difference(format_->PaperWidth(), format_->RightMargin()),
                      format_->LeftMargin());
}

std::string_view InnerDocument::GetParagraphStyle(std::string_view sName) const {
    const std::string_view words = styleSheet_->GetParagraphStyle(sName);
    return words.empty() ? std::string_view(" ") : words;
}

std::string_view InnerDocument::GetCharacterStyle(std::string_view sName) const {
    return styleSheet_->GetCharacterStyle(sName);
}

std::int32_t InnerDocument::cellStyleColor(std::string_view sName) const {
    return styleSheet_->getCellStyleBackColor(sName);
}

bool InnerDocument::lacksStyle(StyleKind kind, std::string_view name) const {
    return styleSheet_->lacks(kind, name);
}

const SharedText& InnerDocument::sharedName(std::string_view sName) {
    SharedText& kept = names_[quickHash(sName) % names_.size()];
    if (kept.view() != sName) {
        kept = SharedText(sName);
    }
    return kept;
}

}  // namespace quorvane
