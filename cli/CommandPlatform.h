#pragma once

#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/text/TextEncoding.h"

namespace quorvane::cli {

/// The platform for the library when the command runs it: files are read from another platform, a
/// document replaces its file as a whole or goes to standard output, and the clipboard and message
/// boxes are not used. The cause of an error 75 of reading is the system's message. Once the
/// stylesheet is read, several threads may use it at a time.
class CommandPlatform : public Platform {
public:
    /// The other platform must outlive this one.
    explicit CommandPlatform(Platform& files) : files_(files) {}

    /// Reads the stylesheet file, once for all descriptions. Raises what reading a file raises.
    void readStyleSheet(const std::string& path);

    /// From now on, creating a file creates the folders that it is in, too: a run without documents
    /// leaves no folder.
    void createFoldersOfFiles() { createsFolders_ = true; }

    /// The bytes of the stylesheet, which was read.
    const std::string& styleSheetBytes() const;

    /// From now on, the library reads the stylesheet, which is in that encoding, in Windows-1252;
    /// in the extended language it reads it in UTF-8 all the same.
    void recodeStyleSheet(TextEncoding encoding);

    /// True for the stylesheet only: the library shall not delete the file that it writes to.
    bool fileExists(const std::string& path) override;
    std::string readFile(const std::string& path) override;
    void deleteFile(const std::string& path) override { files_.deleteFile(path); }
    /// Opens a replacement of the file, or standard output for the name "-".
    std::unique_ptr<OutputFile> createFile(const std::string& path) override;
    std::unique_ptr<OutputFile> replaceFile(const std::string& path) override;

    void setClipboardText(const std::string&) override {}
    void showMessageBox(const std::string&, int, const std::string&) override {}
    std::optional<std::string> resourceString(int id) override { return files_.resourceString(id); }
    std::unique_ptr<ErrorReporter> createReporter(const std::string& programId) override {
        return files_.createReporter(programId);
    }
    std::string programFolder() override { return files_.programFolder(); }
    std::string programFileName() override { return files_.programFileName(); }
    ProgramVersion programVersion() override { return files_.programVersion(); }

private:
    struct StyleSheet {
        std::string path;
        std::string bytes;
    };

    std::string readOtherFile(const std::string& path);
    bool isStyleSheet(const std::string& path) const;
    void createFolderOf(const std::string& path);

    Platform& files_;
    std::optional<StyleSheet> styleSheet_;
    bool createsFolders_ = false;
    std::mutex lastFolderMutex_;
    // The folder that was created, or was there, last.
    std::filesystem::path lastFolder_;
};

}  // namespace quorvane::cli
