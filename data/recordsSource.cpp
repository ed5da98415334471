#include "data/recordsSource.h"

#include <algorithm>
#include <limits>

namespace quorvane::data {

RecordError::RecordError(std::int64_t recordLine, const std::string& why, bool canContinue)
    : RtfError(RunTimeError::InvalidProcedureCall, why), canGoOn(canContinue) {
    line = static_cast<int>(std::min<std::int64_t>(recordLine, std::numeric_limits<int>::max()));
}

}  // namespace quorvane::data
