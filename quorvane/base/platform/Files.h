#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quorvane {

/// A file that is being written. Destroying it closes it and reports no error; a file that was made
/// and that `close` did not end is removed then, so that none is there in part.
class OutputFile {
public:
    virtual ~OutputFile() = default;
    /// Appends the bytes. Errors: 61 disk full, 57 any other failure.
    virtual void write(std::string_view bytes) = 0;
    /// Ends the writing; what was buffered is written now. Errors as `write`.
    virtual void close() = 0;
};

/// The files that the library reads and writes. Paths are UTF-8. What fails is an `RtfError` whose
/// `cause`, where the system gave one, has the system's own number and text.
///
/// `CRtfDoc::Commit` calls them while it renders the document: a call that would change the
/// document, render it or write it is then error 5.
class Files {
public:
    virtual ~Files() = default;

    /// True when a file or folder of that path exists, or, for a file name with the wildcards * and
    /// ?, when anything matches it. Never fails.
    virtual bool fileExists(const std::string& path) = 0;

    /// All bytes of a file, or of a pipe until its end. Errors: 53 no such file, 76 no such folder,
    /// 75 it is a folder or a device or may not be read, 67 too many open files, 57 anything else.
    virtual std::string readFile(const std::string& path) = 0;

    /// Removes a file; wildcards are letters like any other. Errors: 53, 76, 75 when it is held
    /// open, is a folder, a device or a pipe, or may not be removed, 57 anything else.
    virtual void deleteFile(const std::string& path) = 0;

    /// Opens a file for writing from its first byte; it is made when missing, and not shortened
    /// when it is there. Errors: 75 not permitted, held open or a folder, 76 no such folder, 61
    /// disk full, 67 too many open files, 57 anything else.
    virtual std::unique_ptr<OutputFile> createFile(const std::string& path) = 0;

    /// Opens a file that appears under its name with `close`, whole, in the place of the one that
    /// was there, whose permissions it takes. Until then the bytes are in a file beside it, which
    /// is removed when the writing fails or ends without `close`. A symbolic link is followed; a
    /// device or a pipe is written as it is. Errors as `createFile`, and 75 for a file that may not
    /// be written.
    virtual std::unique_ptr<OutputFile> replaceFile(const std::string& path) = 0;
};

}  // namespace quorvane
