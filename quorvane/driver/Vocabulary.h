#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "quorvane/docmodel/enumerations.h"
#include "quorvane/driver/DescriptionNode.h"

namespace quorvane {

/// What a vocabulary is made of. All texts must outlive it.
struct VocabularyWords {
    /// A name of a node is compared as one number.
    using NodeNumber = std::uint32_t;
    static constexpr std::size_t maxNodeName = sizeof(NodeNumber);

    struct NodeWord {
        std::string_view name;
        NodeKind kind;
    };
    struct ShortForm {
        std::string_view shortForm;
        std::string_view longForm;
    };
    struct Key {
        std::string_view name;
        DescriptionKey key;
    };
    struct NamedValue {
        std::string_view name;
        std::int32_t value;
    };

    /// Names of nodes, long and short, in lower case and of at most `maxNodeName` letters.
    std::span<const NodeWord> nodes;
    /// Short forms of nodes and keys.
    std::span<const ShortForm> shortForms;
    /// The keys of each kind of node in their long forms, in the order of the kinds' codes.
    std::array<std::span<const Key>, 4> keys;
    /// The names of values, in lower case.
    std::span<const NamedValue> colors;
    std::span<const NamedValue> borders;
    std::span<const NamedValue> alignments;
};

/// The words of a dialect of the description language. Keys and short forms are matched to the
/// letter, the names of nodes, colors, borders and alignments without regard to case.
class Vocabulary {
public:
    explicit Vocabulary(const VocabularyWords& words);

    /// The long form of a short name or key; any other word as it stands.
    std::string expand(std::string_view word) const { return std::string(longForm(word)); }

    /// The key of a leaf, in its long form, as it is written in a description, long or short. A key
    /// that is not known is a view of the word.
    LeafKey leafKey(std::string_view word) const;

    /// True for a key that some kind of node has, in its long or short form.
    bool isKey(std::string_view word) const;

    /// The short form of a long name or key; any other word as it stands.
    std::string_view shorten(std::string_view word) const;

    /// The kind of node that a name stands for, in any case, long or short; `None` for any other.
    NodeKind nodeKind(std::string_view name) const;

    /// True when nodes of that kind have such a key, given in its long form.
    bool isKeyOf(NodeKind kind, std::string_view key) const;
    /// All keys that nodes of that kind have; `None` has no keys.
    KeySet keySetOf(NodeKind kind) const { return keySets_[indexOf(kind)]; }

    /// The values that names stand for; nothing for a text that is not a name.
    std::optional<tColorIndex> colorNamed(std::string_view name) const;
    std::optional<tBorderWidth> borderNamed(std::string_view name) const;
    std::optional<tCellAlign> alignmentNamed(std::string_view name) const;
    /// The same for the value of a leaf.
    std::optional<tColorIndex> colorNamed(const Leaf& leaf) const;
    std::optional<tBorderWidth> borderNamed(const Leaf& leaf) const;
    std::optional<tCellAlign> alignmentNamed(const Leaf& leaf) const;

    /// What a leaf sets: the value that its name stands for, or its number, when that is a value of
    /// the enumeration itself; nothing for any other.
    std::optional<tColorIndex> colorOf(const Leaf& leaf) const;
    std::optional<tBorderWidth> borderOf(const Leaf& leaf) const;
    std::optional<tCellAlign> alignmentOf(const Leaf& leaf) const;

    /// The words themselves, the keys in their long forms.
    std::vector<std::string_view> keysOf(NodeKind kind) const;
    std::vector<std::string_view> colorNames() const { return namesOf(words_.colors); }
    std::vector<std::string_view> borderNames() const { return namesOf(words_.borders); }
    std::vector<std::string_view> alignmentNames() const { return namesOf(words_.alignments); }

private:
    struct Slot {
        std::string_view word;
        LeafKey key;
    };

    struct NumberedNode {
        /// The name as one number.
        VocabularyWords::NodeNumber number;
        NodeKind kind;
    };

    // A power of two, several times as many as there are words.
    static constexpr std::size_t slotCount = 256;

    static std::vector<std::string_view> namesOf(std::span<const VocabularyWords::NamedValue> list);
    void add(std::string_view word, const LeafKey& key);
    const LeafKey* find(std::string_view word) const;
    std::string_view longForm(std::string_view word) const;

    VocabularyWords words_;
    // A hash table of all keys, in their long and their short forms.
    std::array<Slot, slotCount> slots_{};
    std::array<KeySet, 5> keySets_{};
    // The names of nodes.
    std::vector<NumberedNode> numberedNodes_;
    std::size_t longestShortForm_ = 0;
};

/// The words of the published language.
const Vocabulary& originalVocabulary();

}  // namespace quorvane
