#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// What the driver rejects: one enumerator for each row of the table of its errors.
enum class DriverFault : std::uint8_t {
    // The text as a whole.
    NotADescription,
    MissingElements,
    WrongRoot,
    // Lines.
    TooManyNodes,
    WrongCloser,
    WrongSyntax,
    DuplicateLeaf,
    NoDocument,
    // Keys and children.
    UnknownDocKey,
    UnknownRowKey,
    UnknownCellKey,
    UnknownParaKey,
    NoRow,
    NoCell,
    NoParaText,
    NodeInParagraph,
    // Values and places.
    WrongColor,
    WrongBorder,
    WrongAlignment,
    NotANumber,
    NotANumberOrText,
    WrongContext,
    // The build.
    Overflow,
    TakenKey,
    /// Only where the dialect writes Unicode.
    Unencodable,
    // Only in the extended language.
    /// The argument is a sentence about the value.
    WrongValue,
    /// The argument is a sentence about the node.
    WrongPlace,
    UnclosedValue,
    /// The argument is a sentence about the picture.
    WrongPicture,
    /// The argument is the kind and the name of the style.
    UndefinedStyle,
    /// Any other error of the object model.
    Other,
    // Not about a description.
    WrongNodeKind,
    WrongNodeNumber,
    EmptyPath,
    UnreadableFile,
    WrongStyleSheet,
};

/// The error as it is published. The argument takes the place of "{0}" in the text and the source
/// that the table has for it; `line` is the 1-based line of the description, 0 for none.
RtfError driverError(DriverFault fault, std::string_view argument = {}, int line = 0);

/// Something in a description that the driver rejects.
struct Violation {
    DriverFault fault = DriverFault::Other;
    /// As it is published, with its line.
    RtfError error;
    /// What is wrong: a view of the description.
    std::string_view part;
    /// The node that it concerns. Of a wrong closer it is the innermost open node, when one of the
    /// closer's kind is open; of a taken key the node that has it.
    DescriptionNode* node = nullptr;
    /// The leaf that it concerns; of a duplicate the leaf that has the key.
    Leaf* leaf = nullptr;
    /// The kind of the node that an opener or a closer names, or of the node that a key stands in.
    NodeKind kind = NodeKind::None;
};

/// Takes violations one after the other. One that throws ends what reports them.
using ViolationReceiver = std::function<void(const Violation&)>;

/// Raises the error of the first violation.
void raiseViolation(const Violation& violation);

}  // namespace quorvane
