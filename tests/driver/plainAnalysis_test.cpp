// Whole analyses compared with a plain model of them: errors in their order, and the document.

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>

#include "quorvane/base/values/RtfError.h"
#include "tests/diagnostics/randomDescriptions.h"
#include "tests/driver/ParsedDescription.h"
#include "tests/fuzz/plainAnalysis.h"

namespace quorvane {
namespace {

/// The text of the plain document; nothing when it cannot be rendered.
std::optional<std::string> renderedPage(plain::Document& document) {
    try {
        return document.render();
    } catch (const RtfError&) {
        return std::nullopt;
    }
}

TEST(plainAnalysis, IsWhatTheDriverMakesOfAnyDescription) {
    RandomDescriptions random(1);
    std::size_t errors = 0;
    std::size_t faultless = 0;
    std::size_t written = 0;
    for (int i = 0; i < 2000; ++i) {
        const std::string text = random.mutated(random.description(), random.below(3));
        for (const Checks checks : {Checks::Off, Checks::On}) {
            const ParsedDescription parsed(text, checks);
            const Ref<CRtfDoc> document = parsed.driver->RtfObject();
            plain::Analysis analysis(text, checks == Checks::On, *document, {});

            ASSERT_EQ(parsed.errors, analysis.errors) << text;
            if (const auto page = renderedPage(*analysis.document)) {
                document->Refresh();
                ASSERT_TRUE(document->Contents().ends_with(*page)) << text;
                ++written;
            }
            errors += parsed.errors.size();
            faultless += parsed.errors.empty() ? 1 : 0;
        }
    }
    EXPECT_GT(errors, 1000u);
    EXPECT_GT(faultless, 500u);
    EXPECT_GT(written, 3500u);
}

}  // namespace
}  // namespace quorvane
