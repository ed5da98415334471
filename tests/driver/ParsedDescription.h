#pragma once

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/CRtfDriver.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {

/// What a test compares of an error.
struct ErrorFacts {
    std::int32_t number = 0;
    std::string description;
    std::string source;
    int line = 0;

    bool operator==(const ErrorFacts&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const ErrorFacts& error) {
    return out << error.number << " \"" << error.description << "\" from \"" << error.source
               << "\" in line " << error.line;
}

inline ErrorFacts factsOf(const RtfError& error) {
    return {error.number, error.description, error.source, error.line};
}

/// An error of the driver.
inline ErrorFacts driverErrorOf(tErrorLevel level, std::string description, std::string source = {},
                                int line = 0) {
    return {-2147221504 + level, std::move(description), std::move(source), line};
}

inline ErrorFacts absentKey() {
    return {5, "Invalid procedure call or argument", "", 0};
}

inline ErrorFacts duplicateKey(int line) {
    return {457, "This key is already associated with an element of this collection", "", line};
}

inline ErrorFacts typeMismatch(int line) {
    return {13, "Type mismatch", "", line};
}

inline ErrorFacts overflow(int line) {
    return {6, "Overflow", "", line};
}

/// The error that a call raises; an empty one when it raises none.
template <class Call>
ErrorFacts errorOf(Call&& call) {
    try {
        call();
    } catch (const RtfError& error) {
        return factsOf(error);
    }
    return {};
}

/// A text of several lines, written with "|" between them.
inline std::string lines(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\n');
    return text;
}

/// Descriptions of one row, one cell and one paragraph; the given lines stand in lines 2, 3, 4, 5.
inline std::string docWith(const std::string& leaves) {
    return lines("(doc|" + leaves + "|(r|(c|(p|(pt=x)|p)|c)|r)|doc)");
}
inline std::string rowWith(const std::string& leaves) {
    return lines("(doc|(r|" + leaves + "|(c|(p|(pt=x)|p)|c)|r)|doc)");
}
inline std::string cellWith(const std::string& leaves) {
    return lines("(doc|(r|(c|" + leaves + "|(p|(pt=x)|p)|c)|r)|doc)");
}
inline std::string paraWith(const std::string& leaves) {
    return lines("(doc|(r|(c|(p|" + leaves + "|p)|c)|r)|doc)");
}

/// A description of one paragraph with that text.
inline std::string paraWithText(const std::string& text) {
    return paraWith("(pt=" + text + ")");
}

enum class Checks { Off, On };

/// A driver that has analyzed a description, and what it reported.
class ParsedDescription {
public:
    explicit ParsedDescription(std::string_view text, Checks checks = Checks::Off) {
        driver->setErroneousInput(checks == Checks::On);
        driver->setNotifyErrorHandler(
            [this](CRtfDriver&, const RtfError& error) { errors.push_back(factsOf(error)); });
        driver->ParseFromMemmory(text);
    }
    ParsedDescription(const ParsedDescription&) = delete;
    ParsedDescription& operator=(const ParsedDescription&) = delete;
    ~ParsedDescription() { driver->setNotifyErrorHandler({}); }

    Ref<CRtfTableRows> rows() const { return driver->RtfObject()->TableRows(); }
    Ref<CRtfTableRow> row(const Value& index = 1) const { return rows()->Item(index); }
    Ref<CRtfTableCell> cell(const Value& index = 1, const Value& inRow = 1) const {
        return row(inRow)->TableCells()->Item(index);
    }
    Ref<CRtfParagraph> para(const Value& index = 1, const Value& inCell = 1,
                            const Value& inRow = 1) const {
        return cell(inCell, inRow)->Paragraphs()->Item(index);
    }

    FakePlatform platform;
    Ref<CRtfDriver> driver = CRtfDriver::create(platform);
    std::vector<ErrorFacts> errors;
};

}  // namespace quorvane
