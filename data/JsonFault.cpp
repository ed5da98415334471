#include "data/JsonFault.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <vector>

#include "data/CountingIterator.h"
#include "quorvane/base/text/byteOrderMark.h"

namespace quorvane::data {

namespace {

/// Reads a text up to the value that a pointer names.
class PlaceReader : public nlohmann::json_sax<nlohmann::json> {
public:
    PlaceReader(std::string_view text, std::string_view pointer)
        : text_(text), pointer_(pointer), furthest_(text.data()) {}

    JsonPlace read() {
        const char* const end = text_.data() + text_.size();
        nlohmann::json::sax_parse(CountingIterator(text_.data(), &furthest_),
                                  CountingIterator(end, &furthest_), this);
        return place_;
    }

    bool null() override { return takeToken(); }
    bool boolean(bool) override { return takeToken(); }
    bool number_integer(number_integer_t) override { return takeNumber(); }
    bool number_unsigned(number_unsigned_t) override { return takeNumber(); }
    bool number_float(number_float_t, const string_t&) override { return takeNumber(); }
    bool string(string_t&) override { return takeToken(); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(false); }
    bool start_array(std::size_t) override { return open(true); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t& name) override {
        open_.back().part = pointerPart(name);
        end_ = readLength();
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

private:
    struct Open {
        bool isList = false;
        /// Of a list, the number of the next item.
        std::size_t item = 0;
        /// Of an object, the name of the next value.
        std::string part = {};
        /// How long the path to it is.
        std::size_t length = 0;
    };

    std::size_t readLength() const { return static_cast<std::size_t>(furthest_ - text_.data()); }

    std::size_t beginOfNext() const {
        return std::min(text_.find_first_not_of(" \t\r\n:,", end_), text_.size());
    }

    bool takeToken() { return take(readLength()); }

    /// A number is at its end only where another character was read.
    bool takeNumber() {
        return take(
            std::min(text_.find_first_not_of("+-.0123456789eE", beginOfNext()), text_.size()));
    }

    /// Takes a value that ends there; false for the one that is looked for.
    bool take(std::size_t end) {
        const std::size_t begin = beginOfNext();
        appendPart();
        const bool isIt = path_ == pointer_;
        if (isIt) {
            place_ = {begin, end};
        }
        path_.resize(open_.empty() ? 0 : open_.back().length);
        end_ = end;
        return !isIt;
    }

    void appendPart() {
        if (!open_.empty()) {
            Open& outer = open_.back();
            path_ += '/' + (outer.isList ? std::to_string(outer.item++) : outer.part);
        }
    }

    bool open(bool isList) {
        const std::size_t begin = beginOfNext();
        appendPart();
        if (path_ == pointer_) {
            place_ = {begin, begin + 1};
            return false;
        }
        open_.push_back({.isList = isList, .length = path_.size()});
        end_ = readLength();
        return true;
    }

    bool close() {
        open_.pop_back();
        path_.resize(open_.empty() ? 0 : open_.back().length);
        end_ = readLength();
        return true;
    }

    std::string_view text_;
    std::string_view pointer_;
    const char* furthest_;
    std::size_t end_ = 0;
    std::string path_;
    std::vector<Open> open_;
    JsonPlace place_;
};

}  // namespace

std::string pointerPart(std::string_view name) {
    std::string part;
    for (const char character : name) {
        part += character == '~'   ? std::string("~0")
                : character == '/' ? std::string("~1")
                                   : std::string(1, character);
    }
    return part;
}

JsonPlace jsonPlace(std::string_view text, std::string_view pointer) {
    const std::string_view json = afterByteOrderMark(text);
    const std::size_t mark = text.size() - json.size();
    const JsonPlace place = PlaceReader(json, pointer).read();
    return {place.begin + mark, place.end + mark};
}

}  // namespace quorvane::data
