#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/cli/TemporaryFolder.h"
#include "tests/cli/descriptions.h"

namespace quorvane::cli {

/// All files below a folder by their paths, as bytes; a folder's are "folder".
inline std::map<std::string, std::string> filesBelow(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        std::string& bytes = files[entry.path().lexically_relative(folder).string()];
        if (entry.is_directory()) {
            bytes = "folder";
        } else {
            std::ifstream file(entry.path(), std::ios::binary);
            bytes.assign(std::istreambuf_iterator<char>(file), {});
        }
    }
    return files;
}

/// Descriptions with and without errors, some missing and some whose documents cannot be written,
/// with a stylesheet and options: all made up from a seed.
class RandomRendering {
public:
    explicit RandomRendering(unsigned seed) : random_(seed) {}

    /// Empties the folder, writes the files into it and returns the arguments after "render".
    std::vector<std::string> prepare(TemporaryFolder& folder) {
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            std::filesystem::remove_all(entry.path());
        }
        folder.acceptBrokenDocuments();
        std::vector<std::string> arguments = options(folder);
        const unsigned count = 1 + below(25);
        for (unsigned i = 0; i < count; ++i) {
            arguments.push_back(description(folder, "d" + std::to_string(i)));
        }
        if (below(10) == 0) {
            arguments.push_back(arguments.back());
        }
        return arguments;
    }

private:
    unsigned below(unsigned end) { return static_cast<unsigned>(random_() % end); }

    std::vector<std::string> options(const TemporaryFolder& folder) {
        static const std::vector<std::string> styleSheets = {goodStyleSheet, badStyleSheet,
                                                             "\x89PNG\r\n\x1A\n",
                                                             "{name: a; style-def: s; format: {}"};
        const std::string styleSheet =
            folder.write("style.rtfss", styleSheets[below(2) == 0 ? 0 : below(4)]);
        const std::vector<std::vector<std::string>> choices = {
            {"-s", styleSheet},         {"--check"},
            {"--keep-going"},           {"--fail-on=warning"},
            {"--diagnostics=json"},     {"--output-dir", folder / "out", "--mkdir"},
            {"-s", folder / "no.rtfss"}};
        std::vector<std::string> options;
        for (const std::vector<std::string>& choice : choices) {
            const bool isRare = choice.back().ends_with("no.rtfss");
            if (below(isRare ? 20 : 3) == 0) {
                options.insert(options.end(), choice.begin(), choice.end());
            }
        }
        return options;
    }

    std::string description(const TemporaryFolder& folder, const std::string& name) {
        const std::string path = folder / (name + ".rtfspec");
        const auto write = [&](const std::string& bytes) {
            folder.write(name + ".rtfspec", bytes);
        };
        switch (below(9)) {
            case 0:
                break;
            case 1:
                write("");
                break;
            case 2:
                write("\x89PNG\r\n\x1A\n");
                break;
            case 3:
                write(descriptionWithBadColor);
                folder.write(name + ".rtf", "older");
                break;
            case 4:
                write(std::string(below(3000), '\n') + descriptionWithBadColor);
                break;
            case 5:
                write(descriptionOf("{ <b=x> \\q"));
                std::filesystem::create_directory(folder / (name + ".rtf"));
                break;
            case 6:
                write(descriptionOf(std::string(below(50000), 'x')));
                break;
            default:
                write(descriptionOf("Text"));
        }
        return path;
    }

    std::minstd_rand random_;
};

}  // namespace quorvane::cli
