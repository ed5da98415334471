// Any text as a template, and any text as JSON, or any string as a value: filling ends with errors
// or with lines; a driver reports an error about them exactly where check does; and a document is
// sound RTF, whatever the values hold.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/Template.h"
#include "data/TemplateFilling.h"
#include "data/json.h"
#include "data/templateCheck.h"
#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/extendedMark.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/driver/parseFilled.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/require.h"

namespace {

using namespace quorvane;

std::string noPicture(const std::string&) {
    return "no picture";
}

bool hasErrors(const std::vector<Diagnostic>& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::Error;
    });
}

/// The document that the lines make; nothing after an error.
std::optional<std::string> documentOf(const std::vector<SourceLine>& lines) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->setPictureSource(noPicture);
    bool isWrong = false;
    driver->setNotifyErrorHandler([&](CRtfDriver&, const RtfError&) { isWrong = true; });
    parseFilled(*driver, lines);
    driver->setNotifyErrorHandler({});
    return isWrong ? std::nullopt : std::optional(driver->Contents());
}

data::DataValue recordOf(const std::string& json) {
    data::JsonError error;
    if (const std::optional<data::DataValue> read = data::readJson(json, error)) {
        return *read;
    }
    require(!error.message.empty() && error.position <= json.size(), "an error has its place");
    using Kind = data::DataValue::Kind;
    const data::DataValue text{.kind = Kind::String, .text = json};
    const data::DataValue list{.kind = Kind::List, .items = {text, text}};
    return {.kind = Kind::Object, .items = {text, list}, .names = {"a", "l"}};
}

/// A partial takes in another text, and itself.
std::string partial(const std::string& name) {
    if (name == "p.rtfpart") {
        return "(p\n(pt={{a}})\np)\n{{#l}}\n{{> q}}\n{{/l}}\n";
    }
    if (name == "q.rtfpart") {
        return "{{> p}}\n";
    }
    raise(RunTimeError::FileNotFound);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const std::string_view all = input.rest();
    const std::size_t middle = std::min(all.find('\0'), all.size());
    std::string json(all.substr(std::min(middle + 1, all.size())));
    if (findNotUtf8(json)) {
        json = "{}";
    }
    std::string text = std::string(extendedMark) + "\n" + std::string(all.substr(0, middle));
    if (findNotUtf8(text)) {
        return 0;
    }
    std::vector<data::TemplateError> errors;
    const data::Template source = data::compileTemplate(text, TextEncoding::Utf8, partial, errors);
    static_cast<void>(data::templateDiagnostics(source, errors));
    static_cast<void>(data::looksLikeTemplate(text));
    if (!errors.empty()) {
        return 0;
    }
    static_cast<void>(data::checkUnfilled(source, nullptr, noPicture));
    const data::DataValue record = recordOf(json);
    data::TemplateFilling filling(source, {});
    const std::vector<SourceLine>& lines = filling.fill(record, errors);
    static_cast<void>(data::templateDiagnostics(source, errors));
    if (!errors.empty()) {
        return 0;
    }
    const std::optional<std::string> document = documentOf(lines);
    require(
        hasErrors(data::checkFilled(source, {lines}, nullptr, noPicture)) == !document.has_value(),
        "check finds an error where the driver reports one");
    const bool holdsRawRtf = text.find("rtf") != std::string::npos;
    require(!document || holdsRawRtf || !hasErrors(checkRtf(*document)),
            "no value damages a document");
    return 0;
}
