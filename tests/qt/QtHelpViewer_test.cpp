#include "platform/qt/QtHelpViewer.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QListWidget>
#include <QTabBar>
#include <QTextBrowser>
#include <stdexcept>

#include "platform/qt/HelpWindow.h"
#include "tests/TemporaryFolder.h"
#include "tests/qt/QtFixture.h"

namespace wxbrg {
namespace {

using testing::HasSubstr;

constexpr const char* helpText =
    "<!-- page 50000 -->\n# The form\n\nGo to [names](#50018).\n"
    "<!-- page 50018 -->\n# Names\n\nHow names become legal.\n";

class QtHelpViewerTest : private HiddenSession, public testing::Test {
  protected:
    QtHelpViewerTest() { WriteBytes(folder / "wxbrgENU.hlp", helpText); }

    static HelpWindow& Window() { return *FindWindow<HelpWindow>(); }
    static std::string Text() { return Window().findChild<QTextBrowser*>()->toPlainText().toStdString(); }

    TemporaryFolder folder;
    QtHelpViewer viewer{"ENU", folder.Path().string()};
};

TEST_F(QtHelpViewerTest, ShowsThePageAndTheTitlesOfAll) {
    viewer.ShowPage("wxbrgENU.hlp", 50018);
    EXPECT_EQ(Window().windowTitle(), "Names");
    EXPECT_THAT(Text(), HasSubstr("How names become legal."));
    const auto& contents = *Window().findChild<QListWidget*>();
    ASSERT_EQ(contents.count(), 2);
    EXPECT_EQ(contents.item(0)->text(), "The form");
    EXPECT_EQ(contents.currentRow(), 1);
    EXPECT_FALSE(Window().isModal());
}

TEST_F(QtHelpViewerTest, AnotherPageComesIntoTheSameWindow) {
    viewer.ShowPage("wxbrgENU.hlp", 50018);
    HelpWindow* const window = &Window();
    viewer.ShowPage("wxbrgENU.hlp", 50000);
    EXPECT_EQ(&Window(), window);
    EXPECT_EQ(window->ShownPage(), 50000);
}

TEST_F(QtHelpViewerTest, ALinkLeadsToItsPageAndBackAgain) {
    viewer.ShowPage("wxbrgENU.hlp", 50000);
    Q_EMIT Window().findChild<QTextBrowser*>()->anchorClicked(QUrl("#50018"));
    EXPECT_EQ(Window().ShownPage(), 50018);
    for (QAbstractButton* button : Window().findChildren<QAbstractButton*>())
        if (button->text() == "Back") button->click();
    EXPECT_EQ(Window().ShownPage(), 50000);
}

TEST_F(QtHelpViewerTest, ATitleLeadsToItsPage) {
    viewer.ShowPage("wxbrgENU.hlp", 50000);
    auto* const contents = Window().findChild<QListWidget*>();
    Q_EMIT contents->itemClicked(contents->item(1));
    EXPECT_EQ(Window().ShownPage(), 50018);
}

TEST_F(QtHelpViewerTest, AMissingFileAndAMissingPageAreTold) {
    viewer.ShowPage("wxbrgXXX.hlp", 50000);
    EXPECT_THAT(Text(),
                testing::AllOf(HasSubstr((folder / "wxbrgXXX.hlp").string()), HasSubstr("not found")));
    viewer.ShowPage("wxbrgENU.hlp", 60000);
    EXPECT_THAT(Text(), testing::AllOf(HasSubstr("wxbrgENU.hlp#60000"), HasSubstr("not found")));
}

TEST_F(QtHelpViewerTest, CanBeClosedAndAskedAgain) {
    viewer.ShowPage("wxbrgENU.hlp", 50000);
    Window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(FindWindow<HelpWindow>(), nullptr);
    viewer.ShowPage("wxbrgENU.hlp", 50018);
    EXPECT_EQ(Window().ShownPage(), 50018);
}

/// The form's window with its help.
class FormHelp : public FormWindowTest {
  protected:
    FormHelp() { gBlock.gHelpFile = "wxbrgENU.hlp"; }

    /// Shows the form's window with another help than the fixture's.
    void ShowWindowWith(HelpViewer& help, const std::function<void()>& act) {
        Platform platform = memory_.With(fileSystem_, help);
        gBlock.gPlatform = &platform;
        ShowWindow(act);
    }
    /// What is asked of the help while the user acts.
    std::vector<std::string> AskedFor(const std::function<void()>& act) {
        helpViewer_.shown.clear();
        ShowWindow(act);
        return helpViewer_.shown;
    }
};

TEST_F(FormHelp, TheHelpButtonShowsThePageOfTheForm) {
    EXPECT_THAT(AskedFor([&] {
                    ClickOn("cmdHelp");
                    EXPECT_TRUE(window_->isVisible());
                }),
                testing::ElementsAre("wxbrgENU.hlp#50000"));
}

TEST_F(FormHelp, F1ShowsThePageOfTheControlWithTheFocus) {
    for (const FormControl& control : formControls) {
        const bool focusable = control.kind != FormControlKind::tab && control.helpNumber != 0;
        if (!focusable || control.name == "cmdApply") continue;
        EXPECT_THAT(AskedFor([&] {
                        QWidget& widget = Find(std::string(control.name).c_str());
                        if (control.page != noPage) Tabs().setCurrentIndex(control.page);
                        widget.setFocus();
                        QTest::keyClick(&widget, Qt::Key_F1);
                    }),
                    testing::ElementsAre("wxbrgENU.hlp#" + std::to_string(control.helpNumber)))
            << control.name;
    }
}

TEST_F(FormHelp, F1OnTheTabsShowsThePageOfTheTabs) {
    EXPECT_THAT(AskedFor([&] {
                    Tabs().tabBar()->setFocus();
                    QTest::keyClick(Tabs().tabBar(), Qt::Key_F1);
                }),
                testing::ElementsAre("wxbrgENU.hlp#50002"));
}

TEST_F(FormHelp, WhatsThisShowsThePageOfTheControlUnderTheMouse) {
    EXPECT_THAT(AskedFor([&] {
                    for (const char* name : {"cbWriteOtherSettings", "cmdApply"}) {
                        QWidget& widget = Find(name);
                        QHelpEvent asked(QEvent::WhatsThis, QPoint(), QPoint());
                        QApplication::sendEvent(&widget, &asked);
                    }
                }),
                testing::ElementsAre("wxbrgENU.hlp#50003", "wxbrgENU.hlp#50019"));
}

TEST_F(FormHelp, TheHelpCanBeUsedBesideTheFormAndGoesWithIt) {
    const TemporaryFolder folder;
    WriteBytes(folder / "wxbrgENU.hlp", helpText);
    QtHelpViewer help("ENU", folder.Path().string());
    ShowWindowWith(help, [&] {
        ClickOn("cmdHelp");
        auto* const contents = FindWindow<HelpWindow>()->findChild<QListWidget*>();
        QTest::mouseClick(contents->viewport(), Qt::LeftButton, {},
                          contents->visualItemRect(contents->item(1)).center());
        EXPECT_EQ(FindWindow<HelpWindow>()->ShownPage(), 50018);
        ClickOn("cbExitConditions");
        EXPECT_TRUE(ApplyIsEnabled());
    });
    EXPECT_EQ(FindWindow<HelpWindow>(), nullptr);
}

/// A help that cannot even say that it fails.
class FailingHelp : public HelpViewer {
  public:
    void ShowPage(std::string_view, std::int32_t) override { throw std::runtime_error("no help"); }
};

TEST_F(FormHelp, WhatIsThrownInTheWindowComesOutBehindIt) {
    FailingHelp help;
    EXPECT_THROW(ShowWindowWith(help,
                                [&] {
                                    ClickOn("cmdHelp");
                                    EXPECT_FALSE(window_->isVisible());
                                }),
                 std::runtime_error);
    EXPECT_EQ(FindWindow<QDialog>(), nullptr);
}

}  // namespace
}  // namespace wxbrg
