#include "quorvane/driver/CRtfDriver.h"

#include <memory>
#include <utility>
#include <vector>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/text/utf8.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/DescriptionChecks.h"
#include "quorvane/driver/DescriptionReader.h"
#include "quorvane/driver/DescriptionTree.h"
#include "quorvane/driver/DocumentBuilder.h"
#include "quorvane/driver/Vocabulary.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/support/GFileSystem.h"
#include "quorvane/support/published.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

constexpr std::int32_t docNumber = 1;

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

bool hasRequiredElements(std::string_view text) {
    return contains(text, "(doc") && (contains(text, "(row") || contains(text, "(cell") ||
                                      contains(text, "(r") || contains(text, "(c"));
}

void requireDocAround(const std::vector<SourceLine>& lines) {
    const bool begins = !lines.empty() && lines.front().text.starts_with("(doc");
    const bool ends = !lines.empty() && lines.back().text.starts_with("doc)");
    if (!begins || !ends) {
        const int line = lines.empty() ? 0 : (begins ? lines.back() : lines.front()).number;
        raise(driverError(eWrongRootNode, "(doc must be the first node.", "CRtfDriver.Analysedata",
                          line));
    }
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
            raise(driverError(eWrongPath, "Path is empty!", parseFileSource));
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
            RtfError refused = driverError(eWrongFileType, sName + " isn't a valid stylesheet.",
                                           "CRtfDriver.StyleSheetFile");
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
    const Vocabulary vocabulary;
    std::vector<SourceLine> lines;
    document_->ClearStructure();
    step([&] {
        if (!contains(text, "(doc")) {
            platform_.setClipboardText(std::string(text));
            raise(driverError(eWrongFileType, "The provided file isn't a correct rtfspec file.",
                              "CRtfDriver.AnalyseData"));
        }
    });
    step([&] {
        if (!hasRequiredElements(text)) {
            raise(driverError(eRequiredElementMissing,
                              "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell",
                              "CRtfDriver.AnalyseData"));
        }
    });
    lines = PreProcessRawData(text);
    step([&] { requireDocAround(lines); });
    if (erroneousInput_) {
        lines = repairLines(lines);
    }
    // Of the lines of a description about half are leaves; the others open and close nodes.
    DescriptionTree tree(lines.size() / 2);
    step([&] { DescriptionReader(vocabulary).treeWalkerBuild(tree, lines); });
    if (erroneousInput_) {
        const DescriptionChecks checks(vocabulary);
        step([&] { checks.docWalkerSyntax(tree.root().child(docNumber)); });
        step([&] { checks.treeWalkerSemantic(tree.root().child(docNumber), NodeKind::Doc); });
    }
    step([&] { DocumentBuilder(*document_, vocabulary).build(tree.root().child(docNumber)); });
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
