#pragma once

#include <string>

#include "cli/NumberedRecord.h"
#include "cli/OutputGuard.h"
#include "cli/RenderOptions.h"
#include "cli/RenderReport.h"
#include "cli/SeenNames.h"
#include "data/Template.h"
#include "data/TemplateFilling.h"
#include "data/fileName.h"
#include "data/locale.h"

namespace quorvane::cli {

/// The files that the documents of records go to: --output, filled with each record, or the name of
/// the description with the number of the record.
///
/// No two records get one file, whether through a link or where a system does not tell small
/// letters from capitals.
class DocumentNames {
public:
    /// Throws a `UsageError` for names with wrong tags, and for names that are the same for all
    /// records.
    explicit DocumentNames(const RenderOptions& options);

    /// Sets how values are read and written. To be called before the first name.
    void setLocale(const data::Locale& locale) { filling_.emplace(pattern_, locale); }

    /// The folder that is in the name of each document; "." for the current one.
    std::string commonFolder() const;

    /// The file for the document of a record. Empty for a record that gets none, which is reported.
    std::string nameFor(const NumberedRecord& record, RenderReport& report);

    /// No document gets this name, because something else is written to it. Throws a `UsageError`
    /// if that would replace what is read.
    void exclude(const std::string& name, const std::string& what);

private:
    data::SafeFileName filledName(const NumberedRecord& record, RenderReport& report);
    void require(const data::SafeFileName& name, const NumberedRecord& record);

    OutputGuard guard_;
    data::Template pattern_;
    std::optional<data::TemplateFilling> filling_;
    // The files, with the numbers of their records.
    SeenNames seen_;
    std::string excludedUse_;
};

}  // namespace quorvane::cli
