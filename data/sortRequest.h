#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane::data {

/// A field that records are sorted by.
struct SortRequest {
    std::string name;
    bool isDescending = false;
};

/// The fields of "price:desc,name": with commas between them, and ":desc" or ":asc" after a name.
/// Quotation marks around a name let it hold any character; two stand for one. Error 5 for another
/// text; the description says what to write.
std::vector<SortRequest> sortRequests(std::string_view text);

}  // namespace quorvane::data
