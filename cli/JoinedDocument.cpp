#include "cli/JoinedDocument.h"

#include <memory>
#include <string_view>

#include "cli/process.h"

namespace quorvane::cli {

void JoinedDocument::add(CRtfDoc& document) {
    const std::string section = sections_.add(document);
    isBroken_ = true;
    texts_.write(section);
    isBroken_ = false;
}

void JoinedDocument::finish() {
    try {
        const std::unique_ptr<OutputFile> file = platform_.createFile(path_);
        file->write(sections_.beginning());
        texts_.read([&](std::string_view block) { file->write(block); });
        file->write(JoinedSections::end());
        file->close();
    } catch (const ClosedPipe&) {
        // Whoever read the document wanted no more of it.
    }
}

}  // namespace quorvane::cli
