#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Files.h"
#include "quorvane/base/platform/UnfinishedFileWatch.h"

/// What the command needs from the operating system beyond the library's platform. Errors have the
/// numbers of the platform's; their cause is what the system said. Paths are UTF-8.
namespace quorvane::cli {

/// Readies the process: a pipe that nobody reads and a file that may not grow do not end it at
/// once, a signal that ends it takes the unfinished files along, and no file that it opens can take
/// the place of a standard stream that was closed.
void prepareProcess();

/// Columns of the terminal that standard error is; 0 when it is not a terminal.
int standardErrorColumns();

/// True when standard output is a terminal that understands control sequences.
bool standardOutputIsTerminal();

/// Writes to standard error, without a buffer. What cannot be written is lost.
void writeToStandardError(std::string_view text) noexcept;

/// Reads as many bytes of standard input as are there, and at most those that the block has room
/// for; 0 at its end. Errors: 75 when it is a folder, 57 when it is closed or fails.
std::size_t readStandardInput(std::span<char> block);

/// All bytes of standard input. Errors as above.
std::string readStandardInput();

/// Thrown when nobody reads standard output any more. It is not an error: the reader has seen
/// enough.
class ClosedPipe {};

/// Standard output, for bytes as they are. Its members throw `ClosedPipe` where it is a pipe that
/// nobody reads.
std::unique_ptr<OutputFile> openStandardOutput();

/// Opens a file in the folder for temporary files, for bytes that are written and read again. It
/// goes with the process, however that ends, and with the stream. Null and `errno` if that fails.
std::FILE* openTemporaryFile(const std::filesystem::path& folder);

/// Lets the end of the process take unfinished files along (see `openReplacement`).
UnfinishedFileWatch& unfinishedFileWatch();

/// One spelling for all that the system accepts as the path of a file: in capitals where it ignores
/// case.
std::filesystem::path systemSpelling(const std::filesystem::path& path);

}  // namespace quorvane::cli
