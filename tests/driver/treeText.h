#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "quorvane/driver/DescriptionNode.h"
#include "quorvane/driver/DescriptionReader.h"
#include "quorvane/support/recordStrings.h"
#include "tests/driver/ParsedDescription.h"

namespace quorvane {

/// A node as text, its entries in the order of the map: "{paper-width=11906 1001{2001{}}}" for a
/// leaf with a number and a row with a cell, texts in quotation marks.
inline std::string treeText(const DescriptionNode& node) {
    std::string text = "{";
    for (const Value& key : node.Keys().value_or(std::vector<Value>())) {
        text += text.size() > 1 ? " " : "";
        text += valueText(key);
        if (key.isNumber()) {
            text += treeText(*node.child(key));
        } else {
            const Value& value = node.leaf(key).value;
            text += '=';
            text += value.isText() ? '"' + value.text() + '"' : valueText(value);
        }
    }
    return text + "}";
}

/// A description as it was read, up to the end or the first error.
struct ReadDescription {
    explicit ReadDescription(std::vector<SourceLine> sourceLines) {
        static const Vocabulary vocabulary;
        error = errorOf([&] { DescriptionReader(vocabulary).treeWalkerBuild(root, sourceLines); });
        tree = treeText(*root);
    }
    explicit ReadDescription(std::string_view text) : ReadDescription(PreProcessRawData(text)) {}

    std::shared_ptr<DescriptionNode> root = std::make_shared<DescriptionNode>(0);
    std::string tree;
    ToldError error;
};

}  // namespace quorvane
