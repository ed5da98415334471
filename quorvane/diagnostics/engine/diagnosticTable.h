// The table of diagnostics: one row for each kind of finding. It is included where a list is made
// of it, with the macro defined as what a row shall become; the macro is gone afterwards.
//
// QUORVANE_DIAGNOSTIC(enumerator, identifier, severity, language, text, explanation, wrong example,
//                     right example, companion of the examples[, corruptsDocument])

#ifndef QUORVANE_DIAGNOSTIC
#define QUORVANE_DIAGNOSTIC(...)
#endif

// clang-format off

QUORVANE_DIAGNOSTIC(WrongFileType, "wrong-file-type", Error, Description,
    "The provided file isn't a correct rtfspec file.",
    "A description is one `doc` node. A text without `(doc` is none, and a stylesheet or an RTF file "
    "named `.rtfspec` is none either.",
    "(dco\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(NotATextFile, "not-a-text-file", Error, Description,
    "This is {0}, not {1}.",
    "Descriptions and stylesheets are texts, one byte a character. A PDF file, a picture, an "
    "archive, a program, the document of an office program, and a text in UTF-16 cannot be read as "
    "one. Nothing else is said of such a file.",
    "",
    "",
    "")

QUORVANE_DIAGNOSTIC(MissingElement, "missing-element", Error, Description,
    "Missing some requiered elements:\r\n(doc\r\n(row\r\n(cell",
    "A description holds at least one row with a cell: one of `(row`, `(r`, `(cell` and `(c`, "
    "in lower case, must stand in it.",
    "(doc\n"
    "(paper-width=11906)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WrongRoot, "wrong-root", Error, Description,
    "(doc must be the first node.",
    "The first line begins with `(doc` and the last one with `doc)`, in lower case. Comments "
    "and blank lines do not count.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(TooManyNodes, "too-many-nodes", Error, Description,
    "Too many {0} nodes.",
    "A description has at most 999 rows, 999 cells and 999 paragraphs. At the limit the "
    "reading ends. A longer table is made of several descriptions, or through the object "
    "model.",
    "(doc\n"
    "; 1000 times:\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "; so far\n"
    "doc)\n",
    "(doc\n"
    "; 999 times:\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "; so far\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WrongCloser, "wrong-closer", Error, Description,
    "Wrong node type in {0}",
    "A closer closes the node that is open. Where another node is open still, its own closer "
    "is missing before.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WrongSyntax, "wrong-syntax", Error, Description,
    "{0} has a wrong syntax",
    "A line is an opener such as `(row`, a closer such as `row)`, a leaf such as "
    "`(pt=Total)`, or a comment behind `;`. A leaf begins and ends on one line, and its value "
    "ends at the first `)`: write `\\line` for a line break and `\\'29` for a `)` in a text.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(DuplicateLeaf, "duplicate-leaf", Error, Description,
    "This key is already associated with an element of this collection",
    "Each key stands once in a node. The long and the short form of a key are the same key.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "(para-text=Sum)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(NoDocument, "no-document", Error, Description,
    "Object variable or With block variable not set",
    "The first line begins with `(doc` but opens no `doc` node, so there is no document.",
    "(doc=1)\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WrongKeyword, "wrong-keyword", Error, Description,
    "{0} isn't a valid keyword.",
    "Each kind of node has keys of its own. Keys are written in lower case, in the long or "
    "the short form.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(pt=Total)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(NoRow, "no-row", Error, Description,
    "Must have at least one row.",
    "A document has at least one row.",
    "(doc\n"
    "(c\n"
    "c)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(NoCell, "no-cell", Error, Description,
    "Must have at least one cell.",
    "A row has at least one cell: word processors lose a table that has a row without cells.",
    "(doc\n"
    "(r\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(NoParaText, "no-para-text", Error, Description,
    "In a para group para-text is mandatory.",
    "A paragraph has the key `para-text`, short `pt`. Its value may be empty.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pa=right)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "(pa=right)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(NodeInParagraph, "node-in-paragraph", Error, Description,
    "A paragraph is a terminal node",
    "A paragraph holds no other node.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "(doc\n"
    "doc)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WrongContext, "wrong-context", Error, Description,
    "Invalid node declaration in this context\r\n",
    "A document holds rows, a row holds cells, a cell holds paragraphs. A `doc` node stands "
    "in no other node.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(doc\n"
    "doc)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WrongColor, "wrong-color", Error, Description,
    "{0} isn't a recognized color.",
    "A background is the name of one of the 37 colors of the language, or `none`.",
    "(doc\n"
    "(r\n"
    "(rb=crimson)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(rb=dark-red)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WrongBorder, "wrong-border", Error, Description,
    "{0} isn't a recognized border.",
    "A border is `none`, `hair`, `thin`, `normal` or `thick`.",
    "(doc\n"
    "(r\n"
    "(rtb=medium)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(rtb=normal)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WrongAlignment, "wrong-alignment", Error, Description,
    "{0} isn't a recognized alignment.",
    "An alignment is `left`, `right`, `centered`, `justified` or `none`, or one of the "
    "numbers 0 to 4.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(ca=center)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(ca=centered)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(NotANumber, "not-a-number", Error, Description,
    "Value for {0} should be numeric.",
    "The keys of the document, `cell-width`, `row-key`, `cell-key` and `para-key` take a "
    "number: digits with at most one `.`, a sign before and an exponent behind if need be; no "
    "unit.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cw=50%)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cw=50)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(Overflow, "overflow", Error, Description,
    "Overflow",
    "A number is rounded to a whole one of 32 bits, and so are the measures that come out of "
    "it.",
    "(doc\n"
    "(paper-width=1e12)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(paper-width=12242)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(TakenKey, "taken-key", Error, Description,
    "This key is already associated with an element of this collection",
    "Two rows of the document, two cells of a row or two paragraphs of a cell cannot have one "
    "key. A node without a key has its number as key: rows count from 1001, cells from 2001 "
    "and paragraphs from 3001.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cell-key=7)\n"
    "c)\n"
    "(c\n"
    "(cell-key=7)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cell-key=7)\n"
    "c)\n"
    "(c\n"
    "(cell-key=8)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(Rejected, "rejected", Error, Description,
    "{0}",
    "The analysis ends with an error that no other row of this table tells. The message is "
    "the error's own.",
    "",
    "",
    "")

QUORVANE_DIAGNOSTIC(ClosedByOpener, "closed-by-opener", Warning, Description,
    "{0} closes the {1} that is open.",
    "An opener that cannot stand where it is met closes the open nodes up to the one in which "
    "it can. What was meant to stay open is closed too, and numbers of nodes are skipped.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=one)\n"
    "(p\n"
    "(pt=two)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=one)\n"
    "p)\n"
    "(p\n"
    "(pt=two)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(RepeatedOpener, "repeated-opener", Warning, Description,
    "This (r is dropped, because another one follows.",
    "Of two lines `(r` that follow each other the repair drops the first when the description "
    "is checked. Without checking both are rows, and word processors lose a table that has a "
    "row without cells.",
    "(doc\n"
    "(r\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(UnclosedRow, "unclosed-row", Warning, Description,
    "r) is missing before this line.",
    "The repair puts it there when the description is checked.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(OutsideDocument, "outside-document", Warning, Description,
    "From here on nothing is read into the document.",
    "What stands behind the end of the `doc` node is passed over. The node ends with its "
    "closer, and with an opener of a cell or a paragraph where no row is open.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "(c\n"
    "c)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(UnknownParagraphStyle, "unknown-paragraph-style", Warning, Description,
    "The stylesheet has no paragraph style {0}: {1}.",
    "A paragraph whose style the stylesheet does not have gets the format of the first "
    "paragraph style, under the number 0.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "(ps=nromal)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "(ps=normal)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n")

QUORVANE_DIAGNOSTIC(UnknownCharacterStyle, "unknown-character-style", Warning, Description,
    "The stylesheet has no character style {0}: its text gets no format.",
    "An inline style that the stylesheet does not have writes its text without a format. "
    "Character styles are defined with `style-def: cs`.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=<string=Total>)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=<strong=Total>)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "{ name: reserved; style-def: s; format: \\fs20 }\n"
    "{ name: strong; style-def: cs; format: \\b }\n")

QUORVANE_DIAGNOSTIC(CutValue, "cut-value", Warning, Description,
    "The value ends here: {0} is lost.",
    "A value ends at the first `)`, and behind a `;` the rest of the line is a comment. A `(` in the "
    "value and one more `)` in that comment are a sign that the comment was meant to be text. Write "
    "`\\'29` for a `)` in a text.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=see (page 2); thanks)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=see (page 2\\'29; thanks)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(UnclosedInlineStyle, "unclosed-inline-style", Warning, Description,
    "The inline style {0} is not closed: the text shows it as it is written.",
    "An inline style is the style's name between `<` and `=`, then its text, then a `>`. Without "
    "that `>` it stands in the document as it stands in the description.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=<strong=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=<strong=Total>)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "{ name: reserved; style-def: s; format: \\fs20 }\n"
    "{ name: strong; style-def: cs; format: \\b }\n")

QUORVANE_DIAGNOSTIC(HtmlTag, "html-tag", Warning, Description,
    "{0} is not a tag here: the text shows it as it is written.",
    "Texts are not HTML. Words take a character style of the stylesheet in an inline style such as "
    "`<strong=Total>`, or the control words of RTF in a group such as `{\\b Total}`; `\\line` is a "
    "line break. Write `\\'3c` for a `<` that is to be seen in front of such a name.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=<b>Total</b>)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=<strong=Total>)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "{ name: reserved; style-def: s; format: \\fs20 }\n"
    "{ name: strong; style-def: cs; format: \\b }\n")

QUORVANE_DIAGNOSTIC(UnknownCellStyle, "unknown-cell-style", Warning, Description,
    "The stylesheet has no cell style {0}: the cell gets background 0.",
    "A cell style that the stylesheet does not have gives the cell the background 0, which "
    "some readers show black. Cell styles are defined with `style-def: cell`.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cs=shadde)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cs=shaded)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "{ name: shaded; style-def: cell; format: silver }\n")

QUORVANE_DIAGNOSTIC(SharedStyleNumber, "shared-style-number", Warning, Description,
    "The paragraph style {0} shares the number {1} with the character style {2}.",
    "Paragraph styles and character styles are both numbered from 100 on. LibreOffice loses "
    "the whole table when the first or the last paragraph of a cell, other than the last cell "
    "of a row, has a number that a character style has too. Put as many unused paragraph "
    "styles first as the stylesheet has character styles, the first of them with the format "
    "of `normal`.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=<strong=Total>)\n"
    "(ps=normal)\n"
    "p)\n"
    "c)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=<strong=Total>)\n"
    "(ps=sum)\n"
    "p)\n"
    "c)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: sum; style-def: s; format: \\fs20\\b }\n"
    "{ name: strong; style-def: cs; format: \\b }\n")

QUORVANE_DIAGNOSTIC(EmptyText, "empty-text", Warning, Description,
    "The paragraph has no text and vanishes.",
    "A paragraph with an empty text writes nothing, not even an empty line. Write `\\~` for "
    "an empty line.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=\\~)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(UnbalancedBrace, "unbalanced-brace", Warning, Description,
    "The {0} has no partner.",
    "Texts and formats go into the document as they are. An open brace makes readers refuse "
    "the file, a closing one cuts the document off, so that `render --check` refuses both. "
    "Write `\\{` and `\\}` for braces that shall be seen.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=a } b)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=a \\} b)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "", corruptsDocument)

QUORVANE_DIAGNOSTIC(HiddenBraces, "hidden-braces", Warning, Description,
    "The braces are not shown.",
    "Texts go into the document as they are, and a pair of braces is a group in RTF: readers show "
    "what it holds without the braces. Write `\\{` and `\\}` for braces that shall be seen. A group "
    "with a control word, such as `{\\b Total}`, is what braces are for.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Lock {cylinder})\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Lock \\{cylinder\\})\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(LoneBackslash, "lone-backslash", Warning, Description,
    "The backslash swallows what follows it.",
    "Texts and formats go into the document as they are, and a backslash begins a control "
    "word or symbol. Write `\\\\` for a backslash that shall be seen, and two hexadecimal "
    "digits after `\\'`. `render --check` refuses a lone one.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=C:\\5 and \\'zz)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=C:\\\\5 and \\'e9)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "", corruptsDocument)

QUORVANE_DIAGNOSTIC(UnknownControlWord, "unknown-control-word", Warning, Description,
    "{0} is no RTF control word.",
    "Texts and formats go into the document as they are, and readers pass over control words "
    "that they do not know. Control words are written in lower case. Write `\\\\` for a "
    "backslash that shall be seen.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=C:\\budget)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=C:\\\\budget)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(ControlCharacter, "control-character", Warning, Description,
    "The character {0} is none that can be printed.",
    "A form feed, a tab or another control character vanishes in a text or is shown as it "
    "comes. Write `\\tab` for a tab, `\\line` for a line break and `\\page` for a page break.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=a\x0b""b)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=a\\line b)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(EmbeddedContent, "embedded-content", Warning, Description,
    "{0} brings {1} into the document.",
    "A text or a format can embed objects, pictures and other binary data, fields that run "
    "macros, and links to files. Where it comes from somebody else, that is seldom what the "
    "document's author wants.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt={\\field{\\*\\fldinst INCLUDETEXT secrets.doc}})\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(TableControl, "table-control", Warning, Description,
    "{0} breaks the table in the middle of a text.",
    "`\\cell`, `\\row`, `\\trowd`, `\\cellx` and `\\sect` end cells, rows and pages. In a text or a "
    "format they come on top of those that the table is made of: its row has more cells then "
    "than definitions, and readers lose it. Write a cell or a row of the description instead. A table "
    "within the cell, which is made of `\\itap`, `\\nestcell` and `\\nestrow`, has whole rows, and "
    "`\\itap1` behind it.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total\\cell 12)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "(c\n"
    "(p\n"
    "(pt=12)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(HeaderControl, "header-control", Warning, Description,
    "{0} belongs at the beginning of a document.",
    "`\\rtf`, `\\fonttbl`, `\\colortbl` and `\\stylesheet` begin a document and its tables. It has "
    "them already: what a second one in the middle of it does is up to the reader. Of an RTF file "
    "only what follows its tables can be a text.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt={\\rtf1 Total})\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt={\\b Total})\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(UnknownNumber, "unknown-number", Warning, Description,
    "{0} names no {1} of the document.",
    "`\\f` and the like name a font by its number, 0 to 17, `\\cf`, `\\highlight`, `\\cb` and the "
    "like a colour, 0 to 57, and `\\s` and `\\cs` a style of the stylesheet, which is numbered "
    "from 100 on. What a number names that the document's tables do not have is up to the "
    "reader.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt={\\f20\\cf99 Total})\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt={\\f5\\cf24 Total})\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(ShownSubstitute, "shown-substitute", Warning, Description,
    "The ? after {0} is shown: nothing stands in for the character.",
    "In RTF a character can follow `\\u` and its number that is shown by readers without Unicode. "
    "Documents say `\\uc0`: no character does, so a `?` there is text. Write a group that says "
    "otherwise, such as `{\\uc1\\u345?}`, or end the number with a blank.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Dvo\\u345?\\'e1k)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Dvo{\\uc1\\u345?}\\'e1k)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(UnencodableCharacter, "unencodable-character", Warning, Description,
    "The code page has no place for {0}, which {1}.",
    "Documents are written in Windows-1252. A character that it has no place for becomes a question "
    "mark, or where the file is in UTF-8 two or more other characters. Of those the first is told. "
    "In a text such characters are written as RTF "
    "writes them: `{\\uc1\\u8594?}` is an arrow, and a question mark where a reader has none. The "
    "data of a marked field and the names of styles have no such form.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=10 \xe2""\x86""\x92"" 20)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=10 {\\uc1\\u8594?} 20)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(Utf8Text, "utf-8-text", Warning, Description,
    "{0} is read as {1}: the file is in UTF-8.",
    "Files are read in Windows-1252, one byte a character. In a file in UTF-8 every other "
    "character than those of ASCII turns into two or three; the first is told. Save the file "
    "in Windows-1252, or "
    "write `\\'e9` and the like.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=caf\xc3""\xa9"")\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=caf\\'e9)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WidthsSum, "widths-sum", Warning, Description,
    "The widths of the cells add up to {0} per cent.",
    "The widths of the cells of a row should add up to a hundred: the last cell gets what is "
    "left, whatever its width says of it.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cw=30)\n"
    "c)\n"
    "(c\n"
    "(cw=50)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cw=30)\n"
    "c)\n"
    "(c\n"
    "(cw=70)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(WidthClamped, "width-clamped", Warning, Description,
    "The cell becomes {0} per cent wide instead of {1}.",
    "The cells begin with equal widths, and from left to right each one moves its right edge. It "
    "cannot reach beyond its right neighbor as that stands then, and no cell becomes narrower than "
    "200 twips. So of three cells the first can take 64 per cent, and the second more once the "
    "first is narrow: 80, 10, 10 does not fit, 10, 80, 10 does. The hint names an order that was "
    "tried.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cw=80)\n"
    "c)\n"
    "(c\n"
    "(cw=10)\n"
    "c)\n"
    "(c\n"
    "(cw=10)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cw=10)\n"
    "c)\n"
    "(c\n"
    "(cw=10)\n"
    "c)\n"
    "(c\n"
    "(cw=80)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(TableOverrun, "table-overrun", Warning, Description,
    "The row is {0} twips wide, the page has room for {1}.",
    "The cells are laid out before the keys of the document are applied, on the default page "
    "with 8840 twips between the margins, and stay so; and no cell is narrower than 200 "
    "twips. Choose margins that leave 8840 twips: 1533 each side on A4, 1700 on US letter.",
    "(doc\n"
    "(paper-width=11906)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(paper-width=11906)\n"
    "(left-margin=1533)\n"
    "(right-margin=1533)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(TableUnderrun, "table-underrun", Warning, Description,
    "The row is {0} twips wide, the page has room for {1}.",
    "The cells are laid out before the keys of the document are applied, on the default page "
    "with 8840 twips between the margins, and stay so. A wider page, such as one in landscape, "
    "leaves the table as wide as it was, and `cell-width`, which counts in per cent of the page, "
    "then moves the cells to where nobody wants them. Choose margins that leave 8840 twips: 1533 "
    "each side on A4, 3999 on A4 in landscape. A row of a single cell can be as wide as the page, "
    "with `cell-width`. Wider rows of several cells are made through the object model.",
    "(doc\n"
    "(paper-width=16838)\n"
    "(paper-height=11906)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(paper-width=16838)\n"
    "(paper-height=11906)\n"
    "(left-margin=3999)\n"
    "(right-margin=3999)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(MarginFallback, "margin-fallback", Warning, Description,
    "The margin doesn't fit and becomes {0}.",
    "A margin is at least 1 and less than 0.9 of the paper less the opposite margin. The keys "
    "are applied in the order of their names: `bottom-margin` and `left-margin` are compared "
    "with the default paper, 12242 by 15842 twips.",
    "(doc\n"
    "(left-margin=12000)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(left-margin=1701)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(NoRoom, "no-room", Warning, Description,
    "The margins are {0} twips {1} together, the paper is {2}.",
    "Margins are compared with the paper as it is when their turn comes. The keys are applied in "
    "the order of their names: a margin that fits the default paper, 12242 by 15842 twips, can "
    "be too large for the paper that `paper-width` or `paper-height` sets after it.",
    "(doc\n"
    "(left-margin=8000)\n"
    "(paper-width=5000)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(left-margin=1533)\n"
    "(right-margin=1533)\n"
    "(paper-width=11906)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(TinyMeasure, "tiny-measure", Warning, Description,
    "A {0} of {1} twips is {2} millimeters.",
    "The measures of the page are in twips: 1440 are an inch, 567 a centimeter, 57 a millimeter. "
    "Paper of less than an inch and a margin of less than two millimeters are most likely meant "
    "in another unit.",
    "(doc\n"
    "(paper-width=210)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(paper-width=11906)\n"
    "(left-margin=1533)\n"
    "(right-margin=1533)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(PageNumberFallback, "page-number-fallback", Warning, Description,
    "The number of the first page becomes 2.",
    "The first page has a number from 1 on.",
    "(doc\n"
    "(page-number-start=0)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(page-number-start=1)\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(TooManyCells, "too-many-cells", Warning, Description,
    "The row has {0} cells; word processors take 63.",
    "Word processors refuse or cut a row of more than 63 cells. Cells are at least 200 twips "
    "wide, so 44 of them fill the default page already.",
    "(doc\n"
    "(r\n"
    "; 64 times:\n"
    "(c\n"
    "c)\n"
    "; so far\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "; 40 times:\n"
    "(c\n"
    "c)\n"
    "; so far\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(LostAlignment, "lost-alignment", Warning, Description,
    "The alignment is lost, because {0} files the {1} anew.",
    "A key puts a new entry into the place of the one that is built, and the alignment, which "
    "is applied before, stays behind. Align the paragraphs of a cell with `cell-key`, and the "
    "cell of a paragraph with `para-key`.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(ca=right)\n"
    "(cell-key=7)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cell-key=7)\n"
    "(p\n"
    "(pt=Total)\n"
    "(pa=right)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(RefusedMarkedField, "refused-marked-field", Warning, Description,
    "The marked field refuses a number: {0} is lost.",
    "The text of a marked field that reads as a number is refused: a paragraph is marked "
    "without it, a cell is not marked at all. Put a letter in front.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cmf=12)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cmf=no 12)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(LeadingZeros, "leading-zeros", Warning, Description,
    "{0} is read as {1}.",
    "A key or the name of a style that reads as a number is taken as that number, in its "
    "shortest form: zeros at its beginning and behind its point are lost, and a sign `+`.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cell-key=0012)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cell-key=12)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(LowContrast, "low-contrast", Warning, Description,
    "The text is {0} on {1} and can hardly be read.",
    "The contrast between a text and what it stands on is less than 3 to 1. The colour of a text "
    "is that of its paragraph's style, of an inline style, or of a `\\cf` in the text; it is "
    "white where the cell is dark, and it stands on the cell's background or on a `\\highlight` "
    "or a shading of its own. Take another background, or a style with another colour.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cb=blue)\n"
    "(p\n"
    "(para-key=7)\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(cb=blue)\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(IgnoreComment, "ignore-comment", Warning, Description,
    "This comment cannot be followed. {0}.",
    "A comment `; quorvane: ignore ID` takes the diagnostics of that identifier on the next line out "
    "of the report; several identifiers are separated by commas. In a stylesheet it stands on a line "
    "of its own outside of braces, and is about the definition that follows.",
    "(doc\n"
    "(r\n"
    "; quorvane: ignore low-contarst\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "(doc\n"
    "(r\n"
    "; quorvane: ignore low-contrast\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "")

QUORVANE_DIAGNOSTIC(BracesUnderflow, "braces-underflow", Error, StyleSheet,
    "Error in stylesheet\r\nBraces stack underflow: there are more } than {.",
    "Each definition stands in one pair of braces, also those in what is meant as a comment.",
    "{ name: normal; style-def: s; format: \\fs20 } }\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n",
    "")

QUORVANE_DIAGNOSTIC(BracesOverflow, "braces-overflow", Error, StyleSheet,
    "Error in stylesheet\r\nBraces stack overflow: there are more { than }",
    "Each definition stands in one pair of braces, also those in what is meant as a comment.",
    "{ name: normal; style-def: s; format: \\fs20\n"
    "{ name: sum; style-def: s; format: \\b }\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: sum; style-def: s; format: \\b }\n",
    "")

QUORVANE_DIAGNOSTIC(BadKeyword, "bad-keyword", Error, StyleSheet,
    "Error while processing stylesheet.\r\n{0} is not a valid keyword.",
    "The first item of a definition is `name`; the others are `style-def`, `format`, "
    "`based-on`, `next` and `additive`, each with a `:` and a value.",
    "{ name: normal; style-def: s; fromat: \\fs20 }\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n",
    "")

QUORVANE_DIAGNOSTIC(BadStyleKind, "bad-style-kind", Error, StyleSheet,
    "{0} is not a valid value for style-def",
    "A style is a paragraph style, `s`, a character style, `cs`, or a cell style, `cell`.",
    "{ name: normal; style-def: p; format: \\fs20 }\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n",
    "")

QUORVANE_DIAGNOSTIC(BadAdditive, "bad-additive", Error, StyleSheet,
    "Error while processing stylesheet.\r\n{0} is not a valid value for additive",
    "`additive` is `yes` or `no`.",
    "{ name: normal; style-def: s; additive: true }\n",
    "{ name: normal; style-def: s; additive: yes }\n",
    "")

QUORVANE_DIAGNOSTIC(StyleSheetRejected, "stylesheet-rejected", Error, StyleSheet,
    "{0}",
    "The loading ends with an error that no other row of this table tells, as that of a file that "
    "is no stylesheet in spite of its extension. The message is the error's own.",
    "",
    "",
    "")

QUORVANE_DIAGNOSTIC(DescriptionAsStyleSheet, "description-as-stylesheet", Warning, StyleSheet,
    "This is a description, not a stylesheet.",
    "What is given as the stylesheet begins with a node of a description. Text outside of braces "
    "says nothing in a stylesheet: it is accepted, and has no styles. Styles of the descriptions "
    "are not looked up in it.",
    "(doc\n"
    "(r\n"
    "(c\n"
    "c)\n"
    "r)\n"
    "doc)\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n")

QUORVANE_DIAGNOSTIC(NoStyles, "no-styles", Warning, StyleSheet,
    "The stylesheet has no styles.",
    "The definition of a style stands in braces. Text outside of braces says nothing: it is "
    "accepted, and has no styles. An empty file is accepted too.",
    "name: total; style-def: s; format: \\b\n",
    "{ name: total; style-def: s; format: \\b }\n",
    "")

QUORVANE_DIAGNOSTIC(DuplicateStyle, "duplicate-style", Warning, StyleSheet,
    "The style {0} is defined already, on line {1}.",
    "Of a name that is defined twice the first definition is found. The second one takes a "
    "number and nothing else.",
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: normal; style-def: s; format: \\fs24 }\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: large; style-def: s; format: \\fs24 }\n",
    "")

QUORVANE_DIAGNOSTIC(UnusedStyle, "unused-style", Warning, StyleSheet,
    "No description uses the style {0}.",
    "The style is not named by any of the descriptions that were checked together with the "
    "stylesheet, nor by `next` or `based-on` of another style. The first paragraph style, "
    "`normal` and the paragraph styles that keep the numbers of character styles free count "
    "as used. A house stylesheet serves many descriptions: the warning is given only with "
    "`--enable unused-style`.",
    "{ name: normal; style-def: s; format: \\fs20 }\n"
    "{ name: sum; style-def: s; format: \\b }\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n",
    "(doc\n"
    "(r\n"
    "(c\n"
    "(p\n"
    "(pt=Total)\n"
    "p)\n"
    "c)\n"
    "r)\n"
    "doc)\n")

QUORVANE_DIAGNOSTIC(NoStyleKind, "no-style-kind", Warning, StyleSheet,
    "The definition has no style-def and is a cell style.",
    "A definition without `style-def` is a cell style, whatever its format.",
    "{ name: normal; format: silver }\n",
    "{ name: normal; style-def: cell; format: silver }\n",
    "")

QUORVANE_DIAGNOSTIC(RepeatedItem, "repeated-item", Warning, StyleSheet,
    "{0} stands in the definition already; this one is passed over.",
    "Of an item that is repeated the first counts.",
    "{ name: normal; style-def: s; format: \\fs20; format: \\b }\n",
    "{ name: normal; style-def: s; format: \\fs20\\b }\n",
    "")

QUORVANE_DIAGNOSTIC(EmptyStyleName, "empty-style-name", Warning, StyleSheet,
    "The style has an empty name.",
    "The style takes a number, and it is found by no name but the empty one.",
    "{ name: normal,; style-def: s; format: \\fs20 }\n",
    "{ name: normal; style-def: s; format: \\fs20 }\n",
    "")

QUORVANE_DIAGNOSTIC(UndefinedReference, "undefined-reference", Warning, StyleSheet,
    "{0} names no {1} style: it is left out.",
    "`based-on` and `next` name a style of the same kind. A reference to another one is not "
    "written.",
    "{ name: normal; style-def: s; format: \\fs20; next: sum }\n",
    "{ name: normal; style-def: s; format: \\fs20; next: normal }\n",
    "")

QUORVANE_DIAGNOSTIC(UnknownCellColor, "unknown-cell-color", Warning, StyleSheet,
    "{0} is the name of no color: cells of this style get background 0.",
    "The format of a cell style is the name of one of the 57 colours, with `-` in place of "
    "blanks. Any other word gives the background 0, which some readers show black.",
    "{ name: shaded; style-def: cell; format: sliver }\n",
    "{ name: shaded; style-def: cell; format: silver }\n",
    "")

QUORVANE_DIAGNOSTIC(FormatText, "format-text", Warning, StyleSheet,
    "{0} is no control word: it is printed wherever the style is used.",
    "The format of a paragraph style and of a character style goes into the document as it is. It "
    "is made of control words, each with its backslash and its number behind it; any other word "
    "is text, which each paragraph of the style begins with.",
    "{ name: normal; style-def: s; format: fs20 b }\n",
    "{ name: normal; style-def: s; format: \\fs20\\b }\n",
    "")

QUORVANE_DIAGNOSTIC(NotRtf, "not-rtf", Error, Rtf,
    "The file doesn't begin with {\\rtf.",
    "An RTF file begins with `{\\rtf` and its version.",
    "{\\rtx1 Total}\n",
    "{\\rtf1 Total}\n",
    "")

QUORVANE_DIAGNOSTIC(WrongExtension, "wrong-extension", Warning, Rtf,
    "This is {0}, but its extension is {1}.",
    "A file is checked as what it holds. Programs and people go by its extension: `.rtfspec` is "
    "that of descriptions, `.rtfss` that of stylesheets, `.rtf` that of documents.",
    "",
    "",
    "")

QUORVANE_DIAGNOSTIC(UnclosedGroup, "unclosed-group", Error, Rtf,
    "The group is not closed.",
    "Each `{` has its `}`. Readers refuse a file that ends before, or show a part of it.",
    "{\\rtf1 {\\b Total}\n",
    "{\\rtf1 {\\b Total}}\n",
    "")

QUORVANE_DIAGNOSTIC(TextAfterEnd, "text-after-end", Error, Rtf,
    "The document ends before this.",
    "Readers stop at the brace that closes the document. Where text follows it, there is one `}` "
    "too many before it, and readers lose that text. Blanks, line ends and NUL bytes, which "
    "programs write there, are fine.",
    "{\\rtf1 {\\b Total}} Sum}\n",
    "{\\rtf1 {\\b Total} Sum}\n",
    "")

QUORVANE_DIAGNOSTIC(DataAfterEnd, "data-after-end", Warning, Rtf,
    "The document ends before this.",
    "Something that shows no text follows the brace that closes the document, such as another `}` "
    "or a group of data: one `}` too many stands before it, or the file was put together from "
    "others. Readers pass over it.",
    "{\\rtf1 {\\b Total} Sum}}\n",
    "{\\rtf1 {\\b Total} Sum}\n",
    "")

QUORVANE_DIAGNOSTIC(BadHexEscape, "bad-hex-escape", Error, Rtf,
    "Two hexadecimal digits must follow \\'.",
    "A character in the form `\\'e9` has two hexadecimal digits.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "caf\\'e}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "caf\\'e9}\n",
    "")

QUORVANE_DIAGNOSTIC(CutOff, "cut-off", Error, Rtf,
    "The file ends within {0}.",
    "The file ends in the middle of a control word or before its binary data is complete.",
    "{\\rtf1 {\\pict\\bin100 abc}}\n",
    "{\\rtf1 {\\pict\\bin3 abc}}\n",
    "")

QUORVANE_DIAGNOSTIC(BinaryLength, "binary-length", Error, Rtf,
    "The number of bytes must follow \\bin.",
    "`\\bin` and a number say how many bytes of binary data follow. Without a number above 0 "
    "LibreOffice loses a character, or refuses the file. A picture in hexadecimal digits has no "
    "`\\bin`.",
    "{\\rtf1 {\\pict\\pngblip\\bin 89504e47}}\n",
    "{\\rtf1 {\\pict\\pngblip 89504e47}}\n",
    "")

QUORVANE_DIAGNOSTIC(DeepNesting, "deep-nesting", Error, Rtf,
    "Groups are nested deeper than {0}.",
    "Word processors give up on groups that are nested so deep. What is deeper is not "
    "checked.",
    "{\\rtf1\n"
    "; 1000 times:\n"
    "{\n"
    "; so far\n"
    "Total\n"
    "; 1000 times:\n"
    "}\n"
    "; so far\n"
    "}\n",
    "{\\rtf1\n"
    "; 3 times:\n"
    "{\n"
    "; so far\n"
    "Total\n"
    "; 3 times:\n"
    "}\n"
    "; so far\n"
    "}\n",
    "")

QUORVANE_DIAGNOSTIC(CellCount, "cell-count", Error, Rtf,
    "The row has {0} and {1}.",
    "A row has as many cells, each ended by `\\cell`, as it has definitions, each ended by "
    "`\\cellx`. Readers drop a cell that has no definition, with its text.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\n"
    "\\pard\\intbl a\\cell b\\cell\\row}\n"
    "}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\\cellx8000\n"
    "\\pard\\intbl a\\cell b\\cell\\row}\n"
    "}\n",
    "")

QUORVANE_DIAGNOSTIC(UnevenRow, "uneven-row", Warning, Rtf,
    "The row has {0} and {1}.",
    "A row has as many cells, each ended by `\\cell`, as it has definitions, each ended by "
    "`\\cellx`. Readers add empty cells where some are missing, and drop empty ones that have no "
    "definition.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\\cellx8000\n"
    "\\pard\\intbl a\\cell\\row}\n"
    "}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\\cellx8000\n"
    "\\pard\\intbl a\\cell b\\cell\\row}\n"
    "}\n",
    "")

QUORVANE_DIAGNOSTIC(RowWithoutCells, "row-without-cells", Error, Rtf,
    "The row has no cells.",
    "A row has at least one cell, ended by `\\cell`. LibreOffice loses the whole table when one of "
    "its rows has none.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\row}\n"
    "}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\\cellx8000\n"
    "\\pard\\intbl a\\cell b\\cell\\row}\n"
    "}\n",
    "")

QUORVANE_DIAGNOSTIC(FallingEdge, "falling-edge", Warning, Rtf,
    "The edge {0} is not to the right of the one before, {1}.",
    "The right edges of a row's cells rise from left to right. Where one does not, readers give "
    "the cell a width of their own.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\\cellx4000\n"
    "\\pard\\intbl a\\cell b\\cell\\row}\n"
    "}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\\cellx8000\n"
    "\\pard\\intbl a\\cell b\\cell\\row}\n"
    "}\n",
    "")

QUORVANE_DIAGNOSTIC(UnendedRow, "unended-row", Error, Rtf,
    "The row that begins here is not ended.",
    "Cells that no `\\row` follows are in no row. Readers lose them, or the table.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\\cellx8000\n"
    "\\pard\\intbl a\\cell b\\cell}\n"
    "}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\\cellx8000\n"
    "\\pard\\intbl a\\cell b\\cell\\row}\n"
    "}\n",
    "")

QUORVANE_DIAGNOSTIC(SectionInRow, "section-in-row", Warning, Rtf,
    "A section ends within the row.",
    "`\\sect` stands between rows or outside the table. Within a row, LibreOffice makes two tables "
    "of one.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\n"
    "\\pard\\intbl a\\sect b\\cell\\row}\n"
    "}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\trowd\\cellx4000\n"
    "\\pard\\intbl a b\\cell\\row}\n"
    "\\sect}\n",
    "")

QUORVANE_DIAGNOSTIC(UnknownFont, "unknown-font", Warning, Rtf,
    "The font {0} is not in the font table.",
    "`\\f` and `\\af` name a font by its number in the font table, which stands before. Readers "
    "show the text in another font. Each number is reported once.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "\\f3 Total}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "\\f0 Total}\n",
    "")

QUORVANE_DIAGNOSTIC(UnknownColor, "unknown-color", Warning, Rtf,
    "The color {0} is not in the color table.",
    "Colors are named by their number in the color table: the empty entry at its beginning is "
    "number 0. Readers show the color that they have for text without one. Each number is reported "
    "once.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\colortbl;\\red255\\green0\\blue0;}\n"
    "\\cf2 Total}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\colortbl;\\red255\\green0\\blue0;}\n"
    "\\cf1 Total}\n",
    "")

QUORVANE_DIAGNOSTIC(UnknownStyle, "unknown-style", Warning, Rtf,
    "The style {0} is not in the stylesheet.",
    "`\\s`, `\\cs`, `\\ds` and `\\ts` name a style by its number in the list of styles. The "
    "paragraph style 0 is always there. Readers go without the style. Each number is reported once.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\stylesheet{\\s1 sum;}}\n"
    "\\pard\\s2 Total}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\stylesheet{\\s1 sum;}}\n"
    "\\pard\\s1 Total}\n",
    "")

QUORVANE_DIAGNOSTIC(DuplicateFont, "duplicate-font", Warning, Rtf,
    "The font {0} is in the font table already, with another definition.",
    "Each font has a number of its own. Readers differ in which of the two they take. The same "
    "font may stand there twice.",
    "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f0 Verdana;}} Total}\n",
    "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Verdana;}} Total}\n",
    "")

QUORVANE_DIAGNOSTIC(DuplicateStyleNumber, "duplicate-style-number", Warning, Rtf,
    "The style {0} is in the stylesheet already.",
    "Each paragraph style and each character style has a number of its own kind. Readers differ in "
    "which of the two they take. The rows of a table style repeat its number.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\stylesheet{\\s1 sum;}{\\s1 total;}} Total}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\stylesheet{\\s1 sum;}{\\s2 total;}} Total}\n",
    "")

QUORVANE_DIAGNOSTIC(UnknownDestination, "unknown-destination", Warning, Rtf,
    "{0} is no known destination and not marked with \\*.",
    "A group that begins with a control word that readers may not know is marked with `\\*`, so "
    "that they pass over it. Without the mark they ignore the word and show what the group holds. "
    "Each word is reported once.",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\ourdata 4711}Total}\n",
    "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\n"
    "{\\*\\ourdata 4711}Total}\n",
    "")

// clang-format on

#undef QUORVANE_DIAGNOSTIC
