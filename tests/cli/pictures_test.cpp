// The pictures that a description names come from its folder, and from those that are allowed.

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/ProgramTest.h"
#include "tests/docmodel/picture/pictureFiles.h"

namespace quorvane::cli {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Pictures : public ProgramTest {
protected:
    Pictures() {
        for (const char* name : {"jobs", "logos", "logos/old", "logos2"}) {
            std::filesystem::create_directory(folder.path() / name);
        }
        folder.write("logos/logo.png", pngOf(2, 1));
        folder.write("logos/old/logo.png", pngOf(2, 1));
        folder.write("logos2/logo.png", pngOf(2, 1));
    }

    /// What a command reports about a description that shows the picture.
    ProgramResult runWith(const std::string& command, const std::string& picture,
                          std::vector<std::string> options = {}) {
        folder.write("jobs/a.rtfspec", "; quorvane 2\n(doc\n(r\n(c\n(p\n(picture=" + picture +
                                           ")\np)\nc)\nr)\ndoc)\n");
        options.insert(options.begin(), {command, "jobs/a.rtfspec"});
        return run(options);
    }

    /// What a command prints about it.
    std::string reportOf(const std::string& command, const std::string& picture) {
        const ProgramResult result = runWith(command, picture);
        return result.output + result.errors;
    }
};

TEST_F(Pictures, OfAnotherFolderAreRefusedWithWhatToDo) {
    for (const char* command : {"render", "check"}) {
        EXPECT_THAT(
            reportOf(command, "../logos/logo.png"),
            StartsWith("jobs/a.rtfspec:6:10: error: ../logos/logo.png: The picture is not in the "
                       "folder of the description; move it there or allow its folder. "
                       "[wrong-picture]\n"));
    }
}

TEST_F(Pictures, OfAnAllowedFolderAndThoseInItAreTaken) {
    for (const std::string& name :
         {std::string("../logos/logo.png"), std::string("../logos/old/../old/logo.png"),
          folder / "logos/logo.png"}) {
        const ProgramResult result = runWith("render", name, {"--allow-pictures", "logos"});
        EXPECT_EQ(result.errors, "");
        EXPECT_THAT(folder.read("jobs/a.rtf"), HasSubstr("\\pngblip"));
        EXPECT_EQ(runWith("check", name, {"--allow-pictures=logos/"}).status, 0);
    }
}

TEST_F(Pictures, MayComeFromSeveralAllowedFolders) {
    EXPECT_EQ(runWith("check", "../logos2/logo.png",
                      {"--allow-pictures", "logos", "--allow-pictures", "logos2"})
                  .status,
              0);
}

TEST_F(Pictures, BesideAnAllowedFolderAreRefused) {
    for (const char* name : {"../logos2/logo.png", "../logos/../logos2/logo.png", "../logos"}) {
        EXPECT_THAT(runWith("check", name, {"--allow-pictures", "logos"}).output,
                    HasSubstr("is not in the folder of the description"))
            << name;
    }
}

TEST_F(Pictures, OfALinkOutOfAnAllowedFolderAreRefused) {
    std::filesystem::create_symlink(folder / "logos2/logo.png", folder / "logos/link.png");

    EXPECT_THAT(runWith("check", "../logos/link.png", {"--allow-pictures", "logos"}).output,
                HasSubstr("is not in the folder of the description"));
}

TEST_F(Pictures, CannotBeAPipe) {
    ASSERT_EQ(::mkfifo((folder / "jobs/pipe.png").c_str(), 0600), 0);

    EXPECT_THAT(
        runWith("render", "pipe.png").errors,
        HasSubstr("pipe.png: The picture is a pipe or a device; name a file. [wrong-picture]\n"));
}

}  // namespace
}  // namespace quorvane::cli
