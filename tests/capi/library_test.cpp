#include <gtest/gtest.h>
#include <quorvane.h>

namespace {

TEST(Library, HasTheVersionOfItsHeader) {
    EXPECT_STREQ(quorvane_version(), "1.0.0");
    EXPECT_EQ(QUORVANE_VERSION_MAJOR, 1);
    EXPECT_EQ(QUORVANE_VERSION_MINOR, 0);
    EXPECT_EQ(QUORVANE_VERSION_PATCH, 0);
}

TEST(Library, KnowsItsFeatures) {
    EXPECT_EQ(quorvane_has_feature(QUORVANE_TEXT("extended-language")), 1);
    EXPECT_EQ(quorvane_has_feature(QUORVANE_TEXT("templates")), 1);
    EXPECT_EQ(quorvane_has_feature(QUORVANE_TEXT("tables")), 1);
    EXPECT_EQ(quorvane_has_feature(QUORVANE_TEXT("documents")), 1);
    EXPECT_EQ(quorvane_has_feature(QUORVANE_TEXT("data-tables")), 1);
}

TEST(Library, HasNoOtherFeature) {
    EXPECT_EQ(quorvane_has_feature(QUORVANE_TEXT("flying")), 0);
    EXPECT_EQ(quorvane_has_feature("tables", 5), 0);
    EXPECT_EQ(quorvane_has_feature(nullptr, 0), 0);
    EXPECT_EQ(quorvane_has_feature(nullptr, 7), 0);
}

TEST(Library, NamesEachStatus) {
    EXPECT_STREQ(quorvane_status_name(QUORVANE_OK), "ok");
    EXPECT_STREQ(quorvane_status_name(QUORVANE_WRONG_CALL), "wrong call");
    EXPECT_STREQ(quorvane_status_name(QUORVANE_OUT_OF_MEMORY), "out of memory");
    EXPECT_STREQ(quorvane_status_name(QUORVANE_WRONG_CONTENT), "wrong content");
    EXPECT_STREQ(quorvane_status_name(QUORVANE_FILE_ERROR), "file error");
    EXPECT_STREQ(quorvane_status_name(QUORVANE_STOPPED), "stopped");
    EXPECT_STREQ(quorvane_status_name(QUORVANE_INTERNAL_ERROR), "internal error");
}

TEST(Library, ReleasesNull) {
    quorvane_free(nullptr);
    quorvane_job_free(nullptr);
    quorvane_table_free(nullptr);
    quorvane_document_free(nullptr);
    EXPECT_EQ(quorvane_job_diagnostic_count(nullptr), 0U);
}

}  // namespace
