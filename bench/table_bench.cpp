// The standard job once, as a whole process: table_bench R OUT builds R rows through the object
// model, renders and commits them. With "emitter" as a third argument the hand-written emitter
// writes the same bytes.

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>
#include <string_view>

#include "bench/standardJob.h"

int main(int argc, char** argv) {
    if (argc < 3) {
        static_cast<void>(std::fprintf(stderr, "usage: %s ROWS FILE [emitter]\n", argv[0]));
        return 2;
    }
    const auto rows = static_cast<std::int32_t>(std::strtol(argv[1], nullptr, 10));
    const std::string path = argv[2];
    try {
        if (argc > 3 && std::string_view(argv[3]) == "emitter") {
            const std::string rtf = quorvane::bench::emitStandardJob(rows);
            std::ofstream(path, std::ios::binary)
                .write(rtf.data(), static_cast<std::streamsize>(rtf.size()));
        } else {
            quorvane::bench::standardDocument(rows)->Commit(path);
        }
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "%s\n", error.what()));
        return 1;
    }
    return 0;
}
