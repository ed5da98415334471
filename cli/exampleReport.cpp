#include "cli/exampleReport.h"

#include <map>
#include <string_view>

#include "cli/CheckJob.h"
#include "cli/DiagnosticReport.h"
#include "cli/oneLine.h"
#include "quorvane/base/text/trimming.h"
#include "quorvane/diagnostics/description/NullPlatform.h"

namespace quorvane::cli {

namespace {

constexpr const char* descriptionName = "example.rtfspec";
constexpr const char* styleSheetName = "example.rtfss";
constexpr const char* rtfName = "example.rtf";

/// The files of an example.
class ExampleFiles : public NullPlatform {
public:
    void add(const std::string& name, std::string_view example) {
        files_[name] = expandedExample(example);
    }
    std::string readFile(const std::string& path) override { return files_.at(path); }

private:
    std::map<std::string, std::string> files_;
};

void checkExample(const DiagnosticRule& rule, const DiagnosticSink& find) {
    if (rule.wrong.empty()) {
        return;
    }
    ExampleFiles files;
    CheckOptions options;
    options.encoding = isUtf8(rule.encoding) ? EncodingChoice::Utf8 : EncodingChoice::Windows1252;
    if (isOffByDefault(rule.id)) {
        options.enabled = {std::string(rule.identifier)};
    }
    if (rule.language == CheckedLanguage::Rtf) {
        options.files = {rtfName};
        files.add(rtfName, rule.wrong);
    } else if (rule.language == CheckedLanguage::Description) {
        options.files = {descriptionName};
        files.add(descriptionName, rule.wrong);
        if (!rule.companion.empty()) {
            options.styleSheet = styleSheetName;
            files.add(styleSheetName, rule.companion);
        }
    } else if (rule.companion.empty()) {
        options.files = {styleSheetName};
        files.add(styleSheetName, rule.wrong);
    } else {
        options.files = {descriptionName};
        options.styleSheet = styleSheetName;
        files.add(descriptionName, rule.companion);
        files.add(styleSheetName, rule.wrong);
    }
    CheckJob(
        options, find, [](const ReportedError&) {}, files)
        .run();
}

}  // namespace

std::string exampleReport(const DiagnosticRule& rule) {
    std::string report;
    DiagnosticReport text(Colors::Off, [&](std::string_view part) { report += part; });
    checkExample(rule, [&](const std::string& file, const Diagnostic& diagnostic,
                           const FileWindow& window) { text.add(file, diagnostic, window); });
    text.end();
    return report;
}

std::string_view exampleReportTitle(const DiagnosticRule& rule) {
    const bool isOtherwiseRead = rule.language != CheckedLanguage::Rtf && !isUtf8(rule.encoding) &&
                                 isUtf8(encodingOf(rule.wrong));
    return isOtherwiseRead ? "Report with `--encoding windows-1252`:" : "Report:";
}

std::string exampleMessage(const DiagnosticRule& rule) {
    std::string message;
    checkExample(rule, [&](const std::string&, const Diagnostic& diagnostic, const FileWindow&) {
        if (diagnostic.id == rule.id && message.empty()) {
            message = trimBlanks(oneLine(diagnostic.message));
        }
    });
    return message.empty() ? ruleTitle(rule) : message;
}

}  // namespace quorvane::cli
