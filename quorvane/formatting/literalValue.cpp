#include "quorvane/formatting/literalValue.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "quorvane/base/text/trimming.h"
#include "quorvane/driver/DescriptionLine.h"
#include "quorvane/driver/literalText.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

std::string_view blockMark() {
    return extendedDialect().marks.block;
}

std::string linesBetweenMarks(std::string_view text, std::size_t indent) {
    const std::string blanks(indent, ' ');
    std::string value(blockMark());
    std::size_t begin = 0;
    for (std::size_t end = 0; end < text.size(); begin = end + 1) {
        end = std::min(text.find('\n', begin), text.size());
        value += "\n" + (end > begin ? blanks : "") + std::string(text.substr(begin, end - begin));
    }
    return value + "\n" + blanks + std::string(blockMark());
}

std::string valueOf(std::string_view text, std::size_t indent) {
    const std::string mark(blockMark());
    if (text.find('\n') != std::string_view::npos) {
        return linesBetweenMarks(text, indent);
    }
    const bool isPlain = trimBlanks(text) == text && !text.starts_with(mark);
    return isPlain ? std::string(text) : mark + std::string(text) + mark;
}

/// What a description with the value has as the text; nothing where it is not one value.
std::optional<std::string> readBack(const std::string& value) {
    const std::string leaf = "(pt=" + value + ")";
    const std::vector<SourceLine> lines = PreProcessRawData(leaf, blockMark());
    if (lines.size() != 1) {
        return std::nullopt;
    }
    const DescriptionLine line = descriptionLine(lines.front().text, extendedDialect());
    return line.value.starts_with(blockMark()) && line.value.size() >= 2 * blockMark().size()
               ? blockText(line.value, blockMark())
               : std::string(line.value);
}

}  // namespace

std::optional<std::string> literalValue(std::string_view text, std::size_t indent) {
    std::string value = valueOf(text, indent);
    return readBack(value) == text ? std::optional(std::move(value)) : std::nullopt;
}

}  // namespace quorvane
