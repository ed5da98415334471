#include "data/sortRequest.h"

#include "data/columnsParts.h"
#include "data/refuse.h"

namespace quorvane::data {

namespace {

SortRequest takeRequest(ColumnsParts& parts) {
    SortRequest request;
    request.name = parts.take().text;
    if (request.name.empty()) {
        refuse("A field to sort by has no name. Write names with commas between them.");
    }
    if (parts.takeSign(':')) {
        const std::string direction = parts.take().text;
        if (direction != "asc" && direction != "desc") {
            refuse("\"" + direction + "\" after the field \"" + request.name +
                   "\" is not an order; write asc or desc.");
        }
        request.isDescending = direction == "desc";
    }
    return request;
}

}  // namespace

std::vector<SortRequest> sortRequests(std::string_view text) {
    ColumnsParts parts(text);
    std::vector<SortRequest> requests;
    do {
        requests.push_back(takeRequest(parts));
    } while (parts.takeSign(','));
    parts.requireEnd();
    return requests;
}

}  // namespace quorvane::data
