#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "quorvane/base/text/codePage1252.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/CRtfTableCells.h"
#include "quorvane/docmodel/CRtfTableRow.h"
#include "quorvane/docmodel/CRtfTableRows.h"
#include "tests/fuzz/require.h"
#include "tests/support/FakePlatform.h"

namespace quorvane {

/// The number of the error that a call raises; 0 when it raises none.
template <class Call>
std::int32_t errorOfCall(Call&& call) {
    try {
        call();
    } catch (const RtfError& error) {
        return error.number;
    }
    return 0;
}

inline std::size_t occurrencesOf(std::string_view part, std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos;
         at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

/// Texts are written as they stand, so a host's own control words would be counted too.
inline bool holdsRowWords(std::string_view text) {
    return text.find("\\cell") != std::string_view::npos ||
           text.find("\\row") != std::string_view::npos ||
           text.find("\\intbl") != std::string_view::npos;
}

/// Every row has as many cell ends as cell definitions, and both as it has cells.
inline void requireBalancedRows(const CRtfDoc& document, std::string_view rtf) {
    constexpr std::string_view rowStart = "{\\intbl\\trowd";
    const Ref<CRtfTableRows> rows = document.TableRows();
    std::size_t at = rtf.find(rowStart);
    for (std::int32_t position = 1; position <= rows->Count(); ++position) {
        require(at != std::string_view::npos, "every row is written");
        const std::size_t next = rtf.find(rowStart, at + 1);
        const std::string_view row = rtf.substr(at, next - at);
        const auto cells = static_cast<std::size_t>(rows->Item(position)->TableCells()->Count());
        require(occurrencesOf("\\cellx", row) == cells, "every cell has its definition");
        require(occurrencesOf("\\cell", row) == 2 * cells, "every cell has its end");
        require(occurrencesOf("\\row}", row) == 1, "every row has its end");
        at = next;
    }
    require(at == std::string_view::npos, "no row is written that is not there");
}

/// The text of a document rendered anew, twice the same; the one before when it cannot be rendered.
inline std::string renderedTwice(CRtfDoc& document) {
    const auto render = [&document] {
        document.Refresh();
        return document.Contents();
    };
    std::string first = render();
    requireEqual(render(), first, "rendering twice gives the same text");
    return first;
}

/// A committed file holds what `Contents` returns.
inline void requireSameWhenCommitted(CRtfDoc& document, FakePlatform& platform) {
    document.Commit("committed.rtf");
    require(platform.files["committed.rtf"] == codePage1252FromUtf8(document.Contents()),
            "a committed file holds the document's text");
    require(platform.openFiles == 0, "no file stays open");
}

}  // namespace quorvane
