#include "quorvane/docmodel/layout/LaidOutRows.h"

#include <string>
#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/docmodel/layout/LayoutError.h"
#include "quorvane/docmodel/layout/TableLayout.h"

namespace quorvane {

LaidOutRows::LaidOutRows(const InnerRows& rows, TableDocument& document)
    : rows_(rows.list()),
      document_(document),
      form_(document.memory().additions->page.headingForm) {
    for (const InnerRow* row : rows_) {
        if (!row->settings().repeatsAsHeading) {
            break;
        }
        ++headings_;
    }
}

void LaidOutRows::check() const {
    std::size_t position = 0;
    try {
        checkRows(position);
    } catch (RtfError& error) {
        throw LayoutError(std::move(error), position);
    }
}

void LaidOutRows::checkRows(std::size_t& position) const {
    TableLayout layout(document_);
    for (const InnerRow* row : rows_) {
        ++position;
        const RowSettings& settings = row->settings();
        if (position > headings_ && settings.repeatsAsHeading) {
            raise(RunTimeError::InvalidProcedureCall,
                  "Row " + std::to_string(position) + " cannot repeat as a heading, because row " +
                      std::to_string(position - 1) + " does not.");
        }
        if (const std::string_view end = endsBefore(settings, position); !end.empty()) {
            layout.endPart(end);
        }
        layout.place(*row, settings);
    }
    layout.endPart("the table");
}

// What ends with the row before this one; empty if nothing does.
std::string_view LaidOutRows::endsBefore(const RowSettings& settings, std::size_t position) const {
    if (headings_ > 0 && position == headings_ + 1) {
        return "the heading";
    }
    return startsPage(settings, position) ? "a page" : "";
}

bool LaidOutRows::startsPage(const RowSettings& settings, std::size_t position) const {
    return position > headings_ + 1 && settings.startsPage;
}

// LibreOffice starts a page before a paragraph, not within a table. So the table ends, and one of
// the same columns follows.
void LaidOutRows::renderPageStart(TextOutput& out) {
    out << "\r\n\\pard\\plain\\pagebb\\fs2\\par";
}

void LaidOutRows::renderHeading(TableRendering& rendering) const {
    TableLayout layout(document_);
    std::size_t position = 0;
    for (InnerRow* row : rows_) {
        if (++position > headings_) {
            return;
        }
        const RowSettings& settings = row->settings();
        row->render(rendering, settings, layout.place(*row, settings), form_);
    }
}

void LaidOutRows::renderBody(TableRendering& rendering) const {
    TableLayout layout(document_);
    std::size_t position = 0;
    for (InnerRow* row : rows_) {
        ++position;
        if (position <= headings_ && form_ == HeadingForm::PageHeader) {
            continue;
        }
        const RowSettings& settings = row->settings();
        if (startsPage(settings, position)) {
            renderPageStart(rendering.out);
            if (form_ == HeadingForm::RowProperty) {
                renderHeading(rendering);
            }
        }
        row->render(rendering, settings, layout.place(*row, settings), form_);
        rendering.out.setProgress(position, rows_.count());
    }
}

}  // namespace quorvane
