#pragma once

#include <string>
#include <utility>

#include "quorvane/support/IStringCompare.h"

namespace quorvane {

/// Orders record strings by one of their subfields, without regard to case.
class CIsisStringCompare : public IStringCompare {
public:
    /// Sets the subfield code, as `setSubField` does.
    void Create(std::string SubField) { setSubField(std::move(SubField)); }

    /// The code of the subfield to compare; empty, as it is at first, to compare whole strings. A
    /// longer code compares what the subfields of its characters hold, joined.
    const std::string& SubField() const { return subField_; }
    void setSubField(std::string SubField) { subField_ = std::move(SubField); }

    /// -1, 0 or 1; an absent subfield is empty. Raises nothing.
    std::int32_t comp(std::string_view A, std::string_view B) const noexcept override;

private:
    std::string subField_;
};

}  // namespace quorvane
