// The standard job through the library for C, as a whole process: c_table ROWS FILE. It calls what
// a program in C does, and nothing else of ours.

#include <quorvane.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t cellsPerRow = 5;
constexpr std::size_t longestText = 32;

constexpr char styleSheet[] =
    "{ name: normal; style-def: s; format: \\f0\\fs20 }\r\n"
    "{ name: entry; style-def: s; format: \\f5\\fs18; based-on: normal }\r\n"
    "{ name: remark; style-def: s; format: \\f9\\fs16\\i; based-on: normal }\r\n"
    "{ name: bold; style-def: cs; format: \\b }\r\n";

bool addRow(quorvane_document* document, std::size_t row) {
    constexpr const char* styles[] = {"normal", "entry", "remark"};
    char texts[cellsPerRow][longestText];
    const char* pointers[cellsPerRow];
    std::size_t lengths[cellsPerRow];
    for (std::size_t cell = 0; cell < cellsPerRow; ++cell) {
        const int length = cell == 1 ? std::snprintf(texts[cell], longestText, "Article ")
                                     : std::snprintf(texts[cell], longestText,
                                                     "Article %07zu in box %zu", row, cell);
        pointers[cell] = texts[cell];
        lengths[cell] = static_cast<std::size_t>(length);
    }
    char number[longestText];
    const int digits = std::snprintf(number, longestText, "%07zu", row);
    const auto digitCount = static_cast<std::size_t>(digits);
    return quorvane_document_add_row(document, pointers, lengths, cellsPerRow,
                                     QUORVANE_TEXT(styles[row % 3]), nullptr) == QUORVANE_OK &&
           quorvane_paragraph_add_styled_text(document, row, 1, 0, number, digitCount,
                                              QUORVANE_TEXT("bold")) == QUORVANE_OK &&
           quorvane_paragraph_add_text(document, row, 1, 0, QUORVANE_TEXT(" in box 1"), 0) ==
               QUORVANE_OK &&
           quorvane_row_set_border(document, row, QUORVANE_ALL_SIDES, QUORVANE_BORDER_THIN) ==
               QUORVANE_OK &&
           (row % 2 == 0 ||
            quorvane_row_set_background(document, row, QUORVANE_TEXT("silver")) == QUORVANE_OK);
}

bool write(quorvane_document* document, std::size_t rows, const char* path) {
    if (quorvane_document_set_stylesheet(document, QUORVANE_TEXT(styleSheet)) != QUORVANE_OK) {
        return false;
    }
    for (std::size_t row = 0; row < rows; ++row) {
        if (!addRow(document, row)) {
            return false;
        }
    }
    return quorvane_document_save(document, QUORVANE_TEXT(path)) == QUORVANE_OK;
}

}  // namespace

int main(int argc, char** argv) {
    quorvane_document* document = nullptr;
    if (argc != 3 || quorvane_document_new(&document) != QUORVANE_OK) {
        static_cast<void>(std::fprintf(stderr, "usage: %s ROWS FILE\n", argv[0]));
        return 2;
    }
    const bool isWritten = write(document, std::strtoul(argv[1], nullptr, 10), argv[2]);
    if (!isWritten) {
        static_cast<void>(std::fprintf(stderr, "%s\n", quorvane_document_error(document)->message));
    }
    quorvane_document_free(document);
    return isWritten ? 0 : 1;
}
