#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "quorvane/base/text/codePage1252.h"

namespace quorvane {

/// Texts that are descriptions or nearly so; the same ones for the same seed.
class RandomDescriptions {
public:
    explicit RandomDescriptions(std::uint32_t seed) : engine_(seed) {}

    std::size_t below(std::size_t count) { return engine_() % count; }

    /// A description in which a fault is rare.
    std::string description() {
        static const std::array<const char*, 6> openers{"(r", "(c", "(p", "(row", "(Cell", "(para"};
        static const std::array<const char*, 6> closers{"r)", "c)", "p)", "row)", "cell)", "P)"};
        std::string text = "(doc\n";
        std::size_t depth = 0;
        addLeaves(0, text);
        bool hasCell = false;
        for (std::size_t i = 2 + below(30); i > 0 || !hasCell; i -= i > 0 ? 1 : 0) {
            const std::size_t choice = below(200);
            const std::size_t longForm = below(2) * 3;
            if (choice < 1) {
                text += oneOf(oddLines()) + "\n";
            } else if ((choice < 100 || depth == 0 || (depth == 1 && !hasCell)) && depth < 3) {
                text += std::string(openers[depth + longForm]) + "\n";
                hasCell = depth > 0;
                addLeaves(++depth, text);
            } else if (depth > 0) {
                if (choice < 197) {
                    text += std::string(closers[--depth + longForm]) + "\n";
                } else {
                    text += std::string(openers[below(depth) + longForm]) + "\n";
                }
            }
        }
        while (depth > 0) {
            text += std::string(closers[--depth]) + "\n";
        }
        return text + "doc)\n";
    }

    /// The text with so many changes: bytes and lines left out, doubled, exchanged and put in.
    std::string mutated(std::string text, std::size_t changes) {
        for (; changes > 0 && !text.empty(); --changes) {
            switch (below(6)) {
                case 0:
                    text.erase(below(text.size()), 1 + below(3));
                    break;
                case 1:
                    text.insert(below(text.size()), 1, static_cast<char>(below(128)));
                    break;
                case 2:
                    text[below(text.size())] = static_cast<char>(32 + below(90));
                    break;
                default:
                    changeLine(text);
            }
        }
        return text;
    }

private:
    using Words = std::vector<std::string>;

    const std::string& oneOf(const Words& list) { return list[below(list.size())]; }

    static const Words& oddLines() {
        static const Words lines{"",     "; note", "(doc", "doc)",       "(p",       "r)",
                                 "c)",   "(rwo",   "cel)", "(pt Total)", "(pt=a) b", "text",
                                 "(pt=", "(x=1)",  "(r",   "(row)",      "pt=x)",    "()"};
        return lines;
    }

    static const Words& keysOf(std::size_t depth) {
        static const std::array<Words, 4> keys{
            Words{"paper-height", "paper-width", "page-number-start", "left-margin", "right-margin",
                  "bottom-margin", "top-margin"},
            Words{"rb", "rtb", "rbb", "row-left-border", "rrb", "row-key", "row-backcolor"},
            Words{"cb", "ctb", "cbb", "clb", "crb", "cw", "ca", "cs", "cmf", "cell-key", "cb"},
            Words{"pt", "ps", "pa", "pmf", "para-key", "para-text", "pt", "pt"}};
        return keys[depth];
    }

    static const Words& values() {
        static const Words list{"",     "x",     "Total",     "0012",       "-1",    "0",
                                "1.5",  "10",    "32",        "50",         "1e3",   "1e12",
                                "red",  "none",  "Navy-Blue", "3000000000", "thin",  "hair",
                                "left", "9",     "centered",  "3",          "1001",  "2001",
                                "7",    "<b=y>", "a(b",       "a{b",        "\\x ",  "crimson",
                                "2.0",  "1e999", "50",        "100",        "black", "1002"};
        return list;
    }

    /// A value that the key takes, most of the time.
    std::string valueFor(const std::string& key) {
        static const Words colors{"red", "none", "Navy-Blue", "black", "silver"};
        static const Words borders{"thin", "hair", "none", "thick"};
        static const Words alignments{"left", "centered", "none", "3", "2.0"};
        if (below(60) == 0) {
            return oneOf(values());
        }
        if (key.ends_with("-key") || key.find("margin") != std::string::npos ||
            key.find("paper") != std::string::npos || key == "page-number-start") {
            return std::to_string(below(key.ends_with("-key") ? 3000 : 4000));
        }
        if (key == "cw") {
            return std::to_string(below(120));
        }
        if (key == "ca" || key == "pa") {
            return oneOf(alignments);
        }
        if (key.ends_with("b") && key.size() == 3) {
            return oneOf(borders);
        }
        if (key.ends_with("border")) {
            return oneOf(borders);
        }
        return key == "rb" || key == "cb" || key == "row-backcolor" ? oneOf(colors)
                                                                    : oneOf(values());
    }

    void addLeaves(std::size_t depth, std::string& text) {
        const Words& keys = keysOf(depth);
        const std::size_t first = below(keys.size());
        const std::size_t count = below(4);
        bool hasText = false;
        for (std::size_t i = 0; i < count; ++i) {
            const std::string& key = keys[(first + i) % keys.size()];
            if (key == "pt" || key == "para-text") {
                if (hasText && below(10) > 0) {
                    continue;
                }
                hasText = true;
            }
            text += "(" + key + "=" + valueFor(key) + ")\n";
        }
        if (depth == 3 && !hasText && below(10) > 0) {
            text += "(pt=Total)\n";
        }
    }

    void changeLine(std::string& text) {
        const std::size_t start = text.rfind('\n', below(text.size())) + 1;
        const std::size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
        const std::string line = text.substr(start, end - start);
        switch (below(4)) {
            case 0:
                text.erase(start, end - start);
                break;
            case 1:
                text.insert(start, line);
                break;
            case 2:
                text.insert(start, oneOf(oddLines()) + "\n");
                break;
            default:
                text.erase(start, end - start);
                text.insert(text.rfind('\n', below(text.size() + 1)) + 1, line);
        }
    }

    std::mt19937 engine_;
};

/// The bytes of a file.
inline std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The files of that extension below a folder, as texts, in the order of their names.
inline std::vector<std::string> textsBelow(const std::filesystem::path& folder,
                                           const std::string& extension) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == extension) {
            paths.push_back(entry.path());
        }
    }
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> texts;
    for (const std::filesystem::path& path : paths) {
        texts.push_back(utf8FromCodePage1252(bytesOf(path)));
    }
    return texts;
}

}  // namespace quorvane
