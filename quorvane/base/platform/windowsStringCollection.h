#pragma once

#include <memory>

#include "quorvane/support/CStringList.h"

struct IDispatch;

namespace quorvane {

/// The strings of a list as an automation collection, for the external error collection: `Count`,
/// and `Item(Index)` as the default member, by position from 1 or by key. Late bound only. The
/// caller has the one reference to it. Only on Windows.
IDispatch* makeWindowsStringCollection(std::shared_ptr<const CStringList> list);

}  // namespace quorvane
