#pragma once

namespace quorvane {

/// What a piece of a description or a stylesheet becomes in a document.
enum class TextUse {
    /// A paragraph's text, written as it is.
    Text,
    /// The format of a style, written in lower case.
    Format,
    /// The name of a style that is written into the document's list of styles, in lower case.
    StyleName,
    /// The data of a marked field: the codes of its characters.
    FieldData,
};

}  // namespace quorvane
