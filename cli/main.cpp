#include <string>
#include <vector>

#include "cli/runCommand.h"

int main(int argc, char** argv) {
    return quorvane::cli::runCommand(std::vector<std::string>(argv + 1, argv + argc));
}
