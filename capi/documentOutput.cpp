#include "capi/documentOutput.h"

#include <ostream>
#include <streambuf>

#include "capi/callError.h"
#include "capi/writeCallback.h"
#include "quorvane/compose/Error.h"

namespace quorvane::capi {

namespace {

/// Hands the bytes of a stream to a callback, unless it stopped.
class CallbackBuffer final : public std::streambuf {
public:
    explicit CallbackBuffer(const WriteCallback& callback) : callback_(callback) {}

    bool isStopped() const { return isStopped_; }

private:
    std::streamsize xsputn(const char* bytes, std::streamsize length) override {
        try {
            callback_({bytes, static_cast<std::size_t>(length)});
        } catch (const Stopped&) {
            isStopped_ = true;
            return 0;
        }
        return length;
    }

    const WriteCallback& callback_;
    bool isStopped_ = false;
};

}  // namespace

void writeDocument(Document& document, quorvane_write_callback write, void* user) {
    const WriteCallback callback(write, user);
    CallbackBuffer buffer(callback);
    std::ostream stream(&buffer);
    try {
        document.write(stream);
    } catch (const Error&) {
        if (buffer.isStopped()) {
            throw Stopped();
        }
        throw;
    }
}

}  // namespace quorvane::capi
