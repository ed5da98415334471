#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane {

/// A platform for tests: files in memory, every operation recorded, any operation made to fail.
///
/// Operations are named as the platform's members are ("deleteFile"), those of a file being written
/// "write" and "close", those of the reporter "Create" and "sendError".
class FakePlatform : public Platform {
public:
    struct MessageBox {
        std::string text;
        int style = 0;
        std::string title;
    };

    /// What a reporter received in its "Create".
    struct Introduction {
        std::string programId;
        std::string product;
        std::string applicationId;
    };

    /// The files by path, as bytes.
    std::map<std::string, std::string> files;
    /// Every operation in the order of the calls, with what it concerned: "deleteFile a.rtf",
    /// "write 5" (bytes), "createReporter Vantrel.CVantrel", "programFolder".
    std::vector<std::string> operations;
    std::vector<std::string> clipboardTexts;
    std::vector<MessageBox> messageBoxes;
    std::map<int, std::string> resources{{8700, "Quorvane"}};
    /// Without it, the creation of a reporter is error 429.
    bool reporterIsRegistered = false;
    std::vector<Introduction> introductions;
    std::vector<ErrorReport> reports;
    std::string folder = "C:\\Programs";
    std::string fileName = "host.exe";
    ProgramVersion version{3, 14, 159};
    /// Files being written and reporters that are still held.
    int openFiles = 0;
    int livingReporters = 0;

    /// Makes an operation fail with the error from now on, after so many more successes.
    void fail(std::string_view operation, RtfError error, int successesBefore = 0) {
        failures_.insert_or_assign(known(operation), Failure{std::move(error), successesBefore});
    }
    void fail(std::string_view operation, RunTimeError number, int successesBefore = 0) {
        fail(operation, RtfError(number), successesBefore);
    }
    /// Lets the operation succeed again.
    void repair(std::string_view operation) { failures_.erase(known(operation)); }

    /// Number of calls of the operation.
    std::size_t count(std::string_view operation) const {
        const std::string name = known(operation);
        return static_cast<std::size_t>(
            std::count_if(operations.begin(), operations.end(), [&name](const std::string& call) {
                return call == name || call.starts_with(name + " ");
            }));
    }

    bool fileExists(const std::string& path) override {
        perform("fileExists", path);
        return files.contains(path);
    }

    std::string readFile(const std::string& path) override {
        perform("readFile", path);
        return existing(path)->second;
    }

    void deleteFile(const std::string& path) override {
        perform("deleteFile", path);
        files.erase(existing(path));
    }

    std::unique_ptr<OutputFile> createFile(const std::string& path) override {
        perform("createFile", path);
        files[path];
        return std::make_unique<File>(*this, path);
    }

    std::unique_ptr<OutputFile> replaceFile(const std::string& path) override {
        perform("replaceFile", path);
        return std::make_unique<Replacement>(*this, path);
    }

    void setClipboardText(const std::string& text) override {
        perform("setClipboardText", text);
        clipboardTexts.push_back(text);
    }

    void showMessageBox(const std::string& text, int style, const std::string& title) override {
        perform("showMessageBox", title);
        messageBoxes.push_back({text, style, title});
    }

    std::optional<std::string> resourceString(int id) override {
        perform("resourceString", std::to_string(id));
        const auto found = resources.find(id);
        return found == resources.end() ? std::nullopt : std::optional(found->second);
    }

    std::unique_ptr<ErrorReporter> createReporter(const std::string& programId) override {
        perform("createReporter", programId);
        if (!reporterIsRegistered) {
            raise(RunTimeError::CannotCreateObject);
        }
        return std::make_unique<Reporter>(*this, programId);
    }

    std::string programFolder() override {
        perform("programFolder");
        return folder;
    }

    std::string programFileName() override {
        perform("programFileName");
        return fileName;
    }

    ProgramVersion programVersion() override {
        perform("programVersion");
        return version;
    }

private:
    struct Failure {
        RtfError error;
        int successesBefore = 0;
    };

    class File : public OutputFile {
    public:
        File(FakePlatform& platform, std::string path)
            : platform_(platform), path_(std::move(path)) {
            ++platform_.openFiles;
        }
        File(const File&) = delete;
        File& operator=(const File&) = delete;
        ~File() override { --platform_.openFiles; }

        void write(std::string_view bytes) override {
            platform_.perform("write", std::to_string(bytes.size()));
            std::string& content = platform_.files[path_];
            content.replace(position_, bytes.size(), bytes);
            position_ += bytes.size();
        }

        void close() override { platform_.perform("close", path_); }

    private:
        FakePlatform& platform_;
        std::string path_;
        std::size_t position_ = 0;
    };

    /// Takes the file's place with `close`.
    class Replacement : public OutputFile {
    public:
        Replacement(FakePlatform& platform, std::string path)
            : platform_(platform), path_(std::move(path)) {
            ++platform_.openFiles;
        }
        Replacement(const Replacement&) = delete;
        Replacement& operator=(const Replacement&) = delete;
        ~Replacement() override { --platform_.openFiles; }

        void write(std::string_view bytes) override {
            platform_.perform("write", std::to_string(bytes.size()));
            content_ += bytes;
        }

        void close() override {
            platform_.perform("close", path_);
            platform_.files[path_] = content_;
        }

    private:
        FakePlatform& platform_;
        std::string path_;
        std::string content_;
    };

    class Reporter : public ErrorReporter {
    public:
        Reporter(FakePlatform& platform, std::string programId)
            : platform_(platform), programId_(std::move(programId)) {
            ++platform_.livingReporters;
        }
        Reporter(const Reporter&) = delete;
        Reporter& operator=(const Reporter&) = delete;
        ~Reporter() override { --platform_.livingReporters; }

        void Create(const std::string& product, std::string& applicationId) override {
            platform_.perform("Create", product);
            platform_.introductions.push_back({programId_, product, applicationId});
        }

        void sendError(const ErrorReport& report) override {
            platform_.perform("sendError", std::to_string(report.number));
            platform_.reports.push_back(report);
        }

    private:
        FakePlatform& platform_;
        std::string programId_;
    };

    /// The name, once it is certain that such an operation exists: a test with a misspelled one
    /// would prove nothing.
    static std::string known(std::string_view operation) {
        static constexpr std::array<std::string_view, 16> names{
            "fileExists",     "readFile",       "deleteFile",      "createFile",
            "replaceFile",    "write",          "close",           "setClipboardText",
            "showMessageBox", "resourceString", "createReporter",  "Create",
            "sendError",      "programFolder",  "programFileName", "programVersion"};
        if (std::find(names.begin(), names.end(), operation) == names.end()) {
            throw std::invalid_argument("no such operation: " + std::string(operation));
        }
        return std::string(operation);
    }

    void perform(const std::string& operation, const std::string& subject = {}) {
        operations.push_back(subject.empty() ? operation : operation + " " + subject);
        const auto failure = failures_.find(operation);
        if (failure == failures_.end()) {
            return;
        }
        if (failure->second.successesBefore > 0) {
            --failure->second.successesBefore;
            return;
        }
        raise(failure->second.error);
    }

    std::map<std::string, std::string>::iterator existing(const std::string& path) {
        const auto found = files.find(path);
        if (found == files.end()) {
            raise(RunTimeError::FileNotFound);
        }
        return found;
    }

    std::map<std::string, Failure> failures_;
};

}  // namespace quorvane
