#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quorvane {

class CStringList;

/// A file that is being written. Destroying it closes it and tells no error; a file that was made
/// and that `close` did not end goes then, so that none is there in part.
class OutputFile {
public:
    virtual ~OutputFile() = default;
    /// Appends the bytes. Errors: 61 disk full, 57 any other failure.
    virtual void write(std::string_view bytes) = 0;
    /// Ends the writing; what was buffered is written now. Errors as `write`.
    virtual void close() = 0;
};

/// Version of the program that the library is part of.
struct ProgramVersion {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// A collection of further information on an error; null for none.
using ExtraInfo = std::shared_ptr<const CStringList>;

/// What the external error collection is told of one error.
struct ErrorReport {
    std::int32_t number = 0;
    std::string description;
    std::string moduleName;
    std::string procedureName;
    /// "major.minor.revision"
    std::string version;
    /// The error's source; empty when none is told.
    std::string source;
    /// Further information that the reporting procedure gave; null for none.
    ExtraInfo extraInfo;
};

/// The external error collection, bound by name when it is needed.
class ErrorReporter {
public:
    virtual ~ErrorReporter() = default;
    /// Introduces the program: its product name and its identifier (folder, file name, version).
    virtual void Create(const std::string& product, std::string& applicationId) = 0;
    /// Delivers one error.
    virtual void sendError(const ErrorReport& report) = 0;
};

/// What the library needs of the operating system. Paths and texts are UTF-8. Tests and hosts may
/// put their own in its place; `systemPlatform` is the real one.
class Platform {
public:
    virtual ~Platform() = default;

    /// True when a file or folder of that path exists, or, for a file name with the wildcards * and
    /// ?, when anything matches it. Never fails.
    virtual bool fileExists(const std::string& path) = 0;
    /// All bytes of a file, or of a pipe until its end. Errors: 53 no such file, 76 no such folder,
    /// 75 it is a folder or a device or may not be read, 67 too many open files, 57 anything else.
    virtual std::string readFile(const std::string& path) = 0;
    /// Removes a file; wildcards are letters like any other. Errors: 53, 76, 75 when it is held
    /// open, is a folder, a device or a pipe, or may not go, 57 anything else.
    virtual void deleteFile(const std::string& path) = 0;
    /// Opens a file for writing from its first byte; it is made when missing, and not shortened
    /// when it is there. Errors: 75 not permitted, held open or a folder, 76 no such folder, 61
    /// disk full, 67 too many open files, 57 anything else.
    virtual std::unique_ptr<OutputFile> createFile(const std::string& path) = 0;

    /// Puts a plain text on the system clipboard, where there is one.
    virtual void setClipboardText(const std::string& text) = 0;
    /// Shows a modal message box; style 64 is an information icon with a single OK button.
    virtual void showMessageBox(const std::string& text, int style, const std::string& title) = 0;
    /// The library's string resource of that number, or nothing.
    virtual std::optional<std::string> resourceString(int id) = 0;
    /// The external error collection of that programmatic identifier. Error 429 when it cannot be
    /// created.
    virtual std::unique_ptr<ErrorReporter> createReporter(const std::string& programId) = 0;
    /// Folder of the program, without a separator at its end.
    virtual std::string programFolder() = 0;
    /// File name of the program.
    virtual std::string programFileName() = 0;
    virtual ProgramVersion programVersion() = 0;
};

/// The platform that the library runs on.
Platform& systemPlatform();

}  // namespace quorvane
