#include <gtest/gtest.h>
#include <quorvane.h>

namespace {

TEST(NullHandles, AreWrongCalls) {
    EXPECT_EQ(quorvane_job_set_path(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_allow_pictures(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_set_files(nullptr, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_set_stylesheet(nullptr, nullptr, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_set_data(nullptr, nullptr, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_set_locale(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_set_encoding(nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_set_checks(nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_ignore(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_enable(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_render(nullptr, nullptr, 0, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_render_to(nullptr, nullptr, 0, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_render_file(nullptr, nullptr, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_check(nullptr, nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_format(nullptr, nullptr, 0, 0, 0, nullptr, nullptr),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_job_set_diagnostic_callback(nullptr, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_column(nullptr, nullptr, 0, nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_set(nullptr, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_fit_columns(nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_set_data(nullptr, nullptr, 0, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_set_data_file(nullptr, nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_begin(nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_begin_to(nullptr, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_begin_file(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_row(nullptr, nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_rows(nullptr, nullptr, 0, 0, 0, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_group(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_add_total(nullptr, nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_finish(nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_table_take(nullptr, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_page(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_page_size(nullptr, nullptr, 0, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_margin(nullptr, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_first_page(nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_columns(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_header(nullptr, nullptr, 0, nullptr, 0, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_footer(nullptr, nullptr, 0, nullptr, 0, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_heading_form(nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_set_stylesheet(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_add_row(nullptr, nullptr, nullptr, 0, nullptr, 0, nullptr),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_add_rows(nullptr, nullptr, 0, 0, 0, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_insert_row(nullptr, 0, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_remove_row(nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_count_rows(nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_rtf(nullptr, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_write(nullptr, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_document_save(nullptr, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_set_columns(nullptr, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_set_background(nullptr, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_set_border(nullptr, 0, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_set_heading(nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_set_keep(nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_set_keep_with_next(nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_set_page_break(nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_insert_cell(nullptr, 0, 0, nullptr, 0, nullptr, 0, nullptr),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_remove_cell(nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_row_count_cells(nullptr, 0, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_set_style(nullptr, 0, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_set_align(nullptr, 0, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_set_background(nullptr, 0, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_set_border(nullptr, 0, 0, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_set_span(nullptr, 0, 0, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_set_marked_field(nullptr, 0, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_insert_paragraph(nullptr, 0, 0, 0, nullptr, 0, nullptr, 0, nullptr),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_remove_paragraph(nullptr, 0, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_cell_count_paragraphs(nullptr, 0, 0, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_set_text(nullptr, 0, 0, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_add_text(nullptr, 0, 0, 0, nullptr, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_add_styled_text(nullptr, 0, 0, 0, nullptr, 0, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_add_rtf(nullptr, 0, 0, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_rtf(nullptr, 0, 0, 0, nullptr, nullptr), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_set_style(nullptr, 0, 0, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_set_color(nullptr, 0, 0, 0, nullptr, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_set_align(nullptr, 0, 0, 0, 0), QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_set_marked_field(nullptr, 0, 0, 0, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(quorvane_paragraph_set_picture(nullptr, 0, 0, 0, nullptr, 0, nullptr, 0, nullptr, 0),
              QUORVANE_WRONG_CALL);
    EXPECT_EQ(
        quorvane_paragraph_set_picture_file(nullptr, 0, 0, 0, nullptr, 0, nullptr, 0, nullptr, 0),
        QUORVANE_WRONG_CALL);
}

TEST(NullHandles, HaveAnError) {
    for (const quorvane_error* const error :
         {quorvane_job_error(nullptr), quorvane_table_error(nullptr),
          quorvane_document_error(nullptr)}) {
        EXPECT_EQ(error->status, QUORVANE_WRONG_CALL);
        EXPECT_STREQ(error->identifier, "wrong-call");
        EXPECT_STREQ(error->message, "The handle is null.");
    }
    EXPECT_STREQ(quorvane_job_error_text(nullptr), "The handle is null.");
    EXPECT_STREQ(quorvane_table_error_text(nullptr), "The handle is null.");
    EXPECT_STREQ(quorvane_document_error_text(nullptr), "The handle is null.");
    EXPECT_EQ(quorvane_job_diagnostic(nullptr, 0), nullptr);
    EXPECT_EQ(quorvane_table_diagnostic_count(nullptr), 0U);
    EXPECT_EQ(quorvane_table_diagnostic(nullptr, 0), nullptr);
}

}  // namespace
