// The standard job through the library for C, as a whole process: c_table ROWS FILE. It calls what
// a program in C does, and nothing else of ours.

#include <quorvane.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr std::size_t cellsPerRow = 5;
constexpr std::size_t beginLength = 8;
constexpr std::size_t digitCount = 7;
constexpr std::size_t textLength = 24;

constexpr char styleSheet[] =
    "{ name: normal; style-def: s; format: \\f0\\fs20 }\r\n"
    "{ name: entry; style-def: s; format: \\f5\\fs18; based-on: normal }\r\n"
    "{ name: remark; style-def: s; format: \\f9\\fs16\\i; based-on: normal }\r\n"
    "{ name: bold; style-def: cs; format: \\b }\r\n";

/// The number with seven digits.
void putPadded(std::size_t number, char* digits) {
    for (std::size_t i = digitCount; i-- > 0; number /= 10) {
        digits[i] = static_cast<char>('0' + number % 10);
    }
}

/// "Article 0012345 in box 3"
void putText(std::size_t row, std::size_t cell, char* text) {
    std::memcpy(text, "Article 0000000 in box 0", textLength);
    putPadded(row, text + beginLength);
    text[textLength - 1] = static_cast<char>('0' + cell);
}

bool addRow(quorvane_document* document, std::size_t row) {
    constexpr const char* styles[] = {"normal", "entry", "remark"};
    char texts[cellsPerRow][textLength];
    const char* pointers[cellsPerRow];
    std::size_t lengths[cellsPerRow];
    for (std::size_t cell = 0; cell < cellsPerRow; ++cell) {
        putText(row, cell, texts[cell]);
        pointers[cell] = texts[cell];
        lengths[cell] = cell == 1 ? beginLength : textLength;
    }
    return quorvane_document_add_row(document, pointers, lengths, cellsPerRow,
                                     QUORVANE_TEXT(styles[row % 3]), nullptr) == QUORVANE_OK &&
           quorvane_paragraph_add_styled_text(document, row, 1, 0, texts[1] + beginLength,
                                              digitCount, QUORVANE_TEXT("bold")) == QUORVANE_OK &&
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
