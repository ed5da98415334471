#include <gtest/gtest.h>
#include <quorvane.h>
#include <windows.h>

#include <string>
#include <system_error>

#include "tests/capi/support.h"
#include "tests/com/host/Process.h"
#include "tests/com/host/text.h"

// Paths are UTF-8, whatever the code page of the system is.

namespace quorvane::capi {
namespace {

using host::bytesOfFile;
using host::temporaryFile;
using host::utf8Text;
using host::writeFile;

constexpr const char* description =
    "; quorvane 2\n(doc\n(row\n(cell\n(para\n(pt=a {b})\npara)\ncell)\nrow)\ndoc)\n";

/// The name of a file that is removed when this is destroyed. No code page has all its characters.
class TemporaryPath {
public:
    explicit TemporaryPath(const std::wstring& ending)
        : path_(temporaryFile(L"\u00DCbung \u0440\u0443 \u65E5\u672C" + ending)) {}
    TemporaryPath(const TemporaryPath&) = delete;
    TemporaryPath& operator=(const TemporaryPath&) = delete;
    ~TemporaryPath() { DeleteFileW(path_.c_str()); }

    std::string text() const { return utf8Text(path_); }
    std::string bytes() const { return bytesOfFile(path_); }
    void write(const std::string& bytes) const { writeFile(path_, bytes); }
    const std::wstring& wide() const { return path_; }

private:
    std::wstring path_;
};

std::string rtfOf(const DocumentHandle& document) {
    return textOf([&](char** bytes, size_t* length) {
        return quorvane_document_rtf(document.get(), bytes, length);
    });
}

DocumentHandle smallDocument() {
    DocumentHandle document = newDocument();
    const char* const texts[] = {"a", "b"};
    quorvane_document_add_row(document.get(), texts, nullptr, 2, nullptr, 0, nullptr);
    return document;
}

quorvane_status save(const DocumentHandle& document, const TemporaryPath& path) {
    return quorvane_document_save(document.get(), QUORVANE_TEXT(path.text().c_str()));
}

TEST(Paths, OfSavedDocumentsHaveAnyCharacters) {
    const TemporaryPath path(L".rtf");
    const DocumentHandle document = smallDocument();
    EXPECT_EQ(save(document, path), QUORVANE_OK);
    EXPECT_EQ(path.bytes(), rtfOf(document));
}

TEST(Paths, OfRenderedDocumentsHaveAnyCharacters) {
    const TemporaryPath path(L".rtf");
    const JobHandle job = newJob();
    EXPECT_EQ(quorvane_job_render_file(job.get(), QUORVANE_TEXT(description),
                                       QUORVANE_TEXT(path.text().c_str())),
              QUORVANE_OK);
    EXPECT_EQ(path.bytes(), textOf([&](char** bytes, size_t* length) {
                  return quorvane_job_render(job.get(), QUORVANE_TEXT(description), bytes, length);
              }));
}

TEST(Paths, OfTablesHaveAnyCharacters) {
    const TemporaryPath path(L".rtf");
    const char* const texts[] = {"a"};
    const auto finish = [&](const TableHandle& table) {
        quorvane_table_add_row(table.get(), texts, nullptr, 1);
        return quorvane_table_finish(table.get());
    };
    const TableHandle inFile = newTable();
    quorvane_table_add_column(inFile.get(), nullptr, 0, nullptr, 0, QUORVANE_ALIGN_DEFAULT);
    EXPECT_EQ(quorvane_table_begin_file(inFile.get(), QUORVANE_TEXT(path.text().c_str())),
              QUORVANE_OK);
    EXPECT_EQ(finish(inFile), QUORVANE_OK);

    const TableHandle inMemory = newTable();
    quorvane_table_add_column(inMemory.get(), nullptr, 0, nullptr, 0, QUORVANE_ALIGN_DEFAULT);
    EXPECT_EQ(quorvane_table_begin(inMemory.get()), QUORVANE_OK);
    EXPECT_EQ(finish(inMemory), QUORVANE_OK);
    EXPECT_EQ(path.bytes(), textOf([&](char** bytes, size_t* length) {
                  return quorvane_table_take(inMemory.get(), bytes, length);
              }));
}

TEST(Paths, OfPicturesHaveAnyCharacters) {
    const std::string logo = bytesOfFile(host::testSource(L"..\\..\\examples\\parts-logo.png"));
    const TemporaryPath path(L".png");
    path.write(logo);
    const DocumentHandle ofFile = smallDocument();
    EXPECT_EQ(
        quorvane_paragraph_set_picture_file(
            ofFile.get(), 0, 0, 0, QUORVANE_TEXT(path.text().c_str()), nullptr, 0, nullptr, 0),
        QUORVANE_OK);
    const DocumentHandle ofBytes = smallDocument();
    EXPECT_EQ(quorvane_paragraph_set_picture(ofBytes.get(), 0, 0, 0, logo.data(), logo.size(),
                                             nullptr, 0, nullptr, 0),
              QUORVANE_OK);
    EXPECT_NE(rtfOf(ofFile).find("\\pict"), std::string::npos);
    EXPECT_EQ(rtfOf(ofFile), rtfOf(ofBytes));
}

TEST(Paths, OfDescriptionsAndTheirPartialsHaveAnyCharacters) {
    const TemporaryPath partial(L".rtfpart");
    partial.write("(row\n(cell\n(para\n(pt=from the partial)\npara)\ncell)\nrow)\n");
    const std::string file = partial.text();
    const std::size_t name = file.find_last_of('\\') + 1;
    const std::string path = file.substr(0, name) + "\xC3\x9C.rtfspec";
    const std::string text = "; quorvane 2\n(doc\n{{> " +
                             file.substr(name, file.size() - name - std::size(".rtfpart") + 1) +
                             "}}\ndoc)\n";
    const JobHandle job = newJob();
    quorvane_job_set_path(job.get(), path.data(), path.size());
    quorvane_job_set_data(job.get(), QUORVANE_TEXT("{}"), nullptr, 0);
    EXPECT_NE(textOf([&](char** bytes, size_t* length) {
                  return quorvane_job_render(job.get(), text.data(), text.size(), bytes, length);
              }).find("from the partial"),
              std::string::npos)
        << errorText(quorvane_job_error(job.get()));
}

TEST(Paths, AreNamedInErrorsWithTheReasonOfTheSystem) {
    const TemporaryPath path(L".rtf");
    path.write("as it was");
    const HANDLE held = CreateFileW(path.wide().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    const DocumentHandle document = smallDocument();
    EXPECT_EQ(save(document, path), QUORVANE_FILE_ERROR);
    CloseHandle(held);
    EXPECT_EQ(errorText(quorvane_document_error(document.get())),
              path.text() +
                  ": unwritable-file: " + std::system_category().message(ERROR_SHARING_VIOLATION));
    EXPECT_EQ(path.bytes(), "as it was");
}

}  // namespace
}  // namespace quorvane::capi
