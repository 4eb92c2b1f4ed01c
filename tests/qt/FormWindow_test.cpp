// The window of the options form, used with mouse and keyboard through all of its states.

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>

#include "platform/posix/DlLanguageLibraries.h"
#include "platform/qt/FilteredField.h"
#include "platform/qt/QtOptionsFormView.h"
#include "tests/qt/QtFixture.h"

namespace wxbrg {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class FormWindow : public FormWindowTest {};

TEST_F(FormWindow, BeginsCleanOnTheFirstPageWithTheStoredOptions) {
    Store("ConvertNames", 0);
    Store("UseOtherSettings", -1);
    Store("FirstSuffixNumber", 17);
    Store("DataTypeFromAttribute", 0);
    ShowWindow([&] {
        EXPECT_TRUE(window_->isVisible());
        EXPECT_TRUE(window_->isModal());
        EXPECT_EQ(Tabs().currentIndex(), 0);
        EXPECT_FALSE(ApplyIsEnabled());
        EXPECT_FALSE(Find<QCheckBox>("cbConvertARISNames").isChecked());
        EXPECT_TRUE(Find<QCheckBox>("cbWriteOtherSettings").isChecked());
        EXPECT_EQ(Find<QLineEdit>("efNumSuffix").text(), "17");
        EXPECT_TRUE(Find<QRadioButton>("rbARISDomainType").isChecked());
        EXPECT_FALSE(Find<QRadioButton>("rbARISAttrDataType").isChecked());
    });
}

TEST_F(FormWindow, ShowsTheCaptionsOfTheLanguageLibrary) {
    ShowWindow([&] {
        EXPECT_EQ(window_->windowTitle().toStdString(), TestText(50000));
        EXPECT_EQ(Tabs().count(), 7);
        for (int page = 0; page < Tabs().count(); ++page)
            EXPECT_EQ(Tabs().tabText(page).toStdString(), TestText(50001 + page));
        EXPECT_EQ(Find<QPushButton>("cmdHelp").text().toStdString(), TestText(50008));
        EXPECT_EQ(Find<QGroupBox>("frDataTypes").title().toStdString(), TestText(50010));
        EXPECT_EQ(Find<QRadioButton>("rbARISDomainType").text().toStdString(), TestText(50011));
        EXPECT_EQ(Find<QCheckBox>("cbStartConditions").text().toStdString(), TestText(50015));
        EXPECT_EQ(Find<QLabel>("stNumSuffix").text().toStdString(), TestText(50026));
        EXPECT_EQ(Find<QPushButton>("cmdOK").text().toStdString(), TestText(50029));
    });
}

TEST_F(FormWindow, ACaptionThatTheLibraryLacksSaysSo) {
    languageLibraries_.Put("wxbrgENU.dll", {{50000, "Title"}});
    gBlock.gResourceLibrary = languageLibraries_.Load("wxbrgENU.dll");
    ShowWindow([&] {
        EXPECT_EQ(window_->windowTitle(), "Title");
        EXPECT_EQ(Tabs().tabText(1), "Error :\nThe Resource ID '50002' was not found");
        EXPECT_EQ(Find<QCheckBox>("cbConvertARISNames").text(),
                  "Error :\nThe Resource ID '50024' was not found");
    });
}

TEST_F(FormWindow, EachActivationSetsTheCaptionsAnew) {
    ShowWindow([&] {
        languageLibraries_.Put("wxbrgENU.dll", {{50000, "Other title"}, {50003, "Other tab"}});
        gBlock.gResourceLibrary = languageLibraries_.Load("wxbrgENU.dll");
        QEvent activation(QEvent::WindowActivate);
        QApplication::sendEvent(window_, &activation);
        EXPECT_EQ(window_->windowTitle(), "Other title");
        EXPECT_EQ(Tabs().tabText(2), "Other tab");
    });
}

TEST_F(FormWindow, DrawsWithTheFontOfTheForm) {
    optionsFormView_.font = {.bold = true, .name = "DejaVu Serif", .size = 18};
    ShowWindow([&] {
        EXPECT_EQ(window_->font().family(), "DejaVu Serif");
        EXPECT_EQ(window_->font().pointSizeF(), 18);
        EXPECT_TRUE(Find("cbConvertARISNames").font().bold());
        EXPECT_FALSE(window_->font().italic());
    });
}

TEST(QtOptionsFormView, ItsFontIsThatOfTheWindowSystem) {
    const HiddenSession session;
    const FormFont font = QtOptionsFormView("ENU").DefaultFont();
    EXPECT_EQ(font.name, QApplication::font().family().toStdString());
    EXPECT_EQ(font.size, QApplication::font().pointSizeF());
}

TEST_F(FormWindow, EveryControlStandsOnItsPage) {
    ShowWindow([&] {
        for (const FormControl& control : formControls) {
            if (control.kind == FormControlKind::tab) continue;
            const QWidget& widget = Find(std::string(control.name).c_str());
            for (int page = 0; page < Tabs().count(); ++page)
                EXPECT_EQ(Tabs().widget(page)->isAncestorOf(&widget), page == control.page) << control.name;
        }
        EXPECT_TRUE(Find("frDataTypes").isAncestorOf(&Find("rbARISDomainType")));
        EXPECT_TRUE(Find("frDataTypes").isAncestorOf(&Find("rbARISAttrDataType")));
    });
}

TEST_F(FormWindow, TheButtonsStandInTheirOrderAndOkIsTheDefault) {
    ShowWindow([&] {
        EXPECT_LT(Find("cmdHelp").x(), Find("cmdOK").x());
        EXPECT_LT(Find("cmdOK").x(), Find("cmdCancel").x());
        EXPECT_LT(Find("cmdCancel").x(), Find("cmdApply").x());
        EXPECT_TRUE(Find<QPushButton>("cmdOK").isDefault());
        EXPECT_EQ(Find<QLabel>("stNumSuffix").buddy(), &Find("efNumSuffix"));
    });
}

TEST_F(FormWindow, OkOnACleanFormStoresNothingAndClosesTheWindow) {
    EXPECT_EQ(ShowWindow([&] {
                  ClickOn("cmdOK");
                  EXPECT_FALSE(window_->isVisible());
              }),
              std::nullopt);
    EXPECT_TRUE(form_.IsClosed());
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(FormWindow, EveryCheckBoxMakesTheFormDirtyAndIsStoredByOk) {
    ShowWindow([&] {
        for (const ExportOption& option : exportOptions) {
            if (option.control.kind != FormControlKind::checkBox) continue;
            const std::string name(option.control.name);
            ClickOn(name.c_str());
            EXPECT_EQ(Find<QCheckBox>(name.c_str()).isChecked(), option.byDefault == 0) << name;
            EXPECT_TRUE(ApplyIsEnabled());
        }
        ClickOn("cmdOK");
    });
    for (const ExportOption& option : exportOptions) {
        if (option.control.kind != FormControlKind::checkBox) continue;
        EXPECT_EQ(Stored(option.valueName), ProfileValue(option.byDefault == 0 ? -1 : 0)) << option.valueName;
    }
    EXPECT_THAT(profileStore_.writes, SizeIs(exportOptions.size()));
}

TEST_F(FormWindow, ApplyStoresAndLeavesTheWindowOpenAndClean) {
    ShowWindow([&] {
        ClickOn("cbExitConditions");
        ClickOn("cmdApply");
        EXPECT_TRUE(window_->isVisible());
        EXPECT_FALSE(ApplyIsEnabled());
        EXPECT_EQ(Stored("ExitConditions"), ProfileValue(-1));
        profileStore_.writes.clear();
        ClickOn("cmdOK");
    });
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(FormWindow, ApplyAndOkShowThatStoringFailed) {
    std::vector<std::string> shown;
    const auto pressOkNext = [&] {
        QTimer::singleShot(0, window_, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            shown.push_back(box->text().toStdString());
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            box->accept();
        });
    };
    ShowWindow([&] {
        for (const char* const button : {"cmdApply", "cmdOK"}) {
            ClickOn("cbExitConditions");
            profileStore_.refuses = true;
            pressOkNext();
            ClickOn(button);
            profileStore_.refuses = false;
        }
        EXPECT_FALSE(window_->isVisible());
    });
    const std::string text = std::string(notStoredText) + "Nothing is <b>stored</b> here.";
    EXPECT_THAT(shown, ElementsAre(text, text));
}

TEST_F(FormWindow, CancelAndNoLeavesTheWindowAsItIs) {
    AnswerNextQuestion(BoxAnswer::no);
    ShowWindow([&] {
        ClickOn("cbExitConditions");
        ClickOn("cmdCancel");
        EXPECT_TRUE(window_->isVisible());
        EXPECT_TRUE(ApplyIsEnabled());
        EXPECT_TRUE(Find<QCheckBox>("cbExitConditions").isChecked());
    });
    EXPECT_THAT(Boxes(), ElementsAre(QuestionBox(999, "frmExportOptions.cmdCancel_Click")));
    EXPECT_THAT(profileStore_.writes, IsEmpty());
}

TEST_F(FormWindow, CancelAndYesEndsTheRunAndTakesTheWindowAway) {
    AnswerNextQuestion(BoxAnswer::yes);
    EXPECT_THAT(ShowWindow([&] {
                    ClickOn("cbExitConditions");
                    ClickOn("cmdApply");
                    ClickOn("cbStartConditions");
                    ClickOn("cmdCancel");
                    EXPECT_FALSE(window_->isVisible());
                }),
                EndedRun(RunEnding::endedByFailure, 999));
    EXPECT_EQ(Stored("ExitConditions"), ProfileValue(-1));
    EXPECT_EQ(Stored("StartConditions"), ProfileValue(0));
    EXPECT_EQ(FindWindow<QDialog>(), nullptr);
}

TEST_F(FormWindow, EscapeIsCancelAndEnterIsOk) {
    AnswerNextQuestion(BoxAnswer::no);
    ShowWindow([&] {
        QTest::keyClick(window_, Qt::Key_Escape);
        EXPECT_THAT(Boxes(), SizeIs(1));
        EXPECT_TRUE(window_->isVisible());
        TypeOver("5");
        QTest::keyClick(&Find("efNumSuffix"), Qt::Key_Return);
        EXPECT_FALSE(window_->isVisible());
    });
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(5));
}

TEST_F(FormWindow, ClosingTheWindowAsksNothingAndStoresNothing) {
    EXPECT_EQ(ShowWindow([&] {
                  ClickOn("cbExitConditions");
                  window_->close();
                  EXPECT_TRUE(form_.IsClosed());
              }),
              std::nullopt);
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(profileStore_.writes, IsEmpty());
    EXPECT_FALSE(gBlock.gOptExitConditions);
}

TEST_F(FormWindow, TheOtherOptionButtonTakesTheSelection) {
    ShowWindow([&] {
        ClickOn("rbARISDomainType");
        EXPECT_TRUE(Find<QRadioButton>("rbARISDomainType").isChecked());
        EXPECT_FALSE(Find<QRadioButton>("rbARISAttrDataType").isChecked());
        ClickOn("cmdOK");
    });
    EXPECT_EQ(Stored("DataTypeFromAttribute"), ProfileValue(0));
}

TEST_F(FormWindow, AClickOnTheSelectedOptionButtonMakesTheFormDirty) {
    ShowWindow([&] {
        ClickOn("rbARISAttrDataType");
        EXPECT_TRUE(Find<QRadioButton>("rbARISAttrDataType").isChecked());
        EXPECT_TRUE(ApplyIsEnabled());
    });
}

TEST_F(FormWindow, AnArrowKeyMovesTheSelectionOfTheOptionButtons) {
    ShowWindow([&] {
        ClickOn("rbARISAttrDataType");
        QTest::keyClick(&Find("rbARISAttrDataType"), Qt::Key_Up);
        EXPECT_TRUE(Find<QRadioButton>("rbARISDomainType").isChecked());
        EXPECT_TRUE(IsChecked("rbARISDomainType"));
        EXPECT_FALSE(IsChecked("rbARISAttrDataType"));
    });
}

TEST_F(FormWindow, LettersInTheFieldChangeNothing) {
    ShowWindow([&] {
        int beeps = 0;
        Find<FilteredField>("efNumSuffix").beep = [&beeps] {
            ++beeps;
        };
        TypeOver("x-.");
        EXPECT_EQ(Find<QLineEdit>("efNumSuffix").text(), "0");
        EXPECT_FALSE(ApplyIsEnabled());
        EXPECT_EQ(beeps, 3);
        TypeOver("42");
        EXPECT_EQ(beeps, 3);
    });
}

TEST_F(FormWindow, DigitsAndBackspaceEditTheFieldWhereTheCursorIs) {
    ShowWindow([&] {
        TypeOver("123");
        auto& field = Find<QLineEdit>("efNumSuffix");
        QTest::keyClick(&field, Qt::Key_Home);
        QTest::keyClicks(&field, "9");
        EXPECT_EQ(SuffixText(), "9123");
        QTest::keyClicks(&field, "8");
        EXPECT_EQ(SuffixText(), "9123");
        QTest::keyClick(&field, Qt::Key_Backspace);
        EXPECT_EQ(SuffixText(), "123");
        EXPECT_EQ(field.text(), "123");
        EXPECT_EQ(field.cursorPosition(), 0);
        ClickOn("cmdOK");
    });
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(123));
}

TEST_F(FormWindow, APastedTextIsCutToFourCharactersAndNotFiltered) {
    ShowWindow([&] {
        PasteOver("a1b2c3");
        EXPECT_EQ(Find<QLineEdit>("efNumSuffix").text(), "a1b2");
        EXPECT_EQ(SuffixText(), "a1b2");
        EXPECT_TRUE(ApplyIsEnabled());
    });
}

TEST_F(FormWindow, APastedTextThatIsNoNumberEndsTheRunBehindTheWindow) {
    EXPECT_THAT(ShowWindow([&] {
                    PasteOver("abc");
                    ClickOn("cmdApply");
                    EXPECT_FALSE(window_->isVisible());
                }),
                EndedRun(RunEnding::unknownFailure, 13));
    EXPECT_THAT(profileStore_.writes, SizeIs(2));
    EXPECT_EQ(FindWindow<QDialog>(), nullptr);
}

TEST_F(FormWindow, AStoredSuffixOfFiveDigitsShowsFourAndCountsWhole) {
    Store("FirstSuffixNumber", 12345);
    ShowWindow([&] {
        EXPECT_EQ(Find<QLineEdit>("efNumSuffix").text(), "1234");
        ClickOn("cmdOK");
    });
    EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 12345);
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(12345));
}

TEST_F(FormWindow, AStoredSuffixOfFiveDigitsIsStoredAsTheFieldHasItByASave) {
    Store("FirstSuffixNumber", 12345);
    ShowWindow([&] {
        ClickOn("cbExitConditions");
        ClickOn("cmdOK");
    });
    EXPECT_EQ(gBlock.gOptFirstSuffixNumber, 1234);
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(1234));
}

TEST_F(FormWindow, AnEmptyFieldIsStoredAs0) {
    Store("FirstSuffixNumber", 8);
    ShowWindow([&] {
        TypeOver("\b");
        ClickOn("cmdApply");
    });
    EXPECT_EQ(Stored("FirstSuffixNumber"), ProfileValue(0));
}

TEST_F(FormWindow, TheTabKeyGoesThroughThePageAndTheButtons) {
    ShowWindow([&] {
        QStringList order;
        Find("cbConvertARISNames").setFocus();
        for (int i = 0; i < 7; ++i) {
            order << window_->focusWidget()->objectName();
            QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(
            order.join(' ').toStdString(),
            "cbConvertARISNames cbRemoveLineBreaks efNumSuffix cmdHelp cmdOK cmdCancel qt_tabwidget_tabbar");
    });
}

/// The form's window with the captions of a real language library.
class FormWindowIn : public FormWindow, public testing::WithParamInterface<const char*> {
  protected:
    FormWindowIn() {
        DlLanguageLibraries libraries(WXBRG_LANGUAGE_LIBRARIES);
        gBlock.gResourceLibrary = libraries.Load("wxbrg" + std::string(GetParam()) + ".dll");
    }

    /// Presses Alt and the access key of a caption.
    void PressKeyOf(const QString& caption) {
        const QKeySequence key = QKeySequence::mnemonic(caption);
        ASSERT_FALSE(key.isEmpty()) << caption.toStdString();
        QTest::keyClick(window_, key[0].key(), Qt::AltModifier);
    }
};

TEST_P(FormWindowIn, TheAccessKeyOfATabShowsItsPage) {
    ShowWindow([&] {
        for (int page = Tabs().count() - 1; page >= 0; --page) {
            PressKeyOf(Tabs().tabText(page));
            EXPECT_EQ(Tabs().currentIndex(), page);
        }
    });
}

TEST_P(FormWindowIn, TheAccessKeyOfACheckBoxTurnsItOver) {
    ShowWindow([&] {
        for (const ExportOption& option : exportOptions) {
            if (option.control.kind != FormControlKind::checkBox) continue;
            Tabs().setCurrentIndex(option.control.page);
            PressKeyOf(Find<QCheckBox>(std::string(option.control.name).c_str()).text());
            // The button is seen to go down and up again first.
            const auto turned = [&] {
                return IsChecked(option.control.name) == (option.byDefault == 0);
            };
            EXPECT_TRUE(QTest::qWaitFor(turned, patience)) << option.control.name;
        }
    });
}

TEST_P(FormWindowIn, TheAccessKeyOfALabelLeadsToWhatItIsTheLabelOf) {
    ShowWindow([&] {
        PressKeyOf(Find<QLabel>("stNumSuffix").text());
        EXPECT_EQ(window_->focusWidget(), &Find("efNumSuffix"));
        Tabs().setCurrentIndex(5);
        PressKeyOf(Find<QLabel>("stControlFlow").text());
        EXPECT_EQ(window_->focusWidget(), &Find("cbStartConditions"));
    });
}

TEST_P(FormWindowIn, EveryCaptionIsSeenWhole) {
    ShowWindow([&] {
        for (int page = 0; page < Tabs().count(); ++page) {
            Tabs().setCurrentIndex(page);
            for (const auto* button : Tabs().widget(page)->findChildren<QAbstractButton*>())
                EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
            for (const auto* label : Tabs().widget(page)->findChildren<QLabel*>())
                EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        }
        for (const char* name : {"cmdHelp", "cmdOK", "cmdCancel", "cmdApply"})
            EXPECT_GE(Find(name).width(), Find(name).sizeHint().width()) << name;
        EXPECT_GE(Tabs().tabBar()->width(), Tabs().tabBar()->sizeHint().width());
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, FormWindowIn, testing::Values("ENU", "DEU"));

}  // namespace
}  // namespace wxbrg
