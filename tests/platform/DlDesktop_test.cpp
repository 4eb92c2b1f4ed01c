#include "platform/posix/DlDesktop.h"

#include <gmock/gmock.h>

#include "tests/TemporaryFolder.h"
#include "tests/platform/EnvironmentVariable.h"

namespace wxbrg {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// A session with no display but the one that a test gives it.
class DlDesktopTest : public testing::Test {
  protected:
    /// Why the module in a folder of the test's libraries gives no dialogs; empty when it gives them.
    static std::string Refusal(const std::string& folder) {
        return RefusalIn(WXBRG_TEST_LIBRARIES "/" + folder);
    }
    static std::string RefusalIn(const std::string& folder) {
        const auto opened = OpenDesktop(folder, {"DEU", "/help"});
        const auto* const none = std::get_if<NoDesktop>(&opened);
        return none == nullptr ? std::string() : none->reason;
    }

    EnvironmentVariable display{"DISPLAY", ":7"};
    EnvironmentVariable wayland{"WAYLAND_DISPLAY", ""};
    EnvironmentVariable plugin{"QT_QPA_PLATFORM", ""};
};

TEST_F(DlDesktopTest, AnyOfTheVariablesTellsOfADisplayUnlessItIsEmpty) {
    EXPECT_TRUE(HasDisplay());
    const EnvironmentVariable none("DISPLAY", "");
    EXPECT_FALSE(HasDisplay());
    {
        const EnvironmentVariable other("WAYLAND_DISPLAY", "wayland-0");
        EXPECT_TRUE(HasDisplay());
    }
    {
        const EnvironmentVariable other("QT_QPA_PLATFORM", "offscreen");
        EXPECT_TRUE(HasDisplay());
    }
    EXPECT_FALSE(HasDisplay());
}

TEST_F(DlDesktopTest, AModuleThatCanOpenTheDisplayGivesItsDialogs) {
    auto opened = OpenDesktop(WXBRG_TEST_LIBRARIES "/works", {"DEU", "/help"});
    ASSERT_TRUE(std::holds_alternative<Dialogs>(opened));
    EXPECT_NE(std::get<Dialogs>(opened).helpViewer, nullptr);
    EXPECT_TRUE(std::get<Dialogs>(opened).inWindows);
}

TEST_F(DlDesktopTest, WithoutADisplayNoModuleIsLookedFor) {
    const EnvironmentVariable none("DISPLAY", "");
    EXPECT_EQ(Refusal("works"), "There is no display");
    EXPECT_EQ(RefusalIn("/nowhere"), "There is no display");
}

TEST_F(DlDesktopTest, AModuleThatIsNotThereIsToldWithItsName) {
    EXPECT_THAT(RefusalIn("/nowhere"), testing::AllOf(StartsWith("The desktop module cannot be loaded: "),
                                                      HasSubstr("/nowhere/wxbrg_desktop.so")));
}

TEST_F(DlDesktopTest, AModuleOfAnotherVersionIsToldWithItsName) {
    EXPECT_THAT(Refusal("other"),
                testing::EndsWith("/other/wxbrg_desktop.so does not belong to this program"));
}

TEST_F(DlDesktopTest, ALibraryThatIsNoModuleIsToldWithItsName) {
    const TemporaryFolder folder;
    std::filesystem::copy_file(WXBRG_TEST_LIBRARIES "/texts.dll", folder / "wxbrg_desktop.so");
    EXPECT_THAT(RefusalIn(folder.Path().string()), HasSubstr("does not belong to this program"));
}

TEST_F(DlDesktopTest, ADisplayThatCannotBeOpenedIsToldInOneLineAndThisProcessLives) {
    EXPECT_EQ(Refusal("fails"), "The display cannot be opened: no screen here");
}

}  // namespace
}  // namespace wxbrg
