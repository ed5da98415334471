#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/columnsNumber.h"
#include "data/localDate.h"
#include "data/locale.h"

namespace quorvane::data {

/// A field that records are sorted by. It makes keys: of two records, the one with the smaller
/// bytes comes first.
///
/// Numbers come before dates and dates before other texts, which are compared as `foldedText` has
/// them. In descending order all this is the other way round, but empty values are last in both.
/// The values show their decimal sign and the order of their dates, or the locale has them.
class SortColumn {
public:
    /// Numbers of JSON have a decimal point and can have an exponent.
    SortColumn(bool isDescending, bool areJson) : isDescending_(isDescending), areJson_(areJson) {
        if (areJson) {
            sign_ = DecimalSign::Point;
        }
    }

    /// Looks at how a value is written; at all of them before the first key is made.
    void look(std::string_view value);
    /// Ends that. Without a locale, error 5 if values can be read in two ways; `name` is that of
    /// the field.
    void decide(const std::string& name, const Locale* locale);

    /// Appends the key of a value.
    void append(std::string_view value, std::string& key) const;

private:
    std::optional<std::string> plain(std::string_view value) const;
    void appendAscending(std::string_view value, std::string& key) const;

    bool isDescending_;
    bool areJson_;
    std::optional<DecimalSign> sign_;
    std::optional<DateOrder> order_;
    // The first value that can be read in two ways, of each kind.
    std::string ambiguousNumber_;
    std::string ambiguousDate_;
};

}  // namespace quorvane::data
