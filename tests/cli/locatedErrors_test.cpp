#include "cli/locatedErrors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quorvane/driver/driverErrors.h"

namespace quorvane::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Diagnostic found(DiagnosticId id, int line, const std::string& message) {
    Diagnostic diagnostic;
    diagnostic.id = id;
    diagnostic.place.line = line;
    diagnostic.message = message;
    return diagnostic;
}

std::vector<std::string> descriptionsOf(const std::vector<RtfError>& errors) {
    std::vector<std::string> descriptions;
    for (const RtfError& error : errors) {
        descriptions.push_back(error.description);
    }
    return descriptions;
}

const RtfError objectNotSet(RunTimeError::ObjectNotSet);

TEST(LocatedErrors, AreThoseOnTheLineOfAnError) {
    const LocatedErrors result =
        locateErrors({driverError(eWrongValue, "Type mismatch", "", 3)},
                     {found(DiagnosticId::NotANumber, 3, "Value for cell-width should be numeric."),
                      found(DiagnosticId::WrongColor, 4, "red isn't a recognized color.")});
    EXPECT_THAT(result.kinds, ElementsAre(DiagnosticId::NotANumber));
    EXPECT_THAT(result.others, IsEmpty());
}

TEST(LocatedErrors, AreThoseWithTheSameMessageWhereALineHasSeveral) {
    const LocatedErrors result =
        locateErrors({driverError(eWrongValue, "red isn't a recognized color.", "", 3)},
                     {found(DiagnosticId::WrongKeyword, 3, "rb isn't a valid keyword."),
                      found(DiagnosticId::WrongColor, 3, "red isn't a recognized color.")});
    EXPECT_THAT(result.kinds, ElementsAre(DiagnosticId::WrongColor));
}

TEST(LocatedErrors, LeaveOutWhatFollowsFromAnError) {
    const LocatedErrors result = locateErrors(
        {driverError(eWrongFileType, "No description.", "", 0), objectNotSet, objectNotSet},
        {found(DiagnosticId::WrongFileType, 1, "No description.")});
    EXPECT_THAT(result.kinds, ElementsAre(DiagnosticId::WrongFileType));
    EXPECT_THAT(result.others, IsEmpty());
}

TEST(LocatedErrors, KeepWhatTheCheckDoesNotFind) {
    EXPECT_THAT(descriptionsOf(locateErrors({objectNotSet, objectNotSet}, {}).others),
                ElementsAre("Object variable or With block variable not set"));
    const std::vector<RtfError> errors = {driverError(eWrongValue, "One.", "", 3),
                                          driverError(eWrongValue, "Two.", "", 5), objectNotSet};
    EXPECT_THAT(descriptionsOf(locateErrors(errors, {}).others), ElementsAre("One.", "Two."));
}

TEST(LocatedErrors, AreNotWarnings) {
    Diagnostic warning = found(DiagnosticId::EmptyText, 3, "Empty.");
    warning.severity = Severity::Warning;
    const LocatedErrors result = locateErrors({driverError(eWrongValue, "One.", "", 3)}, {warning});
    EXPECT_THAT(result.kinds, IsEmpty());
    EXPECT_THAT(descriptionsOf(result.others), ElementsAre("One."));
}

}  // namespace
}  // namespace quorvane::cli
