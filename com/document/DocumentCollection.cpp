#include "com/document/DocumentCollection.h"

namespace quorvane::com {

std::size_t indexOf(LONG number, std::size_t last, const char* name) {
    if (number >= 1 && static_cast<std::size_t>(number) <= last) {
        return static_cast<std::size_t>(number) - 1;
    }
    std::string message = "There is no " + std::string(name) + " " + std::to_string(number);
    message +=
        last == 0 ? ", and no other." : ". Numbers go from 1 to " + std::to_string(last) + ".";
    refuseIndex(std::move(message));
}

}  // namespace quorvane::com
