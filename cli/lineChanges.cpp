#include "cli/lineChanges.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <unordered_map>

namespace quorvane::cli {

namespace {

using Position = std::int64_t;

/// A line of one side that the other side has too.
struct SharedLine {
    std::size_t text;
    std::size_t index;
};

/// One of the two lists: the lines that are compared, and which of all lines are changed.
struct Side {
    std::vector<SharedLine> shared;
    std::vector<bool> isChanged;

    void markChanged(Position begin, Position end) {
        for (Position i = begin; i < end; ++i) {
            isChanged[shared[static_cast<std::size_t>(i)].index] = true;
        }
    }
};

/// Part of the lines of both sides.
struct Box {
    Position beginBefore;
    Position endBefore;
    Position beginAfter;
    Position endAfter;
};

/// A point on a path from the beginning of a box to its end.
struct Point {
    Position before;
    Position after;
};

/// Numbers the lines by their texts. A line that only one side has is changed in any case, so
/// that only the others need to be compared: after a change of the indentation those are few.
void distinguishLines(const std::vector<std::string_view>& before,
                      const std::vector<std::string_view>& after, Side& sideBefore,
                      Side& sideAfter) {
    struct Occurrence {
        std::size_t number;
        bool isBefore = false;
        bool isAfter = false;
    };
    std::unordered_map<std::string_view, Occurrence> texts;
    for (const std::string_view line : before) {
        texts.try_emplace(line, Occurrence{texts.size()}).first->second.isBefore = true;
    }
    for (const std::string_view line : after) {
        texts.try_emplace(line, Occurrence{texts.size()}).first->second.isAfter = true;
    }
    const auto fill = [&](const std::vector<std::string_view>& lines, Side& side) {
        side.isChanged.assign(lines.size(), false);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const Occurrence& text = texts.at(lines[i]);
            if (text.isBefore && text.isAfter) {
                side.shared.push_back({text.number, i});
            } else {
                side.isChanged[i] = true;
            }
        }
    };
    fill(before, sideBefore);
    fill(after, sideAfter);
}

/// Marks what differs by E. Myers' algorithm in linear space ("An O(ND) Difference Algorithm and
/// Its Variations"): paths from both ends of a box grow by one change at a time until they meet,
/// which parts the box in two.
class Comparison {
public:
    Comparison(Side& before, Side& after)
        : before_(before),
          after_(after),
          origin_(static_cast<Position>(after.shared.size()) + 1),
          forward_(before.shared.size() + after.shared.size() + 3),
          backward_(forward_.size()) {}

    void run() {
        compare({0, static_cast<Position>(before_.shared.size()), 0,
                 static_cast<Position>(after_.shared.size())});
    }

private:
    // More changes than these within one box are not searched for the shortest path.
    static constexpr Position maxChanges = 500;
    static constexpr Position unreached = std::numeric_limits<Position>::min() / 2;

    bool isEqual(Position before, Position after) const {
        return before_.shared[static_cast<std::size_t>(before)].text ==
               after_.shared[static_cast<std::size_t>(after)].text;
    }

    void compare(Box box) {
        while (box.beginBefore < box.endBefore && box.beginAfter < box.endAfter &&
               isEqual(box.beginBefore, box.beginAfter)) {
            ++box.beginBefore;
            ++box.beginAfter;
        }
        while (box.beginBefore < box.endBefore && box.beginAfter < box.endAfter &&
               isEqual(box.endBefore - 1, box.endAfter - 1)) {
            --box.endBefore;
            --box.endAfter;
        }
        if (box.beginBefore == box.endBefore || box.beginAfter == box.endAfter) {
            before_.markChanged(box.beginBefore, box.endBefore);
            after_.markChanged(box.beginAfter, box.endAfter);
            return;
        }
        const Point middle = meetingPoint(box);
        compare({box.beginBefore, middle.before, box.beginAfter, middle.after});
        compare({middle.before, box.endBefore, middle.after, box.endAfter});
    }

    /// How far the path on a diagonal came; a diagonal is the difference of its positions.
    Position& forwardOn(Position diagonal) {
        return forward_[static_cast<std::size_t>(origin_ + diagonal)];
    }
    Position& backwardOn(Position diagonal) {
        return backward_[static_cast<std::size_t>(origin_ + diagonal)];
    }

    /// Diagonals of a box that paths have reached or may reach next.
    struct Reach {
        Position first;
        Position last;
    };

    /// Those of a path that began on a diagonal; it is on every other one from the first on.
    static Reach reachOf(const Box& box, Position begin, Position changes) {
        const Position lowest = box.beginBefore - box.endAfter;
        const Position highest = box.endBefore - box.beginAfter;
        Reach reach{begin - changes, begin + changes};
        reach.first += reach.first < lowest ? (lowest - reach.first + 1) / 2 * 2 : 0;
        reach.last -= reach.last > highest ? (reach.last - highest + 1) / 2 * 2 : 0;
        return reach;
    }

    static bool isWithin(const Box& box, Position before, Position diagonal) {
        const Position after = before - diagonal;
        return before >= box.beginBefore && before <= box.endBefore && after >= box.beginAfter &&
               after <= box.endAfter;
    }

    /// The end of the forward path on the diagonal with one change more than the reach before had.
    Position stepForward(const Box& box, Position diagonal, const Reach& before) {
        // A line of the one side is left out, or a line of the other one taken in.
        Position at = unreached;
        if (diagonal > before.first && isWithin(box, forwardOn(diagonal - 1) + 1, diagonal)) {
            at = forwardOn(diagonal - 1) + 1;
        }
        if (diagonal < before.last && isWithin(box, forwardOn(diagonal + 1), diagonal)) {
            at = std::max(at, forwardOn(diagonal + 1));
        }
        while (at != unreached && at < box.endBefore && at - diagonal < box.endAfter &&
               isEqual(at, at - diagonal)) {
            ++at;
        }
        return at;
    }

    /// The same of the backward path, whose positions fall.
    Position stepBackward(const Box& box, Position diagonal, const Reach& before) {
        Position at = -unreached;
        if (diagonal < before.last && isWithin(box, backwardOn(diagonal + 1) - 1, diagonal)) {
            at = backwardOn(diagonal + 1) - 1;
        }
        if (diagonal > before.first && isWithin(box, backwardOn(diagonal - 1), diagonal)) {
            at = std::min(at, backwardOn(diagonal - 1));
        }
        while (at != -unreached && at > box.beginBefore && at - diagonal > box.beginAfter &&
               isEqual(at - 1, at - diagonal - 1)) {
            --at;
        }
        return at;
    }

    /// A point on a shortest path through a box whose first and last lines differ. It is at neither
    /// of the two corners.
    Point meetingPoint(const Box& box) {
        const Position firstDiagonal = box.beginBefore - box.beginAfter;
        const Position lastDiagonal = box.endBefore - box.endAfter;
        const bool isOdd = (lastDiagonal - firstDiagonal) % 2 != 0;
        forwardOn(firstDiagonal) = box.beginBefore;
        backwardOn(lastDiagonal) = box.endBefore;
        Reach forward{firstDiagonal, firstDiagonal};
        Reach backward{lastDiagonal, lastDiagonal};
        for (Position changes = 1; changes <= maxChanges; ++changes) {
            const Reach forwardBefore = forward;
            forward = reachOf(box, firstDiagonal, changes);
            for (Position k = forward.first; k <= forward.last; k += 2) {
                const Position at = stepForward(box, k, forwardBefore);
                forwardOn(k) = at;
                if (isOdd && at != unreached && k >= backward.first && k <= backward.last &&
                    at >= backwardOn(k)) {
                    return {at, at - k};
                }
            }
            const Reach backwardBefore = backward;
            backward = reachOf(box, lastDiagonal, changes);
            for (Position k = backward.first; k <= backward.last; k += 2) {
                const Position at = stepBackward(box, k, backwardBefore);
                backwardOn(k) = at;
                if (!isOdd && at != -unreached && k >= forward.first && k <= forward.last &&
                    at <= forwardOn(k)) {
                    return {at, at - k};
                }
            }
        }
        return farthestPoint(box, forward);
    }

    /// The point that is farthest from the beginning of those which the forward paths have reached.
    Point farthestPoint(const Box& box, const Reach& forward) {
        Point farthest{box.beginBefore, box.beginAfter};
        for (Position k = forward.first; k <= forward.last; k += 2) {
            const Position at = forwardOn(k);
            if (at != unreached && at + at - k > farthest.before + farthest.after) {
                farthest = {at, at - k};
            }
        }
        return farthest;
    }

    Side& before_;
    Side& after_;
    Position origin_;
    std::vector<Position> forward_;
    std::vector<Position> backward_;
};

}  // namespace

std::vector<LineChange> lineChanges(const std::vector<std::string_view>& before,
                                    const std::vector<std::string_view>& after) {
    Side sideBefore;
    Side sideAfter;
    distinguishLines(before, after, sideBefore, sideAfter);
    Comparison(sideBefore, sideAfter).run();
    std::vector<LineChange> changes;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < before.size() || j < after.size()) {
        LineChange change{i, i, j, j};
        while (i < before.size() && sideBefore.isChanged[i]) {
            change.endBefore = ++i;
        }
        while (j < after.size() && sideAfter.isChanged[j]) {
            change.endAfter = ++j;
        }
        if (change.beginBefore != change.endBefore || change.beginAfter != change.endAfter) {
            changes.push_back(change);
        }
        if (i < before.size()) {
            ++i;
            ++j;
        }
    }
    return changes;
}

}  // namespace quorvane::cli
