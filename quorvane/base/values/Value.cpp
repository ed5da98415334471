#include "quorvane/base/values/Value.h"

#include <functional>

namespace quorvane {

bool Value::isNumber() const noexcept {
    return holds<std::int16_t>() || holds<std::int32_t>() || holds<float>() || holds<double>();
}

double Value::number() const {
    if (const auto* value = std::get_if<std::int16_t>(&data_)) {
        return *value;
    }
    if (const auto* value = std::get_if<std::int32_t>(&data_)) {
        return *value;
    }
    if (const auto* value = std::get_if<float>(&data_)) {
        return static_cast<double>(*value);
    }
    return std::get<double>(data_);
}

bool Value::operator==(const Value& other) const {
    if (isNumber() && other.isNumber()) {
        return number() == other.number();
    }
    return data_ == other.data_;
}

std::size_t ValueHash::operator()(const Value& value) const {
    if (value.isNumber()) {
        return std::hash<double>{}(value.number());
    }
    if (value.isText()) {
        return std::hash<std::string>{}(value.text());
    }
    if (const auto* object = std::get_if<std::shared_ptr<Object>>(&value.data())) {
        return std::hash<std::shared_ptr<Object>>{}(*object);
    }
    if (const auto* date = std::get_if<Date>(&value.data())) {
        return std::hash<double>{}(date->days);
    }
    return value.data().index();
}

}  // namespace quorvane
