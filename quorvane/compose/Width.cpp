#include "quorvane/compose/Width.h"

#include "quorvane/base/text/numberText.h"
#include "quorvane/base/text/textCase.h"
#include "quorvane/compose/composing.h"
#include "quorvane/driver/extendedValues.h"

namespace quorvane {

Width::Width(double percent) {
    set(numberText(percent));
}

Width::Width(std::string_view text) {
    if (lowerCase(text) != "auto") {
        set(text);
    }
}

Width Width::twips(int twips) {
    Width width;
    width.set(std::to_string(twips) + "tw");
    return width;
}

void Width::set(std::string_view text) {
    const ColumnWidth width = composing([&] { return columnWidth(text); });
    kind_ = width.isShare ? Kind::Percent : Kind::Twips;
    amount_ = width.amount;
}

}  // namespace quorvane
