#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/CommandPlatform.h"
#include "cli/ExitStatus.h"
#include "cli/RenderReport.h"
#include "cli/TemplateData.h"
#include "cli/outputPaths.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane::cli {

/// How a description is rendered.
struct RenderingManner {
    /// Name of a stylesheet file that can be read.
    std::optional<std::string> styleSheet = {};
    /// The check refuses the stylesheet.
    bool isStyleSheetRefused = false;
    bool check = false;
    bool keepGoing = false;
    /// The encoding of the descriptions.
    EncodingChoice encoding = EncodingChoice::Auto;
    /// The descriptions are templates, and filled with it; null for what they are without.
    const TemplateData* data = nullptr;
    /// Folders whose pictures the description may name, besides its own.
    std::vector<std::string> pictureFolders = {};
};

/// The rendering of one description. Several can go through the same driver, one after the other,
/// which then parses the stylesheet once.
class DescriptionRendering {
public:
    /// Creates the driver if there is none, and creates it again if it cannot be reused. All that
    /// is given must outlive the rendering.
    DescriptionRendering(const Assignment& assignment, const RenderingManner& manner,
                         CommandPlatform& platform, Ref<CRtfDriver>& driver, RenderReport& report);
    DescriptionRendering(const DescriptionRendering&) = delete;
    DescriptionRendering& operator=(const DescriptionRendering&) = delete;
    ~DescriptionRendering();

    /// Builds the document and writes it. After an error nothing is written, unless the manner is
    /// to keep going and the document has a row.
    ExitStatus run();

private:
    void makeDriver();
    void setStyleSheet(const std::string& name);
    std::string readBytes(const std::string& path);
    std::optional<std::string> readDescription();
    void parse(const std::string& text);
    void parseTemplate(const std::string& text);
    PictureSource prepareDriver();
    void pass(const std::string& text, const CheckOfDescription& check);
    bool mayWrite();
    void leaveDocumentBefore();
    void write();
    void fail(const ReportedError& failure);

    const Assignment& assignment_;
    const RenderingManner& manner_;
    CommandPlatform& platform_;
    Ref<CRtfDriver>& driver_;
    bool isDriverNew_;
    TextEncoding encoding_ = TextEncoding::Windows1252;
    RenderReport& report_;
    ExitStatus status_ = ExitStatus::Success;
};

}  // namespace quorvane::cli
