#include "quorvane/base/values/RtfError.h"

#include <string>
#include <utility>

#include "quorvane/base/values/runTimeErrorText.h"

namespace quorvane {

RtfError::RtfError(std::int32_t number_, std::string description_, std::string source_)
    : number(number_), description(std::move(description_)), source(std::move(source_)) {}

RtfError::RtfError(RunTimeError number_)
    : RtfError(static_cast<std::int32_t>(number_), std::string(runTimeErrorText(number_))) {}

RtfError::RtfError(RunTimeError number_, std::string description_)
    : RtfError(static_cast<std::int32_t>(number_), std::move(description_)) {}

void raise(RtfError error) {
    throw error;
}

void raise(RunTimeError number) {
    raise(RtfError(number));
}

void raise(RunTimeError number, std::string description) {
    raise(RtfError(number, std::move(description)));
}

}  // namespace quorvane
