#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/FormatOptions.h"
#include "cli/ReportedError.h"
#include "cli/StyleSheetUpgrades.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/engine/diagnosticRules.h"
#include "quorvane/formatting/Upgrade.h"

namespace quorvane::cli {

/// Receives a text for standard output: the name of a file, a diff, or a file's canonical form; the
/// last two in the encoding of the file.
using TextSink = std::function<void(const std::string&, TextEncoding)>;

/// Implements `quorvane format`: replaces descriptions and stylesheets with their canonical form,
/// and writes that of standard input to standard output. With `--upgrade` the canonical form is in
/// the extended language.
class FormatJob {
public:
    /// The platform, from which files are read, must outlive the job. `fail` also receives what is
    /// only worth knowing about an upgrade.
    FormatJob(FormatOptions options, TextSink write, ErrorSink fail,
              Platform& platform = systemPlatform());

    /// Returns `ContentErrors` if a file is not in canonical form and must not be changed.
    ExitStatus run();

private:
    ExitStatus formatFolder(const std::string& folder);
    ExitStatus formatFile(const std::string& file);
    ExitStatus format(const std::string& file);
    ExitStatus deliver(const std::string& file, const std::string& bytes,
                       const std::string& canonical, TextEncoding encoding);
    std::string shownName(const std::string& file) const;
    std::string read(const std::string& file) const;
    std::string textOf(const std::string& bytes, TextEncoding encoding) const;
    CheckedLanguage languageOfText(const std::string& file, const std::string& text) const;
    std::string formatted(const std::string& text, CheckedLanguage language) const;
    ExitStatus upgrade(const std::string& file, const std::string& bytes, TextEncoding encoding,
                       CheckedLanguage language);
    Upgrade upgradedDescriptionIn(const std::string& file, const std::string& text);
    bool rehearse(const std::string& styleSheet);
    ExitStatus upgradeStyleSheets();
    void remark(const std::string& file, const std::vector<UpgradeRemark>& remarks);

    FormatOptions options_;
    TextSink write_;
    ErrorSink fail_;
    Platform& platform_;
    StyleSheetUpgrades styleSheets_{options_, platform_};
    // The stylesheet that is upgraded after the descriptions; null while those are.
    const StyleSheetUpgrades::Wanted* next_ = nullptr;
};

/// Runs `quorvane format` on the standard streams.
ExitStatus format(const FormatOptions& options);

}  // namespace quorvane::cli
