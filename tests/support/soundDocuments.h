#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {

/// Expects that every document among the platform's files is a sound RTF file.
inline void expectSoundDocuments(const FakePlatform& platform) {
    for (const auto& [path, bytes] : platform.files) {
        if (!std::string_view(bytes).starts_with("{\\rtf")) {
            continue;
        }
        for (const Diagnostic& diagnostic : checkRtf(bytes)) {
            ADD_FAILURE() << path << ":" << diagnostic.place.line << ": " << diagnostic.message;
        }
    }
}

}  // namespace quorvane
