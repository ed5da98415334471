#include "quorvane/compose/PageLayout.h"

#include <algorithm>
#include <string>

#include "quorvane/docmodel/InnerDocument.h"
#include "quorvane/docmodel/InnerRow.h"
#include "quorvane/docmodel/InnerRows.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/columnLayout.h"
#include "quorvane/driver/extendedPage.h"

namespace quorvane {

namespace {

std::int32_t marginOf(const Length& length) {
    // The document takes no margin of 0, as in a description.
    return std::max(1, lengthFrom(0, std::to_string(length.twips())));
}

}  // namespace

PageLayout::Page& PageLayout::page() {
    if (!page_) {
        page_ = documentPage();
    }
    return *page_;
}

PageLayout::Page PageLayout::documentPage() const {
    return {.size = {document_.PageWidth(), document_.PageHeight()},
            .left = document_.LeftMargin(),
            .right = document_.RightMargin(),
            .top = document_.TopMargin(),
            .bottom = document_.BottomMargin()};
}

void PageLayout::setPaper(const PageSize& size) {
    page().size = size;
}

void PageLayout::setMargins(Length left, Length right, Length top, Length bottom) {
    const Page margins{.size = {},
                       .left = marginOf(left),
                       .right = marginOf(right),
                       .top = marginOf(top),
                       .bottom = marginOf(bottom)};
    const PageSize size = page().size;
    page() = margins;
    page().size = size;
}

PageLayout::Widths PageLayout::widthsOf(std::span<const Width> widths) {
    Widths columns;
    columns.reserve(widths.size());
    for (const Width& width : widths) {
        if (width.kind_ == Width::Kind::Automatic) {
            columns.emplace_back();
        } else {
            columns.push_back(ColumnWidth{width.amount_, width.kind_ == Width::Kind::Percent});
        }
    }
    return columns;
}

void PageLayout::setColumns(std::span<const Width> widths) {
    columns_ = widthsOf(widths);
    hasNewColumns_ = true;
}

void PageLayout::setColumns(CRtfTableRow& row, std::span<const Width> widths) {
    RowColumns columns{Ref<CRtfTableRow>(&row), widthsOf(widths)};
    newRows_.push_back(&row);
    rows_.insert_or_assign(&row, std::move(columns));
}

void PageLayout::forget(const CRtfTableRow& row) {
    rows_.erase(&row);
}

void PageLayout::apply() {
    if (page_) {
        applyPage();
    }
    applyColumns();
    page_.reset();
    hasNewColumns_ = false;
    newRows_.clear();
}

void PageLayout::applyPage() {
    const Page before = documentPage();
    setPage(*page_);
    const Page now = documentPage();
    const bool hasMargins = now.left == page_->left && now.right == page_->right &&
                            now.top == page_->top && now.bottom == page_->bottom;
    if (!hasMargins || !hasTextArea(document_)) {
        setPage(before);
        throw LeafError(DriverFault::WrongValue,
                        "The margins leave no room on the page; make them smaller");
    }
    spreadRows();
}

/// A margin is checked against the opposite one, which may not be the final one yet.
void PageLayout::setPage(const Page& page) {
    document_.setLeftMargin(1);
    document_.setRightMargin(1);
    document_.setTopMargin(1);
    document_.setBottomMargin(1);
    document_.setPageWidth(page.size.width);
    document_.setPageHeight(page.size.height);
    document_.setLeftMargin(page.left);
    document_.setRightMargin(page.right);
    document_.setTopMargin(page.top);
    document_.setBottomMargin(page.bottom);
}

/// The cells that no columns give a width share the new text area.
void PageLayout::spreadRows() {
    for (InnerRow* row : inner(*document_.TableRows()).list()) {
        if (row->cells().list().count() > 0) {
            row->cells().spreadEvenly();
        }
    }
}

/// Shares of another text area are other widths.
void PageLayout::applyColumns() {
    if (columns_ && (page_ || hasNewColumns_)) {
        document_.setColumnWidths(columnLayout(*columns_, columnSpaceOf(document_)));
    }
    if (page_) {
        for (const auto& [row, columns] : rows_) {
            apply(columns);
        }
        return;
    }
    for (const CRtfTableRow* row : newRows_) {
        if (const auto columns = rows_.find(row); columns != rows_.end()) {
            apply(columns->second);
        }
    }
}

void PageLayout::apply(const RowColumns& columns) {
    columns.row->setColumnWidths(columnLayout(columns.widths, columnSpaceOf(document_)));
}

}  // namespace quorvane
