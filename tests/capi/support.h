#pragma once

#include <quorvane.h>

#include <memory>
#include <string>
#include <system_error>

namespace quorvane::capi {

/// The reasons of the system for a file that does not exist, and for one in a folder that does not.
#ifdef _WIN32
inline const std::string noFile = std::system_category().message(2);
inline const std::string noFolder = std::system_category().message(3);
#else
inline const std::string noFile = "No such file or directory";
inline const std::string noFolder = noFile;
#endif

struct Release {
    void operator()(quorvane_job* job) const { quorvane_job_free(job); }
    void operator()(quorvane_table* table) const { quorvane_table_free(table); }
    void operator()(quorvane_document* document) const { quorvane_document_free(document); }
};

using JobHandle = std::unique_ptr<quorvane_job, Release>;
using TableHandle = std::unique_ptr<quorvane_table, Release>;
using DocumentHandle = std::unique_ptr<quorvane_document, Release>;

inline JobHandle newJob() {
    quorvane_job* job = nullptr;
    quorvane_job_new(&job);
    return JobHandle(job);
}

inline TableHandle newTable() {
    quorvane_table* table = nullptr;
    quorvane_table_new(&table);
    return TableHandle(table);
}

inline DocumentHandle newDocument() {
    quorvane_document* document = nullptr;
    quorvane_document_new(&document);
    return DocumentHandle(document);
}

/// Runs a call that returns a text, and releases that; "<none>" if the call fails.
template <class Call>
std::string textOf(Call call) {
    char* bytes = nullptr;
    std::size_t length = 0;
    if (call(&bytes, &length) != QUORVANE_OK) {
        return bytes || length != 0 ? "<failed with a text>" : "<none>";
    }
    const std::string text = bytes[length] == '\0' ? std::string(bytes, length) : "<no zero byte>";
    quorvane_free(bytes);
    return text;
}

/// "wrong-value: The message", with the file and the place before it if there are any.
inline std::string errorText(const quorvane_error* error) {
    std::string text = error->file;
    text += error->line ? ":" + std::to_string(error->line) : "";
    text += error->column ? ":" + std::to_string(error->column) : "";
    return text + (text.empty() ? "" : ": ") + error->identifier + ": " + error->message;
}

/// Takes what a callback gets. It can stop.
struct Received {
    std::string bytes{};
    int calls = 0;
    int result = 0;

    static int write(void* user, const char* bytes, std::size_t length) {
        auto* const received = static_cast<Received*>(user);
        received->bytes.append(bytes, length);
        ++received->calls;
        return received->result;
    }
};

}  // namespace quorvane::capi
