#include "quorvane/base/memory/Counted.h"

#include <gtest/gtest.h>

#include <functional>

namespace quorvane {
namespace {

struct Owner {
    CountedOwner counts;
    std::function<void()> whenLetGo = [] {};
    int timesLetGo = 0;
    bool* isDeleted;

    explicit Owner(bool& deleted) : isDeleted(&deleted) {}
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    ~Owner() { *isDeleted = true; }

    void releaseContents() noexcept {
        ++timesLetGo;
        whenLetGo();
    }
};

TEST(Counted, ReportsWhenTheLastReferenceIsGone) {
    Counted counts;
    counts.retain();
    counts.retain();
    counts.retain();

    EXPECT_FALSE(counts.release());
    EXPECT_FALSE(counts.release());
    EXPECT_TRUE(counts.release());
}

TEST(CountedOwner, IsNotAliveBeforeItsFirstReference) {
    EXPECT_FALSE(CountedOwner().isAlive());
}

TEST(CountedOwner, ReleasesAndDeletesWithTheLastReference) {
    bool isDeleted = false;
    auto* owner = new Owner(isDeleted);
    owner->counts.retain();
    owner->counts.retain();

    owner->counts.release(owner);
    EXPECT_TRUE(owner->counts.isAlive());
    EXPECT_EQ(owner->timesLetGo, 0);

    owner->counts.release(owner);
    EXPECT_TRUE(isDeleted);
}

TEST(CountedOwner, LeavesTheMemoryToTheLastWeakReference) {
    bool isDeleted = false;
    auto* owner = new Owner(isDeleted);
    owner->counts.retain();
    owner->counts.retainWeak();
    owner->counts.retainWeak();

    owner->counts.release(owner);
    EXPECT_FALSE(owner->counts.isAlive());
    EXPECT_EQ(owner->timesLetGo, 1);
    EXPECT_FALSE(isDeleted);

    owner->counts.releaseWeak(owner);
    EXPECT_FALSE(isDeleted);
    owner->counts.releaseWeak(owner);
    EXPECT_TRUE(isDeleted);
}

TEST(CountedOwner, OutlivesItsWeakReferencesWhileAStrongOneIsHeld) {
    bool isDeleted = false;
    auto* owner = new Owner(isDeleted);
    owner->counts.retain();
    owner->counts.retainWeak();

    owner->counts.releaseWeak(owner);
    EXPECT_FALSE(isDeleted);
    EXPECT_TRUE(owner->counts.isAlive());

    owner->counts.release(owner);
    EXPECT_TRUE(isDeleted);
}

TEST(CountedOwner, StaysUntilItsLastWeakReferenceIsReleased) {
    bool isDeleted = false;
    bool wasDeletedWhileLettingGo = false;
    auto* owner = new Owner(isDeleted);
    owner->counts.retain();
    owner->counts.retainWeak();
    owner->whenLetGo = [&] {
        owner->counts.releaseWeak(owner);
        wasDeletedWhileLettingGo = isDeleted;
    };

    owner->counts.release(owner);

    EXPECT_FALSE(wasDeletedWhileLettingGo);
    EXPECT_TRUE(isDeleted);
}

}  // namespace
}  // namespace quorvane
