// Any bytes as a file with data, CSV or JSON: reading it in small pieces gives the same records and
// errors as reading it at once, and the table of the records is a document that the check of RTF
// files finds nothing in, and the one that its description is rendered as.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/columnsTotal.h"
#include "data/csvRecords.h"
#include "data/keptRows.h"
#include "data/recordsJson.h"
#include "data/sortKey.h"
#include "quorvane/compose/TableDescription.h"
#include "quorvane/compose/TableWriter.h"
#include "quorvane/diagnostics/rtf/RtfCheck.h"
#include "quorvane/driver/CRtfDriver.h"
#include "quorvane/rtf/escape.h"
#include "tests/data/textReader.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/require.h"

namespace quorvane {
namespace {

using namespace data;

struct Records {
    std::vector<std::string> names;
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> errors;

    bool operator==(const Records&) const = default;
};

Records read(const std::string& bytes, bool isJson, EncodingChoice choice, std::size_t atATime) {
    RecordsText text(readerOf(bytes, atATime), choice);
    std::unique_ptr<RecordSource> source;
    Records records;
    std::vector<std::string_view> fields;
    for (bool goesOn = true; goesOn;) {
        try {
            if (!source) {
                source = isJson ? std::unique_ptr<RecordSource>(std::make_unique<JsonRecords>(text))
                                : std::make_unique<CsvRecords>(text, std::nullopt);
            }
            goesOn = source->next(fields);
            if (goesOn) {
                records.rows.emplace_back(fields.begin(), fields.end());
            }
        } catch (const RecordError& error) {
            records.errors.push_back(std::to_string(error.line) + error.description);
            goesOn = source && error.canGoOn;
        }
    }
    records.names = source ? source->names() : std::vector<std::string>();
    return records;
}

void addTotals(const Records& records) {
    ColumnTotal total;
    for (const std::vector<std::string>& row : records.rows) {
        try {
            total.add(row.empty() ? std::string_view() : row.front());
            total.text();
        } catch (const RtfError& error) {
            require(error.is(RunTimeError::InvalidProcedureCall),
                    "a total is refused with error 5");
        }
    }
}

/// Sorting by the first field loses no row, and keeps the order of what is sorted already.
void sortRows(const Records& records, bool isDescending) {
    const auto fieldOf = [](std::span<const std::string_view> fields) {
        return fields.empty() ? std::string_view() : fields.front();
    };
    KeptRows rows;
    SortColumn column(isDescending, false);
    for (const std::vector<std::string>& row : records.rows) {
        const std::vector<std::string_view> fields(row.begin(), row.end());
        rows.add(fields, 1);
        column.look(fieldOf(fields));
    }
    const Locale locale;
    column.decide("first", &locale);
    const auto appendKey = [&](std::span<const std::string_view> fields, std::string& key) {
        column.append(fieldOf(fields), key);
    };
    rows.sort(appendKey);
    require(rows.size() == records.rows.size(), "sorting loses no row");
    std::string last;
    std::vector<std::string_view> fields;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows.read(i, fields);
        std::string key;
        appendKey(fields, key);
        require(last <= key, "rows are in the order of their keys");
        last = std::move(key);
    }
}

std::string rendered(const std::string& description) {
    const Ref<CRtfDriver> driver = CRtfDriver::create();
    driver->RtfObject()->setExtendedStyleSheets(true);
    driver->LoadStyleSheetFromMemmory(standardTableStyles());
    driver->setReadsExtended(true);
    driver->ParseFromMemmory(description);
    return driver->Contents();
}

void write(const Records& records) {
    constexpr std::size_t mostColumns = 63;
    if (records.names.empty() || records.names.size() > mostColumns) {
        return;
    }
    TableSetup setup;
    for (const std::string& name : records.names) {
        setup.columns.push_back({.heading = findUnshowable(name) ? "?" : name});
    }
    std::string document;
    const auto sink = [&](std::string_view bytes) { document += bytes; };
    std::unique_ptr<TableWriter> writer;
    std::string description;
    try {
        description = TableDescription(setup).beginning();
        writer = std::make_unique<TableWriter>(setup, sink);
    } catch (const RtfError&) {
        // A heading that no description can hold.
        return;
    }
    TableStripes stripes;
    int count = 0;
    for (const std::vector<std::string>& row : records.rows) {
        const std::vector<std::string_view> cells(row.begin(), row.end());
        try {
            TableStripes next = stripes;
            const std::string described = TableDescription(setup).row(next.next(), cells);
            writer->addRow(cells);
            description += described;
            stripes = next;
            ++count;
        } catch (const RtfError& error) {
            require(error.is(RunTimeError::InvalidProcedureCall), "a row is refused with error 5");
        }
    }
    writer->finish();
    require(checkRtf(document).empty(), "a table is sound");
    description += TableDescription::end();
    // A description without a striped row does not have the color of the stripes, and one writes
    // texts with the mark of values in another way.
    const bool hasMark = description.find("(rtf={}\"") != std::string::npos ||
                         document.find("\"\"\"") != std::string::npos;
    if (count > 1 && !hasMark) {
        require(document == rendered(description),
                "a table is what its description is rendered as");
    }
}

}  // namespace
}  // namespace quorvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvane;
    FuzzInput input(data, size);
    const bool isJson = input.flag();
    constexpr EncodingChoice choices[] = {EncodingChoice::Auto, EncodingChoice::Utf8,
                                          EncodingChoice::Windows1252};
    const EncodingChoice choice = choices[input.below(3)];
    const std::size_t atATime = 1 + input.below(9);
    const std::string bytes(input.rest());
    const Records records = read(bytes, isJson, choice, std::string::npos);
    require(records == read(bytes, isJson, choice, atATime),
            "a file is read in the same way piece by piece");
    addTotals(records);
    sortRows(records, isJson);
    write(records);
    return 0;
}
