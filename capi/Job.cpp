#include "capi/Job.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "capi/ContentError.h"
#include "capi/callError.h"
#include "data/TemplateFilling.h"
#include "data/json.h"
#include "data/jsonDiagnostic.h"
#include "data/partialsBeside.h"
#include "data/templateCheck.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/diagnostics/engine/withoutIgnored.h"
#include "quorvane/diagnostics/fileNameCheck.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/diagnostics/stylesheet/StyleSheetCheck.h"
#include "quorvane/diagnostics/textFile.h"
#include "quorvane/driver/parseFilled.h"
#include "quorvane/driver/picturesBeside.h"
#include "quorvane/formatting/formatStyleSheet.h"
#include "quorvane/formatting/languageToFormat.h"

namespace quorvane::capi {

namespace {

bool isError(const Diagnostic& diagnostic) {
    return diagnostic.severity == Severity::Error;
}

const Diagnostic* firstError(const std::vector<Diagnostic>& diagnostics) {
    const auto found = std::find_if(diagnostics.begin(), diagnostics.end(), isError);
    return found == diagnostics.end() ? nullptr : &*found;
}

ContentError contentError(const std::string& name, const Diagnostic& diagnostic) {
    return {{.status = QUORVANE_WRONG_CONTENT,
             .identifier = std::string(diagnosticRule(diagnostic.id).identifier),
             .message = diagnostic.message,
             .file = name,
             .line = diagnostic.place.line,
             .column = diagnostic.place.column}};
}

ContentError wrongValue(std::string message) {
    return {{.status = QUORVANE_WRONG_CONTENT,
             .identifier = "wrong-value",
             .message = std::move(message)}};
}

DiagnosticId idNamed(std::string_view identifier) {
    const DiagnosticRule* const rule = findDiagnosticRule(identifier);
    if (!rule) {
        throw wrongValue("\"" + std::string(identifier) + "\" is not the name of a diagnostic.");
    }
    return rule->id;
}

/// An error that the check does not find.
Diagnostic diagnosticOf(const RtfError& error) {
    Diagnostic diagnostic;
    diagnostic.id = DiagnosticId::Rejected;
    diagnostic.message = error.description;
    diagnostic.place.line = std::max(error.line, 1);
    return diagnostic;
}

std::string nameOf(CheckedLanguage language) {
    return language == CheckedLanguage::Description  ? "description"
           : language == CheckedLanguage::StyleSheet ? "stylesheet"
                                                     : "document";
}

std::string nameOr(std::string_view name, std::string_view fallback) {
    return std::string(name.empty() ? fallback : name);
}

[[noreturn]] void refuseFile() {
    raise(RunTimeError::InvalidProcedureCall,
          "The description has no path, so there is no folder to look in");
}

ContentError numbered(ContentError error, std::int32_t number) {
    error.text.number = number;
    return error;
}

}  // namespace

void Job::setStyleSheet(std::string_view bytes, std::string_view name) {
    list_.clear();
    if (bytes.empty()) {
        styleSheet_.clear();
        styles_.reset();
        driver_ = {};
        return;
    }
    const std::string shownName = nameOr(name, nameOf(CheckedLanguage::StyleSheet));
    Source source = sourceOf(bytes, shownName);
    const std::vector<Diagnostic> all = checkStyleSheet(source.text, source.encoding);
    report(shownName, withoutIgnored(all, source.text, CheckedLanguage::StyleSheet));
    deliver();
    if (const Diagnostic* const error = firstError(all)) {
        throw contentError(shownName, *error);
    }
    styles_ = KnownStyles(source.text, source.encoding);
    styleSheetName_ = shownName;
    styleSheet_ = std::move(source.text);
    driver_ = {};
}

void Job::setData(std::string_view json, std::string_view name) {
    list_.clear();
    if (json.empty()) {
        data_.reset();
        return;
    }
    data::JsonError error;
    std::optional<data::DataValue> data = data::readJson(json, error);
    if (!data) {
        refuse(nameOr(name, "data"), {data::jsonDiagnostic(json, error)});
    }
    data_ = std::move(data);
}

void Job::setLocale(std::string_view name) {
    std::string error;
    data::Locale locale = name.empty() ? data::Locale() : data::localeNamed(name, error);
    if (!error.empty()) {
        throw wrongValue(std::move(error));
    }
    locale_ = std::move(locale);
}

void Job::ignore(std::string_view identifier) {
    ignored_.insert(idNamed(identifier));
}

void Job::enable(std::string_view identifier) {
    enabled_.insert(idNamed(identifier));
}

void Job::setReceiver(quorvane_diagnostic_callback callback, void* user) {
    receiver_ = callback;
    receiverUser_ = user;
}

Document Job::render(std::string_view bytes) {
    list_.clear();
    if (!std::exchange(isDriverSound_, false)) {
        driver_ = {};
    }
    const Source source = sourceOf(bytes, pathOrName());
    if (data_) {
        renderTemplate(source);
    } else {
        renderText(source);
    }
    isDriverSound_ = true;
    return Document(driver_->RtfObject());
}

void Job::renderText(const Source& source) {
    prepareDriver(source);
    driver_->ParseFromMemmory(source.text);
    finishRendering(source, [&] {
        return checkDescription(source.text, knownStyles(), source.encoding, pictures());
    });
}

void Job::renderTemplate(const Source& source) {
    std::vector<data::TemplateError> errors;
    const data::Template compiled =
        data::compileTemplate(source.text, source.encoding, partials(), errors);
    data::TemplateFilling filling(compiled, locale_);
    const std::vector<SourceLine>* lines = nullptr;
    if (errors.empty()) {
        lines = &filling.fill(*data_, errors);
    }
    if (!errors.empty()) {
        reportTemplate(compiled, errors);
        deliver();
        const auto [index, first] = data::templateDiagnostics(compiled, errors).front();
        throw contentError(pathOfSource(compiled, index), first);
    }
    prepareDriver(source);
    parseFilled(*driver_, *lines);
    finishRendering(
        source, [&] { return data::checkFilled(compiled, {*lines}, knownStyles(), pictures()); });
}

/// A driver goes on to the next description. One that builds nothing changes nothing, so that the
/// document before would be left.
void Job::prepareDriver(const Source& source) {
    if (!driver_) {
        makeDriver();
    }
    driver_->RtfObject()->setChanged(false);
    events_.clear();
    driver_->setErroneousInput(checks_);
    driver_->setUnicodeTexts(isUtf8(source.encoding));
    driver_->setPictureSource(pictures());
    driver_->setNotifyErrorHandler(
        [this](CRtfDriver&, const RtfError& error) { events_.push_back(error); });
}

void Job::makeDriver() {
    driver_ = CRtfDriver::create();
    driver_->setReadsExtended(true);
    driver_->RtfObject()->setExtendedStyleSheets(true);
    if (!styleSheet_.empty()) {
        driver_->LoadStyleSheetFromMemmory(styleSheet_);
    }
}

/// Refuses the description if it has errors. The check costs time and is made only where its
/// diagnostics are wanted.
void Job::finishRendering(const Source& source,
                          const std::function<std::vector<Diagnostic>()>& check) {
    if (!driver_->RtfObject()->Changed()) {
        makeDriver();
    }
    if (events_.empty() && !checks_) {
        return;
    }
    std::vector<Diagnostic> diagnostics =
        withoutIgnored(check(), source.text, CheckedLanguage::Description);
    if (checks_) {
        for (Diagnostic& each : diagnostics) {
            if (diagnosticRule(each.id).corruptsDocument) {
                each.severity = Severity::Error;
            }
        }
    } else {
        std::erase_if(diagnostics, [](const Diagnostic& each) { return !isError(each); });
    }
    if (!firstError(diagnostics)) {
        std::transform(events_.begin(), events_.end(), std::back_inserter(diagnostics),
                       diagnosticOf);
    }
    if (firstError(diagnostics)) {
        refuse(pathOrName(), diagnostics, events_.empty() ? 0 : events_.front().number);
    }
    report(pathOrName(), std::move(diagnostics));
    deliver();
}

void Job::check(std::string_view bytes, std::optional<CheckedLanguage> wanted) {
    list_.clear();
    const CheckedLanguage language = wanted ? *wanted : languageOf(bytes, path_);
    const TextEncoding encoding =
        language == CheckedLanguage::Rtf ? TextEncoding::Windows1252 : encodingOf(bytes, encoding_);
    const std::string name = nameOr(path_, nameOf(language));
    if (std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        report(name, {*std::move(unreadable)});
        deliver();
        return;
    }
    report(name, findNameMismatch(bytes, language, path_, encoding));
    if (language == CheckedLanguage::Rtf) {
        report(name, checkRtf(bytes));
        deliver();
        return;
    }
    const Source source{decodedText(std::string(bytes), encoding), encoding};
    if (language == CheckedLanguage::StyleSheet) {
        report(name, withoutIgnored(checkStyleSheet(source.text, encoding), source.text, language));
    } else {
        checkDescriptionOrTemplate(source);
        reportUnusedStyles();
    }
    deliver();
}

/// Reports the styles that no description uses which the job has checked with this stylesheet.
void Job::reportUnusedStyles() {
    if (styles_ && enabled_.contains(DiagnosticId::UnusedStyle)) {
        report(styleSheetName_, withoutIgnored(findUnusedStyles(*styles_), styles_->text(),
                                               CheckedLanguage::StyleSheet));
    }
}

void Job::checkDescriptionOrTemplate(const Source& source) {
    if (data_ || data::looksLikeTemplate(source.text)) {
        checkTemplate(source);
        return;
    }
    report(pathOrName(),
           withoutIgnored(checkDescription(source.text, knownStyles(), source.encoding, pictures()),
                          source.text, CheckedLanguage::Description));
}

void Job::checkTemplate(const Source& source) {
    std::vector<data::TemplateError> errors;
    const data::Template compiled =
        data::compileTemplate(source.text, source.encoding, partials(), errors);
    std::vector<Diagnostic> diagnostics;
    if (errors.empty() && data_) {
        data::TemplateFilling filling(compiled, locale_);
        const std::vector<SourceLine>& lines = filling.fill(*data_, errors);
        diagnostics =
            data::checkFilled(compiled, {lines, errors.empty()}, knownStyles(), pictures());
    } else if (errors.empty()) {
        diagnostics = data::checkUnfilled(compiled, knownStyles(), pictures());
    }
    report(pathOrName(),
           withoutIgnored(std::move(diagnostics), source.text, CheckedLanguage::Description));
    reportTemplate(compiled, errors);
}

std::string Job::format(std::string_view bytes, std::optional<CheckedLanguage> wanted,
                        NameForm names) const {
    const TextEncoding encoding = encodingOf(bytes, encoding_);
    if (const std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        throw contentError(pathOrName(), *unreadable);
    }
    const std::string text = decodedText(std::string(bytes), encoding);
    const std::optional<CheckedLanguage> language = wanted          ? wanted
                                                    : path_.empty() ? languageOfStreamToFormat(text)
                                                                    : languageToFormat(text, path_);
    if (!language || *language == CheckedLanguage::Rtf) {
        throw wrongValue("The text is neither a description nor a stylesheet.");
    }
    return encodedText(*language == CheckedLanguage::Description ? formattedDescription(text, names)
                                                                 : formattedStyleSheet(text),
                       encoding);
}

Job::Source Job::sourceOf(std::string_view bytes, const std::string& name) {
    const TextEncoding encoding = encodingOf(bytes, encoding_);
    if (const std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        refuse(name, {*unreadable});
    }
    return {decodedText(std::string(bytes), encoding), encoding};
}

std::string Job::pathOrName() const {
    return nameOr(path_, nameOf(CheckedLanguage::Description));
}

/// The path of a template or of one of its partials.
std::string Job::pathOfSource(const data::Template& source, std::size_t index) const {
    return index == 0 ? pathOrName()
                      : utf8FromPath(pathFromUtf8(path_).parent_path() /
                                     pathFromUtf8(source.sources[index].name));
}

PictureSource Job::pictures() const {
    if (files_.callback) {
        return [files = files_](const std::string& name) {
            return files.read(QUORVANE_PICTURE, name);
        };
    }
    if (path_.empty() && pictureFolders_.empty()) {
        return [](const std::string&) -> std::string { refuseFile(); };
    }
    return picturesBeside(path_, systemPlatform(), pictureFolders_);
}

data::PartialSource Job::partials() const {
    if (files_.callback) {
        return [files = files_](const std::string& name) {
            return files.read(QUORVANE_PARTIAL, name);
        };
    }
    if (path_.empty()) {
        return [](const std::string&) -> std::string { refuseFile(); };
    }
    return data::partialsBeside(path_, systemPlatform());
}

KnownStyles* Job::knownStyles() {
    return styles_ ? &*styles_ : nullptr;
}

bool Job::isReported(const Diagnostic& diagnostic) const {
    return !ignored_.contains(diagnostic.id) &&
           (!isOffByDefault(diagnostic.id) || enabled_.contains(diagnostic.id));
}

void Job::report(const std::string& name, std::vector<Diagnostic> diagnostics) {
    std::erase_if(diagnostics, [this](const Diagnostic& each) { return !isReported(each); });
    list_.add(name, diagnostics);
}

void Job::reportTemplate(const data::Template& source,
                         const std::vector<data::TemplateError>& errors) {
    for (auto& [index, diagnostic] : data::templateDiagnostics(source, errors)) {
        report(pathOfSource(source, index), {std::move(diagnostic)});
    }
}

/// Throws the first error among the diagnostics, of which there is one. The number is that of the
/// library's error.
void Job::refuse(const std::string& name, const std::vector<Diagnostic>& diagnostics,
                 std::int32_t number) {
    report(name, diagnostics);
    deliver();
    throw numbered(contentError(name, *firstError(diagnostics)), number);
}

void Job::deliver() const {
    for (std::size_t i = 0; receiver_ && i < list_.size(); ++i) {
        if (receiver_(receiverUser_, &list_[i]) != 0) {
            throw Stopped();
        }
    }
}

}  // namespace quorvane::capi
