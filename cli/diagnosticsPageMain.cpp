#include <iostream>

#include "cli/diagnosticsPage.h"

int main() {
    std::cout << quorvane::cli::diagnosticsPage();
    return std::cout.flush() ? 0 : 1;
}
