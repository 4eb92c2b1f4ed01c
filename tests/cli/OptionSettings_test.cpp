#include "cli/OptionSettings.h"

#include <gmock/gmock.h>

#include "cli/UsageError.h"

namespace wxbrg::cli {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

template <class Call>
void ExpectRefusedWithNames(const Call& call) {
    EXPECT_THAT(call, ThrowsMessage<UsageError>(
                          testing::AllOf(HasSubstr("ConvertNames"), HasSubstr("DataTypeFromAttribute"))));
}

TEST(ParseSetting, TakesNameAndNumber) {
    const OptionSetting setting = ParseSetting("ConvertNames=0");
    EXPECT_EQ(setting.name, "ConvertNames");
    EXPECT_EQ(setting.value, ProfileValue(0));
    EXPECT_EQ(ParseSetting("StartConditions=-1").value, ProfileValue(-1));
    EXPECT_EQ(ParseSetting("FirstSuffixNumber=12").value, ProfileValue(12));
}

TEST(ParseSetting, TakesANameInAnyCaseAndSpellsItAsTheTableDoes) {
    EXPECT_EQ(ParseSetting("convertnames=0").name, "ConvertNames");
}

TEST(ParseSetting, TakesWhatPassesAsANumber) {
    EXPECT_EQ(ParseSetting("FirstSuffixNumber= 7 ").value, ProfileValue(7));
    EXPECT_EQ(ParseSetting("FirstSuffixNumber=1e2").value, ProfileValue(100));
}

TEST(ParseSetting, RefusesUnknownNamesAndListsThoseThereAre) {
    ExpectRefusedWithNames([] {
        ParseSetting("ConvertName=0");
    });
    ExpectRefusedWithNames([] {
        ParseSetting("=0");
    });
    ExpectRefusedWithNames([] {
        ParseSetting("");
    });
}

TEST(ParseSetting, RefusesATextWithoutAnEqualsSign) {
    ExpectRefusedWithNames([] {
        ParseSetting("ConvertNames");
    });
}

/// Whether a setting is refused with a message that ends so.
void ExpectRefused(const std::string& setting, const std::string& end) {
    EXPECT_THAT(
        [&setting] {
            ParseSetting(setting);
        },
        ThrowsMessage<UsageError>(testing::EndsWith(end)));
}

TEST(ParseSetting, AFlagTakesMinus1And0Only) {
    for (const std::string value : {"yes", "", "1", "2", "-2", "2147483648"})
        ExpectRefused("convertnames=" + value,
                      "The value of ConvertNames must be -1 (on) or 0 (off), not \"" + value + "\".");
}

TEST(ParseSetting, TheSuffixTakesNumbersFrom0On) {
    EXPECT_EQ(ParseSetting("FirstSuffixNumber=0").value, ProfileValue(0));
    EXPECT_EQ(ParseSetting("FirstSuffixNumber=2147483647").value, ProfileValue(2147483647));
    for (const std::string value : {"-1", "-2147483648", "2147483648", "0x10", "x", ""})
        ExpectRefused("FirstSuffixNumber=" + value,
                      "The value of FirstSuffixNumber must be a number from 0 to "
                      "2147483647, not \"" +
                          value + "\".");
}

TEST(ParseSetting, RefusesTextsThatAreStoredButNoExportOptions) {
    ExpectRefusedWithNames([] {
        ParseSetting("Language=DEU");
    });
}

TEST(ParseStoredValue, TakesNumbersForOptionsAndTextsForTheRest) {
    EXPECT_EQ(ParseStoredValue("useothersettings", "-1").value, ProfileValue(-1));
    EXPECT_EQ(ParseStoredValue("useothersettings", "-1").name, "UseOtherSettings");
    EXPECT_EQ(ParseStoredValue("Language", "DEU").value, ProfileValue(std::string("DEU")));
    EXPECT_EQ(ParseStoredValue("RepositoryPath", "12").value, ProfileValue(std::string("12")));
}

TEST(ParseStoredValue, RefusesUnknownNamesAndValues) {
    ExpectRefusedWithNames([] {
        ParseStoredValue("OutputPath", "x");
    });
    EXPECT_THROW(ParseStoredValue("ConvertNames", "x"), UsageError);
    EXPECT_THROW(ParseStoredValue("ConvertNames", "1"), UsageError);
    EXPECT_THROW(ParseStoredValue("FirstSuffixNumber", "-1"), UsageError);
}

TEST(StoredValueNames, AreTheExportOptionsAndTheTexts) {
    const std::vector<std::string_view> names = StoredValueNames();
    ASSERT_EQ(names.size(), 17U);
    EXPECT_EQ(names.front(), "ConvertNames");
    EXPECT_THAT(names, testing::IsSupersetOf({"Language", "RepositoryPath"}));
}

TEST(FindOption, FindsTheRowOrNone) {
    ASSERT_NE(FindOption("EXITCONDITIONS"), nullptr);
    EXPECT_EQ(FindOption("EXITCONDITIONS")->control.name, "cbExitConditions");
    EXPECT_EQ(FindOption("Exit"), nullptr);
    ASSERT_NE(FindOption("language"), nullptr);
    EXPECT_EQ(FindOption("language")->kind, OptionKind::text);
}

}  // namespace
}  // namespace wxbrg::cli
