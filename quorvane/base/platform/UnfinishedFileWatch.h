#pragma once

#include <filesystem>

namespace quorvane {

/// The path of an unfinished file, as an entry of the list that a watch keeps.
struct UnfinishedPath {
    std::filesystem::path path{};
    UnfinishedPath* next = nullptr;
};

/// Knows the unfinished files of replacements, so that a program that is ended meanwhile can remove
/// them. Several threads may use one at a time. The default knows nothing.
class UnfinishedFileWatch {
public:
    virtual ~UnfinishedFileWatch() = default;

    /// Between these two the program must not be ended: a file is being made, moved or removed.
    virtual void hold() noexcept {}
    virtual void resume() noexcept {}

    /// The file is unfinished from now on; called while held. The path must not change until `end`.
    virtual void begin(UnfinishedPath&) noexcept {}
    /// It is whole or gone; called while held.
    virtual void end(UnfinishedPath&) noexcept {}
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
