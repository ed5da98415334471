// A yardstick: copy_files SIZE FOLDER FILE... reads each file and writes a file of SIZE bytes of
// the same name into the folder.

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

bool readWhole(const std::string& path, std::string& bytes) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (!file) {
        return false;
    }
    char block[65536];
    bytes.clear();
    for (std::size_t count = 0; (count = std::fread(block, 1, sizeof block, file)) > 0;) {
        bytes.append(block, count);
    }
    static_cast<void>(std::fclose(file));
    return true;
}

bool writeWhole(const std::string& path, const std::string& bytes) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) {
        return false;
    }
    const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && isWritten;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        static_cast<void>(std::fprintf(stderr, "usage: %s SIZE FOLDER FILE...\n", argv[0]));
        return 2;
    }
    const std::string document(static_cast<std::size_t>(std::strtol(argv[1], nullptr, 10)), 'x');
    const std::string folder = std::string(argv[2]) + "/";
    std::string bytes;
    for (int i = 3; i < argc; ++i) {
        const std::string path = argv[i];
        const std::string target = folder + path.substr(path.rfind('/') + 1);
        if (!readWhole(path, bytes) || !writeWhole(target, document)) {
            static_cast<void>(std::fprintf(stderr, "cannot copy %s\n", path.c_str()));
            return 1;
        }
    }
    return 0;
}
