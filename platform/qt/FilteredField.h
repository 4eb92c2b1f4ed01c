#pragma once

#include <QLineEdit>
#include <functional>

namespace wxbrg {

/// A text field that asks about each key whether it keeps it, and sounds the beep for a key that it drops.
/// What is pasted is not asked about.
class FilteredField : public QLineEdit {
  public:
    using KeyFilter = std::function<bool(char32_t key)>;
    FilteredField(KeyFilter keeps, QWidget* parent);

    /// Sounds the beep.
    std::function<void()> beep;

  protected:
    void keyPressEvent(QKeyEvent* key) override;
    void inputMethodEvent(QInputMethodEvent* input) override;

  private:
    /// The characters of a text that are kept; beeps for the others.
    QString Kept(const QString& text) const;

    KeyFilter keeps_;
};

}  // namespace wxbrg
