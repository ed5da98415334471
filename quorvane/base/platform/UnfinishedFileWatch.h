#pragma once

#include <filesystem>

namespace quorvane {

/// Knows the unfinished file of a replacement, so that a program that is ended meanwhile can remove
/// it. The default knows nothing.
class UnfinishedFileWatch {
public:
    virtual ~UnfinishedFileWatch() = default;

    /// Between these two the program must not be ended: the file is being made, moved or removed.
    virtual void hold() noexcept {}
    virtual void resume() noexcept {}

    /// The file that is unfinished from now on; called while held.
    virtual void begin(const std::filesystem::path&) {}
    /// It is whole or gone; called while held.
    virtual void end() noexcept {}
};

/// Holds the end of the program off while it lives.
class EndHeld {
public:
    explicit EndHeld(UnfinishedFileWatch& watch) noexcept : watch_(watch) { watch_.hold(); }
    EndHeld(const EndHeld&) = delete;
    EndHeld& operator=(const EndHeld&) = delete;
    ~EndHeld() { watch_.resume(); }

private:
    UnfinishedFileWatch& watch_;
};

}  // namespace quorvane
