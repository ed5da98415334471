#include "data/json.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/diagnostics/fileEncoding.h"

namespace quorvane::data {

namespace {

/// Builds the value from what the parser reads, without a call for each level.
class ValueBuilder : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit ValueBuilder(JsonError& error) : error_(error) {}

    DataValue takeRoot() { return std::move(root_); }

    bool null() override { return add({}); }
    bool boolean(bool value) override {
        return add({.kind = DataValue::Kind::Boolean, .text = value ? "true" : "false"});
    }
    bool number_integer(number_integer_t value) override {
        return add({.kind = DataValue::Kind::Number, .text = std::to_string(value)});
    }
    bool number_unsigned(number_unsigned_t value) override {
        return add({.kind = DataValue::Kind::Number, .text = std::to_string(value)});
    }
    bool number_float(number_float_t, const string_t& written) override {
        return add({.kind = DataValue::Kind::Number, .text = written});
    }
    bool string(string_t& value) override {
        return add({.kind = DataValue::Kind::String, .text = std::move(value)});
    }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(DataValue::Kind::Object); }
    bool key(string_t& name) override {
        open_.back().name = std::move(name);
        return true;
    }
    bool end_object() override {
        Open& object = open_.back();
        std::sort(object.members.begin(), object.members.end(),
                  [](const Member& a, const Member& b) { return a.name < b.name; });
        const auto twice =
            std::adjacent_find(object.members.begin(), object.members.end(),
                               [](const Member& a, const Member& b) { return a.name == b.name; });
        if (twice != object.members.end()) {
            error_.message = "The object that ends here has \"" + twice->name + "\" twice";
            return false;
        }
        for (Member& member : object.members) {
            object.value.names.push_back(std::move(member.name));
            object.value.items.push_back(std::move(member.value));
        }
        return close();
    }
    bool start_array(std::size_t) override { return open(DataValue::Kind::List); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& exception) override {
        error_.position = position == 0 ? 0 : position - 1;
        error_.message = "This is not JSON: " + jsonReason(exception.what());
        return false;
    }

private:
    struct Member {
        std::string name;
        DataValue value;
    };

    struct Open {
        DataValue value;
        /// The name that was read last.
        std::string name = {};
        /// Of an object.
        std::vector<Member> members = {};
    };

    bool open(DataValue::Kind kind) {
        if (open_.size() == maxJsonDepth) {
            error_.message = "Lists and objects are nested deeper than " +
                             std::to_string(maxJsonDepth) + " levels";
            return false;
        }
        open_.push_back({.value = {.kind = kind}});
        return true;
    }

    bool close() {
        DataValue value = std::move(open_.back().value);
        open_.pop_back();
        return add(std::move(value));
    }

    bool add(DataValue value) {
        if (open_.empty()) {
            root_ = std::move(value);
        } else if (Open& parent = open_.back(); parent.value.isList()) {
            parent.value.items.push_back(std::move(value));
        } else {
            parent.members.push_back({std::move(parent.name), std::move(value)});
        }
        return true;
    }

    JsonError& error_;
    DataValue root_;
    std::vector<Open> open_;
};

/// A view of a text that counts how much of it was read.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, const char** furthest) : at_(at), furthest_(furthest) {}
    const char& operator*() const { return *at_; }
    CountingIterator& operator++() {
        *furthest_ = ++at_;
        return *this;
    }
    bool operator==(const CountingIterator& other) const { return at_ == other.at_; }
    bool operator!=(const CountingIterator& other) const { return at_ != other.at_; }

private:
    const char* at_;
    const char** furthest_;
};

}  // namespace

std::string jsonReason(std::string_view what) {
    constexpr std::pair<std::string_view, std::string_view> advice[] = {
        {"unexpected '}'; expected string literal", "remove the comma before it"},
        {"unexpected ']'", "remove the comma before it, or the last value is missing"},
        {"unexpected string literal; expected '}'", "a comma is missing before it"},
        {"unexpected '{'; expected ']'", "a comma is missing before it"},
    };
    const auto skip = [&](std::string_view mark) {
        const std::size_t at = what.find(mark);
        what.remove_prefix(at == std::string_view::npos ? 0 : at + mark.size());
    };
    skip("] ");
    if (what.starts_with("number overflow")) {
        skip("parsing ");
        return "the number " + std::string(what) + " is too large";
    }
    skip(" - ");
    for (const auto& [reason, hint] : advice) {
        if (what.starts_with(reason)) {
            return std::string(what) + "; " + std::string(hint);
        }
    }
    return std::string(what);
}

std::optional<DataValue> readJson(std::string_view text, JsonError& error) {
    error = {};
    if (isUtf16(text)) {
        error.message = "This text is in UTF-16; save it in UTF-8";
        return std::nullopt;
    }
    const std::string_view json = afterByteOrderMark(text);
    const char* furthest = json.data();
    ValueBuilder builder(error);
    const char* const end = json.data() + json.size();
    if (nlohmann::json::sax_parse(CountingIterator(json.data(), &furthest),
                                  CountingIterator(end, &furthest), &builder)) {
        return builder.takeRoot();
    }
    if (error.position == 0) {
        // What the builder refuses ends at the byte that was read last.
        error.position =
            static_cast<std::size_t>(std::max(furthest - json.data(), std::ptrdiff_t{1})) - 1;
    }
    error.position = std::min(error.position, json.size()) + (text.size() - json.size());
    return std::nullopt;
}

}  // namespace quorvane::data
