#pragma once

#include <memory>
#include <optional>
#include <string>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// The platform of documents that are built to be looked at and thrown away: it has no files, no
/// clipboard and no screen.
class NullPlatform : public Platform {
public:
    bool fileExists(const std::string&) override { return false; }
    std::string readFile(const std::string&) override { raise(RunTimeError::FileNotFound); }
    void deleteFile(const std::string&) override { raise(RunTimeError::FileNotFound); }
    std::unique_ptr<OutputFile> createFile(const std::string&) override {
        raise(RunTimeError::PathFileAccessError);
    }
    void setClipboardText(const std::string&) override {}
    void showMessageBox(const std::string&, int, const std::string&) override {}
    std::unique_ptr<OutputFile> replaceFile(const std::string& path) override {
        return createFile(path);
    }
    std::optional<std::string> resourceString(int) override { return std::nullopt; }
    std::unique_ptr<ErrorReporter> createReporter(const std::string&) override {
        raise(RunTimeError::CannotCreateObject);
    }
    std::string programFolder() override { return {}; }
    std::string programFileName() override { return {}; }
    ProgramVersion programVersion() override { return {}; }
};

}  // namespace quorvane
