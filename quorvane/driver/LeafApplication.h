#pragma once

#include <utility>

#include "quorvane/base/values/RtfError.h"
#include "quorvane/driver/LeafError.h"
#include "quorvane/driver/driverErrors.h"
#include "quorvane/driver/driverFaults.h"

namespace quorvane {

/// Applies leaves to a document and reports those that are wrong, with the lines that they stand
/// in.
class LeafApplication {
public:
    /// Without a receiver, the error of the first wrong leaf is raised.
    explicit LeafApplication(ViolationReceiver receiver)
        : raises_(!receiver),
          receiver_(receiver ? std::move(receiver) : ViolationReceiver(raiseViolation)) {}

    /// Calls `apply` with the leaf. An error that it raises is reported; false then.
    template <class Apply>
    bool operator()(Leaf& leaf, Apply apply) {
        try {
            atLine(leaf.line, [&] { apply(leaf); });
            return true;
        } catch (const LeafError& error) {
            report(error.fault, error, leaf);
        } catch (const RtfError& error) {
            report(faultOf(error), error, leaf);
        }
        return false;
    }

    void report(const Violation& violation) {
        hasFaults_ = true;
        receiver_(violation);
    }

    /// False when the first error ends all.
    bool goesOn() const { return !raises_; }
    /// True when something was reported.
    bool hasFaults() const { return hasFaults_; }

    /// Sets the node that has the key of the next error 457.
    void setKeyHolder(DescriptionNode* node) { keyHolder_ = node; }

private:
    static DriverFault faultOf(const RtfError& error);
    void report(DriverFault fault, const RtfError& error, Leaf& leaf);

    bool raises_;
    ViolationReceiver receiver_;
    bool hasFaults_ = false;
    DescriptionNode* keyHolder_ = nullptr;
};

}  // namespace quorvane
