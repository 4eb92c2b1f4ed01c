#include "support/Collection.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "support/Ref.h"
#include "tests/support/FailureMatcher.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::Pointee;

/// The numbers from 1 to `count`, each under its decimal text with "key" in front.
Collection<int> Numbered(int count) {
    Collection<int> numbers;
    for (int i = 1; i <= count; ++i) numbers.Add(i, "key" + std::to_string(i));
    return numbers;
}

template <class T>
std::vector<T> Walked(const Collection<T>& collection) {
    std::vector<T> items;
    for (const T& item : collection) items.push_back(item);
    return items;
}

TEST(Collection, StartsEmpty) {
    const Collection<int> none;
    EXPECT_EQ(none.Count(), 0);
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_EQ(none.Find(""), nullptr);
    EXPECT_THAT(Walked(none), ElementsAre());
}

TEST(Collection, KeepsTheOrderOfInsertionWithAndWithoutKeys) {
    Collection<std::string> texts;
    texts.Add("z", "last");
    texts.Add("m");
    texts.Add("a", "first");
    EXPECT_THAT(Walked(texts), ElementsAre("z", "m", "a"));
    EXPECT_EQ(texts.Item(1), "z");
    EXPECT_EQ(texts.Item(3), "a");
}

TEST(Collection, PositionOutsideTheCollectionIsFailure5) {
    const Collection<int> two = Numbered(2);
    for (const std::int32_t position : {-1, 0, 3})
        EXPECT_THAT(
            [&] {
                two.Item(position);
            },
            Fails(FailureKind::invalidCall))
            << position;
}

TEST(Collection, KeysCompareWithoutRegardToCase) {
    Collection<int> collection;
    collection.Add(1, "Straße");
    collection.Add(2, "ÿ-axis");
    EXPECT_EQ(collection.Item("STRAßE"), 1);
    EXPECT_EQ(collection.Item("Ÿ-AXIS"), 2);
    EXPECT_EQ(collection.Find("STRASSE"), nullptr);
}

TEST(Collection, BlanksInKeysCount) {
    Collection<int> collection;
    collection.Add(1, "a");
    EXPECT_TRUE(collection.AddNew(2, "a "));
    EXPECT_TRUE(collection.AddNew(3, ""));
    EXPECT_EQ(collection.Item("A "), 2);
    EXPECT_EQ(collection.Item(""), 3);
}

TEST(Collection, AnEntryWithoutKeyIsNotFoundByTheEmptyKey) {
    Collection<int> collection;
    collection.Add(1);
    EXPECT_EQ(collection.Find(""), nullptr);
    EXPECT_TRUE(collection.AddNew(2, ""));
    EXPECT_THAT(collection.Find(""), Pointee(2));
}

TEST(Collection, AddingUnderATakenKeyIsFailure457AndChangesNothing) {
    Collection<int> collection;
    collection.Add(1, "Key");
    EXPECT_THAT(
        [&] {
            collection.Add(2, "kEY");
        },
        Fails(FailureKind::duplicateKey));
    EXPECT_THAT(Walked(collection), ElementsAre(1));
}

TEST(Collection, AddNewTellsWhetherTheKeyWasNewAndKeepsTheFirst) {
    Collection<int> collection;
    EXPECT_TRUE(collection.AddNew(1, "Key"));
    EXPECT_FALSE(collection.AddNew(2, "KEY"));
    EXPECT_THAT(Walked(collection), ElementsAre(1));
}

TEST(Collection, AskingForAMissingKeyIsFailure5) {
    const Collection<int> three = Numbered(3);
    EXPECT_THAT(
        [&] {
            three.Item("key4");
        },
        Fails(FailureKind::invalidCall));
    EXPECT_EQ(three.Find("key4"), nullptr);
}

TEST(Collection, AnEmptyEntryIsNoMissingKey) {
    Collection<Ref<int>> references;
    references.Add(Ref<int>(), "empty");
    ASSERT_NE(references.Find("Empty"), nullptr);
    EXPECT_FALSE(*references.Find("Empty"));
    EXPECT_FALSE(references.AddNew(Ref<int>(), "EMPTY"));
    EXPECT_EQ(references.Count(), 1);
}

TEST(Collection, FindsEveryKeyInCollectionsOfAnySize) {
    for (const int count : {7, 8, 9, 10, 1000}) {
        const Collection<int> collection = Numbered(count);
        for (int i = 1; i <= count; ++i)
            ASSERT_THAT(collection.Find("KEY" + std::to_string(i)), Pointee(i)) << "of " << count;
        EXPECT_EQ(collection.Find("key0"), nullptr);
    }
}

TEST(Collection, RefusesATakenKeyInALargeCollection) {
    Collection<int> collection = Numbered(20);
    EXPECT_FALSE(collection.AddNew(0, "KEY1"));
    EXPECT_FALSE(collection.AddNew(0, "key20"));
    EXPECT_EQ(collection.Count(), 20);
}

TEST(Collection, EntriesWithAndWithoutKeysMixInALargeCollection) {
    Collection<int> collection;
    for (int i = 1; i <= 30; ++i) {
        if (i % 3 == 0)
            collection.Add(i);
        else
            collection.Add(i, "k" + std::to_string(i));
    }
    EXPECT_EQ(collection.Find("k3"), nullptr);
    EXPECT_THAT(collection.Find("K29"), Pointee(29));
    EXPECT_EQ(collection.Item(30), 30);
}

TEST(Collection, RemovingMovesLaterEntriesUp) {
    Collection<int> collection = Numbered(4);
    collection.Remove("KEY2");
    EXPECT_THAT(Walked(collection), ElementsAre(1, 3, 4));
    EXPECT_EQ(collection.Item(2), 3);
    EXPECT_EQ(collection.Find("key2"), nullptr);
}

TEST(Collection, RemovingAMissingKeyIsFailure5) {
    Collection<int> collection = Numbered(2);
    EXPECT_THAT(
        [&] {
            collection.Remove("key3");
        },
        Fails(FailureKind::invalidCall));
    EXPECT_EQ(collection.Count(), 2);
}

TEST(Collection, ARemovedKeyCanBeTakenAgain) {
    Collection<int> collection = Numbered(20);
    collection.Remove("key5");
    EXPECT_TRUE(collection.AddNew(55, "Key5"));
    EXPECT_THAT(collection.Find("KEY5"), Pointee(55));
    EXPECT_EQ(collection.Item(20), 55);
}

TEST(Collection, KeysAreStillFoundAfterRemovalsAcrossTheSizeOfTheIndex) {
    Collection<int> collection = Numbered(12);
    for (int i = 1; i <= 6; ++i) {
        collection.Remove("key" + std::to_string(i));
        EXPECT_THAT(collection.Find("key12"), Pointee(12));
        EXPECT_THAT(collection.Find("key" + std::to_string(i + 1)), Pointee(i + 1));
    }
    for (int i = 21; i <= 26; ++i) collection.Add(i, "key" + std::to_string(i));
    EXPECT_THAT(collection.Find("key7"), Pointee(7));
    EXPECT_THAT(collection.Find("key26"), Pointee(26));
}

TEST(Collection, AWalkMeetsEntriesThatAreAppendedDuringIt) {
    Collection<int> collection;
    collection.Add(1);
    std::vector<int> met;
    for (const int item : collection) {
        met.push_back(item);
        if (item < 100) collection.Add(item + 1, "key" + std::to_string(item));
    }
    EXPECT_EQ(met.size(), 100U);
    EXPECT_EQ(met.back(), 100);
}

TEST(Collection, AWalkServesAlgorithms) {
    const Collection<int> numbers = Numbered(12);
    EXPECT_EQ(std::count_if(numbers.begin(), numbers.end(),
                            [](int number) {
                                return number > 4;
                            }),
              8);
    EXPECT_EQ(std::find(numbers.begin(), numbers.end(), 99), numbers.end());
    EXPECT_EQ(*std::find(numbers.begin(), numbers.end(), 7), 7);
}

TEST(Collection, ACopyIsIndependent) {
    Collection<int> original = Numbered(10);
    Collection<int> copy = original;
    copy.Remove("key1");
    copy.Add(11, "key11");
    EXPECT_EQ(original.Count(), 10);
    EXPECT_THAT(original.Find("key1"), Pointee(1));
    EXPECT_EQ(original.Find("key11"), nullptr);
    EXPECT_THAT(copy.Find("key11"), Pointee(11));
}

}  // namespace
}  // namespace wxbrg
