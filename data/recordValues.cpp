#include "data/recordValues.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/csvRecords.h"
#include "data/json.h"
#include "data/jsonObjects.h"

namespace quorvane::data {

namespace {

class JsonValues final : public RecordValues {
public:
    explicit JsonValues(RecordsText& text) : objects_(text) {}

    bool next(DataValue& record) override {
        std::string_view object;
        if (!objects_.next(object)) {
            return false;
        }
        JsonError error;
        std::optional<DataValue> value = readJson(object, error);
        if (!value) {
            const std::string_view before = object.substr(0, error.position);
            throw RecordError(line() + std::count(before.begin(), before.end(), '\n'),
                              error.message + ".", true);
        }
        record = *std::move(value);
        return true;
    }

    bool skip() override {
        std::string_view object;
        return objects_.next(object);
    }

    std::int64_t line() const noexcept override { return objects_.line(); }

private:
    JsonObjects objects_;
};

class CsvValues final : public RecordValues {
public:
    CsvValues(RecordsText& text, std::optional<char> delimiter)
        : rows_(text, delimiter), order_(rows_.names().size()) {
        const std::vector<std::string>& names = rows_.names();
        std::iota(order_.begin(), order_.end(), std::size_t{0});
        std::sort(order_.begin(), order_.end(),
                  [&](std::size_t a, std::size_t b) { return names[a] < names[b]; });
        for (const std::size_t field : order_) {
            if (!names_.empty() && names_.back() == names[field]) {
                throw RecordError(1, "The heading has \"" + names[field] + "\" twice.", false);
            }
            names_.push_back(names[field]);
        }
    }

    bool next(DataValue& record) override {
        if (!rows_.next(fields_)) {
            return false;
        }
        record.kind = DataValue::Kind::Object;
        record.names = names_;
        record.items.resize(order_.size());
        for (std::size_t i = 0; i < order_.size(); ++i) {
            record.items[i].kind = DataValue::Kind::String;
            record.items[i].text = fields_[order_[i]];
        }
        return true;
    }

    bool skip() override { return rows_.next(fields_); }
    std::int64_t line() const noexcept override { return rows_.line(); }

private:
    CsvRecords rows_;
    // The fields in the order of their names.
    std::vector<std::size_t> order_;
    std::vector<std::string> names_;
    std::vector<std::string_view> fields_;
};

}  // namespace

std::unique_ptr<RecordValues> jsonValues(RecordsText& text) {
    return std::make_unique<JsonValues>(text);
}

std::unique_ptr<RecordValues> csvValues(RecordsText& text, std::optional<char> delimiter) {
    return std::make_unique<CsvValues>(text, delimiter);
}

}  // namespace quorvane::data
