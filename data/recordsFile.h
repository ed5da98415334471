#pragma once

#include <string>
#include <string_view>

#include "data/recordsText.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {

/// Thrown for an input that cannot be read, whatever is in it.
struct UnreadableInput : RtfError {
    using RtfError::RtfError;
    explicit UnreadableInput(const RtfError& error) : RtfError(error) {}
};

/// Opens a file with records. Throws `UnreadableInput`, as the reader does.
BlockReader openRecordsFile(const std::string& path);

/// Reads bytes in memory, which must outlive the reader.
BlockReader readerOf(std::string_view bytes);

/// Reads the beginning of a text. A `RecordError` if it is not a text: a spreadsheet in a format of
/// its own is not.
RecordsText& requireText(RecordsText& text);

/// True for a file whose name says that it is JSON, or whose beginning does where neither the name
/// nor a given delimiter says what it is.
bool areJsonRecords(const std::string& path, RecordsText& text, bool hasDelimiter);

}  // namespace quorvane::data
