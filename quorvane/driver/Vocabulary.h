#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/base/values/Value.h"
#include "quorvane/docmodel/enumerations.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// The words of the description language. Keys and short forms are matched to the letter, the names
/// of colours, borders and alignments without regard to case.
class Vocabulary {
public:
    /// The long form of a short name or key; any other word as it stands.
    std::string expand(std::string_view word) const;

    /// The key of a leaf, in its long form, as it is written in a description, long or short. A key
    /// that is not known is a view of the word.
    LeafKey leafKey(std::string_view word) const;

    /// The short form of a long name or key; any other word as it stands.
    std::string_view shorten(std::string_view word) const;

    /// The kind of node that a name stands for, in any case, long or short; `None` for any other.
    NodeKind nodeKind(std::string_view name) const;

    /// True when nodes of that kind have such a key.
    bool isKeyOf(NodeKind kind, std::string_view key) const;
    /// All keys that nodes of that kind have.
    KeySet keySetOf(NodeKind kind) const;
    bool isColorKey(std::string_view key) const;
    bool isColorKey(DescriptionKey key) const;
    bool isBorderKey(std::string_view key) const;
    bool isBorderKey(DescriptionKey key) const;
    /// True for the keys whose value may be text or a number; all others take numbers only.
    bool isTextOrNumberKey(std::string_view key) const;
    bool isTextOrNumberKey(DescriptionKey key) const;

    /// The values that names stand for; nothing for a value that is no name.
    std::optional<tColorIndex> colorNamed(const Value& name) const;
    std::optional<tBorderWidth> borderNamed(const Value& name) const;
    std::optional<tCellAlign> alignmentNamed(const Value& name) const;
    /// The same for the value of a leaf.
    std::optional<tColorIndex> colorNamed(const Leaf& leaf) const;
    std::optional<tBorderWidth> borderNamed(const Leaf& leaf) const;
    std::optional<tCellAlign> alignmentNamed(const Leaf& leaf) const;

    /// True for a number that is itself a value of the enumeration: it may stand for a name.
    static bool isColorNumber(double number);
    static bool isBorderNumber(double number);
    static bool isAlignmentNumber(double number);

    /// The words themselves, the keys in their long forms; `None` has no keys.
    static std::vector<std::string_view> keysOf(NodeKind kind);
    static std::vector<std::string_view> colorNames();
    static std::vector<std::string_view> borderNames();
    static std::vector<std::string_view> alignmentNames();
};

}  // namespace quorvane
