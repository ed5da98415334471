/* Renders a description with data: renderDescription DESCRIPTION STYLESHEET DATA FILE */

#include <quorvane.h>
#include <stdio.h>
#include <stdlib.h>

/* The bytes of a file, which a null pointer stands for if it cannot be read. */
static char* readFile(const char* path, size_t* length) {
    FILE* file = fopen(path, "rb");
    char* bytes = NULL;
    long size;

    *length = 0;
    if (!file) {
        return NULL;
    }
    if (fseek(file, 0, SEEK_END) == 0 && (size = ftell(file)) >= 0) {
        rewind(file);
        bytes = malloc((size_t)size + 1);
        if (bytes) {
            *length = fread(bytes, 1, (size_t)size, file);
        }
    }
    fclose(file);
    return bytes;
}

static int printDiagnostic(void* user, const quorvane_diagnostic* diagnostic) {
    fprintf((FILE*)user, "%s:%lu:%lu: %s [%s]\n", diagnostic->file, (unsigned long)diagnostic->line,
            (unsigned long)diagnostic->column, diagnostic->message, diagnostic->identifier);
    return 0;
}

int main(int argc, char** argv) {
    quorvane_job* job = NULL;
    quorvane_status status;
    char* texts[3];
    size_t lengths[3];
    int i;

    if (argc != 5) {
        fprintf(stderr, "usage: %s DESCRIPTION STYLESHEET DATA FILE\n", argv[0]);
        return 2;
    }
    for (i = 0; i < 3; ++i) {
        texts[i] = readFile(argv[i + 1], &lengths[i]);
    }
    status = quorvane_job_new(&job);
    if (!status) {
        quorvane_job_set_diagnostic_callback(job, printDiagnostic, stderr);
        quorvane_job_set_path(job, QUORVANE_TEXT(argv[1]));
        status = quorvane_job_set_stylesheet(job, texts[1], lengths[1], QUORVANE_TEXT(argv[2]));
    }
    if (!status) {
        status = quorvane_job_set_data(job, texts[2], lengths[2], QUORVANE_TEXT(argv[3]));
    }
    if (!status) {
        status = quorvane_job_render_file(job, texts[0], lengths[0], QUORVANE_TEXT(argv[4]));
    }
    if (status && quorvane_job_diagnostic_count(job) == 0) {
        fprintf(stderr, "%s\n", quorvane_job_error(job)->message);
    }
    quorvane_job_free(job);
    for (i = 0; i < 3; ++i) {
        free(texts[i]);
    }
    return status != QUORVANE_OK;
}
