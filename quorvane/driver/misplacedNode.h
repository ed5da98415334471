#pragma once

#include <string>

#include "quorvane/driver/NodeKind.h"

namespace quorvane {

/// What is wrong with a node in another one that cannot hold it, and what to write before it:
/// "A row cannot stand in a cell; write cell) and row) before it". The parent is `None` outside the
/// document.
std::string misplacedNode(NodeKind kind, NodeKind parent);

}  // namespace quorvane
