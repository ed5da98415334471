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

/// What a check writes: its report, and the bytes of a fixed text or a diff.
class CheckOutput {
public:
    explicit CheckOutput(const CheckOptions& options)
        : options_(options),
          outputColors_(wantedColors(standardOutputIsTerminal())),
          report_(!isOutputForBytes(options)),
          texts_(
              isOutputForBytes(options) ? wantedColors(standardErrorColumns() > 0) : outputColors_,
              [this](std::string_view part) { report_.add(part); }) {
        if (isOutputForBytes(options)) {
            bytes_.emplace(true);
        }
    }

    CheckOutput(const CheckOutput&) = delete;
    CheckOutput& operator=(const CheckOutput&) = delete;

    void add(const std::string& file, const Diagnostic& diagnostic, const FileWindow& window) {
        switch (options_.form) {
            case ReportForm::Text:
                texts_.add(shownName(file), diagnostic, window);
                break;
            case ReportForm::Json:
                report_.add(diagnosticJson(shownName(file), diagnostic) + "\n");
                break;
            case ReportForm::Sarif:
                // A log says what is wrong with the files as they are now.
                if (!diagnostic.isFixed) {
                    log_.add(file, diagnostic, window);
                }
                break;
        }
    }

    void addBytes(std::string_view part, TextEncoding encoding) {
        bytes_->add(options_.showsDiff && standardOutputIsTerminal()
                        ? diffForTerminal(part, encoding, outputColors_)
                        : part);
    }

    void end(const CheckJob& job) {
        texts_.end();
        if (options_.form == ReportForm::Sarif) {
            report_.add(log_.text(!job.hasFailed()));
        } else if (options_.form == ReportForm::Text && !options_.isQuiet) {
            report_.add(checkSummary(job.counts()));
        }
        if (bytes_) {
            bytes_->end();
        }
        report_.end();
    }

private:
    const CheckOptions& options_;
    Colors outputColors_;
    Gatherer report_;
    std::optional<Gatherer> bytes_;
    SarifLog log_;
    DiagnosticReport texts_;
};

ExitStatus checkAndReport(const CheckOptions& options) {
    if (const std::string text = textWithoutCheck(options); !text.empty()) {
        Gatherer output(!isOutputForBytes(options));
        output.add(text);
        output.end();
        return ExitStatus::Success;
    }
    CheckOutput output(options);
    CheckJob job(
        options,
        [&](const std::string& file, const Diagnostic& diagnostic, const FileWindow& window) {
            output.add(file, diagnostic, window);
        },
        [&](const ReportedError& failure) { reportFailure(failure, options.form); },
        systemPlatform(),
        [&](std::string_view part, TextEncoding encoding) { output.addBytes(part, encoding); });
    const ExitStatus status = job.run();
    output.end(job);
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
