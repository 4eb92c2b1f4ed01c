#include "platform/qt/QtFileDialog.h"

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <deque>

#include "tests/TemporaryFolder.h"
#include "tests/qt/QtFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// Makes a file that nobody can open for writing, not even one who may do all else: a socket.
void MakeUnwritable(const std::filesystem::path& file) {
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    file.string().copy(address.sun_path, sizeof address.sun_path - 1);
    EXPECT_EQ(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(descriptor);
}

class QtFileDialogTest : private HiddenSession, public testing::Test {
  protected:
    QtFileDialogTest() {
        settings.flags = 567318 - FileDialogFlag::createPrompt;
        settings.initialDirectory = folder.Path().string();
        settings.fileName = "*.wpx";
        settings.filter = "Workplex Files (*.wpx)|*.wpx|All Files (*.*)|*.*";
        settings.defaultExtension = "wpx";
        settings.help = [this] {
            ++helped;
        };
    }

    /// Asks a user who does these things, one after the other, each behind what opened last.
    std::optional<std::string> Ask(std::deque<std::function<void()>> acts) {
        acts_ = std::move(acts);
        Soon([this] {
            Next();
        });
        std::optional<std::string> name = QtFileDialog(language).AskSaveName(settings);
        EXPECT_TRUE(acts_.empty()) << "the dialog was over before the user was";
        return name;
    }
    static QFileDialog& Dialog() { return *FindWindow<QFileDialog>(); }
    /// Types a name and presses Save.
    static std::function<void()> Save(const std::string& name) {
        return [name] {
            auto* const edit = Dialog().findChild<QLineEdit*>("fileNameEdit");
            edit->setFocus();
            edit->setText(QString::fromStdString(name));
            QMetaObject::invokeMethod(&Dialog(), "accept");
        };
    }
    static std::function<void()> Cancel() {
        return [] {
            Dialog().reject();
        };
    }
    /// Presses a button of the box that has come up, whose text it keeps.
    std::function<void()> Press(QMessageBox::StandardButton button) {
        return [this, button] {
            auto* const box = FindWindow<QMessageBox>();
            ASSERT_NE(box, nullptr);
            boxes.push_back(box->text().toStdString());
            box->button(button)->click();
        };
    }
    std::string In(const std::string& name) const { return (folder / name).string(); }

    TemporaryFolder folder;
    FileDialogSettings settings;
    std::vector<std::string> boxes;
    std::string language = "ENU";
    int helped = 0;

  private:
    void Next() {
        QWidget* const window = QApplication::activeModalWidget();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window, patience));
        const std::function<void()> act = acts_.front();
        acts_.pop_front();
        // Behind this act in the queue: it comes when the act's own window is open or gone.
        if (!acts_.empty())
            Soon([this] {
                Next();
            });
        act();
    }

    std::deque<std::function<void()>> acts_;
};

TEST_F(QtFileDialogTest, BeginsInItsFolderWithItsNameAndFilter) {
    settings.fileName = "orders.wpx";
    Ask({[&] {
             EXPECT_EQ(Dialog().directory().path().toStdString(), settings.initialDirectory);
             EXPECT_EQ(Dialog().findChild<QLineEdit*>("fileNameEdit")->text(), "orders.wpx");
             EXPECT_EQ(Dialog().nameFilters(), QStringList({"Workplex Files (*.wpx)", "All Files (*)"}));
             EXPECT_EQ(Dialog().selectedNameFilter(), "Workplex Files (*.wpx)");
             EXPECT_EQ(Dialog().acceptMode(), QFileDialog::AcceptSave);
         },
         Cancel()});
}

TEST_F(QtFileDialogTest, APatternProposesNoName) {
    Ask({[&] {
             EXPECT_EQ(Dialog().findChild<QLineEdit*>("fileNameEdit")->text(), "");
         },
         Cancel()});
}

TEST_F(QtFileDialogTest, TheFilterOfTheIndexIsSelected) {
    settings.filterIndex = 2;
    Ask({[&] {
             EXPECT_EQ(Dialog().selectedNameFilter(), "All Files (*)");
         },
         Cancel()});
}

TEST_F(QtFileDialogTest, GivesTheWholeName) {
    EXPECT_EQ(Ask({Save("out.wpx")}), In("out.wpx"));
}

TEST_F(QtFileDialogTest, ANameWithoutAPointTakesTheDefaultExtension) {
    EXPECT_EQ(Ask({Save("out")}), In("out.wpx"));
    EXPECT_EQ(Ask({Save("out.defin")}), In("out.defin"));
}

TEST_F(QtFileDialogTest, CancelGivesNoName) {
    EXPECT_EQ(Ask({Cancel()}), std::nullopt);
}

TEST_F(QtFileDialogTest, AnExistingFileIsReplacedOnlyWhenTheUserSaysSo) {
    WriteBytes(folder / "old.wpx", "old");
    EXPECT_EQ(Ask({Save("old.wpx"), Press(QMessageBox::No), Save("old.wpx"), Press(QMessageBox::Yes)}),
              In("old.wpx"));
    EXPECT_THAT(boxes, testing::Each(HasSubstr("already exists")));
}

TEST_F(QtFileDialogTest, WithoutTheFlagNothingIsAskedAboutAnExistingFile) {
    settings.flags -= FileDialogFlag::overwritePrompt;
    WriteBytes(folder / "old.wpx", "old");
    EXPECT_EQ(Ask({Save("old.wpx")}), In("old.wpx"));
}

TEST_F(QtFileDialogTest, WithItsFlagAFileThatIsNotThereIsMadeOnlyWhenTheUserSaysSo) {
    settings.flags += FileDialogFlag::createPrompt;
    EXPECT_EQ(Ask({Save("a"), Press(QMessageBox::No), Save("out.wpx"), Press(QMessageBox::Yes)}),
              In("out.wpx"));
    EXPECT_THAT(boxes, ElementsAre("a.wpx does not exist.\nDo you want to create it?",
                                   "out.wpx does not exist.\nDo you want to create it?"));
    EXPECT_FALSE(std::filesystem::exists(folder / "out.wpx"));
}

TEST_F(QtFileDialogTest, TheCreateQuestionIsInTheLanguageOfTheDialog) {
    settings.flags += FileDialogFlag::createPrompt;
    language = "DEU";
    EXPECT_EQ(Ask({Save("out"), Press(QMessageBox::Yes)}), In("out.wpx"));
    EXPECT_THAT(boxes, ElementsAre("Die Datei out.wpx existiert nicht.\nSoll sie angelegt werden?"));
}

TEST_F(QtFileDialogTest, OfOneNameOnlyOneThingIsAsked) {
    settings.flags += FileDialogFlag::createPrompt;
    WriteBytes(folder / "old.wpx", "old");
    EXPECT_EQ(Ask({Save("old.wpx"), Press(QMessageBox::Yes)}), In("old.wpx"));
    EXPECT_EQ(Ask({Save("nowhere/out"), Press(QMessageBox::Ok), Cancel()}), std::nullopt);
}

TEST_F(QtFileDialogTest, TheHelpButtonAndF1ShowTheHelp) {
    Ask({[] {
             auto* const buttons = Dialog().findChild<QDialogButtonBox*>();
             ASSERT_NE(buttons->button(QDialogButtonBox::Help), nullptr);
             buttons->button(QDialogButtonBox::Help)->click();
         },
         [this] {
             EXPECT_EQ(helped, 1);
             QTest::keyClick(Dialog().focusWidget(), Qt::Key_F1);
         },
         Cancel()});
    EXPECT_EQ(helped, 2);
}

TEST_F(QtFileDialogTest, WithoutTheFlagThereIsNoHelp) {
    settings.flags -= FileDialogFlag::showHelp;
    settings.help = nullptr;
    Ask({[] {
             auto* const buttons = Dialog().findChild<QDialogButtonBox*>();
             EXPECT_EQ(buttons->button(QDialogButtonBox::Help), nullptr);
             QTest::keyClick(Dialog().focusWidget(), Qt::Key_F1);
         },
         Cancel()});
}

TEST_F(QtFileDialogTest, AFolderThatIsNotThereIsToldAndTheDialogComesAgain) {
    EXPECT_EQ(Ask({Save("nowhere/out.wpx"), Press(QMessageBox::Ok), Save("out.wpx")}), In("out.wpx"));
    EXPECT_THAT(boxes, ElementsAre(testing::AllOf(HasSubstr(In("nowhere")), HasSubstr("not found"))));
}

TEST_F(QtFileDialogTest, WithoutTheFlagTheFolderMayBeMissing) {
    settings.flags -= FileDialogFlag::pathMustExist;
    EXPECT_EQ(Ask({Save("nowhere/out.wpx")}), In("nowhere/out.wpx"));
}

TEST_F(QtFileDialogTest, AFileThatCannotBeWrittenIsToldAndTheDialogComesAgain) {
    MakeUnwritable(folder / "socket.wpx");
    settings.flags -= FileDialogFlag::overwritePrompt;
    EXPECT_EQ(Ask({Save("socket.wpx"), Press(QMessageBox::Ok), Save("out.wpx")}), In("out.wpx"));
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("not writable")));
}

TEST_F(QtFileDialogTest, WithoutTheFlagAFileThatCannotBeWrittenIsGiven) {
    MakeUnwritable(folder / "socket.wpx");
    settings.flags -= FileDialogFlag::overwritePrompt + FileDialogFlag::noReadOnlyReturn;
    EXPECT_EQ(Ask({Save("socket.wpx")}), In("socket.wpx"));
}

TEST_F(QtFileDialogTest, APatternIsNoNameOfAFile) {
    EXPECT_EQ(Ask({Save("*.wpx"), Save("out.wpx")}), In("out.wpx"));
}

TEST(NameFilters, PairDescriptionsAndPatterns) {
    EXPECT_EQ(NameFilters("Text (*.txt)|*.txt;*.text|All|*.*"),
              QStringList({"Text (*.txt *.text)", "All (*)"}));
    EXPECT_EQ(NameFilters(""), QStringList());
    EXPECT_EQ(NameFilters("Alone"), QStringList());
}

}  // namespace
}  // namespace wxbrg
