#include "cli/DescriptionRendering.h"

#include <algorithm>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/TemplateFiles.h"
#include "cli/fileFailure.h"
#include "cli/process.h"
#include "data/Template.h"
#include "data/TemplateFilling.h"
#include "data/partialsBeside.h"
#include "data/templateCheck.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/driver/parseFilled.h"
#include "quorvane/driver/picturesBeside.h"

namespace quorvane::cli {

namespace {

std::string inputName(const std::string& description) {
    return description == standardStream ? "<stdin>" : description;
}

std::string outputName(const std::string& output) {
    return output == standardStream ? "<stdout>" : output;
}

}  // namespace

DescriptionRendering::DescriptionRendering(const Assignment& assignment,
                                           const RenderingManner& manner, CommandPlatform& platform,
                                           Ref<CRtfDriver>& driver, RenderReport& report)
    : assignment_(assignment),
      manner_(manner),
      platform_(platform),
      driver_(driver),
      isDriverNew_(!driver),
      report_(report) {
    if (isDriverNew_) {
        makeDriver();
    }
}

DescriptionRendering::~DescriptionRendering() {
    driver_->setNotifyErrorHandler({});
    driver_->setAbsorbedErrorObserver({});
}

ExitStatus DescriptionRendering::run() {
    if (manner_.styleSheet) {
        setStyleSheet(*manner_.styleSheet);
    }
    if (manner_.isStyleSheetRefused) {
        status_ = ExitStatus::ContentErrors;
    }
    if (std::optional<std::string> text = readDescription()) {
        if (manner_.data) {
            parseTemplate(*text);
        } else {
            parse(*text);
        }
        text.reset();
        if (mayWrite()) {
            leaveDocumentBefore();
            write();
        }
    }
    return status_;
}

/// A description that builds nothing does not change the document, which is then still rendered as
/// the one before.
void DescriptionRendering::leaveDocumentBefore() {
    const Ref<CRtfDoc> document = driver_->RtfObject();
    if (isDriverNew_ || document->Changed() || document->Contents() == "{}") {
        return;
    }
    makeDriver();
    if (manner_.styleSheet) {
        setStyleSheet(*manner_.styleSheet);
    }
}

void DescriptionRendering::makeDriver() {
    driver_ = CRtfDriver::create(platform_);
    driver_->RtfObject()->setExtendedStyleSheets(true);
}

void DescriptionRendering::setStyleSheet(const std::string& name) {
    try {
        driver_->setStyleSheetFile(name);
    } catch (const RtfError& error) {
        // First of all: the error counts even when it cannot be reported.
        status_ = ExitStatus::ContentErrors;
        report_.refuseStyleSheet(error);
    }
}

std::string DescriptionRendering::readBytes(const std::string& path) {
    if (path == standardStream) {
        return readStandardInput();
    }
    try {
        return platform_.readFile(path);
    } catch (const RtfError& error) {
        raise(unreadableDescription(path, error));
    }
}

std::optional<std::string> DescriptionRendering::readDescription() {
    const std::string& path = assignment_.description;
    try {
        std::string bytes = readBytes(path);
        encoding_ = encodingOf(bytes, manner_.encoding);
        if (!report_.passBytes(inputName(path), bytes, encoding_)) {
            status_ = std::max(status_, ExitStatus::ContentErrors);
            return std::nullopt;
        }
        return decodedText(std::move(bytes), encoding_);
    } catch (const RtfError& error) {
        fail(unreadableFile(inputName(path), path, error));
        return std::nullopt;
    }
}

void DescriptionRendering::parse(const std::string& text) {
    const PictureSource pictures = prepareDriver();
    driver_->ParseFromMemmory(text);
    pass(text,
         [&](KnownStyles* styles) { return checkDescription(text, styles, encoding_, pictures); });
}

void DescriptionRendering::parseTemplate(const std::string& text) {
    std::vector<data::TemplateError> errors;
    const data::Template source = data::compileTemplate(
        text, encoding_, data::partialsBeside(assignment_.description, platform_), errors);
    data::TemplateFilling filling(source, manner_.data->locale);
    const std::vector<SourceLine>* lines = nullptr;
    if (errors.empty()) {
        lines = &filling.fill(manner_.data->record, errors);
    }
    if (!errors.empty()) {
        status_ = std::max(status_, ExitStatus::ContentErrors);
        const TemplateFiles files(source, assignment_.description,
                                  inputName(assignment_.description));
        for (const auto& [index, diagnostic] : data::templateDiagnostics(source, errors)) {
            report_.refuse(files.nameOf(index), files.windowOf(index), {diagnostic});
        }
        return;
    }
    const PictureSource pictures = prepareDriver();
    parseFilled(*driver_, *lines);
    pass(text, [&](KnownStyles* styles) {
        return data::checkFilled(source, {*lines}, styles, pictures);
    });
}

PictureSource DescriptionRendering::prepareDriver() {
    driver_->setErroneousInput(manner_.check);
    driver_->setUnicodeTexts(isUtf8(encoding_));
    driver_->setReadsExtended(true);
    PictureSource pictures =
        picturesBeside(assignment_.description, platform_, manner_.pictureFolders);
    driver_->setPictureSource(pictures);
    driver_->setNotifyErrorHandler([&](CRtfDriver&, const RtfError& error) {
        status_ = std::max(status_, ExitStatus::ContentErrors);
        report_.event(inputName(assignment_.description), error);
    });
    return pictures;
}

void DescriptionRendering::pass(const std::string& text, const CheckOfDescription& check) {
    if (!report_.passDescription(inputName(assignment_.description), assignment_.description, text,
                                 encoding_, check)) {
        status_ = std::max(status_, ExitStatus::ContentErrors);
    }
}

/// With errors, what was built must be a table: a document of nothing would take the place of one
/// that is there.
bool DescriptionRendering::mayWrite() {
    if (status_ == ExitStatus::Success || !manner_.keepGoing) {
        return status_ == ExitStatus::Success;
    }
    if (driver_->RtfObject()->TableRows()->Count() > 0) {
        return true;
    }
    report_.fail({ErrorKind::Raised, inputName(assignment_.description),
                  RtfError(static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall),
                           "Nothing could be built; " + outputName(assignment_.output) +
                               " was not written.")});
    return false;
}

void DescriptionRendering::write() {
    const std::string name = outputName(assignment_.output);
    driver_->setAbsorbedErrorObserver(
        [&](const AbsorbedError& absorbed) { fail(fileFailure(name, absorbed.error)); });
    try {
        driver_->Commit(assignment_.output);
    } catch (const RtfError& error) {
        fail(fileFailure(name, error));
    } catch (const ClosedPipe&) {
        // Whoever read the document wanted no more of it.
    }
}

void DescriptionRendering::fail(const ReportedError& failure) {
    // First of all: the failure counts even when it cannot be reported.
    status_ = ExitStatus::Failure;
    report_.fail(failure);
}

}  // namespace quorvane::cli
