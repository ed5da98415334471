#include "cli/DescriptionRendering.h"

#include <algorithm>
#include <utility>

#include "cli/RenderOptions.h"
#include "cli/fileFailure.h"
#include "cli/process.h"
#include "data/TemplateFilling.h"
#include "data/templateCheck.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/driver/parseFilled.h"
#include "quorvane/driver/picturesBeside.h"

namespace quorvane::cli {

namespace {

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
    prepareStyleSheet();
    if (std::optional<DescriptionText> description = readDescription(
            assignment_.description, manner_.encoding, platform_, report_, status_)) {
        if (manner_.data) {
            parseTemplate(*std::move(description));
        } else {
            // The text takes no memory while the document is written.
            parse(*std::exchange(description, std::nullopt));
        }
        writeUnlessRefused();
    }
    return status_;
}

ExitStatus DescriptionRendering::run(const LoadedTemplate& loaded, data::TemplateFilling& filling,
                                     const NumberedRecord& record) {
    prepareStyleSheet();
    parseRecord(loaded, filling, record.value, record.number);
    writeUnlessRefused();
    return status_;
}

void DescriptionRendering::prepareStyleSheet() {
    if (manner_.styleSheet) {
        setStyleSheet(*manner_.styleSheet);
    }
    if (manner_.isStyleSheetRefused) {
        status_ = ExitStatus::ContentErrors;
    }
}

void DescriptionRendering::writeUnlessRefused() {
    if (mayWrite()) {
        leaveDocumentBefore();
        write();
    }
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
    if (manner_.joined) {
        manner_.joined->prepare(*driver_->RtfObject());
    }
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

void DescriptionRendering::parse(const DescriptionText& description) {
    if (data::looksLikeTemplate(description.text)) {
        report_.note(shownDescription(assignment_.description) +
                     ": note: Tags such as {{name}} are shown as they are written; fill them with "
                     "--data.");
    }
    const PictureSource pictures = prepareDriver(description.encoding);
    driver_->ParseFromMemmory(description.text);
    pass(description, [&](KnownStyles* styles) {
        return checkDescription(description.text, styles, description.encoding, pictures);
    });
}

void DescriptionRendering::parseTemplate(DescriptionText description) {
    const std::optional<LoadedTemplate> loaded =
        loadTemplate(assignment_.description, std::move(description), platform_, report_);
    if (!loaded) {
        status_ = std::max(status_, ExitStatus::ContentErrors);
        isFilled_ = false;
        return;
    }
    data::TemplateFilling filling(loaded->source, manner_.data->locale);
    parseRecord(*loaded, filling, manner_.data->record, 0);
    if (!isFilled_ && manner_.data->record.isList()) {
        report_.note(shownDescription(assignment_.description) +
                     ": note: The data is a list; --each renders a document of each of its items.");
    }
}

void DescriptionRendering::parseRecord(const LoadedTemplate& loaded, data::TemplateFilling& filling,
                                       const data::DataValue& record, std::size_t number) {
    std::vector<data::TemplateError> errors;
    const std::vector<SourceLine>& lines = filling.fill(record, errors, number);
    if (!errors.empty()) {
        status_ = std::max(status_, ExitStatus::ContentErrors);
        isFilled_ = false;
        reportErrors(loaded, errors, report_);
        return;
    }
    const PictureSource pictures = prepareDriver(loaded.description.encoding);
    parseFilled(*driver_, lines);
    pass(loaded.description, [&](KnownStyles* styles) {
        return data::checkFilled(loaded.source, {lines}, styles, pictures);
    });
}

PictureSource DescriptionRendering::prepareDriver(TextEncoding encoding) {
    driver_->setErroneousInput(manner_.check);
    driver_->setUnicodeTexts(isUtf8(encoding));
    driver_->setReadsExtended(true);
    PictureSource pictures =
        picturesBeside(assignment_.description, platform_, manner_.pictureFolders);
    driver_->setPictureSource(pictures);
    driver_->setNotifyErrorHandler([&](CRtfDriver&, const RtfError& error) {
        status_ = std::max(status_, ExitStatus::ContentErrors);
        report_.event(shownDescription(assignment_.description), error);
    });
    return pictures;
}

void DescriptionRendering::pass(const DescriptionText& description,
                                const CheckOfDescription& check) {
    if (!report_.passDescription(shownDescription(assignment_.description), assignment_.description,
                                 description.text, description.encoding, check)) {
        status_ = std::max(status_, ExitStatus::ContentErrors);
    }
}

/// With errors, what was built must be a table: a document of nothing would take the place of one
/// that is there.
bool DescriptionRendering::mayWrite() {
    if (status_ == ExitStatus::Success || !manner_.keepGoing) {
        return status_ == ExitStatus::Success;
    }
    if (isFilled_ && driver_->RtfObject()->TableRows()->Count() > 0) {
        return true;
    }
    report_.fail({ErrorKind::Raised, shownDescription(assignment_.description),
                  RtfError(RunTimeError::InvalidProcedureCall, "Nothing could be built; " +
                                                                   outputName(assignment_.output) +
                                                                   " was not written.")});
    return false;
}

void DescriptionRendering::write() {
    const std::string name = outputName(assignment_.output);
    hasWritten_ = true;
    driver_->setAbsorbedErrorObserver([&](const AbsorbedError& absorbed) {
        hasWritten_ = false;
        fail(fileFailure(name, absorbed.error));
    });
    try {
        if (manner_.joined) {
            manner_.joined->add(*driver_->RtfObject());
        } else {
            driver_->Commit(assignment_.output);
        }
    } catch (const RtfError& error) {
        hasWritten_ = false;
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
