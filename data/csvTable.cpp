#include "data/csvTable.h"

#include <cstddef>
#include <optional>

#include "data/csvRecords.h"
#include "data/recordsFile.h"
#include "data/recordsText.h"
#include "quorvane/compose/Error.h"

namespace quorvane::data {

std::vector<std::vector<std::string>> csvTable(std::string_view text) {
    try {
        RecordsText records(readerOf(text), EncodingChoice::Utf8);
        CsvRecords source(records, std::nullopt);
        std::vector<std::vector<std::string>> rows{source.names()};
        for (std::size_t i = 0; i < rows.front().size(); ++i) {
            if (!source.hasHeading(i)) {
                rows.front()[i].clear();
            }
        }
        std::vector<std::string_view> fields;
        while (source.next(fields)) {
            rows.emplace_back(fields.begin(), fields.end());
        }
        return rows;
    } catch (const RecordError& error) {
        throw Error(
            {.message = error.description, .identifier = "wrong-value", .line = error.line});
    }
}

}  // namespace quorvane::data
