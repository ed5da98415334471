#pragma once

#include <string_view>

#include "data/locale.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/compose/render.h"

namespace quorvane::data {

/// Makes a document of a template (UTF-8), a description of the extended language that is filled
/// with a record, an object of JSON (UTF-8). It is as `render` otherwise. A partial is an error,
/// for there is no folder to take it from. What is wrong with the data is an `Error` "wrong-json"
/// with its place in them.
Rendering renderTemplate(std::string_view text, std::string_view json, const Locale& locale,
                         const RenderOptions& options = {}, Platform& platform = systemPlatform());

}  // namespace quorvane::data
