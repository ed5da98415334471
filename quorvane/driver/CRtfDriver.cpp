#include "quorvane/driver/CRtfDriver.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "quorvane/base/text/LineReader.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/extendedMark.h"
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
#include "quorvane/driver/parseFilled.h"
#include "quorvane/driver/picturesBeside.h"
#include "quorvane/support/GFileSystem.h"
#include "quorvane/support/published.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

std::string noPictures(const std::string&) {
    raise(RunTimeError::InvalidProcedureCall,
          "a text that is not read from a file has no pictures beside it; set a source of "
          "pictures");
}

}  // namespace

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
            if (asciiRunEnd(text, 0) < text.size() && !(readsExtended_ && isMarkedExtended(text))) {
                text = utf8FromCodePage1252(text);
            }
        } catch (const RtfError& error) {
            raise(unreadableDescription(sPath, error));
        }
        AnalyseData(text, pictures_ ? pictures_ : picturesBeside(sPath, platform_));
    });
}

void CRtfDriver::ParseFromMemmory(std::string_view sBuffer) {
    published([&] { AnalyseData(sBuffer, pictures_ ? pictures_ : PictureSource(noPictures)); });
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

void CRtfDriver::setPictureSource(PictureSource source) {
    pictures_ = std::move(source);
}

void CRtfDriver::setAbsorbedErrorObserver(GError::Observer observer) {
    document_->setAbsorbedErrorObserver(std::move(observer));
}

void CRtfDriver::AnalyseData(std::string_view text, const PictureSource& pictures) {
    // A handler of the event may release the driver.
    const Ref<CRtfDriver> self(this);
    document_->ClearStructure();
    if (readsExtended_ && isMarkedExtended(text)) {
        analyzeExtended([&] { buildExtended(afterByteOrderMark(text), pictures); });
        return;
    }
    const Dialect& dialect = unicodeTexts_ ? unicodeDialect() : originalDialect();
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

/// The first error ends the analysis: nothing is built from a description that is wrong.
template <class Build>
void CRtfDriver::analyzeExtended(Build build) {
    step([&] {
        try {
            build();
        } catch (const RtfError&) {
            // Before the handler of the event, which may run another analysis.
            document_->ClearStructure();
            throw;
        }
    });
}

void CRtfDriver::buildExtended(std::string_view text, const PictureSource& pictures) {
    if (const std::optional<std::size_t> stray = findNotUtf8(text)) {
        const std::string_view before = text.substr(0, *stray);
        raise(driverError(DriverFault::WrongValue, "A byte of this line is not UTF-8",
                          static_cast<int>(std::max<std::size_t>(lineCount(before), 1))));
    }
    const Dialect& dialect = extendedDialect();
    const std::vector<SourceLine> lines = PreProcessRawData(text, dialect.marks.block);
    const DescriptionFrame frame = frameOf(text, lines, dialect);
    for (const Violation& violation : frameViolations(frame, text, lines)) {
        raiseViolation(violation);
    }
    buildLines(lines, pictures);
}

void CRtfDriver::buildLines(const std::vector<SourceLine>& lines, const PictureSource& pictures) {
    const Dialect& dialect = extendedDialect();
    DescriptionTree tree(lines.size() / 2);
    DescriptionParser(dialect).treeWalkerBuild(tree, lines);
    DescriptionNode& doc = tree.root().child(documentNumber);
    DescriptionRules(dialect, raiseViolation).docWalkerSyntax(doc);
    DocumentBuilder(*document_, dialect, {}, pictures).build(doc);
}

void parseFilled(CRtfDriver& driver, const std::vector<SourceLine>& lines) {
    published([&] {
        // A handler of the event may release the driver.
        const Ref<CRtfDriver> self(&driver);
        driver.document_->ClearStructure();
        driver.analyzeExtended([&] {
            const DescriptionFrame frame = frameOf(lines, extendedDialect());
            for (const Violation& violation : frameViolations(frame, {}, lines)) {
                raiseViolation(violation);
            }
            driver.buildLines(lines,
                              driver.pictures_ ? driver.pictures_ : PictureSource(noPictures));
        });
    });
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
