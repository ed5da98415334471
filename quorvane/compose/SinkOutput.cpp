#include "quorvane/compose/SinkOutput.h"

#include <utility>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/text/utf8.h"

namespace quorvane {

namespace {

constexpr std::size_t bufferSize = std::size_t{64} * 1024;

}  // namespace

SinkOutput::SinkOutput(Sink sink) : sink_(std::move(sink)), buffer_(new char[bufferSize]) {
    setBuffer(buffer_.get(), bufferSize);
}

void SinkOutput::take(std::string_view text) {
    if (asciiRunEnd(text, 0) == text.size()) {
        sink_(text);
        return;
    }
    bytes_.clear();
    appendCodePage1252(text, bytes_);
    sink_(bytes_);
}

}  // namespace quorvane
