#pragma once

#include "cli/UsageError.h"
#include "data/recordsSource.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::cli {

/// Runs an action whose errors 5 are those of the options; those of the data stay what they are.
template <class Action>
auto asUsage(Action action) {
    try {
        return action();
    } catch (const data::RecordError&) {
        throw;
    } catch (const RtfError& error) {
        if (!error.is(RunTimeError::InvalidProcedureCall)) {
            throw;
        }
        throw UsageError(error.description);
    }
}

}  // namespace quorvane::cli
