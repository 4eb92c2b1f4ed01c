// The access keys that the language libraries give to the controls of the options form.

#include <gtest/gtest.h>

#include <map>

#include "options/FormControls.h"
#include "platform/posix/DlLanguageLibraries.h"
#include "support/Text.h"

namespace wxbrg {
namespace {

constexpr std::size_t capacity = 4096;

class AccessKeysTest : public testing::TestWithParam<const char*> {
  protected:
    /// The upper-cased access key of a control; empty where it has none.
    std::string KeyOf(const FormControl& control) const {
        const std::u32string caption =
            ToCharacters(library_->LoadString(static_cast<std::uint32_t>(control.captionNumber), capacity));
        for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
            if (caption[i] != U'&') continue;
            if (caption[i + 1] != U'&') return UpperCase(FromCharacters(caption.substr(i + 1, 1)));
            ++i;
        }
        return {};
    }
    static bool AreSeenTogether(const FormControl& one, const FormControl& other) {
        const bool always = one.kind == FormControlKind::tab || other.kind == FormControlKind::tab ||
                            one.page == noPage || other.page == noPage;
        return always || one.page == other.page;
    }

    DlLanguageLibraries libraries_{WXBRG_LANGUAGE_LIBRARIES};
    std::unique_ptr<LanguageLibrary> library_ = libraries_.Load("wxbrg" + std::string(GetParam()) + ".dll");
};

TEST_P(AccessKeysTest, DifferAmongControlsThatAreSeenTogether) {
    ASSERT_NE(library_, nullptr);
    for (const FormControl& one : formControls) {
        for (const FormControl& other : formControls) {
            if (&one >= &other || !AreSeenTogether(one, other) || KeyOf(one).empty()) continue;
            EXPECT_NE(KeyOf(one), KeyOf(other)) << one.designCaption << " and " << other.designCaption;
        }
    }
}

TEST_P(AccessKeysTest, LeadToEveryControlButTheDefaultAndTheCancelButton) {
    ASSERT_NE(library_, nullptr);
    for (const FormControl& control : formControls) {
        if (control.captionNumber == 0) continue;
        const bool hasOtherKey = control.name == "cmdOK" || control.name == "cmdCancel";
        EXPECT_EQ(KeyOf(control).empty(), hasOtherKey) << control.designCaption;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, AccessKeysTest, testing::Values("ENU", "DEU"));

}  // namespace
}  // namespace wxbrg
