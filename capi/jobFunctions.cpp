#include <quorvane.h>

#include <optional>
#include <string>

#include "capi/HandleError.h"
#include "capi/Job.h"
#include "capi/arguments.h"
#include "capi/documentOutput.h"
#include "capi/guarded.h"
#include "capi/guardedText.h"

struct quorvane_job {
    quorvane::capi::Job job{};
    quorvane::capi::HandleError error{};
};

namespace {

using namespace quorvane;
using namespace quorvane::capi;

std::optional<CheckedLanguage> languageArgument(int language) {
    switch (enumArgument(language, QUORVANE_RTF, "language")) {
        case QUORVANE_DESCRIPTION:
            return CheckedLanguage::Description;
        case QUORVANE_STYLESHEET:
            return CheckedLanguage::StyleSheet;
        case QUORVANE_RTF:
            return CheckedLanguage::Rtf;
        default:
            return std::nullopt;
    }
}

EncodingChoice encodingArgument(int encoding) {
    switch (enumArgument(encoding, QUORVANE_ANY_ENCODING, "encoding")) {
        case QUORVANE_WINDOWS_1252:
            return EncodingChoice::Windows1252;
        case QUORVANE_ANY_ENCODING:
            return EncodingChoice::Auto;
        default:
            return EncodingChoice::Utf8;
    }
}

NameForm namesArgument(int names) {
    switch (enumArgument(names, QUORVANE_NAMES_SHORT, "names")) {
        case QUORVANE_NAMES_LONG:
            return NameForm::Long;
        case QUORVANE_NAMES_SHORT:
            return NameForm::Short;
        default:
            return NameForm::Kept;
    }
}

}  // namespace

quorvane_status quorvane_job_new(quorvane_job** job) {
    return makeHandle(job);
}

void quorvane_job_free(quorvane_job* job) {
    delete job;
}

const quorvane_error* quorvane_job_error(const quorvane_job* job) {
    return errorOf(job);
}

const char* quorvane_job_error_text(const quorvane_job* job) {
    return errorTextOf(job);
}

quorvane_status quorvane_job_set_path(quorvane_job* job, const char* path, size_t length) {
    return guarded(job, [&] { job->job.setPath(textArgument(path, length)); });
}

quorvane_status quorvane_job_allow_pictures(quorvane_job* job, const char* folder, size_t length) {
    return guarded(job, [&] { job->job.allowPictures(textArgument(folder, length)); });
}

quorvane_status quorvane_job_set_files(quorvane_job* job, quorvane_file_callback callback,
                                       void* user) {
    return guarded(job, [&] { job->job.setFiles({callback, user}); });
}

quorvane_status quorvane_job_set_stylesheet(quorvane_job* job, const char* text, size_t length,
                                            const char* name, size_t name_length) {
    return guarded(job, [&] {
        job->job.setStyleSheet(textArgument(text, length), textArgument(name, name_length));
    });
}

quorvane_status quorvane_job_set_data(quorvane_job* job, const char* json, size_t length,
                                      const char* name, size_t name_length) {
    return guarded(job, [&] {
        job->job.setData(textArgument(json, length), textArgument(name, name_length));
    });
}

quorvane_status quorvane_job_set_locale(quorvane_job* job, const char* name, size_t length) {
    return guarded(job, [&] { job->job.setLocale(textArgument(name, length)); });
}

quorvane_status quorvane_job_set_encoding(quorvane_job* job, int encoding) {
    return guarded(job, [&] { job->job.setEncoding(encodingArgument(encoding)); });
}

quorvane_status quorvane_job_set_checks(quorvane_job* job, int checks) {
    return guarded(job, [&] { job->job.setChecks(checks != 0); });
}

quorvane_status quorvane_job_ignore(quorvane_job* job, const char* identifier, size_t length) {
    return guarded(job, [&] { job->job.ignore(textArgument(identifier, length)); });
}

quorvane_status quorvane_job_enable(quorvane_job* job, const char* identifier, size_t length) {
    return guarded(job, [&] { job->job.enable(textArgument(identifier, length)); });
}

quorvane_status quorvane_job_render(quorvane_job* job, const char* description, size_t length,
                                    char** rtf, size_t* rtf_length) {
    return guardedText(job, rtf, rtf_length,
                       [&] { return job->job.render(textArgument(description, length)).rtf(); });
}

quorvane_status quorvane_job_render_to(quorvane_job* job, const char* description, size_t length,
                                       quorvane_write_callback write, void* user) {
    return guarded(job, [&] {
        requireArgument(write, "write");
        Document document = job->job.render(textArgument(description, length));
        writeDocument(document, write, user);
    });
}

quorvane_status quorvane_job_render_file(quorvane_job* job, const char* description, size_t length,
                                         const char* path, size_t path_length) {
    return guarded(job, [&] {
        const std::string file(textArgument(path, path_length));
        job->job.render(textArgument(description, length)).save(file);
    });
}

quorvane_status quorvane_job_check(quorvane_job* job, const char* text, size_t length,
                                   int language) {
    return guarded(job,
                   [&] { job->job.check(textArgument(text, length), languageArgument(language)); });
}

quorvane_status quorvane_job_format(quorvane_job* job, const char* text, size_t length,
                                    int language, int names, char** formatted,
                                    size_t* formatted_length) {
    return guardedText(job, formatted, formatted_length, [&] {
        return job->job.format(textArgument(text, length), languageArgument(language),
                               namesArgument(names));
    });
}

size_t quorvane_job_diagnostic_count(const quorvane_job* job) {
    return job ? job->job.diagnostics().size() : 0;
}

const quorvane_diagnostic* quorvane_job_diagnostic(const quorvane_job* job, size_t index) {
    return index < quorvane_job_diagnostic_count(job) ? &job->job.diagnostics()[index] : nullptr;
}

quorvane_status quorvane_job_set_diagnostic_callback(quorvane_job* job,
                                                     quorvane_diagnostic_callback callback,
                                                     void* user) {
    return guarded(job, [&] { job->job.setReceiver(callback, user); });
}
