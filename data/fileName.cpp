#include "data/fileName.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>

#include "quorvane/base/text/TextEncoding.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {

namespace {

constexpr std::size_t longestValue = 120;
constexpr std::size_t longestName = 240;

bool isSeparator(char character) {
    return character == '/' || character == '\\';
}

bool isUnsafe(char character) {
    constexpr std::string_view marks = "/\\:*?\"<>|\x7F";
    constexpr char firstPrintable = ' ';
    const bool isControl = character >= '\0' && character < firstPrintable;
    return isControl || marks.find(character) != std::string_view::npos;
}

bool isBlankOrDot(char character) {
    return character == ' ' || character == '.';
}

bool goesOn(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The longest beginning of a value that does not end within a character.
std::string_view beginningOf(std::string_view value) {
    if (value.size() <= longestValue) {
        return value;
    }
    constexpr std::size_t longestCharacter = 4;
    std::size_t end = longestValue;
    while (goesOn(value[end]) && end > longestValue - longestCharacter) {
        --end;
    }
    return value.substr(0, end);
}

std::string safeValue(std::string_view value) {
    std::string safe(beginningOf(value));
    while (const std::optional<std::size_t> wrong = findNotUtf8(safe)) {
        safe[*wrong] = '_';
    }
    std::replace_if(safe.begin(), safe.end(), isUnsafe, '_');
    return safe;
}

/// True for the part before the first dot of a name that Windows does not have for files.
bool isDevice(std::string_view stem) {
    constexpr std::string_view names[] = {"con", "prn", "aux", "nul", "conin$", "conout$"};
    constexpr std::string_view numbered[] = {"com", "lpt"};
    constexpr std::string_view numbers[] = {"0", "1", "2", "3",      "4",      "5",     "6",
                                            "7", "8", "9", "\u00B9", "\u00B2", "\u00B3"};
    const std::string name = lowerCase(stem.substr(0, stem.find_last_not_of(' ') + 1));
    const std::string_view view = name;
    const std::size_t letters = numbered[0].size();
    const auto isIn = [](const auto& all, std::string_view part) {
        return std::find(std::begin(all), std::end(all), part) != std::end(all);
    };
    return isIn(names, view) || (isIn(numbered, view.substr(0, letters)) &&
                                 isIn(numbers, view.substr(std::min(letters, view.size()))));
}

/// Puts the names of the path together, one after the other.
class SafeName {
public:
    explicit SafeName(const FilledValue& filled)
        : filled_(filled), firstTag_(filled.written.find("{{")) {}

    SafeFileName make() {
        std::size_t at = 0;
        for (const TextRange& range : filled_.data) {
            addWritten(filled_.text.substr(at, range.begin - at));
            addValue(range);
            at = range.end;
        }
        addWritten(filled_.text.substr(at));
        endName();
        if (path_ == "-") {
            path_ = "_";
        }
        return {std::move(path_), isShortened_};
    }

private:
    void addWritten(std::string_view text) {
        for (const char character : text) {
            if (isSeparator(character)) {
                endName();
            }
            path_ += character;
            if (isSeparator(character)) {
                begin_ = path_.size();
                holdsValue_ = false;
            }
        }
    }

    void addValue(const TextRange& range) {
        const std::string_view whole = filled_.text.substr(range.begin, range.end - range.begin);
        isShortened_ = isShortened_ || whole.size() > longestValue;
        std::string value = safeValue(whole);
        const bool begins = path_.size() == begin_;
        const bool ends = range.end == filled_.text.size() || isSeparator(filled_.text[range.end]);
        if (begins && value.empty()) {
            value = "_";
        }
        if (begins && isBlankOrDot(value.front())) {
            value.front() = '_';
        }
        if (ends && !value.empty() && isBlankOrDot(value.back())) {
            value.back() = '_';
        }
        path_ += value;
        holdsValue_ = true;
    }

    /// Values or sections can have made the name one that leads into another folder, or no name in
    /// front of all others, which is the folder of all folders.
    bool leadsAway() const {
        const std::string_view name = std::string_view(path_).substr(begin_);
        return path_.size() >= firstTag_ && std::all_of(name.begin(), name.end(), isBlankOrDot) &&
               (!name.empty() || std::all_of(path_.begin(), path_.end(), isSeparator));
    }

    void endName() {
        if (leadsAway()) {
            path_ += '_';
        }
        if (!holdsValue_) {
            return;
        }
        const std::string_view name = std::string_view(path_).substr(begin_);
        const std::size_t stem = std::min(name.find('.'), name.size());
        if (isDevice(name.substr(0, stem))) {
            path_.insert(begin_ + stem, "_");
        }
        if (path_.size() - begin_ > longestName) {
            raise(RunTimeError::InvalidProcedureCall,
                  "The name of the file has more than " + std::to_string(longestName) + " bytes.");
        }
    }

    const FilledValue& filled_;
    std::string path_;
    // Where the name begins that is being put together.
    std::size_t begin_ = 0;
    bool holdsValue_ = false;
    // Before it, the path is as it is written.
    std::size_t firstTag_;
    bool isShortened_ = false;
};

}  // namespace

SafeFileName safeFileName(const FilledValue& filled) {
    return SafeName(filled).make();
}

}  // namespace quorvane::data
