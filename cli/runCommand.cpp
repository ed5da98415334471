#include "cli/runCommand.h"

#include <cstddef>
#include <new>
#include <utility>
#include <variant>

#include "cli/ExitStatus.h"
#include "cli/FormatJob.h"
#include "cli/RenderJob.h"
#include "cli/ReportedError.h"
#include "cli/TableJob.h"
#include "cli/UsageError.h"
#include "cli/checkCommand.h"
#include "cli/colors.h"
#include "cli/commandLine.h"
#include "cli/dataSchemaCommand.h"
#include "cli/diagnosticText.h"
#include "cli/errorJson.h"
#include "cli/errorText.h"
#include "cli/escapeCommand.h"
#include "cli/fileFailure.h"
#include "cli/oneLine.h"
#include "cli/process.h"
#include "cli/progressLine.h"

namespace quorvane::cli {

namespace {

std::string lineOf(const ReportedError& error, ErrorForm form) {
    return (form == ErrorForm::Json ? errorJson(error) : errorText(error)) + "\n";
}

void reportUsageError(const UsageError& error, ErrorForm form) {
    if (form == ErrorForm::Json) {
        const auto number = static_cast<std::int32_t>(RunTimeError::InvalidProcedureCall);
        writeToStandardError(lineOf({ErrorKind::Raised, {}, RtfError(number, error.what())}, form));
    } else {
        writeToStandardError("quorvane: " + oneLine(error.what()) +
                             "\nRun with --help for more information.\n");
    }
}

/// Needs no memory itself.
void reportOutOfMemory(ErrorForm form) noexcept {
    writeToStandardError(form == ErrorForm::Json
                             ? R"({"file":null,"line":null,"number":7,"level":null,"source":null,)"
                               R"("message":"Out of memory","kind":"raised"})"
                               "\n"
                             : "quorvane: Out of memory\n");
}

ExitStatus show(const Information& information, ErrorForm form) {
    try {
        const auto output = openStandardOutput();
        output->write(information.text);
        output->close();
        return ExitStatus::Success;
    } catch (const RtfError& error) {
        writeToStandardError(lineOf(fileFailure("<stdout>", error), form));
        return ExitStatus::Failure;
    }
}

ExitStatus render(const RenderOptions& options) {
    const auto columns = static_cast<std::size_t>(standardErrorColumns());
    const bool showsProgress =
        columns > 0 && options.diagnostics == ErrorForm::Text &&
        (options.descriptions.size() > 1 || options.dataUse != DataUse::Whole);
    const auto eraseProgress = [showsProgress] {
        if (showsProgress) {
            writeToStandardError(erasedLine);
        }
    };
    RenderReceivers receivers;
    receivers.report = [&](const ReportedError& error) {
        eraseProgress();
        writeToStandardError(lineOf(error, options.diagnostics));
    };
    if (options.diagnostics == ErrorForm::Text) {
        receivers.locate = [&, colors = wantedColors(columns > 0)](
                               const std::string& file, const Diagnostic& diagnostic,
                               const DiagnosticExcerpt& excerpt) {
            eraseProgress();
            writeToStandardError(diagnosticText(file, diagnostic, excerpt, colors));
        };
    }
    receivers.note = [&](const std::string& text) {
        eraseProgress();
        if (options.diagnostics == ErrorForm::Text) {
            writeToStandardError(text + "\n");
        }
    };
    receivers.progress = [&](std::size_t number, std::size_t count, const std::string& name) {
        if (showsProgress) {
            writeToStandardError(progressLine(number, count, name, columns));
        }
    };
    const ExitStatus status = RenderJob(options, receivers).run();
    eraseProgress();
    return status;
}

ExitStatus run(const std::vector<std::string>& arguments, ErrorForm form) {
    const auto request = parseCommandLine(arguments);
    if (const auto* information = std::get_if<Information>(&request)) {
        return show(*information, form);
    }
    if (const auto* options = std::get_if<CheckOptions>(&request)) {
        return check(*options);
    }
    if (const auto* options = std::get_if<FormatOptions>(&request)) {
        return format(*options);
    }
    if (const auto* options = std::get_if<EscapeOptions>(&request)) {
        return escape(*options);
    }
    if (const auto* options = std::get_if<TableOptions>(&request)) {
        return TableJob(*options,
                        [form](const ReportedError& error) {
                            writeToStandardError(lineOf(error, form));
                        })
            .run();
    }
    if (const auto* options = std::get_if<DataSchemaOptions>(&request)) {
        return writeDataSchema(*options);
    }
    return render(std::get<RenderOptions>(request));
}

}  // namespace

int runCommand(const std::vector<std::string>& arguments) {
    prepareProcess();
    const ErrorForm form = requestedErrorForm(arguments);
    try {
        return static_cast<int>(run(arguments, form));
    } catch (const UsageError& error) {
        reportUsageError(error, form);
    } catch (const std::bad_alloc&) {
        reportOutOfMemory(form);
    } catch (const ClosedPipe&) {
        return static_cast<int>(ExitStatus::Success);
    }
    return static_cast<int>(ExitStatus::Failure);
}

}  // namespace quorvane::cli
