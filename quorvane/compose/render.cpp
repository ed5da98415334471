#include "quorvane/compose/render.h"

#include <utility>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/compose/composing.h"
#include "quorvane/compose/readWholeFile.h"
#include "quorvane/compose/renderRead.h"
#include "quorvane/compose/textChecks.h"
#include "quorvane/diagnostics/description/DescriptionCheck.h"

namespace quorvane {

namespace {

/// A description that is read as it stands. The text must outlive the reading.
DescriptionReading readAsItStands(std::string_view text) {
    return {
        .parse = [text](CRtfDriver& driver) { driver.ParseFromMemmory(text); },
        .check =
            [text](KnownStyles* styles, const PictureSource& pictures) {
                return checkDescription(text, styles, TextEncoding::Utf8, pictures);
            },
    };
}

}  // namespace

Rendering render(std::string_view description, const RenderOptions& options, Platform& platform) {
    const std::string_view text = afterByteOrderMark(description);
    if (std::vector<Diagnostic> unreadable = findUnreadable(text); !unreadable.empty()) {
        throw contentError(options.path, std::move(unreadable));
    }
    return renderRead(text, readAsItStands(text), options, platform);
}

Rendering renderFile(const std::string& path, const RenderOptions& options, Platform& platform) {
    RenderOptions own = options;
    own.path = path;
    return render(readWholeText(path, platform), own, platform);
}

std::vector<Diagnostic> check(std::string_view description, const RenderOptions& options,
                              Platform& platform) {
    const std::string_view text = afterByteOrderMark(description);
    std::vector<Diagnostic> unreadable = findUnreadable(text);
    if (!unreadable.empty()) {
        return unreadable;
    }
    return checkRead(text, readAsItStands(text), options, platform);
}

}  // namespace quorvane
