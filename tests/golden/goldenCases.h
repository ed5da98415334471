#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvane::golden {

/// An error that must come out, in the order of the list.
struct ExpectedError {
    std::string kind;
    std::int32_t number;
    std::string description;
    /// Empty where any source will do.
    std::string source;
};

/// A description with the bytes and errors that must come out of it.
struct Case {
    std::string name;
    std::filesystem::path folder;
    bool checked;
    bool hasStyleSheet;
    std::string expectedRtf;
    std::vector<ExpectedError> expectedErrors;
};

/// How a test shows the case.
inline void PrintTo(const Case& shown, std::ostream* output) {
    *output << shown.name;
}

inline std::string readBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path.string());
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

inline Case loadCase(const std::filesystem::path& folder) {
    const auto settings = nlohmann::json::parse(readBytes(folder / "case.json"));
    Case result{folder.filename().string(),
                folder,
                settings.at("checked"),
                std::filesystem::exists(folder / "style.rtfss"),
                readBytes(folder / "expected.rtf"),
                {}};
    std::ifstream lines(folder / "expected.events.jsonl");
    for (std::string line; std::getline(lines, line);) {
        const auto error = nlohmann::json::parse(line);
        result.expectedErrors.push_back(
            {error.at("kind"), error.at("number"), error.at("description"),
             error.at("source").is_null() ? std::string() : std::string(error.at("source"))});
    }
    return result;
}

/// All cases below a folder, by name.
inline std::vector<Case> loadCases(const std::filesystem::path& folder) {
    std::vector<Case> cases;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (std::filesystem::exists(entry.path() / "case.json")) {
            cases.push_back(loadCase(entry.path()));
        }
    }
    std::sort(cases.begin(), cases.end(),
              [](const Case& a, const Case& b) { return a.name < b.name; });
    return cases;
}

}  // namespace quorvane::golden
