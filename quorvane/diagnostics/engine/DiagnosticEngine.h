#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvane/diagnostics/engine/Diagnostic.h"

namespace quorvane {

/// Makes diagnostics from their table and passes them to a receiver.
class DiagnosticEngine {
public:
    explicit DiagnosticEngine(DiagnosticReceiver receiver) : receiver_(std::move(receiver)) {}

    /// Passes on a diagnostic. The arguments take the places of "{0}", "{1}" and so on in the text
    /// that the table has for it. A replacement of the hint is the fix for the place.
    void report(DiagnosticId id, const Place& place,
                std::initializer_list<std::string_view> arguments = {}, Hint hint = {});

    /// The same for a character of a file in UTF-8.
    void reportMojibake(DiagnosticId id, const Place& place,
                        std::initializer_list<std::string_view> arguments, Hint hint);

    /// Passes on a diagnostic whose text is known, such as that of an error of the library.
    void reportText(DiagnosticId id, const Place& place, std::string message, Hint hint = {});

private:
    DiagnosticReceiver receiver_;
};

/// Puts the diagnostics into the order of their places; those of one place stay as they were.
void sortByPlace(std::vector<Diagnostic>& diagnostics);

}  // namespace quorvane
