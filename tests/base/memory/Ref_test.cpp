#include "quorvane/base/memory/Ref.h"

#include <gtest/gtest.h>

#include <utility>

#include "quorvane/base/memory/Counted.h"
#include "quorvane/base/memory/WeakRef.h"

namespace quorvane {
namespace {

// An owner as the document is one: it is released with its last reference, and its memory goes
// with the last weak one.
struct Owner {
    CountedOwner counts;
    bool wasLetGo = false;
    static inline int living = 0;

    Owner() { ++living; }
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;
    ~Owner() { --living; }

    void releaseContents() noexcept { wasLetGo = true; }
};

void retain(Owner* owner) noexcept {
    owner->counts.retain();
}

void release(Owner* owner) noexcept {
    owner->counts.release(owner);
}

void retainWeak(Owner* owner) noexcept {
    owner->counts.retainWeak();
}

void releaseWeak(Owner* owner) noexcept {
    owner->counts.releaseWeak(owner);
}

bool isAlive(const Owner* owner) noexcept {
    return owner->counts.isAlive();
}

Ref<Owner> newOwner() {
    return Ref<Owner>(new Owner);
}

TEST(Ref, IsNullAtFirst) {
    const Ref<Owner> reference;

    EXPECT_FALSE(reference);
    EXPECT_EQ(reference, nullptr);
    EXPECT_EQ(reference.get(), nullptr);
}

TEST(Ref, IsNullWhenMadeOfNull) {
    EXPECT_FALSE(Ref<Owner>(nullptr));
    EXPECT_FALSE(Ref<Owner>(static_cast<Owner*>(nullptr)));
}

TEST(Ref, KeepsItsObjectAlive) {
    {
        const Ref<Owner> reference = newOwner();
        EXPECT_TRUE(reference);
        EXPECT_EQ(Owner::living, 1);
    }
    EXPECT_EQ(Owner::living, 0);
}

TEST(Ref, KeepsItsObjectAliveAsLongAsACopyDoes) {
    Ref<Owner> copy;
    {
        const Ref<Owner> reference = newOwner();
        copy = reference;
    }

    EXPECT_EQ(Owner::living, 1);
    copy = nullptr;
    EXPECT_EQ(Owner::living, 0);
}

TEST(Ref, IsNullAfterItWasMoved) {
    Ref<Owner> reference = newOwner();
    const Owner* const object = reference.get();

    const Ref<Owner> moved = std::move(reference);

    EXPECT_EQ(moved.get(), object);
    EXPECT_FALSE(reference);  // NOLINT(bugprone-use-after-move)
}

TEST(Ref, SurvivesBeingAssignedToItself) {
    Ref<Owner> reference = newOwner();
    const Ref<Owner>& same = reference;

    reference = same;

    EXPECT_TRUE(reference);
    EXPECT_EQ(Owner::living, 1);
}

TEST(Ref, ReleasesItsObjectWhenItTakesAnother) {
    Ref<Owner> reference = newOwner();

    reference = newOwner();

    EXPECT_EQ(Owner::living, 1);
}

TEST(Ref, IsEqualToAnotherOfTheSameObject) {
    const Ref<Owner> reference = newOwner();
    const Ref<Owner> same(reference.get());
    const Ref<Owner> other = newOwner();

    EXPECT_EQ(reference, same);
    EXPECT_NE(reference, other);
}

TEST(Ref, HandsItsCountOver) {
    Ref<Owner> reference = newOwner();

    Owner* object = reference.detach();

    EXPECT_FALSE(reference);
    EXPECT_EQ(Owner::living, 1);
    {
        const Ref<Owner> adopted = Ref<Owner>::adopt(object);
        EXPECT_EQ(adopted.get(), object);
    }
    EXPECT_EQ(Owner::living, 0);
}

TEST(WeakRef, IsNullAtFirst) {
    EXPECT_EQ(WeakRef<Owner>().get(), nullptr);
    EXPECT_EQ(WeakRef<Owner>(nullptr).get(), nullptr);
}

TEST(WeakRef, ReturnsItsObjectWhileThatIsAlive) {
    const Ref<Owner> owner = newOwner();
    const WeakRef<Owner> weak(owner.get());

    EXPECT_EQ(weak.get(), owner.get());
}

TEST(WeakRef, DoesNotKeepItsObjectAlive) {
    Ref<Owner> owner = newOwner();
    const WeakRef<Owner> weak(owner.get());

    owner = nullptr;

    EXPECT_EQ(weak.get(), nullptr);
}

TEST(WeakRef, ReturnsNullInItsCopiesToo) {
    Ref<Owner> owner = newOwner();
    const WeakRef<Owner> weak(owner.get());
    WeakRef<Owner> copy = weak;
    const WeakRef<Owner> moved = std::move(copy);
    WeakRef<Owner> assigned;
    assigned = weak;

    owner = nullptr;

    EXPECT_EQ(moved.get(), nullptr);
    EXPECT_EQ(assigned.get(), nullptr);
}

TEST(WeakRef, KeepsNoMoreThanTheMemoryOfItsObject) {
    Ref<Owner> owner = newOwner();
    const Owner* const object = owner.get();
    {
        const WeakRef<Owner> weak(owner.get());
        owner = nullptr;
        EXPECT_EQ(Owner::living, 1);
        EXPECT_TRUE(object->wasLetGo);
    }
    EXPECT_EQ(Owner::living, 0);
}

}  // namespace
}  // namespace quorvane
