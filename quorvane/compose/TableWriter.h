#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>
#include <span>
#include <string_view>

#include "quorvane/base/platform/Files.h"
#include "quorvane/compose/TableSetup.h"

namespace quorvane {

/// Writes a document with one table, row by row: each is rendered and forgotten, so that a table
/// of any length takes the same memory. The document is the one that the extended language makes of
/// the same table.
///
///     TableSetup setup{.columns = {{"Article"}, {.heading = "Price", .align = eRight}}};
///     TableWriter writer(setup, systemPlatform().replaceFile("prices.rtf"));
///     writer.addRow({{"Vase", "12.50"}});
///     writer.finish();
///
/// Texts are UTF-8 and are shown exactly as they are. A wrong row changes nothing, and the next one
/// can be added. After an error of the file or the stream the document cannot be continued.
class TableWriter {
public:
    /// Takes the bytes of the document, piece by piece.
    using Sink = std::function<void(std::string_view bytes)>;

    /// Begins a document. Error 5 for a setup that does not fit together, such as an unknown page
    /// or columns wider than it; 445 and 31037 for a wrong stylesheet.
    TableWriter(const TableSetup& setup, Sink sink);
    /// Does the same with a stream, which must outlive the writer. A stream that fails is error 57.
    TableWriter(const TableSetup& setup, std::ostream& stream);
    /// Does the same with a file, which `finish` closes. If the writer is destroyed before, the
    /// file is not closed either, and `Files::replaceFile` then leaves the one that was there.
    TableWriter(const TableSetup& setup, std::unique_ptr<OutputFile> file);
    ~TableWriter();

    /// Adds a row. Cells that are missing at the end are empty. Error 5 for more cells than
    /// columns, for a text that no document can show (see `findUnshowable`), and after the end.
    void addRow(std::span<const std::string_view> cells);
    /// Adds a heading for the rows after it, in one cell as wide as the table. It stays on the page
    /// of the next row. Errors as for `addRow`.
    void addGroup(std::string_view heading);
    /// Adds such a heading and the first row below it; neither of them if one is wrong.
    void addGroup(std::string_view heading, std::span<const std::string_view> cells);
    /// Adds a row in the style of totals. Errors as for `addRow`.
    void addTotal(std::span<const std::string_view> cells);

    /// Ends the document. Without it the document is not whole.
    void finish();

private:
    class Inner;

    std::unique_ptr<Inner> inner_;
};

}  // namespace quorvane
