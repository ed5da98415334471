#include "cli/dataSchemaCommand.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/DiagnosticExcerpt.h"
#include "cli/OutputGuard.h"
#include "cli/RenderOptions.h"
#include "cli/TemplateFiles.h"
#include "cli/colors.h"
#include "cli/diagnosticText.h"
#include "cli/errorText.h"
#include "cli/fileFailure.h"
#include "cli/process.h"
#include "data/Template.h"
#include "data/partialsBeside.h"
#include "data/templateCheck.h"
#include "data/templateSchema.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/platform/fileReplacement.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/diagnostics/textFile.h"

namespace quorvane::cli {

namespace {

void report(const ReportedError& failure) {
    writeToStandardError(errorText(failure) + "\n");
}

void report(const std::string& file, const Diagnostic& diagnostic, const FileWindow& window) {
    writeToStandardError(diagnosticText(file, diagnostic, excerptAt(diagnostic.place, window),
                                        wantedColors(standardErrorColumns() > 0)));
}

/// Throws a `UsageError` for an output that would replace the template or another source.
void requireNewOutput(const std::string& description, const std::string& output) {
    RenderOptions files;
    files.descriptions = {description};
    OutputGuard(files).require(output, "the schema");
}

/// The schema of the template with these bytes; empty where something is wrong, which is reported.
std::string schemaOf(const std::string& path, const std::string& shownName, std::string bytes) {
    const TextEncoding encoding = encodingOf(bytes, EncodingChoice::Auto);
    if (const std::optional<Diagnostic> unreadable = findUnreadableText(bytes, encoding)) {
        report(shownName, *unreadable, windowOf({}));
        return {};
    }
    std::vector<data::TemplateError> errors;
    const data::Template source =
        data::compileTemplate(decodedText(std::move(bytes), encoding), encoding,
                              data::partialsBeside(path, systemPlatform()), errors);
    if (!errors.empty()) {
        const TemplateFiles files(source, path, shownName);
        for (const auto& [index, diagnostic] : data::templateDiagnostics(source, errors)) {
            report(files.nameOf(index), diagnostic, files.windowOf(index));
        }
        return {};
    }
    std::string error;
    std::string schema = data::schemaOfTemplate(source, error);
    if (!error.empty()) {
        writeToStandardError(shownName + ": error: " + error + "\n");
    }
    return schema;
}

void write(const std::string& text, const std::string& path) {
    const std::unique_ptr<OutputFile> output = path == standardStream
                                                   ? openStandardOutput()
                                                   : openReplacement(path, unfinishedFileWatch());
    output->write(text);
    output->close();
}

}  // namespace

ExitStatus writeDataSchema(const DataSchemaOptions& options) {
    const std::string output = options.output.value_or(standardStream);
    const auto reportOutput = [&](const RtfError& error) {
        report(fileFailure(output == standardStream ? "<stdout>" : output, error));
        return ExitStatus::Failure;
    };
    try {
        requireNewOutput(options.description, output);
    } catch (const RtfError& error) {
        return reportOutput(error);
    }
    const std::string& path = options.description;
    const bool isStream = path == standardStream;
    const std::string shownName = isStream ? "<stdin>" : path;
    std::string bytes;
    try {
        bytes = isStream ? readStandardInput() : systemPlatform().readFile(path);
    } catch (const RtfError& error) {
        report(unreadableFile(shownName, path, error));
        return ExitStatus::Failure;
    }
    const std::string schema = schemaOf(path, shownName, std::move(bytes));
    if (schema.empty()) {
        return ExitStatus::ContentErrors;
    }
    try {
        write(schema, output);
    } catch (const RtfError& error) {
        return reportOutput(error);
    }
    return ExitStatus::Success;
}

}  // namespace quorvane::cli
