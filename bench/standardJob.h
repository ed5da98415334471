#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "quorvane/compose/Document.h"
#include "quorvane/docmodel/CRtfDoc.h"

namespace quorvane::bench {

// The standard job: rows of five cells of one paragraph of 24 characters, thin borders everywhere,
// a background color on every second row, one of three paragraph styles a row, one bold word a row.

inline constexpr std::int32_t cellsPerRow = 5;
inline constexpr std::size_t characterCount = 24;

/// The stylesheet of the standard job: three paragraph styles and one character style.
std::string_view standardStyleSheet();

/// A description of 999 rows of one cell of one paragraph, for that stylesheet.
std::string fullDescription();

/// Builds the rows of the standard job through the object model.
void buildStandardRows(CRtfDoc& document, std::int32_t rows);

/// Builds the same rows through the modern interface.
void buildStandardRows(Document& document, std::int32_t rows);

/// A document of the standard job, not rendered yet.
Ref<CRtfDoc> standardDocument(std::int32_t rows);

/// The same document, built through the modern interface.
Document modernStandardDocument(std::int32_t rows);

/// The job in a document that the modern interface makes, which is checked and escaped.
Document ownStandardDocument(std::int32_t rows);

/// The yardstick: writes the standard job's document by a program that knows it beforehand, into
/// one buffer.
std::string emitStandardJob(std::int32_t rows);

/// The same through a buffer of about 64 KB that is handed on whenever it is full.
void streamStandardJob(std::int32_t rows, const std::function<void(std::string_view)>& write);

}  // namespace quorvane::bench
