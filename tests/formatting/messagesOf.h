#pragma once

#include <string>
#include <vector>

#include "quorvane/formatting/Upgrade.h"

namespace quorvane {

/// The remarks with their lines.
inline std::vector<std::string> messagesOf(const std::vector<UpgradeRemark>& remarks) {
    std::vector<std::string> messages;
    for (const UpgradeRemark& remark : remarks) {
        messages.push_back(std::to_string(remark.line) + ": " + remark.message);
    }
    return messages;
}

}  // namespace quorvane
