#include "quorvane/base/memory/SharedText.h"

#include <cstring>
#include <limits>
#include <new>

#include "quorvane/base/values/RtfError.h"

namespace quorvane {

SharedText::SharedText(std::string_view text) {
    if (text.empty()) {
        return;
    }
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
        raise(RunTimeError::Overflow);
    }
    void* memory = ::operator new(sizeof(Block) + text.size());
    block_ = new (memory) Block{1, static_cast<std::uint32_t>(text.size())};
    std::memcpy(block_->characters(), text.data(), text.size());
}

SharedText::SharedText(const SharedText& other) noexcept : block_(other.block_) {
    if (block_) {
        ++block_->references;
    }
}

SharedText::~SharedText() {
    if (block_ && --block_->references == 0) {
        ::operator delete(block_);
    }
}

std::string_view SharedText::view() const noexcept {
    return block_ ? std::string_view(block_->characters(), block_->length) : std::string_view();
}

}  // namespace quorvane
