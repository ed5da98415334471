#include "quorvane/driver/driverFaults.h"

#include <cstddef>
#include <string>

#include "quorvane/driver/driverErrors.h"
#include "quorvane/support/recordStrings.h"

namespace quorvane {

namespace {

struct Row {
    DriverFault fault;
    std::int32_t number;
    /// Empty for the standard text of a run-time error.
    std::string_view text;
    std::string_view source;
};

constexpr std::int32_t of(tErrorLevel level) {
    return driverErrorBase + level;
}

constexpr std::int32_t of(RunTimeError error) {
    return static_cast<std::int32_t>(error);
}

using enum DriverFault;

// Texts and sources are published, odd spellings included. In the order of the enumerators.
constexpr Row table[] = {
    {NotADescription, of(eWrongFileType), "The provided file isn't a correct rtfspec file.",
     "CRtfDriver.AnalyseData"},
    {MissingElements, of(eRequiredElementMissing),
     "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell", "CRtfDriver.AnalyseData"},
    {WrongRoot, of(eWrongRootNode), "(doc must be the first node.", "CRtfDriver.Analysedata"},
    {TooManyNodes, of(eWrongNumberOfNodes), "Too many {0} nodes.", "CRtfDriver.treeWakerBuild"},
    {WrongCloser, of(eWrongNodeType), "Wrong node type in {0}", "CRtfDriver.treeWalkerBuild"},
    {WrongSyntax, of(eSyntaxError), "{0} has a wrong syntax",
     "sLine is neither a recognized node nor a leaf\r\nsLeaf = {0}\r\nCRtfDriver.treeWalkerBuild"},
    {DuplicateLeaf, of(RunTimeError::DuplicateKey), "", ""},
    {NoDocument, of(RunTimeError::InvalidProcedureCall), "", ""},
    {UnknownDocKey, of(eWrongKeyword), "{0} isn't a valid keyword.", "CRtfDriver.docWalkerSyntax"},
    {UnknownRowKey, of(eWrongKeyword), "{0} isn't a valid keyword.", "CRtfDriver.rowWalkerSyntax"},
    {UnknownCellKey, of(eWrongKeyword), "{0} isn't a valid keyword.",
     "CRtfDriver.cellWalkerSyntax"},
    {UnknownParaKey, of(eWrongKeyword), "{0} isn't a valid keyword.",
     "CrtfDriver.paraWalkerSyntax"},
    {NoRow, of(eWrongKeyword), "Must have at least one row.", "CRtfDriver.docWalkerSyntax"},
    {NoCell, of(eWrongKeyword), "Must have at least one cell.", "CRtfDriver.rowWalkerSyntax"},
    {NoParaText, of(eSyntaxError), "In a para group para-text is mandatory.",
     "CRtfDriver.paraWalkerSyntax"},
    {NodeInParagraph, of(eWrongKeyword), "A paragraph is a terminal node",
     "CRtfDriver.paraWalkerSyntax"},
    {WrongColor, of(eWrongValue), "{0} isn't a recognized color.", "CRtfDriver.treWalkerSemantic"},
    {WrongBorder, of(eWrongValue), "{0} isn't a recognized border.",
     "CRtfDriver.treWalkerSemantic"},
    {WrongAlignment, of(eWrongValue), "{0} isn't a recognized alignment.",
     "CRtfDriver.treWalkerSemantic"},
    {NotANumber, of(eWrongValue), "Value for {0} should be numeric.",
     "CRtfDriver.treeWalkerSemantic"},
    {NotANumberOrText, of(eWrongValue), "Value for {0} should be numeric or string.",
     "CRtfDriver.treeWalkerSemantic"},
    {WrongContext, of(eSyntaxError), "Invalid node declaration in this context\r\n",
     "CRtDriver.treeWalkerSemantic"},
    {Overflow, of(RunTimeError::Overflow), "", ""},
    {TakenKey, of(RunTimeError::DuplicateKey), "", ""},
    {Other, of(RunTimeError::InvalidProcedureCall), "", ""},
    {WrongNodeKind, of(eWrongNodeType), "Can't add this type of node: {0}", "CRtfDriver.AddNode"},
    {WrongNodeNumber, of(eWrongNodeType), "{0} isn't a valid key value.", "CRtfDriver.NodeType"},
    {EmptyPath, of(eWrongPath), "Path is empty!", "Error: eWrongPath\r\nCRtfDriver.ParseFile"},
    {UnreadableFile, of(eWrongPath), "{0} doesn't exist or is unreacheable",
     "Error: eWrongPath\r\nCRtfDriver.ParseFile"},
    {WrongStyleSheet, of(eWrongFileType), "{0} isn't a valid stylesheet.",
     "CRtfDriver.StyleSheetFile"},
};

constexpr bool isInOrder() {
    for (std::size_t i = 0; i < std::size(table); ++i) {
        if (table[i].fault != static_cast<DriverFault>(i)) {
            return false;
        }
    }
    return std::size(table) == static_cast<std::size_t>(WrongStyleSheet) + 1;
}
static_assert(isInOrder());

const Row& rowOf(DriverFault fault) {
    return table[static_cast<std::size_t>(fault)];
}

}  // namespace

RtfError driverError(DriverFault fault, std::string_view argument, int line) {
    const Row& row = rowOf(fault);
    RtfError error = row.text.empty()
                         ? RtfError(static_cast<RunTimeError>(row.number))
                         : RtfError(row.number, ReplaceString(row.text, "{0}", argument),
                                    ReplaceString(row.source, "{0}", argument));
    error.line = line;
    return error;
}

std::string_view driverErrorText(DriverFault fault) {
    return rowOf(fault).text;
}

void raiseViolation(const Violation& violation) {
    raise(violation.error);
}

}  // namespace quorvane
