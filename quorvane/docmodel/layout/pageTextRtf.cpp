#include "quorvane/docmodel/layout/pageTextRtf.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/rtf/escape.h"

namespace quorvane {

namespace {

struct Marker {
    std::string_view text;
    std::string_view rtf;
};

constexpr Marker markers[] = {
    {"{{", R"(\{)"},
    {"}}", R"(\})"},
    {"{page}", R"({\field{\*\fldinst PAGE}{\fldrslt 1}})"},
    {"{pages}", R"({\field{\*\fldinst NUMPAGES}{\fldrslt 1}})"},
};

[[noreturn]] void refuse(const std::string& message, std::size_t position) {
    raise(RunTimeError::InvalidProcedureCall,
          message + " (byte " + std::to_string(position + 1) + ")");
}

/// The marker at a brace.
const Marker& markerAt(std::string_view text, std::size_t brace) {
    const auto* const found = std::find_if(
        std::begin(markers), std::end(markers),
        [&](const Marker& marker) { return text.substr(brace).starts_with(marker.text); });
    if (found == std::end(markers)) {
        refuse(text[brace] == '{' ? "Write {page}, {pages}, or {{ for a brace"
                                  : "Write }} for a brace",
               brace);
    }
    return *found;
}

}  // namespace

std::string pageTextRtf(std::string_view text) {
    if (const std::optional<Unshowable> found = findUnshowable(text)) {
        refuse(found->message, found->position);
    }
    std::string rtf;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t brace = std::min(text.find_first_of("{}", at), text.size());
        rtf += rtfText(text.substr(at, brace - at));
        at = brace;
        if (at < text.size()) {
            const Marker& marker = markerAt(text, at);
            rtf += marker.rtf;
            at += marker.text.size();
        }
    }
    return rtf;
}

}  // namespace quorvane
