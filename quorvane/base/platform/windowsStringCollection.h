#pragma once

#include <memory>

#include "quorvane/base/values/TextCollection.h"

struct IDispatch;

namespace quorvane {

/// The texts of a collection as an automation collection, for the external error collection:
/// `Count`, and `Item(Index)` as the default member, by position from 1 or by key. Late bound only.
/// The caller has the one reference to it. Only on Windows.
IDispatch* makeWindowsStringCollection(std::shared_ptr<const TextCollection> list);

}  // namespace quorvane
