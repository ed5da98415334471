#include "cli/RecordInput.h"

#include "cli/recordsFile.h"
#include "data/recordsFile.h"

namespace quorvane::cli {

RecordInput::RecordInput(const std::string& path, const RecordRange& range)
    : range_(range),
      text_(openRecords(path), EncodingChoice::Auto),
      areJson_(data::areJsonRecords(path, data::requireText(text_), false)),
      values_(areJson_ ? data::jsonValues(text_) : data::csvValues(text_, std::nullopt)) {}

/// Passes over the records before the range; false if the data ends with them.
bool RecordInput::passBefore() {
    while (number_ + 1 < range_.first) {
        try {
            if (!values_->skip()) {
                return false;
            }
        } catch (const data::RecordError& error) {
            if (!error.canGoOn) {
                throw;
            }
        }
        ++number_;
    }
    return true;
}

bool RecordInput::next(NumberedRecord& record) {
    if (isEnded_ || number_ == range_.last) {
        return false;
    }
    try {
        const bool isThere = passBefore() && values_->next(record.value);
        number_ += isThere ? 1 : 0;
        isEnded_ = !isThere;
        record.number = number_;
        record.line = values_->line();
        return isThere;
    } catch (const data::RecordError& error) {
        ++number_;
        record.number = number_;
        record.line = error.line;
        isEnded_ = !error.canGoOn;
        throw;
    }
}

std::optional<std::size_t> RecordInput::count() const {
    return isEnded_ ? std::optional(number_) : std::nullopt;
}

}  // namespace quorvane::cli
