#include "platform/qt/FilteredField.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

namespace wxbrg {

FilteredField::FilteredField(KeyFilter keeps, QWidget* parent)
    : QLineEdit(parent), beep(&QApplication::beep), keeps_(std::move(keeps)) {}

QString FilteredField::Kept(const QString& text) const {
    QString kept;
    for (const char32_t key : text.toUcs4())
        if (keeps_(key)) kept += QString::fromUcs4(&key, 1);
    if (kept != text) beep();
    return kept;
}

void FilteredField::keyPressEvent(QKeyEvent* key) {
    const QString text = key->text();
    const bool types = !text.isEmpty() && text.at(0).isPrint() &&
                       !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!types || Kept(text) == text) QLineEdit::keyPressEvent(key);
}

void FilteredField::inputMethodEvent(QInputMethodEvent* input) {
    QInputMethodEvent filtered(input->preeditString(), input->attributes());
    filtered.setCommitString(Kept(input->commitString()), input->replacementStart(),
                             input->replacementLength());
    QLineEdit::inputMethodEvent(&filtered);
}

}  // namespace wxbrg
