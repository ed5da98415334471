// How fast RTF files are checked, beside a plain count of bytes: with the name of a file for that
// file, without one for a document of the library.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "bench/standardJob.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"

namespace {

constexpr std::size_t pieceLength = std::size_t{1024} * 1024;
constexpr double megabyte = 1e6;
constexpr std::size_t minBytes = 400000000;

std::string fileOrDocument(int argc, char** argv) {
    if (argc > 1) {
        std::ifstream file(argv[1], std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    return quorvane::bench::emitStandardJob(100000);
}

/// Megabytes a second of what is done to the bytes, piece by piece, as often as it takes to see.
template <class Work>
double speedOf(std::string_view bytes, Work work) {
    const std::size_t times = minBytes / std::max<std::size_t>(bytes.size(), 1) + 1;
    const auto begin = std::chrono::steady_clock::now();
    for (std::size_t i = 0; i < times; ++i) {
        work(bytes);
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    return static_cast<double>(bytes.size() * times) / megabyte / taken.count();
}

}  // namespace

int main(int argc, char** argv) {
    const std::string bytes = fileOrDocument(argc, argv);
    std::ptrdiff_t lines = 0;
    const double counting = speedOf(
        bytes, [&](std::string_view text) { lines += std::count(text.begin(), text.end(), '\n'); });
    std::size_t diagnostics = 0;
    const double checking = speedOf(bytes, [&](std::string_view text) {
        quorvane::RtfCheck check([&](const quorvane::Diagnostic&) { ++diagnostics; });
        for (std::size_t at = 0; at < text.size(); at += pieceLength) {
            check.feed(text.substr(at, pieceLength));
        }
        check.finish();
    });
    std::printf("%.1f MB, %td line ends counted, %zu diagnostics\n",
                static_cast<double>(bytes.size()) / megabyte, lines, diagnostics);
    std::printf("counting bytes: %8.0f MB/s\nchecking:       %8.0f MB/s\n", counting, checking);
    return 0;
}
