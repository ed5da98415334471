// A yardstick: csv_rows CSV PATTERN OUT writes a table of a file with commas as "quorvane table"
// does. It splits lines at commas and puts the fields where the pattern, a document of two rows,
// has a
// "@" in each cell.

#include <cstddef>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::string readWhole(const char* path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The text before, between and after the "@" of a row.
std::vector<std::string_view> pieces(std::string_view row) {
    std::vector<std::string_view> result;
    for (std::size_t at = 0; (at = row.find('@')) != std::string_view::npos;) {
        result.push_back(row.substr(0, at));
        row.remove_prefix(at + 1);
    }
    result.push_back(row);
    return result;
}

class Output {
public:
    explicit Output(const char* path) : file_(std::fopen(path, "wb")) {}
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output() {
        flush();
        static_cast<void>(std::fclose(file_));
    }

    void add(std::string_view text) {
        if (used_ + text.size() > sizeof buffer_) {
            flush();
        }
        text.copy(buffer_ + used_, text.size());
        used_ += text.size();
    }

private:
    void flush() {
        static_cast<void>(std::fwrite(buffer_, 1, used_, file_));
        used_ = 0;
    }

    std::FILE* file_;
    char buffer_[65536] = {};
    std::size_t used_ = 0;
};

void writeRow(std::string_view line, const std::vector<std::string_view>& row, Output& out) {
    for (const std::string_view piece : row) {
        out.add(piece);
        const std::size_t comma = line.find(',');
        out.add(line.substr(0, comma));
        line = comma == std::string_view::npos ? std::string_view() : line.substr(comma + 1);
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        static_cast<void>(std::fprintf(stderr, "usage: %s CSV PATTERN OUT\n", argv[0]));
        return 2;
    }
    constexpr std::string_view rowBegin = "\r\n{\\intbl";
    constexpr std::string_view rowEnd = "\\row}";
    const std::string pattern = readWhole(argv[2]);
    const std::string_view document = pattern;
    const std::size_t second = document.rfind(rowBegin);
    const std::size_t first = document.rfind(rowBegin, second - 1);
    const std::size_t end = document.rfind(rowEnd) + rowEnd.size();
    const std::vector<std::string_view> rows[] = {pieces(document.substr(first, second - first)),
                                                  pieces(document.substr(second, end - second))};
    Output out(argv[3]);
    out.add(document.substr(0, first));
    std::ifstream csv(argv[1], std::ios::binary);
    std::string line;
    std::getline(csv, line);
    for (std::size_t number = 0; std::getline(csv, line); ++number) {
        writeRow(line, rows[number % 2], out);
    }
    out.add(document.substr(end));
    return 0;
}
