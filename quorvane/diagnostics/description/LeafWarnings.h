#pragma once

#include <initializer_list>
#include <optional>
#include <string_view>

#include "quorvane/diagnostics/KnownStyles.h"
#include "quorvane/diagnostics/description/StyleUses.h"
#include "quorvane/diagnostics/engine/DiagnosticEngine.h"
#include "quorvane/diagnostics/engine/SourceText.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// Warns of values that do not do what their author wants, each for itself. Without styles, names
/// of styles are not looked up.
class LeafWarnings {
public:
    LeafWarnings(KnownStyles* styles, const SourceText& source, DiagnosticEngine& engine);

    void findInLeaves(const DescriptionNode& node);

private:
    void findCutValue(const Leaf& leaf);
    void findLeadingZeros(const Leaf& leaf);
    void findLostAlignment(const DescriptionNode& node, const Leaf& leaf);
    void findInFieldData(const Leaf& leaf);
    void findInText(const Leaf& leaf);
    void report(DiagnosticId id, const Leaf& leaf,
                std::initializer_list<std::string_view> arguments, Hint hint = {});

    KnownStyles* styles_;
    const SourceText& source_;
    DiagnosticEngine& engine_;
    std::optional<StyleUses> styleUses_;
};

}  // namespace quorvane
