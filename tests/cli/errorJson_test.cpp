#include "cli/errorJson.h"

#include <gtest/gtest.h>

#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "quorvane/driver/driverErrors.h"

namespace quorvane::cli {
namespace {

TEST(ErrorJson, ReportsAllFieldsInTheirOrder) {
    const RtfError error = driverError(eWrongValue, "crimson isn't a recognized color.",
                                       "CRtfDriver.treWalkerSemantic", 12);
    EXPECT_EQ(errorJson({ErrorKind::Event, "letter.rtfspec", error}),
              R"({"file":"letter.rtfspec","line":12,"number":-2147221496,"level":"eWrongValue",)"
              R"("source":"CRtfDriver.treWalkerSemantic",)"
              R"("message":"crimson isn't a recognized color.","kind":"event"})");
}

TEST(ErrorJson, IsNullWhereThereIsNothingToReport) {
    const RtfError error(RunTimeError::TypeMismatch);
    EXPECT_EQ(errorJson({ErrorKind::Raised, "", error}),
              R"({"file":null,"line":null,"number":13,"level":null,"source":null,)"
              R"("message":"Type mismatch","kind":"raised"})");
}

TEST(ErrorJson, ReportsTheCauseInAFieldOfItsOwn) {
    RtfError error(RunTimeError::PathNotFound);
    error.cause = std::make_shared<RtfError>(2, "No such file or directory");
    const auto object = nlohmann::json::parse(errorJson({ErrorKind::Raised, "a", error}));
    EXPECT_EQ(object.at("message"), "Path not found");
    EXPECT_EQ(object.at("cause"), "No such file or directory");
}

TEST(ErrorJson, HasNoCauseWhereThereIsNone) {
    const RtfError error(RunTimeError::PathNotFound);
    const auto object = nlohmann::json::parse(errorJson({ErrorKind::Raised, "a", error}));
    EXPECT_FALSE(object.contains("cause"));
}

TEST(ErrorJson, KeepsTheLineBreaksOfAMessageOnOneLineOfItsOwn) {
    const RtfError error(445, "one\r\ntwo");
    const std::string line = errorJson({ErrorKind::Raised, "a", error});
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(nlohmann::json::parse(line).at("message"), "one\r\ntwo");
}

TEST(ErrorJson, ReplacesWhatIsNotUtf8) {
    const RtfError error(445, "lone surrogate \xED\xA0\x80");
    const auto object = nlohmann::json::parse(errorJson({ErrorKind::Raised, "caf\xE9", error}));
    EXPECT_EQ(object.at("file"), "caf\xEF\xBF\xBD");
    EXPECT_EQ(object.at("message"), "lone surrogate \xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

}  // namespace
}  // namespace quorvane::cli
