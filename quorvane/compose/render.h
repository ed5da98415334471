#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/compose/Document.h"
#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/driver/PictureSource.h"

namespace quorvane {

/// How `render` and `check` take a description.
struct RenderOptions {
    /// A stylesheet, in either language; none if it is empty.
    std::string styleSheet{};
    /// The path of a stylesheet file, in UTF-8 or Windows-1252, instead of the text.
    std::string styleSheetFile{};
    /// The path of the description, which need not exist: errors name it, and pictures are in its
    /// folder and the folders in that. Without it and `pictures`, a picture is an error.
    std::string path{};
    /// Where pictures come from instead.
    PictureSource pictures{};
    /// Descriptions in the original language are repaired and checked, as with
    /// `quorvane render --check`; those in the extended language always are.
    bool check = true;
};

/// What `render` makes of a description.
struct Rendering {
    /// The document, which can be changed.
    Document document;
    /// The warnings, in the order of their places; none if `RenderOptions::check` is false.
    std::vector<Diagnostic> diagnostics{};
};

/// Makes a document of a description (UTF-8) in either language. The document writes the same bytes
/// as `quorvane render`. If the description or the stylesheet has an error, this is an `Error` with
/// all diagnostics, and there is no document; error "unreadable-file" for a stylesheet file that
/// cannot be read. The platform must outlive the document.
Rendering render(std::string_view description, const RenderOptions& options = {},
                 Platform& platform = systemPlatform());

/// Does the same with a file, in UTF-8 or Windows-1252, whose path takes the place of
/// `RenderOptions::path`. Error "unreadable-file" too.
Rendering renderFile(const std::string& path, const RenderOptions& options = {},
                     Platform& platform = systemPlatform());

/// Returns all diagnostics about a description (UTF-8), in the order of their places, without those
/// that its comments say to ignore. Styles are looked up in the stylesheet if there is one;
/// `checkStyleSheet` returns what is wrong with that.
std::vector<Diagnostic> check(std::string_view description, const RenderOptions& options = {},
                              Platform& platform = systemPlatform());

}  // namespace quorvane
