#include "cli/DocumentNames.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "cli/UsageError.h"
#include "cli/fileFailure.h"
#include "data/fileName.h"
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

/// True for a name whose only tag is the number of the record.
bool isNumbered(const data::Template& pattern) {
    const data::TemplateQuery& query = pattern.queries.front();
    return pattern.queries.size() == 1 && query.query.filters.empty() &&
           query.query.path.kind == data::TagPath::Kind::Index &&
           std::ranges::none_of(pattern.steps, [](const data::TemplateStep& step) {
               return step.kind == data::TemplateStep::Kind::Section;
           });
}

}  // namespace

DocumentNames::DocumentNames(const RenderOptions& options, const data::Locale& locale)
    : description_(options.descriptions.front()),
      guard_(options),
      pattern_(patternOf(options)),
      filling_(pattern_, locale),
      areNumbered_(isNumbered(pattern_)) {}

std::string DocumentNames::commonFolder() const {
    const std::string& pattern = pattern_.sources.front().text;
    const std::string fixed = pattern.substr(0, pattern.find(opening));
    return utf8FromPath(pathFromUtf8(fixed).parent_path());
}

std::string DocumentNames::nameFor(const NumberedRecord& record, RenderReport& report) {
    std::string name;
    try {
        name = filledName(record, report);
        if (!name.empty()) {
            require(name);
        }
        return name;
    } catch (const UsageError& error) {
        report.fail(refusal(name, error.what()));
    } catch (const RtfError& error) {
        report.fail(fileFailure(name, error));
    }
    return {};
}

std::string DocumentNames::filledName(const NumberedRecord& record, RenderReport& report) {
    std::vector<data::TemplateError> errors;
    const std::vector<SourceLine>& lines = filling_.fill(record.value, errors, record.number);
    if (errors.empty()) {
        return data::safeFileName(*lines.front().filled);
    }
    const std::string& pattern = pattern_.sources.front().text;
    for (const auto& [index, diagnostic] : data::templateDiagnostics(pattern_, errors)) {
        report.refuse("--output", windowOf(pattern, TextEncoding::Utf8), {diagnostic});
    }
    return {};
}

void DocumentNames::require(const std::string& name) {
    guard_.require(name, "the document");
    if (!areNumbered_ && !seen_.add(data::lowerCaseText(name))) {
        throw UsageError("another record has a document of this name");
    }
}

void DocumentNames::exclude(const std::string& name, const std::string& what) {
    guard_.require(name, what);
    areNumbered_ = false;
    seen_.add(data::lowerCaseText(name));
}

}  // namespace quorvane::cli
