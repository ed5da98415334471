#include "cli/checkCommand.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "cli/CheckJob.h"
#include "cli/DiagnosticReport.h"
#include "cli/RenderOptions.h"
#include "cli/SarifLog.h"
#include "cli/checkSummary.h"
#include "cli/colors.h"
#include "cli/diagnosticJson.h"
#include "cli/errorJson.h"
#include "cli/errorText.h"
#include "cli/explanation.h"
#include "cli/fileFailure.h"
#include "cli/process.h"
#include "cli/ruleNamed.h"
#include "cli/unifiedDiff.h"

namespace quorvane::cli {

namespace {

std::string shownName(const std::string& file) {
    return file == standardStream ? "<stdin>" : file;
}

/// Standard output cannot be written.
struct OutputFailure {
    RtfError error;
};

/// Gathers small texts: a standard stream writes each one at once.
class Gatherer {
public:
    /// Writes to standard output, or to standard error.
    explicit Gatherer(bool toOutput) : output_(toOutput ? opened() : nullptr) {}

    void add(std::string_view text) {
        gathered_ += text;
        if (gathered_.size() > enough) {
            flush();
        }
    }

    /// Throws an `OutputFailure`, as `add` does.
    void end() {
        flush();
        try {
            if (output_) {
                output_->close();
            }
        } catch (const RtfError& error) {
            throw OutputFailure{error};
        }
    }

private:
    static constexpr std::size_t enough = std::size_t{64} * 1024;

    static std::unique_ptr<OutputFile> opened() {
        try {
            return openStandardOutput();
        } catch (const RtfError& error) {
            throw OutputFailure{error};
        }
    }

    void flush() {
        const std::string text = std::exchange(gathered_, {});
        if (!output_) {
            writeToStandardError(text);
            return;
        }
        try {
            output_->write(text);
        } catch (const RtfError& error) {
            throw OutputFailure{error};
        }
    }

    std::unique_ptr<OutputFile> output_;
    std::string gathered_;
};

void reportFailure(const ReportedError& failure, ReportForm form) {
    writeToStandardError((form == ReportForm::Text ? errorText(failure) : errorJson(failure)) +
                         "\n");
}

/// The text that the options ask for instead of a check; empty if they ask for a check.
std::string textWithoutCheck(const CheckOptions& options) {
    if (options.explained) {
        return explanation(ruleNamed("--explain", *options.explained));
    }
    if (!options.lists) {
        return {};
    }
    return options.form == ReportForm::Text   ? diagnosticsList()
           : options.form == ReportForm::Json ? diagnosticsListJson()
                                              : SarifLog().text(true);
}

/// True when standard output is for the bytes of a fixed text or for a diff.
bool isOutputForBytes(const CheckOptions& options) {
    const bool readsInput = std::find(options.files.begin(), options.files.end(), standardStream) !=
                            options.files.end();
    return options.showsDiff || (options.fixes && readsInput);
}

ExitStatus checkAndReport(const CheckOptions& options) {
    const bool isForBytes = isOutputForBytes(options);
    const Colors outputColors = wantedColors(standardOutputIsTerminal());
    const Colors colors = isForBytes ? wantedColors(standardErrorColumns() > 0) : outputColors;
    Gatherer report(!isForBytes);
    if (const std::string text = textWithoutCheck(options); !text.empty()) {
        report.add(text);
        report.end();
        return ExitStatus::Success;
    }
    std::optional<Gatherer> bytes;
    if (isForBytes) {
        bytes.emplace(true);
    }
    SarifLog log;
    DiagnosticReport texts(colors, [&](std::string_view part) { report.add(part); });
    const auto find = [&](const std::string& file, const Diagnostic& diagnostic,
                          const FileWindow& window) {
        switch (options.form) {
            case ReportForm::Text:
                texts.add(shownName(file), diagnostic, window);
                break;
            case ReportForm::Json:
                report.add(diagnosticJson(shownName(file), diagnostic) + "\n");
                break;
            case ReportForm::Sarif:
                // A log says what is wrong with the files as they are now.
                if (!diagnostic.isFixed) {
                    log.add(file, diagnostic, window);
                }
                break;
        }
    };
    const auto fail = [&](const ReportedError& failure) { reportFailure(failure, options.form); };
    const auto write = [&](std::string_view part) {
        bytes->add(options.showsDiff && standardOutputIsTerminal()
                       ? diffForTerminal(part, outputColors)
                       : part);
    };
    CheckJob job(options, find, fail, systemPlatform(), write);
    const ExitStatus status = job.run();
    texts.end();
    if (options.form == ReportForm::Sarif) {
        report.add(log.text(!job.hasFailed()));
    } else if (options.form == ReportForm::Text && !options.isQuiet) {
        report.add(checkSummary(job.counts()));
    }
    if (bytes) {
        bytes->end();
    }
    report.end();
    return status;
}

}  // namespace

ExitStatus check(const CheckOptions& options) {
    try {
        return checkAndReport(options);
    } catch (const OutputFailure& failure) {
        reportFailure(fileFailure("<stdout>", failure.error), options.form);
        return ExitStatus::Failure;
    }
}

}  // namespace quorvane::cli
