#include <quorvane.h>

#include <emscripten.h>

#include <cstddef>

// What the JavaScript part provides. Returns the bytes, allocated with malloc, or null if there is
// no such file.
extern "C" __attribute__((import_module("quorvane"), import_name("readFile"))) const char* readFile(
    quorvane_file_kind kind, const char* name, size_t nameLength, size_t* length);

namespace {

int takeFile(void* /*user*/, quorvane_file_kind kind, const char* name, size_t nameLength,
             const char** bytes, size_t* length) {
    *bytes = readFile(kind, name, nameLength, length);
    return *bytes ? 0 : 1;
}

}  // namespace

/// Lets a job take pictures and partials from the JavaScript part: a function of JavaScript cannot
/// be a callback of C by itself.
extern "C" EMSCRIPTEN_KEEPALIVE quorvane_status quorvaneTakeFiles(quorvane_job* job) {
    return quorvane_job_set_files(job, takeFile, nullptr);
}
