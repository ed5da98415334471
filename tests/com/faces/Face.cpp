#include "tests/com/faces/Face.h"

#include <cstdio>

namespace quorvane::host {

std::string Face::perform(int object, const std::string& member, const Arguments& arguments) {
    events_.clear();
    std::string text = resultOf(object, member, arguments);
    return text + events_;
}

void Face::releaseObject(int object) {
    Object& entry = objects_.at(static_cast<std::size_t>(object));
    numbers_.erase({entry.identity, entry.interfaceName});
    entry.interfaceName.clear();
    release(object);
}

Face::Numbered Face::number(const void* identity, const std::string& interfaceName) {
    const auto [place, isNew] = numbers_.try_emplace({identity, interfaceName}, objectCount());
    if (isNew) {
        objects_.push_back({identity, interfaceName});
    }
    return {place->second, isNew};
}

std::string answerText(bool value) {
    return value ? "true" : "false";
}

std::string answerText(std::int32_t value) {
    return std::to_string(value);
}

std::string answerText(const std::string& text) {
    return '"' + text + '"';
}

std::string answerText(int objectNumber, const std::string& interfaceName) {
    return interfaceName + " " + std::to_string(objectNumber);
}

std::string errorText(std::uint32_t number, const std::string& description,
                      const std::string& source) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(number));
    return std::string("error ") + text + " \"" + description + "\" of \"" + source + '"';
}

}  // namespace quorvane::host
