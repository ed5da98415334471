#pragma once

#include <string>

#include "com/document/CountedObject.h"
#include "com/document/ReportedDiagnostics.h"
#include "data/locale.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/compose/Document.h"

namespace quorvane::com {

/// What a `Quorvane.Document` and its collection of rows share.
class DocumentState : public CountedObject<DocumentState> {
public:
    static Ref<DocumentState> create() { return Ref<DocumentState>(new DocumentState); }

    Document document;
    /// Those about the last description, template or stylesheet.
    Ref<ReportedDiagnostics> diagnostics{new ReportedDiagnostics};
    std::string pictureFolder;
    std::string localeName;
    data::Locale locale;
};

}  // namespace quorvane::com
