#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "quorvane/base/values/TextCollection.h"

namespace quorvane {

/// Version of the program that the library is part of.
struct ProgramVersion {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// A collection of further information on an error; null for none.
using ExtraInfo = std::shared_ptr<const TextCollection>;

/// What the external error collection receives of one error.
struct ErrorReport {
    std::int32_t number = 0;
    std::string description;
    std::string moduleName;
    std::string procedureName;
    /// "major.minor.revision"
    std::string version;
    /// The error's source; empty when it is not known.
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

/// What the library needs from the program and the desktop that it runs on. Texts are UTF-8.
class HostServices {
public:
    virtual ~HostServices() = default;

    /// Puts a plain text on the system clipboard, where there is one.
    virtual void setClipboardText(const std::string& text) = 0;
    /// Shows a modal message box; style 64 is an information icon with a single OK button.
    virtual void showMessageBox(const std::string& text, int style, const std::string& title) = 0;
    /// The library's string resource of that number, if there is one.
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

}  // namespace quorvane
