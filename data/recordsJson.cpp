#include "data/recordsJson.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "data/json.h"

namespace quorvane::data {

namespace {

using nlohmann::json;

// The names of fields grow with it.
constexpr std::size_t deepest = 32;
// Each record has a place for each of them.
constexpr std::size_t mostNames = 4096;

std::int64_t linesIn(std::string_view text) {
    return std::count(text.begin(), text.end(), '\n');
}

}  // namespace

/// Takes what the parser finds in one object.
class JsonFields {
public:
    explicit JsonFields(JsonRecords& records) : records_(records) {}

    bool null() { return put({}); }
    bool boolean(bool value) { return put(value ? "true" : "false"); }
    bool number_integer(json::number_integer_t value) { return put(std::to_string(value)); }
    bool number_unsigned(json::number_unsigned_t value) { return put(std::to_string(value)); }
    bool number_float(json::number_float_t, const std::string& written) { return put(written); }
    bool string(std::string& value) { return put(std::move(value)); }
    bool binary(json::binary_t&) { return false; }

    bool start_object(std::size_t) {
        if (inList_) {
            return refuse();
        }
        if (prefixLengths_.size() > deepest) {
            error_ =
                "The record has more than " + std::to_string(deepest) + " objects in each other.";
            return false;
        }
        prefixLengths_.push_back(prefix_.size());
        if (prefixLengths_.size() > 1) {
            prefix_ = name_ + ".";
        }
        return true;
    }
    bool key(const std::string& key) {
        name_ = prefix_ + key;
        return true;
    }
    bool end_object() {
        prefix_.resize(prefixLengths_.back());
        prefixLengths_.pop_back();
        return true;
    }
    bool start_array(std::size_t) {
        if (inList_) {
            return refuse();
        }
        inList_ = true;
        list_.clear();
        isFirst_ = true;
        return true;
    }
    bool end_array() {
        inList_ = false;
        return put(std::move(list_));
    }

    bool parse_error(std::size_t position, const std::string&, const json::exception& error) {
        errorPosition_ = position;
        error_ = "This is not JSON: " + jsonReason(error.what());
        return false;
    }

    const std::string& error() const noexcept { return error_; }
    std::size_t errorPosition() const noexcept { return errorPosition_; }

private:
    bool put(std::string value) {
        if (!inList_) {
            return records_.put(name_, std::move(value), error_);
        }
        list_ += (isFirst_ ? "" : ", ") + value;
        isFirst_ = false;
        return true;
    }

    bool refuse() {
        error_ = "\"" + name_ + "\" is a list of lists or objects, which a cell cannot show.";
        return false;
    }

    JsonRecords& records_;
    std::string name_;
    std::string prefix_;
    std::vector<std::size_t> prefixLengths_;
    bool inList_ = false;
    bool isFirst_ = true;
    std::string list_;
    std::string error_;
    std::size_t errorPosition_ = 0;
};

bool JsonRecords::next(std::vector<std::string_view>& fields) {
    fields.clear();
    std::string_view object;
    if (!objects_.next(object)) {
        return false;
    }
    parse(object);
    fields.assign(values_.begin(), values_.end());
    return true;
}

void JsonRecords::parse(std::string_view object) {
    values_.assign(names_.size(), {});
    isThere_.assign(names_.size(), false);
    expected_ = 0;
    JsonFields fields(*this);
    if (!json::sax_parse(object, &fields)) {
        const std::string_view before = object.substr(0, fields.errorPosition());
        throw RecordError(objects_.line() + linesIn(before), fields.error(), true);
    }
}

bool JsonRecords::put(const std::string& name, std::string value, std::string& error) {
    if (expected_ >= names_.size() || names_[expected_] != name) {
        expected_ = indexOf(name);
    }
    if (names_.size() > mostNames) {
        error = "The records have more than " + std::to_string(mostNames) +
                " fields of different names.";
        return false;
    }
    if (isThere_[expected_]) {
        error = "The record has \"" + name + "\" twice.";
        return false;
    }
    isThere_[expected_] = true;
    values_[expected_] = std::move(value);
    ++expected_;
    return true;
}

/// The position of a name, which is added if it is new.
std::size_t JsonRecords::indexOf(const std::string& name) {
    const auto [found, isNew] = indexes_.try_emplace(name, names_.size());
    if (isNew) {
        names_.push_back(name);
        values_.emplace_back();
        isThere_.push_back(false);
    }
    return found->second;
}

}  // namespace quorvane::data
