#pragma once

namespace quorvane {

/// Identifies a kind of diagnostic. Each has its entry in one of the tables in
/// `quorvane/diagnostics/table/`, which list them in this order.
enum class DiagnosticId {
    // fileDiagnostics.h
    NotATextFile,
    NotUtf8,
    WrongExtension,

    // descriptionErrors.h
    WrongFileType,
    MissingElement,
    WrongRoot,
    TooManyNodes,
    WrongCloser,
    WrongSyntax,
    DuplicateLeaf,
    NoDocument,
    WrongKeyword,
    NoRow,
    NoCell,
    NoParaText,
    NodeInParagraph,
    WrongContext,
    WrongColor,
    WrongBorder,
    WrongAlignment,
    NotANumber,
    Overflow,
    TakenKey,
    UnencodableValue,
    Rejected,

    // extendedErrors.h
    WrongValue,
    WrongPlace,
    UnclosedValue,
    WrongPicture,
    UndefinedStyle,

    // templateErrors.h
    WrongTag,
    WrongPartial,
    MissingName,
    WrongData,
    WrongJson,

    // nodeWarnings.h
    ClosedByOpener,
    RepeatedOpener,
    UnclosedRow,
    OutsideDocument,
    LostAlignment,
    RefusedMarkedField,
    LeadingZeros,
    IgnoreComment,

    // styleWarnings.h
    UnknownParagraphStyle,
    UnknownCharacterStyle,
    UnknownCellStyle,
    InlineStyleAsText,
    SharedStyleNumber,
    LowContrast,

    // textWarnings.h
    CutValue,
    UnclosedInlineStyle,
    HtmlTag,
    EmptyText,
    UnbalancedBrace,
    HiddenBraces,
    LoneBackslash,
    UnknownControlWord,
    ControlCharacter,
    EmbeddedContent,
    TableControl,
    HeaderControl,
    UnknownNumber,
    ShownSubstitute,
    UnencodableCharacter,
    Utf8Text,

    // pageWarnings.h
    WidthsSum,
    WidthClamped,
    TableOverrun,
    TableUnderrun,
    MarginFallback,
    NoRoom,
    TinyMeasure,
    PageNumberFallback,
    TooManyCells,

    // styleSheetDiagnostics.h
    BracesUnderflow,
    BracesOverflow,
    BadKeyword,
    BadStyleKind,
    BadAdditive,
    UnencodableStyle,
    StyleSheetRejected,
    DescriptionAsStyleSheet,
    NoStyles,
    DuplicateStyle,
    UnusedStyle,
    NoStyleKind,
    RepeatedItem,
    EmptyStyleName,
    UndefinedReference,
    UnknownCellColor,
    FormatText,

    // extendedStyleSheetDiagnostics.h
    BadCharacter,
    LoneBrace,
    StrayText,
    NamelessStyle,
    BadStyleName,
    StyleTwice,
    MissingKind,
    BadKind,
    UnknownItem,
    MissingSemicolon,
    ItemTwice,
    MisplacedItem,
    MissingValue,
    BadItemValue,
    MissingStyle,
    StyleCircle,

    // rtfDiagnostics.h
    NotRtf,
    UnclosedGroup,
    TextAfterEnd,
    DataAfterEnd,
    BadHexEscape,
    CutOff,
    BinaryLength,
    DeepNesting,
    CellCount,
    UnevenRow,
    RowWithoutCells,
    FallingEdge,
    UnendedRow,
    SectionInRow,
    UnknownFont,
    UnknownColor,
    UnknownStyle,
    DuplicateFont,
    DuplicateStyleNumber,
    UnknownDestination,
};

}  // namespace quorvane
