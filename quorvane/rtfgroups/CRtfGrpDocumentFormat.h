#pragma once

#include <cstdint>

#include "quorvane/base/text/TextOutput.h"
#include "quorvane/rtfgroups/GroupOwner.h"

namespace quorvane {

/// The page setup: all measures in twips. A setter never fails: a margin is taken when it is at
/// least 1 and less than nine tenths of the paper less the opposite margin; otherwise a small
/// number takes its place (bottom 0, left 1, top 2, right 3). Margins and first page number mark
/// the document changed when their value changes, the paper sizes always.
class CRtfGrpDocumentFormat {
public:
    explicit CRtfGrpDocumentFormat(GroupOwner& owner) : owner_(owner) {}

    /// Default 1418; a margin that does not fit becomes 0.
    std::int32_t BottomMargin() const { return bottomMargin_; }
    void setBottomMargin(std::int32_t twips);

    /// Default 1701; a margin that does not fit becomes 1.
    std::int32_t LeftMargin() const { return leftMargin_; }
    void setLeftMargin(std::int32_t twips);

    /// Default 1418; a margin that does not fit becomes 2.
    std::int32_t TopMargin() const { return topMargin_; }
    void setTopMargin(std::int32_t twips);

    /// Default 1701; a margin that does not fit becomes 3.
    std::int32_t RightMargin() const { return rightMargin_; }
    void setRightMargin(std::int32_t twips);

    /// Number of the first page. Default 2; a number below 1 becomes 2.
    std::int32_t PageNumberStart() const { return pageNumberStart_; }
    void setPageNumberStart(std::int32_t number);

    /// Default 12242. Any value is taken; the margins stay as they are.
    std::int32_t PaperWidth() const { return paperWidth_; }
    void setPaperWidth(std::int32_t twips);

    /// Default 15842. Any value is taken; the margins stay as they are.
    std::int32_t PaperHeight() const { return paperHeight_; }
    void setPaperHeight(std::int32_t twips);

    /// Writes the group's text.
    void render(TextOutput& rtf) const;

    /// Writes the words for a section that begins with a page and numbers its pages anew.
    void renderSection(TextOutput& rtf) const;

private:
    void change(std::int32_t& setting, std::int32_t value);

    GroupOwner& owner_;
    std::int32_t bottomMargin_ = 1418;
    std::int32_t leftMargin_ = 1701;
    std::int32_t topMargin_ = 1418;
    std::int32_t rightMargin_ = 1701;
    std::int32_t pageNumberStart_ = 2;
    std::int32_t paperWidth_ = 12242;
    std::int32_t paperHeight_ = 15842;
};

}  // namespace quorvane
