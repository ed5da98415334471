#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/Ref.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/compose/Color.h"
#include "quorvane/compose/DocumentReference.h"
#include "quorvane/compose/PageLayout.h"
#include "quorvane/compose/SinkOutput.h"
#include "quorvane/compose/TextRendering.h"
#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/driver/StyleNames.h"

namespace quorvane {

/// What a `Document` and the handles to its parts share: the document of the object model, and what
/// that does not have.
class ComposedDocument {
public:
    /// The platform must outlive it.
    ComposedDocument(Ref<CRtfDoc> document, Platform& platform);

    CRtfDoc& document() const noexcept { return *document_; }
    Platform& platform() const noexcept { return platform_; }
    PageLayout& layout() noexcept { return layout_; }
    StyleNames& styleNames() noexcept { return styleNames_; }
    TextRendering& texts() noexcept { return texts_; }

    /// The number of a color in the document, to which it is added if it is not there.
    tColorIndex numberOf(const Color& color) const;
    void setStyleSheet(std::string_view text, const std::string& file);
    /// Fits page and columns together, and finds what could not be rendered.
    void fit();
    /// Passes the bytes of the document on. Nothing is passed if page and columns do not fit.
    void render(SinkOutput::Sink sink);

private:
    friend void retain(ComposedDocument* document) noexcept;
    friend void release(ComposedDocument* document) noexcept;

    ~ComposedDocument() = default;

    Counted counts_;
    Ref<CRtfDoc> document_;
    Platform& platform_;
    PageLayout layout_;
    StyleNames styleNames_;
    TextRendering texts_;
};

[[noreturn]] void refuseHandle();

/// What a handle refers to; an error for a handle to nothing.
template <class T>
T& referred(const Ref<T>& reference) {
    if (!reference) {
        refuseHandle();
    }
    return *reference;
}

}  // namespace quorvane
