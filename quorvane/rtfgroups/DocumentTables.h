#pragma once

#include <cstdint>
#include <string>

#include "quorvane/rtfgroups/CRtfGrpColorTable.h"

namespace quorvane {

/// The colors and fonts of a document, in which a format finds the numbers of its own.
class DocumentTables {
public:
    virtual ~DocumentTables() = default;
    /// Number of a color, which is added when the document does not have it.
    virtual std::int32_t colorNumber(const RgbColor& color) = 0;
    /// Number of a font by its name (UTF-8), which is added when the document does not have it. The
    /// name must not hold a backslash, a brace or a ";".
    virtual std::int32_t fontNumber(const std::string& name) = 0;
    /// The numbers that were returned are not used any more.
    virtual void releaseNumbers() noexcept = 0;
};

}  // namespace quorvane
