#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {

/// Why a record cannot be read. `line` is where it begins.
struct RecordError : RtfError {
    RecordError(std::int64_t recordLine, const std::string& why, bool canContinue);

    /// Whether the records after it can be read.
    bool canGoOn;
};

/// No record takes more bytes: what is longer is a mistake, such as a quote that is never closed.
inline constexpr std::size_t longestRecord = std::size_t{4} * 1024 * 1024;

/// Records with named fields, one after the other.
class RecordSource {
public:
    RecordSource() = default;
    RecordSource(const RecordSource&) = delete;
    RecordSource& operator=(const RecordSource&) = delete;
    virtual ~RecordSource() = default;

    /// The names of the fields that occurred up to now, in their order.
    const std::vector<std::string>& names() const noexcept { return names_; }

    /// False for a field whose name was made for want of one.
    virtual bool hasHeading(std::size_t) const { return true; }

    /// Reads the next record; false at the end. The texts are those of the names, good until the
    /// next call; a field that the record lacks is empty. A `RecordError` for a record that cannot
    /// be read; a call after it reads the next one.
    virtual bool next(std::vector<std::string_view>& fields) = 0;

    /// The line where the record begins that was read last, from 1.
    virtual std::int64_t line() const noexcept = 0;

protected:
    std::vector<std::string> names_;
};

}  // namespace quorvane::data
