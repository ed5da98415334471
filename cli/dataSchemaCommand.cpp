#include "cli/dataSchemaCommand.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/DiagnosticExcerpt.h"
#include "cli/RenderOptions.h"
#include "cli/TemplateFiles.h"
#include "cli/UsageError.h"
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
#include "quorvane/base/platform/utf8Path.h"
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

void requireNewOutput(const std::optional<std::string>& output) {
    constexpr std::string_view sources[] = {".rtfspec", ".rtfpart", ".rtfss"};
    if (output &&
        std::any_of(std::begin(sources), std::end(sources),
                    [&](std::string_view extension) { return output->ends_with(extension); })) {
        throw UsageError(*output +
                         " is not a name for a schema; write one such as data.schema.json");
    }
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

void write(const std::string& text, const std::optional<std::string>& path) {
    const std::unique_ptr<OutputFile> output = path && *path != standardStream
                                                   ? openReplacement(*path, unfinishedFileWatch())
                                                   : openStandardOutput();
    output->write(text);
    output->close();
}

}  // namespace

ExitStatus writeDataSchema(const DataSchemaOptions& options) {
    requireNewOutput(options.output);
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
        write(schema, options.output);
    } catch (const RtfError& error) {
        report(fileFailure(
            !options.output || *options.output == standardStream ? "<stdout>" : *options.output,
            error));
        return ExitStatus::Failure;
    }
    return ExitStatus::Success;
}

}  // namespace quorvane::cli
