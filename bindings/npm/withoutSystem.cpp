// A module has no operating system: no files, no clipboard and no message box. What is here comes
// in the place of the functions of the library, and keeps the code that would call a system out of
// the module.
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "data/partialsBeside.h"
#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/picturesBeside.h"

namespace quorvane {

namespace {

class NoSystem : public Platform {
public:
    bool fileExists(const std::string&) override { return false; }
    std::string readFile(const std::string&) override { raise(RunTimeError::FileNotFound); }
    void deleteFile(const std::string&) override { raise(RunTimeError::FileNotFound); }
    std::unique_ptr<OutputFile> createFile(const std::string&) override {
        raise(RunTimeError::PathNotFound);
    }
    std::unique_ptr<OutputFile> replaceFile(const std::string&) override {
        raise(RunTimeError::PathNotFound);
    }

    void setClipboardText(const std::string&) override {}
    void showMessageBox(const std::string&, int, const std::string&) override {}
    std::optional<std::string> resourceString(int) override { return std::nullopt; }
    std::unique_ptr<ErrorReporter> createReporter(const std::string&) override {
        raise(RunTimeError::CannotCreateObject);
    }
    std::string programFolder() override { return {}; }
    std::string programFileName() override { return {}; }
    ProgramVersion programVersion() override { return {}; }
};

}  // namespace

Platform& systemPlatform() {
    static NoSystem system;
    return system;
}

PictureSource picturesBeside(const std::string&, Platform&, std::vector<std::string>) {
    return [](const std::string&) -> std::string { raise(RunTimeError::FileNotFound); };
}

data::PartialSource data::partialsBeside(const std::string&, Platform&) {
    return [](const std::string&) -> std::string { raise(RunTimeError::FileNotFound); };
}

}  // namespace quorvane
