#pragma once

#include <map>
#include <string>

#include "cli/CheckJob.h"
#include "cli/DiagnosticReport.h"
#include "quorvane/diagnostics/description/NullPlatform.h"

namespace quorvane::cli {

/// Files that are checked without being on a disk.
class CheckedFiles : public NullPlatform {
public:
    std::map<std::string, std::string> files;
    std::string readFile(const std::string& path) override { return files.at(path); }
};

/// The whole report about files.
inline std::string reportOf(CheckedFiles platform, const CheckOptions& options) {
    std::string report;
    DiagnosticReport text(Colors::Off, [&](std::string_view part) { report += part; });
    const auto find = [&](const std::string& file, const Diagnostic& diagnostic,
                          const FileWindow& window) { text.add(file, diagnostic, window); };
    CheckJob(
        options, find, [](const ReportedError&) {}, platform)
        .run();
    text.end();
    return report;
}

/// The whole report about a description "a.rtfspec", with a stylesheet "a.rtfss" where it is not
/// empty.
inline std::string reportOf(const std::string& description, const std::string& styleSheet = {},
                            EncodingChoice encoding = EncodingChoice::Auto) {
    CheckedFiles platform;
    platform.files = {{"a.rtfspec", description}, {"a.rtfss", styleSheet}};
    CheckOptions options;
    options.files = {"a.rtfspec"};
    options.encoding = encoding;
    if (!styleSheet.empty()) {
        options.styleSheet = "a.rtfss";
    }
    return reportOf(platform, options);
}

/// The whole report about one file.
inline std::string reportOfFile(const std::string& name, const std::string& bytes,
                                EncodingChoice encoding = EncodingChoice::Auto) {
    CheckedFiles platform;
    platform.files = {{name, bytes}};
    CheckOptions options;
    options.files = {name};
    options.encoding = encoding;
    return reportOf(platform, options);
}

/// A description whose only paragraph has the text, and more lines.
inline std::string paragraphWith(const std::string& text, const std::string& lines = {}) {
    return "(doc\n(r\n(c\n(p\n(pt=" + text + ")\n" + lines + "p)\nc)\nr)\ndoc)\n";
}

}  // namespace quorvane::cli
