#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Files.h"
#include "quorvane/support/GError.h"

namespace quorvane {

/// Saves a text that comes in pieces, in Windows-1252, in a file that takes the place of the one
/// that is there. A failure is kept until the end, and what comes after it is not written: whoever
/// makes the text does not notice it.
class TextSaving {
public:
    /// All that is given must outlive the saving.
    TextSaving(Files& files, GError& errors, const std::string& path) noexcept
        : files_(files), errors_(errors), path_(path) {}

    /// Takes all the memory that encoding pieces of any length needs.
    void reserveMemory();

    /// Looks whether a file is there, which `begin` will delete.
    void lookForFile() noexcept;
    bool replacesFile() const noexcept { return replacesFile_; }

    /// Deletes the file that was found and creates the new one.
    void begin() noexcept;

    /// Writes the next piece of the text, and reports the characters that are lost. No character
    /// is split between two pieces.
    void write(std::string_view piece) noexcept;

    /// Ends the saving as `GFileSystem::errorOfSaving` does: passes a failure to the error module,
    /// and returns it if it is one to look for the file or to delete it. What is not an `RtfError`
    /// is thrown.
    std::optional<RtfError> end();

    /// Ends the writing alone, as `GFileSystem::saveString` does.
    void endWriting();

private:
    void writeEncoded(std::string_view text);
    template <class Step>
    void attempt(std::exception_ptr& failure, Step&& step) noexcept;

    Files& files_;
    GError& errors_;
    const std::string& path_;
    bool replacesFile_ = false;
    std::unique_ptr<OutputFile> file_;
    std::string bytes_;
    // How many bytes were written.
    std::int64_t offset_ = 0;
    std::exception_ptr failureToReplace_;
    std::exception_ptr failureToWrite_;
};

}  // namespace quorvane
