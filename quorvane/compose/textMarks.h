#pragma once

namespace quorvane {

/// What marks the parts of a `Text`: a byte that UTF-8 never has, and the kind of the part. A name,
/// words and raw RTF go up to the next mark, which ends them.
namespace textMarks {

inline constexpr char mark = '\xFF';
/// The byte itself, in a text that is not UTF-8.
inline constexpr char byte = 'b';
/// Raw RTF.
inline constexpr char raw = 'r';
/// A group begins: the name of its character style, or its control words.
inline constexpr char style = 's';
inline constexpr char words = 'w';
/// The last name, words or raw RTF ends.
inline constexpr char endOfName = 'n';
/// The last group ends.
inline constexpr char end = 'e';

}  // namespace textMarks

}  // namespace quorvane
