#pragma once

#include <initializer_list>
#include <map>
#include <string_view>

#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"

namespace quorvane {

/// Reports diagnostics about one text, the first ones of each kind. The parts are views into the
/// source.
class TextReporter {
public:
    TextReporter(const SourceText& source, DiagnosticEngine& engine)
        : source_(source), engine_(engine) {}

    /// The encoding of the file that the text stands in.
    TextEncoding encoding() const { return source_.encoding(); }

    void report(DiagnosticId id, std::string_view part,
                std::initializer_list<std::string_view> arguments = {}, Hint hint = {});

    /// The same for a character of a file in UTF-8.
    void reportMojibake(DiagnosticId id, std::string_view part,
                        std::initializer_list<std::string_view> arguments, Hint hint);

private:
    bool isAmongFirst(DiagnosticId id);

    const SourceText& source_;
    DiagnosticEngine& engine_;
    std::map<DiagnosticId, int> counts_;
};

}  // namespace quorvane
