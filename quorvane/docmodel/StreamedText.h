#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Files.h"
#include "quorvane/base/text/TextOutput.h"
#include "quorvane/support/GError.h"
#include "quorvane/support/TextSaving.h"

namespace quorvane {

/// The text of a document on its way into a file: it is never in memory as a whole, unless it is so
/// short that it fits the buffer.
///
/// A file that is there is deleted only when nothing but the files can fail any more. So the first
/// rendering writes nothing then, and a second one is needed.
class StreamedText final : public TextOutput {
public:
    static constexpr std::size_t longestWholeText = std::size_t{64} * 1024;

    /// All that is given must outlive it.
    StreamedText(Files& files, GError& errors, const std::string& path);

    /// True while the buffer holds all that was rendered, and the files were not asked for
    /// anything.
    bool isWhole() const noexcept { return stage_ == Stage::Gathering; }
    /// The text, if it is whole.
    std::string_view text() const noexcept { return buffered(); }

    /// True when a file is there, so that nothing was written yet.
    bool waits() const noexcept { return stage_ == Stage::Waiting; }
    /// Begins the file. What is rendered from now on is written.
    void begin() noexcept;

    /// Ends the file; see `TextSaving::end`.
    std::optional<RtfError> end();

private:
    enum class Stage { Gathering, Waiting, Writing };

    void take(std::string_view text) override;

    TextSaving saving_;
    Stage stage_ = Stage::Gathering;
    std::unique_ptr<char[]> buffer_;
};

}  // namespace quorvane
