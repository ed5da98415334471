#pragma once

#include <string_view>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/extendedMark.h"

namespace quorvane {

/// Returns the encoding of a file with a description or a stylesheet: always UTF-8 in the extended
/// language, otherwise `encodingOf`.
inline TextEncoding sourceEncodingOf(std::string_view bytes,
                                     EncodingChoice choice = EncodingChoice::Auto) {
    return encodingOf(bytes, isMarkedExtended(bytes) ? EncodingChoice::Utf8 : choice);
}

}  // namespace quorvane
