#include "platform/Path.h"

#include <gtest/gtest.h>

namespace wxbrg {
namespace {

TEST(Path, TextComesBackAsItWas) {
    for (const std::string text :
         {"", "orders.aml", "/srv/B\xC3\xBCro/\xE8\xA8\x82\xE5\x96\xAE.aml", "../a//b/"})
        EXPECT_EQ(TextOf(PathOf(text)), text);
}

TEST(Path, CharactersBeyondAsciiAreThoseOfTheFile) {
    EXPECT_EQ(PathOf("B\xC3\xBCro/x").parent_path(), std::filesystem::path(u8"B\u00FCro"));
}

TEST(Path, AFileIsNamedFromItsFolder) {
    EXPECT_EQ(FileInFolder("exports", "orders.aml"), "exports/orders.aml");
    EXPECT_EQ(FileInFolder("exports/", "orders.aml"), "exports/orders.aml");
    EXPECT_EQ(FileInFolder("/", "orders.aml"), "/orders.aml");
}

TEST(Path, AnEmptyFolderIsTheWorkingDirectory) {
    EXPECT_EQ(FileInFolder("", "orders.aml"), "orders.aml");
}

TEST(Path, AnAbsoluteNameCountsFromNowhere) {
    EXPECT_EQ(FileInFolder("exports", "/srv/orders.aml"), "/srv/orders.aml");
}

}  // namespace
}  // namespace wxbrg
