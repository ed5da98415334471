/* Writes an invoice: invoice [FILE] */

#include <quorvane.h>
#include <stdio.h>
#include <stdlib.h>

static char* contents(const char* path) {
    FILE* file = fopen(path, "rb");
    long size = file && fseek(file, 0, SEEK_END) == 0 ? ftell(file) : -1;
    char* text = size < 0 ? NULL : calloc((size_t)size + 1, 1);
    if (!text || fseek(file, 0, SEEK_SET) || fread(text, 1, (size_t)size, file) != (size_t)size) {
        perror(path);
        exit(1);
    }
    fclose(file);
    return text;
}

int main(int argc, char** argv) {
    const char* file = argc > 1 ? argv[1] : "invoice.rtf";
    char* description = contents("invoice.rtfspec");
    char* styles = contents("invoice.rtfss");
    char* data = contents("invoice.json");
    quorvane_job* job = NULL;
    int failed =
        quorvane_job_new(&job) || quorvane_job_set_path(job, QUORVANE_TEXT("invoice.rtfspec")) ||
        quorvane_job_set_stylesheet(job, QUORVANE_TEXT(styles), QUORVANE_TEXT("invoice.rtfss")) ||
        quorvane_job_set_data(job, QUORVANE_TEXT(data), QUORVANE_TEXT("invoice.json")) ||
        quorvane_job_render_file(job, QUORVANE_TEXT(description), QUORVANE_TEXT(file));
    if (failed) {
        fprintf(stderr, "%s\n", quorvane_job_error_text(job));
    }
    quorvane_job_free(job);
    free(description);
    free(styles);
    free(data);
    return failed;
}
