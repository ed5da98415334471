#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "data/DataValue.h"
#include "data/JsonFault.h"

namespace quorvane::data {

/// A JSON Schema of draft 7, which data is validated with. `format` knows date, time and date-time.
class DataSchema {
public:
    /// Takes a schema as `readJson` read it. Nothing when it is not one; `fault` says why.
    static std::optional<DataSchema> of(const DataValue& schema, JsonFault& fault);

    DataSchema(DataSchema&&) noexcept;
    DataSchema& operator=(DataSchema&&) noexcept;
    DataSchema(const DataSchema&) = delete;
    DataSchema& operator=(const DataSchema&) = delete;
    ~DataSchema();

    /// What is wrong with a value: the first hundred faults, each at the innermost value that it is
    /// about. Empty for a value that meets the schema. Can be called from several threads.
    std::vector<JsonFault> faultsIn(const DataValue& value) const;

private:
    struct Contents;
    explicit DataSchema(std::unique_ptr<Contents> contents);

    std::unique_ptr<Contents> contents_;
};

}  // namespace quorvane::data
