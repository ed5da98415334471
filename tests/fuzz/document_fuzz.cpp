// Any text as a stylesheet, and any text as a description that is rendered with it. A form feed
// stands between the two.

#include <cstddef>
#include <cstdint>

#include "tests/fuzz/DescriptionRun.h"
#include "tests/fuzz/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvane;
    FuzzInput input(data, size);
    const bool countsRows = !holdsRowWords(input.rest());
    const auto texts = input.pieces('\f', 2);
    std::string errors;
    for (const bool erroneousInput : {false, true}) {
        DescriptionRun run(erroneousInput);
        const std::string error = run.styleSheetError(texts[0]);
        if (erroneousInput) {
            requireEqual(error, errors, "a stylesheet has the same error every time");
        }
        errors = error;
        requireGoodAnalysis(run, texts[1], countsRows);
    }
    return 0;
}
