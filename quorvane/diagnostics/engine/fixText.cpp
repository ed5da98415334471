#include "quorvane/diagnostics/engine/fixText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>

#include "quorvane/base/text/codePage1252.h"

namespace quorvane {

namespace {

/// Few diagnostics appear only when another one is fixed, and of one kind only so many of a text
/// are reported at once. Each round keeps the text before it.
std::size_t maxRounds(std::size_t textLength) {
    constexpr std::size_t memory = std::size_t{64} * 1024 * 1024;
    return std::clamp<std::size_t>(memory / std::max<std::size_t>(textLength, 1), 10, 1000);
}

std::ptrdiff_t errorCount(const std::vector<Diagnostic>& diagnostics) {
    return std::count_if(diagnostics.begin(), diagnostics.end(), [](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::Error;
    });
}

/// The diagnostics whose fixes can be made together, in the order of the fixes.
std::vector<Diagnostic> fixableTogether(const std::vector<Diagnostic>& diagnostics,
                                        std::size_t textLength) {
    std::vector<Diagnostic> fixable;
    std::copy_if(diagnostics.begin(), diagnostics.end(), std::back_inserter(fixable),
                 [](const Diagnostic& diagnostic) { return diagnostic.fix.has_value(); });
    std::stable_sort(fixable.begin(), fixable.end(), [](const Diagnostic& a, const Diagnostic& b) {
        return a.fix->place.bytes.offset < b.fix->place.bytes.offset;
    });
    std::vector<Diagnostic> chosen;
    std::int64_t start = -1;
    std::int64_t end = 0;
    for (Diagnostic& diagnostic : fixable) {
        const Place::Bytes& place = diagnostic.fix->place.bytes;
        const std::int64_t placeEnd = place.offset + place.length;
        if (place.offset >= end && place.offset > start &&
            placeEnd <= static_cast<std::int64_t>(textLength)) {
            start = place.offset;
            end = placeEnd;
            diagnostic.isFixed = true;
            chosen.push_back(std::move(diagnostic));
        }
    }
    return chosen;
}

std::string withFixes(std::string_view bytes, TextEncoding encoding,
                      const std::vector<Diagnostic>& diagnostics) {
    std::string fixed;
    std::size_t at = 0;
    for (const Diagnostic& diagnostic : diagnostics) {
        const Place::Bytes& place = diagnostic.fix->place.bytes;
        const auto offset = static_cast<std::size_t>(place.offset);
        fixed += bytes.substr(at, offset - at);
        if (isUtf8(encoding)) {
            fixed += diagnostic.fix->replacement;
        } else {
            appendCodePage1252(diagnostic.fix->replacement, fixed);
        }
        at = offset + static_cast<std::size_t>(place.length);
    }
    return fixed.append(bytes.substr(at));
}

}  // namespace

FixedText fixText(std::string_view bytes, const TextCheck& check, TextEncoding encoding) {
    FixedText result;
    result.bytes = bytes;
    result.remaining = check(bytes);
    // The texts before each round: fixes that undo each other would go on for ever.
    std::unordered_map<std::string, std::size_t> seen{{result.bytes, 0}};
    while (result.rounds.size() < maxRounds(bytes.size())) {
        std::vector<Diagnostic> chosen = fixableTogether(result.remaining, result.bytes.size());
        std::string next = withFixes(result.bytes, encoding, chosen);
        const auto [known, isNew] = seen.emplace(next, result.rounds.size() + 1);
        if (!isNew) {
            if (next != result.bytes) {
                result.rounds.resize(known->second);
                result.remaining = check(next);
                result.bytes = std::move(next);
            }
            break;
        }
        std::vector<Diagnostic> remaining = check(next);
        if (errorCount(remaining) > errorCount(result.remaining)) {
            result.wasRefused = result.rounds.empty();
            break;
        }
        result.rounds.push_back({std::exchange(result.bytes, std::move(next)), std::move(chosen)});
        result.remaining = std::move(remaining);
    }
    return result;
}

}  // namespace quorvane
