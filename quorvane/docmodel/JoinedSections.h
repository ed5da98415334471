#pragma once

#include <string>

#include "quorvane/base/memory/Ref.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/SectionsBefore.h"

namespace quorvane {

/// Documents that become the sections of one document. Each begins a page, has the page format, the
/// page header and the page footer of its document, and numbers its pages anew.
///
/// All documents have the same stylesheet. The sections use colors and fonts by their numbers; so
/// these are known, and the beginning is written, when all sections are there.
class JoinedSections {
public:
    /// To be called for each new document, before it has a stylesheet: its colors and fonts go on
    /// from those of the sections. The same document can then become any number of sections.
    void prepare(CRtfDoc& document);

    /// Returns the text of the next section. Errors as those of rendering the document; it is no
    /// section then.
    std::string add(CRtfDoc& document);

    /// Returns what comes before the sections, of which there must be one.
    std::string beginning();

    /// Returns what comes after them.
    static std::string end();

private:
    // The last section was one of its texts.
    Ref<CRtfDoc> last_;
    std::string pageFormat_;
    SectionsBefore before_;
};

}  // namespace quorvane
