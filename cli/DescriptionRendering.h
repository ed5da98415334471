#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/CommandPlatform.h"
#include "cli/DescriptionText.h"
#include "cli/ExitStatus.h"
#include "cli/JoinedDocument.h"
#include "cli/LoadedTemplate.h"
#include "cli/NumberedRecord.h"
#include "cli/RenderReport.h"
#include "cli/TemplateData.h"
#include "cli/outputPaths.h"
#include "data/DataValue.h"
#include "data/TemplateFilling.h"
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
    /// What the documents are added to; null for files of their own.
    JoinedDocument* joined = nullptr;
};

/// The rendering of one description. Several can go through the same driver, one after the other,
/// which then parses the stylesheet once.
class DescriptionRendering {
public:
    /// Creates the driver if it is null, and creates it again if it cannot be reused. All that
    /// is given must outlive the rendering.
    DescriptionRendering(const Assignment& assignment, const RenderingManner& manner,
                         CommandPlatform& platform, Ref<CRtfDriver>& driver, RenderReport& report);
    DescriptionRendering(const DescriptionRendering&) = delete;
    DescriptionRendering& operator=(const DescriptionRendering&) = delete;
    ~DescriptionRendering();

    /// Builds the document and writes it. After an error nothing is written, unless the manner is
    /// to keep going and the document has a row.
    ExitStatus run();

    /// The same for a record in the place of the data. The filling is that of the template.
    ExitStatus run(const LoadedTemplate& loaded, data::TemplateFilling& filling,
                   const NumberedRecord& record);

    /// True if the document was written.
    bool hasWritten() const noexcept { return hasWritten_; }

private:
    void makeDriver();
    void setStyleSheet(const std::string& name);
    void prepareStyleSheet();
    void parse(const DescriptionText& description);
    void parseTemplate(DescriptionText description);
    void parseRecord(const LoadedTemplate& loaded, data::TemplateFilling& filling,
                     const data::DataValue& record, std::size_t number);
    PictureSource prepareDriver(TextEncoding encoding);
    void pass(const DescriptionText& description, const CheckOfDescription& check);
    void writeUnlessRefused();
    bool mayWrite();
    void leaveDocumentBefore();
    void write();
    void fail(const ReportedError& failure);

    const Assignment& assignment_;
    const RenderingManner& manner_;
    CommandPlatform& platform_;
    Ref<CRtfDriver>& driver_;
    bool isDriverNew_;
    RenderReport& report_;
    ExitStatus status_ = ExitStatus::Success;
    // False for a template that could not be filled: the driver has the document before it.
    bool isFilled_ = true;
    bool hasWritten_ = false;
};

}  // namespace quorvane::cli
