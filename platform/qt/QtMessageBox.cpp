#include "platform/qt/QtMessageBox.h"

#include <QApplication>
#include <QMessageBox>

#include "platform/qt/QtText.h"
#include "platform/qt/Session.h"

namespace wxbrg {

namespace {

QMessageBox::Icon IconOf(std::int32_t severity) {
    switch (severity) {
        case 16:
            return QMessageBox::Critical;
        case 32:
            return QMessageBox::Question;
        case 48:
            return QMessageBox::Warning;
        case 64:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons ButtonsOf(std::int32_t set) {
    switch (set) {
        case BoxStyle::okCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case BoxStyle::yesNo:
            return QMessageBox::Yes | QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

BoxAnswer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return BoxAnswer::yes;
        case QMessageBox::No:
            return BoxAnswer::no;
        case QMessageBox::Cancel:
            return BoxAnswer::cancel;
        default:
            return BoxAnswer::ok;
    }
}

/// Shows a box in front of all other windows and gives it the keyboard. What is not shown yet cannot be
/// raised.
void BringToFront(QMessageBox& box) {
    box.setModal(true);
    box.show();
    box.raise();
    box.activateWindow();
}

}  // namespace

BoxAnswer QtMessageBox::Show(std::string_view title, std::string_view text, std::int32_t buttons) {
    OpenSession(language_);
    const std::int32_t set = buttons & BoxStyle::buttonSet;
    QMessageBox box(IconOf(buttons & BoxStyle::severity), ToQt(title), ToQt(text), ButtonsOf(set),
                    QApplication::activeModalWidget());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setDefaultButton(set == BoxStyle::yesNo ? QMessageBox::Yes : QMessageBox::Ok);
    if (buttons & BoxStyle::foreground) BringToFront(box);
    return AnswerOf(box.exec());
}

}  // namespace wxbrg
