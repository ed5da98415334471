#pragma once

#include <memory>
#include <string>

#include "data/recordsText.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

/// Thrown for an input that cannot be read, whatever is in it.
struct UnreadableInput : RtfError {
    using RtfError::RtfError;
    explicit UnreadableInput(const RtfError& error) : RtfError(error) {}
};

/// Opens a file with records, or standard input for "-". Throws `UnreadableInput`, as the reader
/// does.
data::BlockReader openRecords(const std::string& path);

/// Reads the beginning of a text. A `RecordError` if it is not a text: a spreadsheet in a format of
/// its own is not.
data::RecordsText& requireText(data::RecordsText& text);

/// True for a file whose name says that it is JSON, or whose beginning does where neither the name
/// nor a given delimiter says what it is.
bool areJsonRecords(const std::string& path, data::RecordsText& text, bool hasDelimiter);

}  // namespace quorvane::cli
