#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/base/values/runTimeErrorText.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/driver/driverFaults.h"

namespace quorvane {

/// An error as it is published; "{0}" stands for what it names.
struct DriverErrorRow {
    DriverFault fault;
    std::int32_t number;
    std::string_view text;
    std::string_view source;
};

constexpr std::int32_t errorNumber(tErrorLevel level) {
    return driverErrorBase + level;
}

constexpr std::int32_t errorNumber(RunTimeError error) {
    return static_cast<std::int32_t>(error);
}

constexpr DriverErrorRow runTimeErrorRow(DriverFault fault, RunTimeError error) {
    return {fault, errorNumber(error), runTimeErrorText(error), {}};
}

/// Texts and sources are published, odd spellings included. In the order of the enumerators.
inline constexpr DriverErrorRow driverErrorTable[] = {
    {DriverFault::NotADescription, errorNumber(eWrongFileType),
     "The provided file isn't a correct rtfspec file.", "CRtfDriver.AnalyseData"},
    {DriverFault::MissingElements, errorNumber(eRequiredElementMissing),
     "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell", "CRtfDriver.AnalyseData"},
    {DriverFault::WrongRoot, errorNumber(eWrongRootNode), "(doc must be the first node.",
     "CRtfDriver.Analysedata"},
    {DriverFault::TooManyNodes, errorNumber(eWrongNumberOfNodes), "Too many {0} nodes.",
     "CRtfDriver.treeWakerBuild"},
    {DriverFault::WrongCloser, errorNumber(eWrongNodeType), "Wrong node type in {0}",
     "CRtfDriver.treeWalkerBuild"},
    {DriverFault::WrongSyntax, errorNumber(eSyntaxError), "{0} has a wrong syntax",
     "sLine is neither a recognized node nor a leaf\r\nsLeaf = {0}\r\nCRtfDriver.treeWalkerBuild"},
    runTimeErrorRow(DriverFault::DuplicateLeaf, RunTimeError::DuplicateKey),
    runTimeErrorRow(DriverFault::NoDocument, RunTimeError::InvalidProcedureCall),
    {DriverFault::UnknownDocKey, errorNumber(eWrongKeyword), "{0} isn't a valid keyword.",
     "CRtfDriver.docWalkerSyntax"},
    {DriverFault::UnknownRowKey, errorNumber(eWrongKeyword), "{0} isn't a valid keyword.",
     "CRtfDriver.rowWalkerSyntax"},
    {DriverFault::UnknownCellKey, errorNumber(eWrongKeyword), "{0} isn't a valid keyword.",
     "CRtfDriver.cellWalkerSyntax"},
    {DriverFault::UnknownParaKey, errorNumber(eWrongKeyword), "{0} isn't a valid keyword.",
     "CrtfDriver.paraWalkerSyntax"},
    {DriverFault::NoRow, errorNumber(eWrongKeyword), "Must have at least one row.",
     "CRtfDriver.docWalkerSyntax"},
    {DriverFault::NoCell, errorNumber(eWrongKeyword), "Must have at least one cell.",
     "CRtfDriver.rowWalkerSyntax"},
    {DriverFault::NoParaText, errorNumber(eSyntaxError), "In a para group para-text is mandatory.",
     "CRtfDriver.paraWalkerSyntax"},
    {DriverFault::NodeInParagraph, errorNumber(eWrongKeyword), "A paragraph is a terminal node",
     "CRtfDriver.paraWalkerSyntax"},
    {DriverFault::WrongColor, errorNumber(eWrongValue), "{0} isn't a recognized color.",
     "CRtfDriver.treWalkerSemantic"},
    {DriverFault::WrongBorder, errorNumber(eWrongValue), "{0} isn't a recognized border.",
     "CRtfDriver.treWalkerSemantic"},
    {DriverFault::WrongAlignment, errorNumber(eWrongValue), "{0} isn't a recognized alignment.",
     "CRtfDriver.treWalkerSemantic"},
    {DriverFault::NotANumber, errorNumber(eWrongValue), "Value for {0} should be numeric.",
     "CRtfDriver.treeWalkerSemantic"},
    {DriverFault::NotANumberOrText, errorNumber(eWrongValue),
     "Value for {0} should be numeric or string.", "CRtfDriver.treeWalkerSemantic"},
    {DriverFault::WrongContext, errorNumber(eSyntaxError),
     "Invalid node declaration in this context\r\n", "CRtDriver.treeWalkerSemantic"},
    runTimeErrorRow(DriverFault::Overflow, RunTimeError::Overflow),
    runTimeErrorRow(DriverFault::TakenKey, RunTimeError::DuplicateKey),
    {DriverFault::Unencodable, errorNumber(eWrongValue),
     "{0} isn't in Windows-1252; only the text of a paragraph can hold it.",
     "CRtfDriver.AnalyseData"},
    {DriverFault::WrongValue, errorNumber(eWrongValue), "{0}.", "CRtfDriver.AnalyseData"},
    {DriverFault::WrongPlace, errorNumber(eSyntaxError), "{0}.", "CRtfDriver.treeWalkerBuild"},
    {DriverFault::UnclosedValue, errorNumber(eSyntaxError),
     "The value that begins here does not end.", "CRtfDriver.treeWalkerBuild"},
    {DriverFault::WrongPicture, errorNumber(eWrongValue), "{0}.", "CRtfDriver.AnalyseData"},
    {DriverFault::UndefinedStyle, errorNumber(eWrongValue), "The stylesheet has no {0}.",
     "CRtfDriver.AnalyseData"},
    runTimeErrorRow(DriverFault::Other, RunTimeError::InvalidProcedureCall),
    {DriverFault::WrongNodeKind, errorNumber(eWrongNodeType), "Can't add this type of node: {0}",
     "CRtfDriver.AddNode"},
    {DriverFault::WrongNodeNumber, errorNumber(eWrongNodeType), "{0} isn't a valid key value.",
     "CRtfDriver.NodeType"},
    {DriverFault::EmptyPath, errorNumber(eWrongPath), "Path is empty!",
     "Error: eWrongPath\r\nCRtfDriver.ParseFile"},
    {DriverFault::UnreadableFile, errorNumber(eWrongPath), "{0} doesn't exist or is unreacheable",
     "Error: eWrongPath\r\nCRtfDriver.ParseFile"},
    {DriverFault::WrongStyleSheet, errorNumber(eWrongFileType), "{0} isn't a valid stylesheet.",
     "CRtfDriver.StyleSheetFile"},
};

/// The published text.
constexpr std::string_view driverErrorText(DriverFault fault) {
    return driverErrorTable[static_cast<std::size_t>(fault)].text;
}

constexpr bool isInOrderOfFaults() {
    for (std::size_t i = 0; i < std::size(driverErrorTable); ++i) {
        if (driverErrorTable[i].fault != static_cast<DriverFault>(i)) {
            return false;
        }
    }
    return std::size(driverErrorTable) ==
           static_cast<std::size_t>(DriverFault::WrongStyleSheet) + 1;
}

static_assert(isInOrderOfFaults(), "The table has a row for each fault, in their order.");

}  // namespace quorvane
