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

TEST(ParseSetting, RefusesWhatIsNoNumberAndListsTheNames) {
    ExpectRefusedWithNames([] {
        ParseSetting("ConvertNames=yes");
    });
    ExpectRefusedWithNames([] {
        ParseSetting("ConvertNames=");
    });
    ExpectRefusedWithNames([] {
        ParseSetting("ConvertNames");
    });
    ExpectRefusedWithNames([] {
        ParseSetting("FirstSuffixNumber=2147483648");
    });
    ExpectRefusedWithNames([] {
        ParseSetting("FirstSuffixNumber=0x10");
    });
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
    ExpectRefusedWithNames([] {
        ParseStoredValue("ConvertNames", "x");
    });
}

TEST(StoredValueNames, AreTheExportOptionsAndTheTexts) {
    const std::vector<std::string_view> names = StoredValueNames();
    ASSERT_EQ(names.size(), exportOptions.size() + 2);
    EXPECT_EQ(names.front(), "ConvertNames");
    EXPECT_THAT(names, testing::IsSupersetOf({"Language", "RepositoryPath"}));
}

TEST(FindOption, FindsTheRowOrNone) {
    ASSERT_NE(FindOption("EXITCONDITIONS"), nullptr);
    EXPECT_EQ(FindOption("EXITCONDITIONS")->control->name, "cbExitConditions");
    EXPECT_EQ(FindOption("Exit"), nullptr);
    EXPECT_EQ(FindOption("Language"), nullptr);
}

}  // namespace
}  // namespace wxbrg::cli
