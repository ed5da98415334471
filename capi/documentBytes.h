#pragma once

#include <string>
#include <string_view>

#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane::capi {

/// The bytes of a document as a file.
std::string documentBytes(CRtfDoc& document);

/// Writes bytes to a file, which appears whole.
void saveBytes(const std::string& path, std::string_view bytes);

}  // namespace quorvane::capi
