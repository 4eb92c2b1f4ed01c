#include "tests/qt/QtFixture.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QLineEdit>

#include "platform/qt/QtOptionsFormView.h"

namespace wxbrg {

std::optional<RunEnd> FormWindowTest::ShowWindow(const std::function<void()>& act) {
    QtOptionsFormView view("ENU");
    optionsFormView_.use = [&](OptionsFormEvents& form) {
        Soon([&] {
            window_ = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            EXPECT_TRUE(QTest::qWaitForWindowActive(window_, patience));
            act();
            if (window_ != nullptr && window_->isVisible()) window_->close();
        });
        view.ShowModal(form);
    };
    return RunIn("clsWPX_Export.Run", [&](Frame&) {
        form_.ShowModal();
    });
}

void FormWindowTest::ClickOn(const char* name) {
    auto& button = Find<QAbstractButton>(name);
    for (int page = 0; page < Tabs().count(); ++page)
        if (Tabs().widget(page)->isAncestorOf(&button)) Tabs().setCurrentIndex(page);
    constexpr int onTheMark = 6;
    const QPoint place = button.isCheckable() ? QPoint(onTheMark, button.height() / 2) : QPoint();
    QTest::mouseClick(&button, Qt::LeftButton, {}, place);
}

void FormWindowTest::TypeOver(const QString& keys) {
    auto& field = Find<QLineEdit>("efNumSuffix");
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, keys);
}

void FormWindowTest::PasteOver(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    auto& field = Find<QLineEdit>("efNumSuffix");
    field.setFocus();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
}

}  // namespace wxbrg
