#include "cli/DescriptionRendering.h"

#include <algorithm>

#include "cli/RenderOptions.h"
#include "cli/process.h"
#include "quorvane/support/codePage1252.h"
#include "quorvane/support/currentError.h"

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
                                           const RenderingManner& manner, Platform& platform,
                                           Ref<CRtfDriver>& driver, const DiagnosticSink& tell)
    : assignment_(assignment), manner_(manner), tell_(tell), platform_(platform), driver_(driver) {
    if (!driver_) {
        driver_ = CRtfDriver::create(platform_);
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
    const bool wasRead = analyse();
    if (wasRead && (status_ == ExitStatus::Success || manner_.keepGoing)) {
        leaveDocumentBefore();
        write();
    }
    return status_;
}

/// A description that makes nothing does not change the document, which then still is rendered as
/// the one before.
void DescriptionRendering::leaveDocumentBefore() {
    const Ref<CRtfDoc> document = driver_->RtfObject();
    if (document->Changed() || document->Contents() == "{}") {
        return;
    }
    driver_ = CRtfDriver::create(platform_);
    if (manner_.styleSheet) {
        setStyleSheet(*manner_.styleSheet);
    }
}

void DescriptionRendering::setStyleSheet(const std::string& name) {
    try {
        driver_->setStyleSheetFile(name);
    } catch (const RtfError& error) {
        tellError(DiagnosticKind::Raised, name, error, ExitStatus::ContentErrors);
    }
}

bool DescriptionRendering::analyse() {
    const std::string name = inputName(assignment_.description);
    driver_->setErroneousInput(manner_.check);
    driver_->setNotifyErrorHandler([&](CRtfDriver&) {
        tellError(DiagnosticKind::Event, name, *currentError(), ExitStatus::ContentErrors);
    });
    try {
        if (assignment_.description == standardStream) {
            driver_->ParseFromMemmory(utf8FromCodePage1252(readStandardInput()));
        } else {
            driver_->ParseFile(assignment_.description);
        }
        return true;
    } catch (const RtfError& error) {
        tellError(DiagnosticKind::Raised, name, error, ExitStatus::Failure);
        return false;
    }
}

void DescriptionRendering::write() {
    const std::string name = outputName(assignment_.output);
    driver_->setAbsorbedErrorObserver([&](const AbsorbedError& absorbed) {
        tellError(DiagnosticKind::Raised, name, absorbed.error, ExitStatus::Failure);
    });
    try {
        driver_->Commit(assignment_.output);
    } catch (const RtfError& error) {
        tellError(DiagnosticKind::Raised, name, error, ExitStatus::Failure);
    }
}

void DescriptionRendering::tellError(DiagnosticKind kind, const std::string& file,
                                     const RtfError& error, ExitStatus status) {
    // First of all: the error counts even when it cannot be told.
    status_ = std::max(status_, status);
    tell_({kind, file, error});
}

}  // namespace quorvane::cli
