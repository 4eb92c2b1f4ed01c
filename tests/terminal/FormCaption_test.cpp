#include "platform/terminal/lines/FormCaption.h"

#include <gtest/gtest.h>

namespace wxbrg {
namespace {

TEST(FormCaption, TheMarkNamesTheAccessKeyAndIsNotShown) {
    const FormCaption caption = ToFormCaption("Con&vert names");
    EXPECT_EQ(caption.text, U"Convert names");
    EXPECT_EQ(caption.accessKey, 3U);
    EXPECT_EQ(caption.Key(), U'V');
}

TEST(FormCaption, WithoutAMarkThereIsNoAccessKey) {
    EXPECT_EQ(ToFormCaption("OK").accessKey, std::nullopt);
    EXPECT_EQ(ToFormCaption("OK").Key(), U'\0');
}

TEST(FormCaption, TwoMarksAreTheCharacter) {
    const FormCaption caption = ToFormCaption("Roles && &persons");
    EXPECT_EQ(caption.text, U"Roles & persons");
    EXPECT_EQ(caption.Key(), U'P');
}

TEST(FormCaption, OfSeveralMarksTheFirstCounts) {
    EXPECT_EQ(ToFormCaption("&One &two").Key(), U'O');
    EXPECT_EQ(PlainCaption("&One &two"), "One two");
}

TEST(FormCaption, AMarkAtTheEndIsLeftOut) {
    EXPECT_EQ(PlainCaption("Loops&"), "Loops");
    EXPECT_EQ(ToFormCaption("&").accessKey, std::nullopt);
}

TEST(FormCaption, AnAccessKeyMayBeAnyLetter) {
    EXPECT_EQ(ToFormCaption("&übernehmen").Key(), U'Ü');
    EXPECT_EQ(UpperCaseKey(U'ü'), U'Ü');
    EXPECT_EQ(UpperCaseKey(U'7'), U'7');
}

TEST(FormCaption, LineBreaksBecomeBlanks) {
    EXPECT_EQ(PlainCaption("Error :\r\nThe Resource ID '50001' was not found"),
              "Error : The Resource ID '50001' was not found");
}

}  // namespace
}  // namespace wxbrg
