#include "quorvane/driver/CRtfDriver.h"

#include <memory>
#include <utility>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/DescriptionFrame.h"
#include "quorvane/driver/DescriptionParser.h"
#include "quorvane/driver/DescriptionRules.h"
#include "quorvane/driver/DescriptionTree.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/DocumentBuilder.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/support/GFileSystem.h"
#include "quorvane/support/published.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

void retain(CRtfDriver* driver) noexcept {
    ++driver->references_;
}

void release(CRtfDriver* driver) noexcept {
    if (--driver->references_ == 0) {
        delete driver;
    }
}

Ref<CRtfDriver> CRtfDriver::create(Platform& platform) {
    return Ref<CRtfDriver>(new CRtfDriver(platform));
}

CRtfDriver::CRtfDriver(Platform& platform)
    : platform_(platform), document_(CRtfDoc::create(platform)) {}

void CRtfDriver::ParseFile(const std::string& sPath) {
    published([&] {
        if (sPath.empty()) {
            raise(driverError(DriverFault::EmptyPath));
        }
        std::string text;
        try {
            text = platform_.readFile(sPath);
            if (asciiRunEnd(text, 0) < text.size()) {
                text = utf8FromCodePage1252(text);
            }
        } catch (const RtfError& error) {
            raise(unreadableDescription(sPath, error));
        }
        AnalyseData(text);
    });
}

void CRtfDriver::ParseFromMemmory(std::string_view sBuffer) {
    published([&] { AnalyseData(sBuffer); });
}

void CRtfDriver::LoadStyleSheetFromMemmory(std::string_view sBuffer) {
    document_->LoadStyleSheetFromMemmory(sBuffer);
}

void CRtfDriver::setNotifyErrorHandler(NotifyErrorHandler handler) {
    handler_ = std::move(handler);
}

void CRtfDriver::setStyleSheetFile(const std::string& sName) {
    published([&] {
        const bool isStyleSheet = lowerCase(GFileSystem::getFileExtension(sName)) == "rtfss";
        if (!isStyleSheet || sName == StyleSheetFile()) {
            return;
        }
        try {
            document_->setStyleSheetFile(sName);
        } catch (const RtfError& error) {
            RtfError refused = driverError(DriverFault::WrongStyleSheet, sName);
            refused.cause = std::make_shared<RtfError>(error);
            raise(std::move(refused));
        }
    });
}

void CRtfDriver::setAbsorbedErrorObserver(GError::Observer observer) {
    document_->setAbsorbedErrorObserver(std::move(observer));
}

void CRtfDriver::AnalyseData(std::string_view text) {
    // A handler of the event may release the driver.
    const Ref<CRtfDriver> self(this);
    const Dialect& dialect = unicodeTexts_ ? unicodeDialect() : originalDialect();
    document_->ClearStructure();
    std::vector<SourceLine> lines = PreProcessRawData(text);
    const DescriptionFrame frame = frameOf(text, lines, dialect);
    for (const Violation& violation : frameViolations(frame, text, lines)) {
        step([&] {
            if (violation.fault == DriverFault::NotADescription) {
                platform_.setClipboardText(std::string(text));
            }
            raiseViolation(violation);
        });
    }
    if (erroneousInput_) {
        lines = repairLines(lines, dialect);
    }
    // Of the lines of a description about half are leaves; the others open and close nodes.
    DescriptionTree tree(lines.size() / 2);
    step([&] { DescriptionParser(dialect).treeWalkerBuild(tree, lines); });
    if (erroneousInput_) {
        const DescriptionRules rules(dialect, raiseViolation);
        step([&] { rules.docWalkerSyntax(tree.root().child(documentNumber)); });
        step([&] { rules.treeWalkerSemantic(tree.root().child(documentNumber)); });
    }
    step([&] { DocumentBuilder(*document_, dialect).build(tree.root().child(documentNumber)); });
}

template <class Body>
void CRtfDriver::step(Body&& body) {
    try {
        body();
    } catch (const RtfError& error) {
        report(error);
    }
}

void CRtfDriver::report(const RtfError& error) {
    setCurrentError(error);
    if (notifyError_ && handler_) {
        // The handler may put another one in its place.
        const NotifyErrorHandler handler = handler_;
        handler(*this, error);
    }
}

}  // namespace quorvane
