#pragma once

#include <string>
#include <utility>

#include "cli/CommandPlatform.h"
#include "cli/TemporaryFile.h"
#include "quorvane/docmodel/CRtfDoc.h"
#include "quorvane/docmodel/JoinedSections.h"

namespace quorvane::cli {

/// One document of many, which appears when all are there. Memory holds one of them.
class JoinedDocument {
public:
    /// The platform must outlive the document. Raises an error if there can be no temporary file.
    JoinedDocument(std::string path, CommandPlatform& platform)
        : path_(std::move(path)), platform_(platform) {}

    const std::string& path() const noexcept { return path_; }

    /// See `JoinedSections::prepare`.
    void prepare(CRtfDoc& document) { sections_.prepare(document); }

    /// Adds a document on a page of its own. Raises what rendering raises, and what writing a file
    /// raises: nothing can be added then.
    void add(CRtfDoc& document);

    /// True after a failure of the temporary file.
    bool isBroken() const noexcept { return isBroken_; }

    /// Writes the file. At least one document was added. Errors as those of writing a file.
    void finish();

private:
    std::string path_;
    CommandPlatform& platform_;
    JoinedSections sections_;
    TemporaryFile texts_;
    bool isBroken_ = false;
};

}  // namespace quorvane::cli
