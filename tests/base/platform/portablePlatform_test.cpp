#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

#include "quorvane/base/platform/Platform.h"
#include "quorvane/support/GFileSystem.h"
#include "quorvane/support/currentError.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

/// Number of the error that the action raises; 0 when it raises none.
std::int32_t errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RtfError& error) {
        return error.number;
    }
    return 0;
}

std::ptrdiff_t openDescriptors() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

/// Lets a limit of the process be lower while it lives.
class LoweredLimit {
public:
    LoweredLimit(__rlimit_resource_t resource, rlim_t limit) : resource_(resource) {
        ::getrlimit(resource_, &before_);
        rlimit lowered = before_;
        lowered.rlim_cur = limit;
        ::setrlimit(resource_, &lowered);
    }
    LoweredLimit(const LoweredLimit&) = delete;
    LoweredLimit& operator=(const LoweredLimit&) = delete;
    ~LoweredLimit() { ::setrlimit(resource_, &before_); }

private:
    __rlimit_resource_t resource_;
    rlimit before_{};
};

/// Lets no further file be opened while it lives.
class NoMoreDescriptors : public LoweredLimit {
public:
    NoMoreDescriptors() : LoweredLimit(RLIMIT_NOFILE, lowestFreeDescriptor()) {}

private:
    static rlim_t lowestFreeDescriptor() {
        const int free = ::dup(STDERR_FILENO);
        ::close(free);
        return static_cast<rlim_t>(free);
    }
};

/// Lets another action be taken on a signal while it lives.
class SignalAction {
public:
    SignalAction(int number, void (*handler)(int)) : number_(number) {
        struct sigaction action {};
        action.sa_handler = handler;
        ::sigaction(number_, &action, &before_);
    }
    SignalAction(const SignalAction&) = delete;
    SignalAction& operator=(const SignalAction&) = delete;
    ~SignalAction() { ::sigaction(number_, &before_, nullptr); }

private:
    int number_;
    struct sigaction before_ {};
};

/// Number of the error that the action raises when no further file can be opened. The action is run
/// once before, and an error raised: where a sanitizer looks at a type for the first time, it needs
/// descriptors of its own.
std::int32_t errorWithoutDescriptors(const std::function<void()>& action) {
    errorOf(action);
    errorOf([] { raise(RunTimeError::TooManyFiles); });
    const NoMoreDescriptors limit;
    return errorOf(action);
}

std::atomic<int> signalsTaken{0};

/// Interrupts whatever system call the thread that made it waits in, time and again while it lives.
class Interruptions {
public:
    Interruptions() : thread_([this, target = ::pthread_self()] { interrupt(target); }) {}
    Interruptions(const Interruptions&) = delete;
    Interruptions& operator=(const Interruptions&) = delete;
    ~Interruptions() {
        ends_ = true;
        thread_.join();
    }

private:
    void interrupt(pthread_t target) const {
        while (!ends_) {
            ::pthread_kill(target, SIGUSR1);
            std::this_thread::sleep_for(std::chrono::microseconds(200));
        }
    }

    SignalAction action_{SIGUSR1, [](int) { ++signalsTaken; }};
    std::atomic<bool> ends_{false};
    std::thread thread_;
};

class PortablePlatformTest : public testing::Test {
protected:
    PortablePlatformTest() : folder(newFolder()), folderBefore(fs::current_path()) {
        fs::current_path(folder);
        clearCurrentError();
    }
    ~PortablePlatformTest() override {
        std::error_code ignored;
        fs::current_path(folderBefore, ignored);
        fs::remove_all(folder, ignored);
    }

    std::string path(const std::string& name) const { return (folder / name).native(); }

    std::string make(const std::string& name, std::string_view bytes = {}) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return path(name);
    }

    std::string makeFolder(const std::string& name) const {
        fs::create_directory(folder / name);
        return path(name);
    }

    std::string makePipe(const std::string& name) const {
        ::mkfifo(path(name).c_str(), 0600);
        return path(name);
    }

    std::string bytesOf(const std::string& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    const fs::path folder;
    const fs::path folderBefore;
    Platform& platform = systemPlatform();
    /// Longer than any file system lets a name be.
    const std::string tooLong = path(std::string(5000, 'x'));
    /// A path that the system would read as that of an existing file.
    const std::string withNul = make("seen") + std::string("\0.rtf", 5);

private:
    static fs::path newFolder() {
        std::string name = (fs::temp_directory_path() / "quorvane.XXXXXX").native();
        return ::mkdtemp(name.data());
    }
};

// Existence

TEST_F(PortablePlatformTest, AFileExists) {
    EXPECT_TRUE(platform.fileExists(make("a.rtf")));
}

TEST_F(PortablePlatformTest, AFolderExists) {
    EXPECT_TRUE(platform.fileExists(makeFolder("a")));
    EXPECT_TRUE(platform.fileExists(path("a") + "/"));
    EXPECT_TRUE(platform.fileExists("/"));
}

TEST_F(PortablePlatformTest, AMissingFileDoesNotExist) {
    EXPECT_FALSE(platform.fileExists(path("a.rtf")));
    EXPECT_FALSE(platform.fileExists(path("gone/a.rtf")));
    EXPECT_FALSE(platform.fileExists(make("file") + "/a.rtf"));
    EXPECT_FALSE(platform.fileExists(""));
}

TEST_F(PortablePlatformTest, AFileExistsByItsRelativePath) {
    make("a.rtf");

    EXPECT_TRUE(platform.fileExists("a.rtf"));
}

TEST_F(PortablePlatformTest, ALinkExistsEvenWhenItLeadsNowhere) {
    fs::create_symlink("gone", folder / "link");

    EXPECT_TRUE(platform.fileExists(path("link")));
}

TEST_F(PortablePlatformTest, APathWithANulOrATooLongNameDoesNotExist) {
    EXPECT_FALSE(platform.fileExists(withNul));
    EXPECT_FALSE(platform.fileExists(tooLong));
}

TEST_F(PortablePlatformTest, WildcardsExistWhenAnythingMatches) {
    make("report 1.rtf");

    EXPECT_TRUE(platform.fileExists(path("*.rtf")));
    EXPECT_TRUE(platform.fileExists(path("report ?.rtf")));
    EXPECT_TRUE(platform.fileExists("*.rtf"));
    EXPECT_FALSE(platform.fileExists(path("*.txt")));
    EXPECT_FALSE(platform.fileExists(path("report?.rtf")));
}

TEST_F(PortablePlatformTest, WildcardsMatchAFolderToo) {
    makeFolder("folder");

    EXPECT_TRUE(platform.fileExists(path("f*")));
}

TEST_F(PortablePlatformTest, ANameThatHoldsAWildcardIsItsOwnFirst) {
    make("what?.rtf");
    make("a*.rtf");

    EXPECT_TRUE(platform.fileExists(path("what?.rtf")));
    EXPECT_TRUE(platform.fileExists(path("a*.rtf")));
}

TEST_F(PortablePlatformTest, NothingMatchesInAnEmptyOrMissingFolder) {
    makeFolder("empty");

    EXPECT_FALSE(platform.fileExists(path("empty/*")));
    EXPECT_FALSE(platform.fileExists(path("gone/*")));
}

TEST_F(PortablePlatformTest, WildcardsCountInTheFileNameOnly) {
    makeFolder("folder");
    make("folder/a.rtf");

    EXPECT_FALSE(platform.fileExists(path("f*/a.rtf")));
}

TEST_F(PortablePlatformTest, ExistenceIsNotAnErrorWhenNoFolderCanBeOpened) {
    make("a.rtf");
    const std::string pattern = path("*.rtf");
    ASSERT_TRUE(platform.fileExists(pattern));
    const NoMoreDescriptors limit;

    EXPECT_FALSE(platform.fileExists(pattern));
    EXPECT_EQ(currentError(), nullptr);
}

// Reading

TEST_F(PortablePlatformTest, ReadsAllBytesOfAFile) {
    const std::string bytes(
        "a\0b\r\n\x80\xFF\x1A"
        "c",
        9);

    EXPECT_EQ(platform.readFile(make("a.rtf", bytes)), bytes);
}

TEST_F(PortablePlatformTest, ReadsAnEmptyFile) {
    EXPECT_EQ(platform.readFile(make("a.rtf")), "");
}

TEST_F(PortablePlatformTest, ReadsALargeFile) {
    const std::string bytes(3000000, 'x');

    EXPECT_TRUE(platform.readFile(make("a.rtf", bytes)) == bytes);
}

TEST_F(PortablePlatformTest, ReadsAFileByALink) {
    make("a.rtf", "text");
    fs::create_symlink("a.rtf", folder / "link");

    EXPECT_EQ(platform.readFile(path("link")), "text");
}

TEST_F(PortablePlatformTest, ReadsAFileThatReportsNoSize) {
    EXPECT_THAT(platform.readFile("/proc/self/status"), testing::HasSubstr("\nPid:"));
}

TEST_F(PortablePlatformTest, ReadsAPipeToItsEnd) {
    const std::string pipe = makePipe("pipe");
    const std::string bytes(200000, 'x');
    std::thread writer([&] { std::ofstream(pipe, std::ios::binary) << bytes; });

    const std::string read = platform.readFile(pipe);
    writer.join();

    EXPECT_TRUE(read == bytes);
}

TEST_F(PortablePlatformTest, ReadingAMissingFileIsError53) {
    EXPECT_EQ(errorOf([&] { platform.readFile(path("gone.rtf")); }), 53);
    EXPECT_EQ(errorOf([&] { platform.readFile("gone.rtf"); }), 53);
}

TEST_F(PortablePlatformTest, ReadingThroughALinkThatLeadsNowhereIsError53) {
    fs::create_symlink("gone", folder / "link");

    EXPECT_EQ(errorOf([&] { platform.readFile(path("link")); }), 53);
}

TEST_F(PortablePlatformTest, ReadingInAMissingFolderIsError76) {
    EXPECT_EQ(errorOf([&] { platform.readFile(path("gone/a.rtf")); }), 76);
}

TEST_F(PortablePlatformTest, ReadingBelowAFileIsError76) {
    EXPECT_EQ(errorOf([&] { platform.readFile(make("file") + "/a.rtf"); }), 76);
}

TEST_F(PortablePlatformTest, ReadingAFolderIsError75) {
    EXPECT_EQ(errorOf([&] { platform.readFile(makeFolder("a")); }), 75);
}

TEST_F(PortablePlatformTest, ReadingADeviceIsError75) {
    EXPECT_EQ(errorOf([&] { platform.readFile("/dev/zero"); }), 75);
}

TEST_F(PortablePlatformTest, ReadingWithTooManyFilesOpenIsError67) {
    const std::string file = make("a.rtf");

    EXPECT_EQ(errorWithoutDescriptors([&] { platform.readFile(file); }), 67);
}

TEST_F(PortablePlatformTest, ReadingATooLongNameIsError57) {
    EXPECT_EQ(errorOf([&] { platform.readFile(tooLong); }), 57);
}

TEST_F(PortablePlatformTest, ReadingAPathWithANulIsError57) {
    EXPECT_EQ(errorOf([&] { platform.readFile(withNul); }), 57);
}

TEST_F(PortablePlatformTest, AFailureWhileReadingIsError57AndClosesTheFile) {
    const std::ptrdiff_t before = openDescriptors();

    // The memory of a process can be opened, but nothing is at its first byte.
    EXPECT_EQ(errorOf([&] { platform.readFile("/proc/self/mem"); }), 57);

    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(PortablePlatformTest, AnErrorHasTheSystemsOneAsItsCause) {
    const auto causeOf = [](const std::function<void()>& action) {
        try {
            action();
        } catch (const RtfError& error) {
            return error.cause
                       ? std::to_string(error.cause->number) + " " + error.cause->description
                       : "";
        }
        return std::string("nothing was thrown");
    };
    makeFolder("folder");

    EXPECT_EQ(causeOf([&] { platform.readFile(path("gone.rtf")); }), "2 No such file or directory");
    EXPECT_EQ(causeOf([&] { platform.readFile(path("folder")); }), "21 Is a directory");
    EXPECT_EQ(causeOf([&] { platform.deleteFile(path("gone.rtf")); }),
              "2 No such file or directory");
    EXPECT_EQ(causeOf([&] { platform.createFile(path("gone/a.rtf")); }),
              "2 No such file or directory");
    EXPECT_EQ(causeOf([&] { platform.createFile("/dev/full")->write("a"); }),
              "28 No space left on device");
    EXPECT_EQ(currentError(), nullptr);
}

TEST_F(PortablePlatformTest, AReplacementTakesTheFilesPlaceWhenItIsClosed) {
    const auto file = platform.replaceFile(make("a.rtf", "old and long"));
    file->write("new");
    EXPECT_EQ(bytesOf("a.rtf"), "old and long");
    file->close();
    EXPECT_EQ(bytesOf("a.rtf"), "new");
}

TEST_F(PortablePlatformTest, AReplacementThatIsNotClosedLeavesTheFileAsItIs) {
    fs::remove(path("seen"));
    platform.replaceFile(make("a.rtf", "old"))->write("new");
    EXPECT_EQ(bytesOf("a.rtf"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

TEST_F(PortablePlatformTest, ReplacingAnEmptyPathIsError76) {
    EXPECT_EQ(errorOf([&] { platform.replaceFile(""); }), 76);
}

TEST_F(PortablePlatformTest, ReplacingAPathWithANulIsError57) {
    EXPECT_EQ(errorOf([&] { platform.replaceFile(withNul); }), 57);
}

TEST_F(PortablePlatformTest, ReadsOnWhenASignalInterrupts) {
    const std::string pipe = makePipe("pipe");
    std::string expected;
    std::thread writer([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        std::ofstream file(pipe, std::ios::binary);
        for (int i = 0; i < 20; ++i) {
            file << "piece" << std::flush;
            expected += "piece";
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    });
    signalsTaken = 0;

    std::string read;
    {
        const Interruptions interruptions;
        read = platform.readFile(pipe);
    }
    writer.join();

    EXPECT_EQ(read, expected);
    EXPECT_GT(signalsTaken, 0);
}

// Deleting

TEST_F(PortablePlatformTest, DeletesAFile) {
    platform.deleteFile(make("a.rtf", "text"));

    EXPECT_FALSE(fs::exists(folder / "a.rtf"));
}

TEST_F(PortablePlatformTest, DeletesALinkAndNotTheFileThatItLeadsTo) {
    make("a.rtf", "text");
    fs::create_symlink("a.rtf", folder / "link");

    platform.deleteFile(path("link"));

    EXPECT_FALSE(fs::exists(fs::symlink_status(folder / "link")));
    EXPECT_EQ(bytesOf("a.rtf"), "text");
}

TEST_F(PortablePlatformTest, DeletesALinkThatLeadsNowhere) {
    fs::create_symlink("gone", folder / "link");

    platform.deleteFile(path("link"));

    EXPECT_FALSE(fs::exists(fs::symlink_status(folder / "link")));
}

TEST_F(PortablePlatformTest, DeletingAMissingFileIsError53) {
    EXPECT_EQ(errorOf([&] { platform.deleteFile(path("gone.rtf")); }), 53);
}

TEST_F(PortablePlatformTest, DeletingInAMissingFolderIsError76) {
    EXPECT_EQ(errorOf([&] { platform.deleteFile(path("gone/a.rtf")); }), 76);
    EXPECT_EQ(errorOf([&] { platform.deleteFile(make("file") + "/a.rtf"); }), 76);
}

TEST_F(PortablePlatformTest, DeletingAFolderIsError75AndLeavesIt) {
    EXPECT_EQ(errorOf([&] { platform.deleteFile(makeFolder("a")); }), 75);

    EXPECT_TRUE(fs::is_directory(folder / "a"));
}

TEST_F(PortablePlatformTest, DeletingALinkToADeviceIsError75AndLeavesIt) {
    fs::create_symlink("/dev/null", folder / "link");

    EXPECT_EQ(errorOf([&] { platform.deleteFile(path("link")); }), 75);

    EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

TEST_F(PortablePlatformTest, DeletingAPipeIsError75AndLeavesIt) {
    EXPECT_EQ(errorOf([&] { platform.deleteFile(makePipe("pipe")); }), 75);

    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(PortablePlatformTest, DeletingTakesWildcardsForLetters) {
    make("a.rtf", "text");

    EXPECT_EQ(errorOf([&] { platform.deleteFile(path("*.rtf")); }), 53);

    EXPECT_EQ(bytesOf("a.rtf"), "text");
}

TEST_F(PortablePlatformTest, DeletingAPathWithANulIsError57AndDeletesNothing) {
    EXPECT_EQ(errorOf([&] { platform.deleteFile(withNul); }), 57);

    EXPECT_TRUE(fs::exists(folder / "seen"));
}

TEST_F(PortablePlatformTest, DeletingATooLongNameIsError57) {
    EXPECT_EQ(errorOf([&] { platform.deleteFile(tooLong); }), 57);
}

// Writing

TEST_F(PortablePlatformTest, MakesAFileOfTheBytesInTheOrderTheyAreWritten) {
    const auto file = platform.createFile(path("a.rtf"));
    file->write(std::string_view("{\0\r\n", 4));
    file->write("");
    file->write("\x80}");
    file->close();

    EXPECT_EQ(bytesOf("a.rtf"), std::string("{\0\r\n\x80}", 6));
}

TEST_F(PortablePlatformTest, MakesAnEmptyFileWhenNothingIsWritten) {
    platform.createFile(path("a.rtf"))->close();

    EXPECT_TRUE(fs::exists(folder / "a.rtf"));
    EXPECT_EQ(bytesOf("a.rtf"), "");
}

TEST_F(PortablePlatformTest, MakesAFileThatTheUsersMaskDecidesOn) {
    const mode_t before = ::umask(022);
    platform.createFile(path("a.rtf"))->close();
    ::umask(before);

    struct stat status {};
    ASSERT_EQ(::stat(path("a.rtf").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0644U);
}

TEST_F(PortablePlatformTest, WritesOverAnExistingFileFromItsFirstByte) {
    const auto file = platform.createFile(make("a.rtf", "0123456789"));
    file->write("{}");
    file->close();

    EXPECT_EQ(bytesOf("a.rtf"), "{}23456789");
}

TEST_F(PortablePlatformTest, ClosesAFileThatIsReleased) {
    const std::ptrdiff_t before = openDescriptors();

    platform.createFile(make("a.rtf", "0123456789"))->write("text");

    EXPECT_EQ(openDescriptors(), before);
    EXPECT_EQ(bytesOf("a.rtf"), "text456789");
}

TEST_F(PortablePlatformTest, LeavesNothingOfANewFileThatIsReleasedBeforeItsEnd) {
    platform.createFile(path("a.rtf"))->write("text");

    EXPECT_FALSE(platform.fileExists(path("a.rtf")));
}

TEST_F(PortablePlatformTest, ClosesAFileOnce) {
    const std::ptrdiff_t before = openDescriptors();
    {
        const auto file = platform.createFile(path("a.rtf"));
        file->close();
        EXPECT_EQ(openDescriptors(), before);
    }
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(PortablePlatformTest, WritingOrClosingAClosedFileIsError57) {
    const auto file = platform.createFile(path("a.rtf"));
    file->close();

    EXPECT_EQ(errorOf([&] { file->write("text"); }), 57);
    EXPECT_EQ(errorOf([&] { file->close(); }), 57);
}

TEST_F(PortablePlatformTest, CreatingAFolderIsError75) {
    EXPECT_EQ(errorOf([&] { platform.createFile(makeFolder("a")); }), 75);
    EXPECT_EQ(errorOf([&] { platform.createFile(path("new/")); }), 75);
}

TEST_F(PortablePlatformTest, CreatingAFileThatIsInUseIsError75) {
    EXPECT_EQ(errorOf([&] { platform.createFile("/proc/self/exe"); }), 75);
}

TEST_F(PortablePlatformTest, CreatingInAMissingFolderIsError76) {
    EXPECT_EQ(errorOf([&] { platform.createFile(path("gone/a.rtf")); }), 76);
    EXPECT_EQ(errorOf([&] { platform.createFile(make("file") + "/a.rtf"); }), 76);
}

TEST_F(PortablePlatformTest, CreatingThroughALinkIntoAMissingFolderIsError76) {
    fs::create_symlink("gone/a.rtf", folder / "link");

    EXPECT_EQ(errorOf([&] { platform.createFile(path("link")); }), 76);
}

TEST_F(PortablePlatformTest, CreatingWithoutANameIsError76) {
    EXPECT_EQ(errorOf([&] { platform.createFile(""); }), 76);
}

TEST_F(PortablePlatformTest, CreatingATooLongNameIsError57) {
    EXPECT_EQ(errorOf([&] { platform.createFile(tooLong); }), 57);
}

TEST_F(PortablePlatformTest, CreatingAPathWithANulIsError57AndWritesNowhere) {
    EXPECT_EQ(errorOf([&] { platform.createFile(withNul); }), 57);

    EXPECT_EQ(bytesOf("seen"), "");
}

TEST_F(PortablePlatformTest, CreatingWithTooManyFilesOpenIsError67) {
    EXPECT_EQ(errorWithoutDescriptors([&] { platform.createFile(path("a.rtf")); }), 67);
}

TEST_F(PortablePlatformTest, WritingToAFullDiskIsError61) {
    const auto file = platform.createFile("/dev/full");

    EXPECT_EQ(errorOf([&] { file->write("text"); }), 61);
}

TEST_F(PortablePlatformTest, WritingMoreThanAFileMayHoldIsError61) {
    const SignalAction noDeath(SIGXFSZ, SIG_IGN);
    const LoweredLimit limit(RLIMIT_FSIZE, 1000);
    const auto file = platform.createFile(path("a.rtf"));

    EXPECT_EQ(errorOf([&] { file->write(std::string(1500, 'x')); }), 61);
    EXPECT_EQ(bytesOf("a.rtf").size(), 1000U);
}

TEST_F(PortablePlatformTest, WritingToAPipeThatNobodyReadsIsError57) {
    const SignalAction noDeath(SIGPIPE, SIG_IGN);
    const std::string pipe = makePipe("pipe");
    const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    const auto file = platform.createFile(pipe);
    ::close(reader);

    EXPECT_EQ(errorOf([&] { file->write("text"); }), 57);
}

TEST_F(PortablePlatformTest, WritesOnWhenASignalInterrupts) {
    const std::string pipe = makePipe("pipe");
    std::string read;
    std::thread reader([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        std::ifstream file(pipe, std::ios::binary);
        std::string piece(50000, '\0');
        do {
            file.read(piece.data(), static_cast<std::streamsize>(piece.size()));
            read.append(piece, 0, static_cast<std::size_t>(file.gcount()));
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        } while (file);
    });
    std::string expected;
    for (int i = 0; expected.size() < 1000000; ++i) {
        expected += std::to_string(i);
    }
    signalsTaken = 0;

    {
        const Interruptions interruptions;
        const auto file = platform.createFile(pipe);
        file->write(expected);
        file->close();
    }
    reader.join();

    EXPECT_TRUE(read == expected);
    EXPECT_GT(signalsTaken, 0);
}

// With the file helpers

TEST_F(PortablePlatformTest, TheFileHelpersReplaceALongerFile) {
    GError errors(platform);
    make("a.rtf", "{a much longer text}");

    EXPECT_TRUE(
        GFileSystem::saveStringToFile(platform, errors, path("a.rtf"), "{caf\xC3\xA9}", false));

    EXPECT_EQ(bytesOf("a.rtf"), "{caf\xE9}");
    EXPECT_EQ(GFileSystem::loadStringFromFile(platform, path("a.rtf")), "{caf\xC3\xA9}");
}

TEST_F(PortablePlatformTest, TheFileHelpersDoNotReplaceAFolder) {
    GError errors(platform);
    makeFolder("a");

    EXPECT_FALSE(GFileSystem::saveStringToFile(platform, errors, path("a"), "{}", false));

    EXPECT_EQ(currentError()->number, 75);
}

TEST_F(PortablePlatformTest, TheFileHelpersDoNotReplaceADevice) {
    GError errors(platform);

    EXPECT_FALSE(GFileSystem::saveStringToFile(platform, errors, "/dev/full", "{}", false));

    EXPECT_EQ(currentError()->number, 75);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

// What is not there

TEST_F(PortablePlatformTest, HasNoClipboardAndSaysNothingOfIt) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();

    EXPECT_NO_THROW(platform.setClipboardText("text"));

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(PortablePlatformTest, ShowsAMessageBoxAsLinesOnStandardError) {
    testing::internal::CaptureStderr();

    platform.showMessageBox("Number: 429\r\nDescription: ", 64, "Quorvane");

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Quorvane\nNumber: 429\nDescription: \n");
}

TEST_F(PortablePlatformTest, HasTheProductNameAsItsOnlyStringResource) {
    EXPECT_EQ(platform.resourceString(8700), "Quorvane");
    EXPECT_EQ(platform.resourceString(8699), std::nullopt);
    EXPECT_EQ(platform.resourceString(8701), std::nullopt);
}

TEST_F(PortablePlatformTest, CreatingAReporterIsError429) {
    EXPECT_EQ(errorOf([&] { platform.createReporter("Vantrel.CVantrel"); }), 429);
}

TEST_F(PortablePlatformTest, KnowsFolderAndNameOfTheRunningProgram) {
    const std::string folderOfProgram = platform.programFolder();

    EXPECT_EQ(folderOfProgram.front(), '/');
    EXPECT_NE(folderOfProgram.back(), '/');
    EXPECT_EQ(platform.programFileName(), "base_test");
    EXPECT_TRUE(fs::equivalent(folderOfProgram + "/base_test", "/proc/self/exe"));
}

TEST_F(PortablePlatformTest, ReturnsTheVersionOfTheLibrary) {
    const ProgramVersion version = platform.programVersion();

    EXPECT_EQ(version.major, 1);
    EXPECT_EQ(version.minor, 0);
    EXPECT_EQ(version.revision, 0);
}

TEST_F(PortablePlatformTest, IsTheSameForEveryCaller) {
    EXPECT_EQ(&systemPlatform(), &platform);
}

}  // namespace
}  // namespace quorvane
