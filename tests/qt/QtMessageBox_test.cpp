#include "platform/qt/QtMessageBox.h"

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPushButton>

#include "tests/qt/QtFixture.h"

namespace wxbrg {
namespace {

class QtMessageBoxTest : private HiddenSession, public testing::Test {
  protected:
    /// Shows a box to a user who acts on it.
    static BoxAnswer Show(std::int32_t buttons, const std::function<void(QMessageBox&)>& act) {
        bool shown = false;
        Soon([&] {
            auto* const box = FindWindow<QMessageBox>();
            ASSERT_NE(box, nullptr);
            shown = true;
            act(*box);
        });
        const BoxAnswer answer = QtMessageBox("ENU").Show("Title", "One\r\n<b>two</b>", buttons);
        EXPECT_TRUE(shown);
        return answer;
    }
    static BoxAnswer Press(std::int32_t buttons, QMessageBox::StandardButton button) {
        return Show(buttons, [button](QMessageBox& box) {
            box.button(button)->click();
        });
    }
};

TEST_F(QtMessageBoxTest, ShowsTitleAndTextAsTheyStand) {
    Show(65552, [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Title");
        EXPECT_EQ(box.text(), "One\n<b>two</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_TRUE(box.isModal());
        box.accept();
    });
}

/// Notes when a box is shown, raised and made the active window.
class FrontEvents : public QObject {
  public:
    FrontEvents() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (qobject_cast<QMessageBox*>(watched) != nullptr) {
            if (event->type() == QEvent::Show) seen.append("shown ");
            if (event->type() == QEvent::ZOrderChange) seen.append("raised ");
            if (event->type() == QEvent::WindowActivate) seen.append("active ");
        }
        return false;
    }

    std::string seen;
};

TEST_F(QtMessageBoxTest, ForegroundRaisesTheBoxOnceItIsShown) {
    const auto eventsOf = [](std::int32_t buttons) {
        const FrontEvents events;
        Show(buttons, [](QMessageBox& box) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
            EXPECT_TRUE(box.isModal());
            box.accept();
        });
        return events.seen;
    };
    EXPECT_EQ(eventsOf(16 + BoxStyle::foreground), "shown raised active ");
    EXPECT_EQ(eventsOf(16), "shown active ");
}

TEST_F(QtMessageBoxTest, TheIconIsThatOfTheSeverity) {
    const auto iconOf = [](std::int32_t severity) {
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        Show(severity, [&](QMessageBox& box) {
            icon = box.icon();
            box.accept();
        });
        return icon;
    };
    EXPECT_EQ(iconOf(16), QMessageBox::Critical);
    EXPECT_EQ(iconOf(32), QMessageBox::Question);
    EXPECT_EQ(iconOf(48), QMessageBox::Warning);
    EXPECT_EQ(iconOf(64), QMessageBox::Information);
    EXPECT_EQ(iconOf(0), QMessageBox::NoIcon);
}

TEST_F(QtMessageBoxTest, HasTheButtonsOfTheSetAndAnswersThePressedOne) {
    EXPECT_EQ(Press(65552, QMessageBox::Ok), BoxAnswer::ok);
    EXPECT_EQ(Press(65553, QMessageBox::Ok), BoxAnswer::ok);
    EXPECT_EQ(Press(65553, QMessageBox::Cancel), BoxAnswer::cancel);
    EXPECT_EQ(Press(65572, QMessageBox::Yes), BoxAnswer::yes);
    EXPECT_EQ(Press(65572, QMessageBox::No), BoxAnswer::no);
    Show(65572, [](QMessageBox& box) {
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        box.button(QMessageBox::No)->click();
    });
}

TEST_F(QtMessageBoxTest, EnterPressesTheFirstButton) {
    const auto enter = [](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Return);
    };
    EXPECT_EQ(Show(65552, enter), BoxAnswer::ok);
    EXPECT_EQ(Show(65553, enter), BoxAnswer::ok);
    EXPECT_EQ(Show(65572, enter), BoxAnswer::yes);
}

TEST_F(QtMessageBoxTest, EscapeAnswersWhatTakesNothingFurther) {
    const auto escape = [](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
    };
    EXPECT_EQ(Show(65552, escape), BoxAnswer::ok);
    EXPECT_EQ(Show(65553, escape), BoxAnswer::cancel);
    EXPECT_EQ(Show(65572, escape), BoxAnswer::no);
}

}  // namespace
}  // namespace wxbrg
