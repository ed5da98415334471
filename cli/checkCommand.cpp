#include "cli/checkCommand.h"

#include <memory>
#include <string>

#include "cli/CheckJob.h"
#include "cli/FindingReport.h"
#include "cli/RenderOptions.h"
#include "cli/SarifLog.h"
#include "cli/colors.h"
#include "cli/diagnosticJson.h"
#include "cli/diagnosticText.h"
#include "cli/explanation.h"
#include "cli/findingJson.h"
#include "cli/process.h"

namespace quorvane::cli {

namespace {

std::string shownName(const std::string& file) {
    return file == standardStream ? "<stdin>" : file;
}

/// Gathers small texts: standard output writes each one at once.
class Report {
public:
    void add(std::string_view text) {
        gathered_ += text;
        if (gathered_.size() > enough) {
            flush();
        }
    }

    void end() {
        flush();
        output_->close();
    }

private:
    static constexpr std::size_t enough = std::size_t{64} * 1024;

    void flush() {
        output_->write(gathered_);
        gathered_.clear();
    }

    std::unique_ptr<OutputFile> output_ = openStandardOutput();
    std::string gathered_;
};

void tellFailure(const Diagnostic& failure, FindingsForm form) {
    writeToStandardError(
        (form == FindingsForm::Text ? diagnosticText(failure) : diagnosticJson(failure)) + "\n");
}

ExitStatus checkAndTell(const CheckOptions& options) {
    const Colors colors = wantedColors(standardOutputIsTerminal());
    Report report;
    if (options.explained) {
        report.add(explanation(*options.explained));
        report.end();
        return ExitStatus::Success;
    }
    SarifLog log;
    FindingReport text(colors, [&](std::string_view part) { report.add(part); });
    const auto find = [&](const std::string& file, const quorvane::Diagnostic& finding,
                          const FileWindow& window) {
        switch (options.form) {
            case FindingsForm::Text:
                text.add(shownName(file), finding, window);
                break;
            case FindingsForm::Json:
                report.add(findingJson(shownName(file), finding) + "\n");
                break;
            case FindingsForm::Sarif:
                log.add(file, finding);
                break;
        }
    };
    const auto fail = [&](const Diagnostic& failure) { tellFailure(failure, options.form); };
    const ExitStatus status = CheckJob(options, find, fail).run();
    text.end();
    if (options.form == FindingsForm::Sarif) {
        report.add(log.text(status != ExitStatus::Failure));
    }
    report.end();
    return status;
}

}  // namespace

ExitStatus check(const CheckOptions& options) {
    try {
        return checkAndTell(options);
    } catch (const RtfError& error) {
        tellFailure({DiagnosticKind::Raised, "<stdout>", error}, options.form);
        return ExitStatus::Failure;
    }
}

}  // namespace quorvane::cli
