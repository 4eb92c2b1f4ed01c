#include "platform/qt/QtOptionsFormView.h"

#include <QApplication>
#include <QFont>
#include <algorithm>

#include "platform/qt/FormDialog.h"
#include "platform/qt/Session.h"

namespace wxbrg {

FormFont QtOptionsFormView::DefaultFont() const {
    OpenSession(language_);
    const QFont font = QApplication::font();
    return {.bold = font.bold(),
            .italic = font.italic(),
            .name = font.family().toStdString(),
            .size = std::max(font.pointSizeF(), 0.0),
            .strikethrough = font.strikeOut(),
            .underline = font.underline()};
}

void QtOptionsFormView::ShowModal(OptionsFormEvents& form) {
    OpenSession(language_);
    form.Activate();
    FormDialog(form).Run();
}

}  // namespace wxbrg
