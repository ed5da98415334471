#include "quorvane/driver/DescriptionNode.h"

#include <algorithm>

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/Dialect.h"
#include "quorvane/driver/driverFaults.h"

namespace quorvane {

std::string Leaf::valueText() const {
    return isNumber() ? numberText(number) : std::string(text);
}

const Leaf* DescriptionNode::find(DescriptionKey key) const {
    if (!contains(keys, key)) {
        return nullptr;
    }
    const Chain<const Leaf> all = leaves();
    return &*std::find_if(all.begin(), all.end(),
                          [=](const Leaf& leaf) { return leaf.key.known == key; });
}

DescriptionNode& DescriptionNode::child(std::int32_t childNumber) {
    const Chain<DescriptionNode> all = children();
    const auto found = std::find_if(all.begin(), all.end(), [=](const DescriptionNode& node) {
        return node.number == childNumber;
    });
    if (found == all.end()) {
        raise(RunTimeError::InvalidProcedureCall);
    }
    return *found;
}

const DescriptionNode& DescriptionNode::child(std::int32_t childNumber) const {
    return const_cast<DescriptionNode*>(this)->child(childNumber);
}

NodeKind NodeType(std::int32_t number) {
    const Dialect& dialect = originalDialect();
    for (const NodeKind kind : nodeKinds) {
        const auto& [start, last] = dialect.numbers[indexOf(kind)];
        if (number >= start && number <= last) {
            return kind;
        }
    }
    raise(driverError(DriverFault::WrongNodeNumber, std::to_string(number)));
}

}  // namespace quorvane
