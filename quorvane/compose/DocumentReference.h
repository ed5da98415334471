#pragma once

namespace quorvane {

/// What a `Document` and the handles to its parts share. It lives as long as one of them does.
class ComposedDocument;

void retain(ComposedDocument* document) noexcept;
void release(ComposedDocument* document) noexcept;

}  // namespace quorvane
