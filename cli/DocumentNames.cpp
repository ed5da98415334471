#include "cli/DocumentNames.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <utility>

#include "cli/UsageError.h"
#include "cli/fileFailure.h"
#include "data/letterCase.h"
#include "data/templateCheck.h"
#include "quorvane/base/platform/utf8Path.h"
#include "quorvane/support/FilledValue.h"

namespace quorvane::cli {

namespace {

constexpr std::string_view opening = "{{";

/// The name of the description with the number of the record.
std::string numberedName(const RenderOptions& options) {
    const std::string& description = options.descriptions.front();
    std::filesystem::path path = description == standardStream
                                     ? std::filesystem::path("stdin")
                                     : pathFromUtf8(description).replace_extension();
    if (options.outputFolder) {
        path = pathFromUtf8(*options.outputFolder) / path.filename();
    }
    std::string name = utf8FromPath(path);
    if (name.find(opening) != std::string::npos) {
        throw UsageError("--each needs --output for a description with {{ in its name");
    }
    return std::move(name) + "-{{@index}}.rtf";
}

data::Template patternOf(const RenderOptions& options) {
    std::vector<data::TemplateError> errors;
    data::Template pattern =
        data::compileFileName(options.output ? *options.output : numberedName(options), errors);
    if (!errors.empty()) {
        throw UsageError("--output: " + std::string(errors.front().part) + ": " +
                         errors.front().message);
    }
    if (pattern.queries.empty()) {
        throw UsageError(
            "--output names one file for all records; write a tag into it, such as {{@index}}");
    }
    return pattern;
}

// The number of a file that no record gets, and that of records whose own is too large.
constexpr std::uint32_t excluded = 0;
constexpr std::uint32_t later = std::numeric_limits<std::uint32_t>::max();

std::uint32_t ownerOf(const NumberedRecord& record) {
    return static_cast<std::uint32_t>(std::min<std::size_t>(record.number, later));
}

std::string ownerText(std::uint32_t owner) {
    return owner == later ? "an earlier record" : "record " + std::to_string(owner);
}

}  // namespace

DocumentNames::DocumentNames(const RenderOptions& options)
    : guard_(options), pattern_(patternOf(options)) {}

std::string DocumentNames::commonFolder() const {
    const std::string& pattern = pattern_.sources.front().text;
    const std::string fixed = pattern.substr(0, pattern.find(opening));
    const std::string folder = utf8FromPath(pathFromUtf8(fixed).parent_path());
    return folder.empty() ? "." : folder;
}

std::string DocumentNames::nameFor(const NumberedRecord& record, RenderReport& report) {
    data::SafeFileName name;
    try {
        name = filledName(record, report);
        if (!name.path.empty()) {
            require(name, record);
        }
        return name.path;
    } catch (const UsageError& error) {
        report.fail(refusal(name.path, error.what()));
    } catch (const RtfError& error) {
        report.fail(fileFailure(name.path, error));
    }
    return {};
}

data::SafeFileName DocumentNames::filledName(const NumberedRecord& record, RenderReport& report) {
    std::vector<data::TemplateError> errors;
    const std::vector<SourceLine>& lines = filling_->fill(record.value, errors, record.number);
    if (errors.empty()) {
        return data::safeFileName(*lines.front().filled);
    }
    const std::string& pattern = pattern_.sources.front().text;
    for (const auto& [index, diagnostic] : data::templateDiagnostics(pattern_, errors)) {
        report.refuse("--output", windowOf(pattern, TextEncoding::Utf8), {diagnostic});
    }
    return {};
}

void DocumentNames::require(const data::SafeFileName& name, const NumberedRecord& record) {
    const std::string file = guard_.require(name.path, "the document");
    if (const auto owner = seen_.add(data::lowerCaseText(file), ownerOf(record))) {
        const std::string what =
            *owner == excluded ? excludedUse_ : "the document of " + ownerText(*owner);
        throw UsageError(what + " already goes to this file" +
                         (name.isShortened ? "; a value was shortened for its name" : ""));
    }
}

void DocumentNames::exclude(const std::string& name, const std::string& what) {
    excludedUse_ = what;
    seen_.add(data::lowerCaseText(guard_.require(name, what)), excluded);
}

}  // namespace quorvane::cli
