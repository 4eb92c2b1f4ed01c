#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "aris/xml/References.h"
#include "aris/xml/Spelling.h"
#include "aris/xml/TextArena.h"

namespace wxbrg::test {

namespace {

using xml::References;
using xml::Text;
using xml::TextArena;
using xml::WholeNumber;

TEST(TextArena, KeepsTextsOfEverySize) {
    TextArena arena;
    std::vector<Text> texts;
    const std::vector<std::size_t> sizes = {0, 1, 127, 4096, 100000, 3000000, 7, 300000};
    for (std::size_t round = 0; round < 50; ++round)
        for (const std::size_t size : sizes)
            texts.push_back(arena.Add(std::string(size, static_cast<char>('a' + round % 26))));
    for (std::size_t i = 0; i < texts.size(); ++i)
        ASSERT_EQ(texts[i].View(),
                  std::string(sizes[i % sizes.size()], static_cast<char>('a' + i / sizes.size() % 26)));
}

TEST(TextArena, AnEmptyTextIsNotNone) {
    TextArena arena;
    EXPECT_TRUE(arena.Add(""));
    EXPECT_FALSE(Text());
    EXPECT_EQ(Text().View(), "");
}

TEST(References, GiveEachIdOneSlotAndItsTarget) {
    References references;
    for (std::uint32_t i = 0; i < 100000; ++i)
        ASSERT_EQ(references.Mention("ObjDef." + std::to_string(i)), i);
    for (std::uint32_t i = 0; i < 100000; i += 2) references.Define("ObjDef." + std::to_string(i), i / 2);
    for (std::uint32_t i = 0; i < 100000; ++i) {
        const References::Slot slot = references.Mention("ObjDef." + std::to_string(i));
        ASSERT_EQ(slot, i);
        ASSERT_EQ(references.Target(slot), i % 2 == 0 ? i / 2 : References::none);
    }
    EXPECT_EQ(references.Count(), 100000U);
}

TEST(References, TheFirstDefinitionOfAnIdStays) {
    References references;
    references.Define("a", 1);
    references.Define("a", 2);
    EXPECT_EQ(references.Target(references.Mention("a")), 1U);
}

TEST(References, AnEmptyIdStandsForNothing) {
    References references;
    references.Define("", 1);
    EXPECT_EQ(references.Mention(""), References::none);
    EXPECT_EQ(references.Target(References::none), References::none);
    EXPECT_EQ(references.Count(), 0U);
}

TEST(WholeNumber, ReadsSignedDecimalNumbersOf32Bits) {
    EXPECT_EQ(WholeNumber(" -2147483648\t"), -2147483647 - 1);
    EXPECT_EQ(WholeNumber("+7"), 7);
    EXPECT_EQ(WholeNumber("007"), 7);
    for (const std::string_view text :
         {"", " ", "+", "-", "+-1", "++1", "1 2", "1.0", "1e1", "2147483648", "x", "1x"})
        EXPECT_EQ(WholeNumber(text), std::nullopt) << text;
}

}  // namespace

}  // namespace wxbrg::test
