#pragma once

#include <string>
#include <utility>

#include "data/recordsSource.h"
#include "quorvane/base/values/RtfError.h"

namespace quorvane::data {

/// An option of a table that is wrong, or that does not suit the data.
struct OptionError : RtfError {
    explicit OptionError(const std::string& why, std::string name = {})
        : RtfError(RunTimeError::InvalidProcedureCall, why), option(std::move(name)) {}

    /// The option, if the message does not say which one it is.
    std::string option;
};

/// A total was asked for in a column that the table does not have.
struct NoColumnForTotal : OptionError {
    explicit NoColumnForTotal(std::string name)
        : OptionError("the table has no column \"" + name + "\" for a total"),
          column(std::move(name)) {}

    std::string column;
};

/// Runs an action whose errors 5 are those of the options; those of the data stay what they are.
template <class Action>
auto asOptionError(Action action) {
    try {
        return action();
    } catch (const RecordError&) {
        throw;
    } catch (const OptionError&) {
        throw;
    } catch (const RtfError& error) {
        if (!error.is(RunTimeError::InvalidProcedureCall)) {
            throw;
        }
        throw OptionError(error.description);
    }
}

}  // namespace quorvane::data
