#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/rtf/RtfReferences.h"
#include "quorvane/diagnostics/rtf/RtfTableCheck.h"
#include "quorvane/rtf/RtfGroup.h"
#include "quorvane/rtf/RtfLexer.h"

namespace quorvane {

/// What `RtfCheck` does, with its state.
class RtfChecker {
public:
    /// Diagnostics come in the order in which they are certain, which is nearly that of their
    /// places.
    explicit RtfChecker(DiagnosticReceiver receiver) : engine_(std::move(receiver)) {}
    // Its parts refer to its engine.
    RtfChecker(const RtfChecker&) = delete;
    RtfChecker& operator=(const RtfChecker&) = delete;
    RtfChecker(RtfChecker&&) = delete;
    RtfChecker& operator=(RtfChecker&&) = delete;
    ~RtfChecker() = default;

    /// Takes the next bytes of the file.
    void feed(std::string_view bytes);

    /// Ends the file.
    void finish();

private:
    struct Group : RtfGroup {
        // True once an entry of the stylesheet has named its number.
        bool hasNumber = false;
        Place begin{};
        RtfTableCheck::Paragraph paragraph{};
    };

    void take(RtfLexer::Token token);
    void takeBeforeDocument(RtfLexer::Token token);
    void takeAfterDocument(RtfLexer::Token token);
    void followAfterDocument(RtfLexer::Token token);
    void takeText(std::string_view text);
    void takeControl();
    void takeWord();
    void takeFirstWord();
    void openGroup();
    void closeGroup();
    void reportNotRtf(const Place& place);
    /// The place so many bytes after the beginning of the token.
    Place place(std::int64_t length, std::int64_t skipped = 0) const;
    Place controlPlace() const;
    void takeRole(const RtfWord& word);
    bool isNewWord(std::string_view word);

    DiagnosticEngine engine_;
    RtfTableCheck tables_{engine_};
    RtfReferences references_{engine_};
    RtfLexer lexer_;
    std::vector<Group> groups_;
    // Groups that are nested too deep to be looked at.
    std::int64_t deeperGroups_ = 0;
    bool reportedDepth_ = false;
    bool reportedStart_ = false;
    // True after the first group has its first word, and after it is closed.
    bool hasBegun_ = false;
    bool hasEnded_ = false;
    // What follows the document: where it begins, the group at hand, how many groups are open in
    // that one if it is not shown, and whether readers lose text there.
    bool hasMore_ = false;
    Place moreBegin_;
    RtfGroup rest_{RtfDestination::Text, false, false};
    std::int64_t hiddenGroups_ = 0;
    bool hasLostText_ = false;
    // The place of the \bin whose data is being passed over.
    Place binaryPlace_;
    // The unknown words that were reported.
    std::set<std::string, std::less<>> reportedWords_;
};

}  // namespace quorvane
