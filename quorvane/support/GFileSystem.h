#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "quorvane/base/platform/Files.h"
#include "quorvane/support/GError.h"

/// File helpers. Paths and texts are UTF-8; files are Windows-1252, in both directions.
namespace quorvane::GFileSystem {

/// Saves the text in a file of that path. An existing file is deleted first; with `keepExisting` it
/// is left untouched instead. False when the existing file cannot be deleted: the error goes to the
/// error module and is then still the thread's current error, 75 when another program holds the
/// file open or when the path is a folder. A failure to create or write the new file goes to the
/// error module only (see `saveString`), and the result is true.
bool saveStringToFile(Files& files, GError& errors, const std::string& path, std::string_view text,
                      bool keepExisting);

/// Does the same, and returns the error for which `saveStringToFile` is false.
std::optional<RtfError> errorOfSaving(Files& files, GError& errors, const std::string& path,
                                      std::string_view text, bool keepExisting);

/// Writes the text into the file from its first byte; the file is made when it is missing. A
/// character that Windows-1252 does not have becomes "?". Errors go to the error module; a file
/// that was made is removed again, and one that was there keeps what was written before the
/// failure. The file is not shortened first: what lies after the text in a longer file stays too.
void saveString(Files& files, GError& errors, const std::string& path, std::string_view text);

/// True when a file or folder of that path exists, or, for a file name with the wildcards * and ?,
/// when anything matches it. Never fails.
bool fileExists(Files& files, const std::string& path);

/// The whole text of a file, or "" when it is empty, missing or cannot be read. Raises nothing and
/// leaves the thread's current error as it was.
std::string loadStringFromFile(Files& files, const std::string& path);

/// The part of a path after the last separator or, without `takeAfter`, the part up to and with it;
/// "" when the separator does not occur. The path is trimmed first and loses one "\" at its end,
/// whatever the separator is. A separator that is not one character occurs nowhere.
std::string getPathTail(std::string_view path, std::string_view separator, bool takeAfter);

/// What follows the last point of a path; "" when it has none. Folders count too: "a.b\c" has the
/// extension "b\c".
std::string getFileExtension(std::string_view path);

}  // namespace quorvane::GFileSystem
