#include "quorvane/docmodel/StreamedText.h"

namespace quorvane {

StreamedText::StreamedText(Files& files, GError& errors, const std::string& path)
    : saving_(files, errors, path), buffer_(new char[longestWholeText]) {
    setBuffer(buffer_.get(), longestWholeText);
}

void StreamedText::begin() noexcept {
    discardBuffered();
    saving_.begin();
    stage_ = Stage::Writing;
}

std::optional<RtfError> StreamedText::end() {
    flush();
    return saving_.end();
}

void StreamedText::take(std::string_view text) {
    if (stage_ == Stage::Gathering) {
        saving_.reserveMemory();
        saving_.lookForFile();
        if (saving_.replacesFile()) {
            stage_ = Stage::Waiting;
        } else {
            saving_.begin();
            stage_ = Stage::Writing;
        }
    }
    if (stage_ == Stage::Writing) {
        saving_.write(text);
    }
}

}  // namespace quorvane
