#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "tests/docmodel/documentParts.h"
#include "tests/support/errorNumberOf.h"

namespace quorvane {
namespace {

// The edges of a row's cells, kept in a vector and changed by the plain steps. Errors are thrown as
// their numbers, before anything is changed.
class PlainEdges {
public:
    std::vector<std::int64_t> edges;
    std::int64_t pageWidth = 12242;

    static std::int64_t measure(std::int64_t value) {
        return value >= INT32_MIN && value <= INT32_MAX ? value : throw 6;
    }

    static std::int64_t divided(std::int64_t a, std::int64_t b) {
        if (b == 0) {
            throw 11;
        }
        return measure(std::llrint(static_cast<long double>(a) / static_cast<long double>(b)));
    }

    std::int64_t usableWidth() const { return measure(measure(pageWidth - 1701) - 1701); }

    std::int64_t evenWidth(std::size_t count) const {
        const auto cells = static_cast<std::int64_t>(count);
        const std::int64_t width = std::max<std::int64_t>(divided(usableWidth(), cells), 200);
        measure(width * cells);
        return width;
    }

    void spread() {
        const std::int64_t width = evenWidth(edges.size());
        for (std::size_t i = 0; i < edges.size(); ++i) {
            edges[i] = width * static_cast<std::int64_t>(i + 1);
        }
    }

    void insert(std::size_t index) {
        evenWidth(edges.size() + 1);
        edges.insert(edges.begin() + static_cast<std::ptrdiff_t>(index), 0);
        spread();
    }

    void remove(std::size_t position) {
        const std::int64_t edge = edges.at(position - 1);
        edges.erase(edges.begin() + static_cast<std::ptrdiff_t>(position - 1));
        if (edges.size() != 1 && position != 1) {
            edges.at(position - 2) = edge;
        }
    }

    void removeHead() {
        if (!edges.empty()) {
            edges.erase(edges.begin());
        }
    }

    void removeTail() {
        if (edges.empty()) {
            throw 5;
        }
        const std::int64_t edge = edges.back();
        edges.pop_back();
        if (edges.size() > 1) {
            edges.back() = edge;
        }
    }

    std::int64_t widthInTwips(std::size_t position) const {
        const std::int64_t edge = edges.at(position - 1);
        return position == 1 ? edge : measure(edge - edges.at(position - 2));
    }

    std::int64_t width(std::size_t position, int units) const {
        const std::int64_t twips = widthInTwips(position);
        return units == eTwips ? twips : divided(measure(twips * 100), usableWidth());
    }

    void setWidth(std::size_t position, int units, std::int64_t value) {
        const std::int64_t t =
            units == ePercent ? divided(measure(usableWidth() * value), 100) : value;
        const std::size_t p = position;
        const std::size_t n = edges.size();
        std::int64_t fresh = p == 1 ? t : measure(edges.at(p - 2) + t);
        std::int64_t lower = 0;
        std::int64_t upper = 0;
        std::size_t changed = p;
        if (n == 1) {
            lower = 200;
            upper = usableWidth();
        } else if (p < n) {
            lower = measure(measure(edges.at(p - 1) - widthInTwips(p)) + 200);
            upper = measure(edges.at(p) - 200);
        } else {
            fresh = measure(edges.at(p - 1) - t);
            lower = measure(measure(edges.at(p - 2) - widthInTwips(p - 1)) + 200);
            upper = measure(edges.at(p - 1) - 200);
            changed = p - 1;
        }
        if (fresh > upper) {
            fresh = upper;
        } else if (fresh < lower) {
            fresh = lower;
        }
        edges.at(changed - 1) = fresh;
    }

    std::string definitions() const {
        std::string text;
        for (const std::int64_t edge : edges) {
            text += " \\cellx" + std::to_string(edge);
        }
        return text;
    }
};

// What a row does and what the plain steps do, call by call.
class WidthCalls {
public:
    explicit WidthCalls(unsigned seed) : random_(seed) {}

    // Makes one call at random; page and widths are taken from these.
    void step(const std::vector<std::int32_t>& pageWidths,
              const std::vector<std::int32_t>& widths) {
        const std::size_t count = plain_.edges.size();
        switch (below(count > 25 ? 12 : 14)) {
            case 0:
                compare([&] { cells()->SetUniformWidths(); }, [&] { plain_.spread(); });
                break;
            case 1:
                plain_.pageWidth = pageWidths[below(pageWidths.size())];
                row_.document->setPageWidth(static_cast<std::int32_t>(plain_.pageWidth));
                break;
            case 2:
                compare([&] { cells()->RemoveHead(); }, [&] { plain_.removeHead(); });
                break;
            case 3:
                compare([&] { cells()->removeTail(); }, [&] { plain_.removeTail(); });
                break;
            case 4:
                if (count > 0) {
                    const std::size_t position = 1 + below(count);
                    compare([&] { cells()->Remove(static_cast<int>(position)); },
                            [&] { plain_.remove(position); });
                }
                break;
            case 5:
                refile();
                break;
            case 6:
            case 7:
            case 8:
            case 9:
            case 10:
                if (count > 0) {
                    const std::size_t position = 1 + below(count);
                    const std::int32_t value = widths[below(widths.size())];
                    const auto units = static_cast<tWidthUnit>(below(3));
                    compare(
                        [&] { cells()->Item(static_cast<int>(position))->setWidth(units, value); },
                        [&] { plain_.setWidth(position, units, value); });
                }
                break;
            case 11:
                compare([&] { cells()->AddHead(); }, [&] { plain_.insert(0); });
                break;
            case 12:
                compare([&] { cells()->AddTail(); }, [&] { plain_.insert(count); });
                break;
            default:
                if (count > 0) {
                    const std::size_t position = 1 + below(count);
                    compare([&] { cells()->add(Missing{}, static_cast<int>(position)); },
                            [&] { plain_.insert(position - 1); });
                }
        }
    }

    void expectSameEdges() {
        const std::string text = row_.cellsText();
        ASSERT_EQ(text.substr(0, std::min(text.find(" \r\n"), text.size())), plain_.definitions());
        for (std::size_t position = 1; position <= plain_.edges.size(); ++position) {
            const Ref<CRtfTableCell> cell = cells()->Item(static_cast<int>(position));
            for (const int units : {0, 1, 2}) {
                std::int64_t width = 0;
                std::int64_t expected = 0;
                compare([&] { width = cell->Width(static_cast<tWidthUnit>(units)); },
                        [&] { expected = plain_.width(position, units); });
                ASSERT_EQ(width, expected);
            }
        }
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }

    Ref<CRtfTableCells> cells() { return row_.row->TableCells(); }

    template <class Call, class Steps>
    void compare(Call call, Steps steps) {
        int expected = 0;
        try {
            steps();
        } catch (int error) {
            expected = error;
        }
        ASSERT_EQ(errorNumberOf(call), expected);
    }

    void refile() {
        const std::string key = "key" + std::to_string(++keys_);
        if (below(2) == 0) {
            row_.row = row_.document->TableRows()->refile(row_.row, key);
        } else if (cells()->Count() > 0) {
            const auto position = static_cast<int>(1 + below(plain_.edges.size()));
            cells()->refile(cells()->Item(position), key);
        }
    }

    std::mt19937 random_;
    RowDocument row_;
    PlainEdges plain_;
    int keys_ = 0;
};

class CellWidths : public testing::TestWithParam<unsigned> {};

TEST_P(CellWidths, AreThoseOfThePlainSteps) {
    WidthCalls calls(GetParam());
    for (int i = 0; i < 2000; ++i) {
        calls.step({12242, 12402, 5402, 3402, 3403, 30000},
                   {0, 1, 10, 25, 33, 50, 100, 199, 200, 201, 1000, 3000, 5000, 8840, -50, 20000});
        calls.expectSameEdges();
        if (HasFatalFailure()) {
            return;
        }
    }
}

TEST_P(CellWidths, FailWhereThePlainStepsFail) {
    WidthCalls calls(GetParam());
    for (int i = 0; i < 2000; ++i) {
        calls.step({INT32_MAX, INT32_MIN, INT32_MIN + 3402, INT32_MIN + 3401, 0, 3402, 12242,
                    21474836 + 3402, 21474837 + 3402, INT32_MAX - 5},
                   {INT32_MAX, INT32_MIN, INT32_MAX - 200, INT32_MAX - 3000, INT32_MIN + 5000, 100,
                    -1, 1000, 2000000, 21474836, 1073741824});
        calls.expectSameEdges();
        if (HasFatalFailure()) {
            return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, CellWidths, testing::Range(1U, 7U));

}  // namespace
}  // namespace quorvane
