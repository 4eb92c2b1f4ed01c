#include "support/Pool.h"

#include <gmock/gmock.h>

#include <string>

#include "support/Ref.h"
#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

struct Point {
    int x = 0;
    int y = 0;
};

TEST(Ref, IsEmptyByDefaultAndFromNull) {
    EXPECT_FALSE(Ref<Point>());
    EXPECT_FALSE(Ref<Point>(nullptr));
    EXPECT_EQ(Ref<Point>().Get(), nullptr);
    EXPECT_EQ(Ref<Point>(), Ref<Point>(nullptr));
}

TEST(Ref, ReachesItsTarget) {
    Point point{3, 4};
    const Ref<Point> reference = &point;
    ASSERT_TRUE(reference);
    reference->x = 5;
    EXPECT_EQ(point.x, 5);
    EXPECT_EQ(&*reference, &point);
    EXPECT_EQ(reference.Get(), &point);
}

TEST(Ref, GoingThroughAnEmptyOneIsFailure91) {
    const Ref<Point> empty;
    EXPECT_THAT(
        [&] {
            empty->x = 1;
        },
        Fails(FailureKind::objectNotSet));
    EXPECT_THAT(
        [&] {
            static_cast<void>(*empty);
        },
        Fails(FailureKind::objectNotSet));
}

TEST(Ref, ComparesWhatItRefersTo) {
    Point first;
    Point second;
    EXPECT_EQ(Ref<Point>(&first), Ref<Point>(&first));
    EXPECT_NE(Ref<Point>(&first), Ref<Point>(&second));
    EXPECT_NE(Ref<Point>(&first), Ref<Point>());
}

/// Counts its living objects.
struct Counted {
    explicit Counted(int& count) : living(count) { ++living; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() { --living; }

    int& living;
    Ref<Counted> neighbour;
};

TEST(Pool, HandsArgumentsToTheConstructor) {
    Pool pool;
    EXPECT_EQ(*pool.Create<std::string>(std::size_t{3}, 'x'), "xxx");
    const Ref<Point> point = pool.Create<Point>();
    EXPECT_EQ(point->x, 0);
}

TEST(Pool, KeepsObjectsInPlaceUntilItGoesAndFreesThemThen) {
    int living = 0;
    {
        Pool pool;
        const Ref<Counted> first = pool.Create<Counted>(living);
        for (int i = 0; i < 1000; ++i) pool.Create<Counted>(living);
        EXPECT_EQ(living, 1001);
        EXPECT_EQ(&first->living, &living);
    }
    EXPECT_EQ(living, 0);
}

TEST(Pool, FreesObjectsThatReferToEachOtherInACircle) {
    int living = 0;
    {
        Pool pool;
        const Ref<Counted> one = pool.Create<Counted>(living);
        const Ref<Counted> other = pool.Create<Counted>(living);
        one->neighbour = other;
        other->neighbour = one;
        EXPECT_EQ(one->neighbour->neighbour, one);
    }
    EXPECT_EQ(living, 0);
}

TEST(Pool, AnObjectWhoseCreationFailsIsNotKept) {
    struct Refuses {
        Refuses() { throw Failure(FailureKind::invalidCall); }
    };
    int living = 0;
    {
        Pool pool;
        pool.Create<Counted>(living);
        EXPECT_THAT(
            [&] {
                pool.Create<Refuses>();
            },
            Fails(FailureKind::invalidCall));
        pool.Create<Counted>(living);
        EXPECT_EQ(living, 2);
    }
    EXPECT_EQ(living, 0);
}

}  // namespace
}  // namespace wxbrg
