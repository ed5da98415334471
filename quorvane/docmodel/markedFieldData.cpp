#include "quorvane/docmodel/markedFieldData.h"

#include <optional>

#include "quorvane/rtfgroups/GTextMarkedFields.h"

namespace quorvane {

std::string markedFieldData(const Value& data, TableDocument* document) {
    std::string digits = GTextMarkedFields::fieldData(data);
    if (document) {
        document->errors().reportLostCharacters(GTextMarkedFields::toStringRepr(data),
                                                std::nullopt);
    }
    return digits;
}

}  // namespace quorvane
