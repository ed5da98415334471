#include "data/json.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <numeric>
#include <utility>
#include <vector>

#include "data/CountingIterator.h"
#include "quorvane/base/text/byteOrderMark.h"
#include "quorvane/diagnostics/fileEncoding.h"

namespace quorvane::data {

namespace {

/// Builds the value from what the parser reads, without a call for each level.
class ValueBuilder : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit ValueBuilder(JsonError& error) : error_(error) {}

    DataValue takeRoot() { return std::move(root_); }

    bool null() override { return add(DataValue::Kind::Null, {}); }
    bool boolean(bool value) override {
        return add(DataValue::Kind::Boolean, value ? "true" : "false");
    }
    bool number_integer(number_integer_t value) override {
        return add(DataValue::Kind::Number, std::to_string(value));
    }
    bool number_unsigned(number_unsigned_t value) override {
        return add(DataValue::Kind::Number, std::to_string(value));
    }
    bool number_float(number_float_t, const string_t& written) override {
        return add(DataValue::Kind::Number, written);
    }
    bool string(string_t& value) override { return add(DataValue::Kind::String, std::move(value)); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(DataValue::Kind::Object); }
    bool key(string_t& name) override {
        open_.back()->names.push_back(std::move(name));
        return true;
    }
    bool end_object() override {
        DataValue& object = *open_.back();
        open_.pop_back();
        sortByName(object);
        const auto twice = std::adjacent_find(object.names.begin(), object.names.end());
        if (twice != object.names.end()) {
            error_.message = "The object that ends here has \"" + *twice + "\" twice";
            return false;
        }
        return true;
    }
    bool start_array(std::size_t) override { return open(DataValue::Kind::List); }
    bool end_array() override {
        open_.pop_back();
        return true;
    }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& exception) override {
        error_.position = position == 0 ? 0 : position - 1;
        error_.message = "This is not JSON: " + jsonReason(exception.what());
        return false;
    }

private:
    bool open(DataValue::Kind kind) {
        if (open_.size() == maxJsonDepth) {
            error_.message = "Lists and objects are nested deeper than " +
                             std::to_string(maxJsonDepth) + " levels";
            return false;
        }
        DataValue& value = next();
        value.kind = kind;
        open_.push_back(&value);
        return true;
    }

    bool add(DataValue::Kind kind, std::string text) {
        DataValue& value = next();
        value.kind = kind;
        value.text = std::move(text);
        return true;
    }

    DataValue& next() { return open_.empty() ? root_ : open_.back()->items.emplace_back(); }

    /// Most objects have few names, and in any order.
    void sortByName(DataValue& object) {
        order_.resize(object.names.size());
        std::iota(order_.begin(), order_.end(), std::size_t{0});
        const auto isBefore = [&](std::size_t a, std::size_t b) {
            return object.names[a] < object.names[b];
        };
        if (std::is_sorted(order_.begin(), order_.end(), isBefore)) {
            return;
        }
        std::sort(order_.begin(), order_.end(), isBefore);
        object.names = inOrder(std::move(object.names));
        object.items = inOrder(std::move(object.items));
    }

    template <class Value>
    std::vector<Value> inOrder(std::vector<Value> values) const {
        std::vector<Value> ordered;
        ordered.reserve(values.size());
        for (const std::size_t index : order_) {
            ordered.push_back(std::move(values[index]));
        }
        return ordered;
    }

    JsonError& error_;
    DataValue root_;
    // Those that are not closed. None of them moves: a value is added to the last one only.
    std::vector<DataValue*> open_;
    std::vector<std::size_t> order_;
};

/// Where the builder refuses what it is given: at the byte that was read last, which the parser
/// does not say.
std::size_t positionOfRefusal(std::string_view json) {
    JsonError ignored;
    ValueBuilder builder(ignored);
    const char* furthest = json.data();
    static_cast<void>(nlohmann::json::sax_parse(
        CountingIterator(json.data(), &furthest),
        CountingIterator(json.data() + json.size(), &furthest), &builder));
    return static_cast<std::size_t>(std::max(furthest - json.data(), std::ptrdiff_t{1})) - 1;
}

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
    ValueBuilder builder(error);
    if (nlohmann::json::sax_parse(json, &builder)) {
        return builder.takeRoot();
    }
    if (error.position == 0) {
        error.position = positionOfRefusal(json);
    }
    error.position = std::min(error.position, json.size()) + (text.size() - json.size());
    return std::nullopt;
}

}  // namespace quorvane::data
