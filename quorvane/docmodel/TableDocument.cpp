#include "quorvane/docmodel/TableDocument.h"

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

void retainDocument(TableDocument& document) noexcept {
    document.counts_.retain();
}

void releaseDocument(TableDocument& document) noexcept {
    document.counts_.release(&document);
}

void retainWeak(TableDocument* document) noexcept {
    document->counts_.retainWeak();
}

void releaseWeak(TableDocument* document) noexcept {
    document->counts_.releaseWeak(document);
}

bool isAlive(const TableDocument* document) noexcept {
    return document->counts_.isAlive();
}

TableDocument& required(TableDocument* document) {
    if (!document) {
        raise(RunTimeError::ObjectNotSet);
    }
    return *document;
}

TableDocument& changing(TableDocument* document) {
    TableDocument& changed = required(document);
    changed.beforeChange();
    return changed;
}

void beforeChange(TableDocument* document) {
    if (document) {
        document->beforeChange();
    }
}

void markChanged(TableDocument* document) {
    required(document).markChanged();
}

}  // namespace quorvane
