#pragma once

#include <quorvane.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "capi/DiagnosticList.h"
#include "capi/FileCallback.h"
#include "data/DataValue.h"
#include "data/Template.h"
#include "data/TemplateError.h"
#include "data/locale.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/compose/Document.h"
#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/languageOf.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/PictureSource.h"
#include "quorvane/formatting/formatDescription.h"

namespace quorvane::capi {

/// Renders, checks and formats texts. All that fails is thrown.
class Job {
public:
    void setPath(std::string_view path) { path_ = path; }
    void allowPictures(std::string_view folder) { pictureFolders_.emplace_back(folder); }
    void setFiles(const FileCallback& files) { files_ = files; }
    void setStyleSheet(std::string_view bytes, std::string_view name);
    void setData(std::string_view json, std::string_view name);
    void setLocale(std::string_view name);
    void setEncoding(EncodingChoice encoding) { encoding_ = encoding; }
    void setChecks(bool checks) { checks_ = checks; }
    void ignore(std::string_view identifier);
    void enable(std::string_view identifier);
    void setReceiver(quorvane_diagnostic_callback callback, void* user);

    /// Builds the document of a description, which is valid until the next call.
    Document render(std::string_view bytes);
    /// Checks a text, whose language may be nothing to find out.
    void check(std::string_view bytes, std::optional<CheckedLanguage> language);
    std::string format(std::string_view bytes, std::optional<CheckedLanguage> language,
                       NameForm names) const;

    const DiagnosticList& diagnostics() const { return list_; }

private:
    /// A text in UTF-8, and how it was stored.
    struct Source {
        std::string text;
        TextEncoding encoding;
    };

    Source sourceOf(std::string_view bytes, const std::string& name);
    std::string pathOrName() const;
    std::string pathOfSource(const data::Template& source, std::size_t index) const;
    PictureSource pictures() const;
    data::PartialSource partials() const;
    KnownStyles* knownStyles();
    void prepareDriver(const Source& source);
    void makeDriver();
    void renderText(const Source& source);
    void renderTemplate(const Source& source);
    void finishRendering(const Source& source,
                         const std::function<std::vector<Diagnostic>()>& check);
    void checkDescriptionOrTemplate(const Source& source);
    void reportUnusedStyles();
    void checkTemplate(const Source& source);
    bool isReported(const Diagnostic& diagnostic) const;
    void report(const std::string& name, std::vector<Diagnostic> diagnostics);
    void reportTemplate(const data::Template& source,
                        const std::vector<data::TemplateError>& errors);
    [[noreturn]] void refuse(const std::string& name, const std::vector<Diagnostic>& diagnostics,
                             std::int32_t number = 0);
    void deliver() const;

    std::string path_;
    std::vector<std::string> pictureFolders_;
    FileCallback files_;
    std::string styleSheet_;
    std::optional<KnownStyles> styles_;
    std::string styleSheetName_;
    std::optional<data::DataValue> data_;
    data::Locale locale_;
    EncodingChoice encoding_ = EncodingChoice::Utf8;
    bool checks_ = false;
    std::set<DiagnosticId> ignored_;
    std::set<DiagnosticId> enabled_;
    quorvane_diagnostic_callback receiver_ = nullptr;
    void* receiverUser_ = nullptr;

    Ref<CRtfDriver> driver_;
    // The last rendering ended without an error.
    bool isDriverSound_ = false;
    std::vector<RtfError> events_;
    DiagnosticList list_;
};

}  // namespace quorvane::capi
