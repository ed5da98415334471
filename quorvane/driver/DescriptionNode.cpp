#include "quorvane/driver/DescriptionNode.h"

#include <algorithm>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/driverErrors.h"

namespace quorvane {

std::string Leaf::valueText() const {
    return isNumber() ? numberText(number) : std::string(text);
}

const DescriptionNode& DescriptionNode::child(std::int32_t childNumber) const {
    const Chain<DescriptionNode> all = children();
    const auto found = std::find_if(all.begin(), all.end(), [=](const DescriptionNode& node) {
        return node.number == childNumber;
    });
    if (found == all.end()) {
        raise(RunTimeError::InvalidProcedureCall);
    }
    return *found;
}

NodeKind NodeType(std::int32_t number) {
    constexpr NodeKind kinds[] = {NodeKind::Doc, NodeKind::Row, NodeKind::Cell, NodeKind::Para};
    if (number < 0 || number > 3999) {
        raise(driverError(eWrongNodeType, std::to_string(number) + " isn't a valid key value.",
                          "CRtfDriver.NodeType"));
    }
    return kinds[number / 1000];
}

bool nests(NodeKind parent, NodeKind child) {
    return (parent == NodeKind::Doc && child == NodeKind::Row) ||
           (parent == NodeKind::Row && child == NodeKind::Cell) ||
           (parent == NodeKind::Cell && child == NodeKind::Para);
}

std::string valueText(const Value& value) {
    return value.isNumber() ? numberText(value.number()) : value.text();
}

}  // namespace quorvane
