// The standard job once, as a whole process: table_bench R OUT builds R rows through the object
// model, renders and commits them. With "modern" as a third argument the modern interface does so,
// with "own" in a document of its own, in the extended language, with "emitter" the hand-written
// emitter writes the same bytes from one buffer, with "streaming" through a buffer of 64 KB.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>
#include <string_view>

#include "bench/standardJob.h"

namespace {

using namespace quorvane::bench;

void writeFromOneBuffer(std::int32_t rows, std::ofstream& file) {
    const std::string rtf = emitStandardJob(rows);
    file.write(rtf.data(), static_cast<std::streamsize>(rtf.size()));
}

void writeStreaming(std::int32_t rows, std::ofstream& file) {
    streamStandardJob(rows, [&file](std::string_view bytes) {
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    });
}

void run(std::int32_t rows, const std::string& path, std::string_view how) {
    if (how.empty()) {
        standardDocument(rows)->Commit(path);
        return;
    }
    if (how == "modern") {
        modernStandardDocument(rows).save(path);
        return;
    }
    if (how == "own") {
        ownStandardDocument(rows).save(path);
        return;
    }
    std::ofstream file(path, std::ios::binary);
    (how == "streaming" ? writeStreaming : writeFromOneBuffer)(rows, file);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        static_cast<void>(
            std::fprintf(stderr, "usage: %s ROWS FILE [modern|own|emitter|streaming]\n", argv[0]));
        return 2;
    }
    const auto rows = static_cast<std::int32_t>(std::strtol(argv[1], nullptr, 10));
    try {
        run(rows, argv[2], argc > 3 ? argv[3] : "");
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
        return 1;
    }
    return 0;
}
