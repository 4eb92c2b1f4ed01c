#include "platform/qt/FormDialog.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWhatsThis>
#include <algorithm>
#include <array>
#include <string>

#include "platform/qt/FilteredField.h"
#include "platform/qt/QtText.h"

namespace wxbrg {

namespace {

/// What the buttons of the form do.
struct ButtonRow {
    std::string_view name;
    void (*act)(OptionsFormEvents& form);
};
constexpr std::array buttonActs{
    ButtonRow{FormButton::help,
              [](OptionsFormEvents& form) {
                  form.Help();
              }},
    ButtonRow{FormButton::ok,
              [](OptionsFormEvents& form) {
                  form.Ok();
              }},
    ButtonRow{FormButton::cancel,
              [](OptionsFormEvents& form) {
                  form.Cancel();
              }},
    ButtonRow{FormButton::apply,
              [](OptionsFormEvents& form) {
                  form.Apply();
              }},
};

/// How many digits wide the text field is beyond what it takes.
constexpr int spareDigits = 2;

QFont FontOf(const FormFont& font) {
    QFont result;
    if (!font.name.empty()) result.setFamily(ToQt(font.name));
    if (font.size > 0) result.setPointSizeF(font.size);
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setStrikeOut(font.strikethrough);
    result.setUnderline(font.underline);
    return result;
}

template <class Widget>
void ShowCaption(Widget* widget, const QString& caption) {
    if (widget->text() != caption) widget->setText(caption);
}

/// The width of the mark of a check box, behind which its caption begins.
int IndentOf(const QWidget& widget) {
    return widget.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget) +
           widget.style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &widget);
}

/// A line of its own for a widget, as wide as the widget likes to be.
QHBoxLayout* AddLine(QVBoxLayout* page, int indent, QWidget* widget) {
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(indent, 0, 0, 0);
    line->addWidget(widget);
    line->addStretch(1);
    page->addLayout(line);
    return line;
}

}  // namespace

FormDialog::FormDialog(OptionsFormEvents& form)
    : QDialog(nullptr, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint | Qt::WindowContextHelpButtonHint),
      form_(form),
      tabs_(new QTabWidget(this)) {
    setFont(FontOf(form_.Font()));
    Build();
    Refresh();
    AlignButtons();
    resize(sizeHint());
}

void FormDialog::Run() {
    exec();
    if (failure_) std::rethrow_exception(failure_);
}

void FormDialog::Do(const std::function<void()>& act) {
    try {
        act();
        ShowStoreProblem();
        Refresh();
    } catch (...) {
        if (!failure_) failure_ = std::current_exception();
    }
    if (failure_ || form_.IsClosed()) QDialog::done(QDialog::Accepted);
}

void FormDialog::ShowStoreProblem() {
    const std::string problem = form_.TakeStoreProblem();
    if (problem.empty()) return;
    QMessageBox box(QMessageBox::Warning, windowTitle(), ToQt(std::string(notStoredText) + problem),
                    QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void FormDialog::Build() {
    QHash<int, QList<FormControlRow>> pages;
    auto* const whole = new QVBoxLayout(this);
    whole->addWidget(tabs_, 1);
    tabs_->tabBar()->installEventFilter(this);
    for (const FormControlRow& row : form_.Rows()) {
        if (row.kind == FormControlKind::tab) {
            tabs_->setObjectName(ToQt(row.name));
            tabs_->addTab(new QWidget(tabs_), ToQt(row.caption));
        } else {
            pages[row.page] << row;
        }
    }
    for (int page = 0; page < tabs_->count(); ++page) {
        auto* const layout = new QVBoxLayout(tabs_->widget(page));
        FillPage(layout, pages.value(page));
        layout->addStretch(1);
    }
    AddButtons(whole, pages.value(noPage));
}

void FormDialog::FillPage(QVBoxLayout* page, const QList<FormControlRow>& rows) {
    const int spacing = fontMetrics().height();
    page->setContentsMargins(spacing, spacing, spacing, spacing);
    page->setSpacing(spacing / 2);
    QLabel* label = nullptr;
    QHBoxLayout* lineOfLabel = nullptr;
    for (const FormControlRow& row : rows) {
        QWidget* const widget = MakeControl(row);
        if (label != nullptr && label->buddy() == nullptr) label->setBuddy(widget);
        if (row.kind == FormControlKind::label) {
            label = static_cast<QLabel*>(widget);
            lineOfLabel = AddLine(page, 0, widget);
        } else if (row.kind == FormControlKind::frame) {
            page->addWidget(widget);
        } else if (!row.frame.empty()) {
            widgets_.value(ToQt(row.frame))->layout()->addWidget(widget);
        } else if (row.kind == FormControlKind::textField && label != nullptr) {
            lineOfLabel->insertWidget(1, widget);
        } else {
            AddLine(page, label == nullptr ? 0 : IndentOf(*this), widget);
        }
    }
}

QWidget* FormDialog::MakeControl(const FormControlRow& row) {
    QWidget* made = nullptr;
    switch (row.kind) {
        case FormControlKind::checkBox:
        case FormControlKind::optionButton:
        case FormControlKind::button:
            made = MakeButton(row);
            break;
        case FormControlKind::textField:
            made = MakeTextField(row);
            break;
        case FormControlKind::frame: {
            auto* const frame = new QGroupBox(this);
            new QVBoxLayout(frame);
            made = frame;
            break;
        }
        case FormControlKind::label:
        case FormControlKind::tab:
            made = new QLabel(this);
            break;
    }
    made->setObjectName(ToQt(row.name));
    made->installEventFilter(this);
    widgets_.insert(ToQt(row.name), made);
    return made;
}

QWidget* FormDialog::MakeButton(const FormControlRow& row) {
    if (row.kind == FormControlKind::button) {
        auto* const button = new QPushButton(this);
        button->setDefault(row.name == FormButton::ok);
        const auto* const pressed =
            std::find_if(buttonActs.begin(), buttonActs.end(), [&row](const ButtonRow& candidate) {
                return candidate.name == row.name;
            });
        connect(button, &QAbstractButton::clicked, this, [this, pressed] {
            Do([this, pressed] {
                pressed->act(form_);
            });
        });
        return button;
    }
    QAbstractButton* button = nullptr;
    if (row.kind == FormControlKind::checkBox)
        button = new QCheckBox(this);
    else
        button = new QRadioButton(this);
    const std::string_view name = row.name;
    connect(button, &QAbstractButton::clicked, this, [this, name] {
        Do([this, name] {
            form_.Click(name);
        });
    });
    return button;
}

QWidget* FormDialog::MakeTextField(const FormControlRow& row) {
    auto* const field = new FilteredField(
        [this](char32_t key) {
            bool keeps = false;
            Do([this, key, &keeps] {
                keeps = form_.KeepsKey(key);
            });
            return keeps;
        },
        this);
    field->setMaxLength(static_cast<int>(row.maximumLength));
    const int digits = static_cast<int>(row.maximumLength) + spareDigits;
    field->setFixedWidth(fontMetrics().horizontalAdvance('0') * digits + fontMetrics().height());
    connect(field, &QLineEdit::textEdited, this, [this](const QString& text) {
        Do([this, &text] {
            form_.Change(text.toStdString());
        });
    });
    return field;
}

void FormDialog::AddButtons(QVBoxLayout* whole, const QList<FormControlRow>& rows) {
    auto* const line = new QHBoxLayout;
    for (const FormControlRow& row : rows) {
        line->addWidget(MakeControl(row));
        if (row.name == FormButton::help) line->addStretch(1);
    }
    whole->addLayout(line);
}

void FormDialog::AlignButtons() {
    int width = 0;
    for (const ButtonRow& row : buttonActs)
        width = std::max(width, widgets_.value(ToQt(row.name))->sizeHint().width());
    for (const ButtonRow& row : buttonActs) widgets_.value(ToQt(row.name))->setMinimumWidth(width);
}

void FormDialog::Refresh() {
    setWindowTitle(ToQt(form_.Caption()));
    for (const FormControlRow& row : form_.Rows()) Show(row);
}

void FormDialog::Show(const FormControlRow& row) {
    const QString caption = ToQt(row.caption);
    if (row.kind == FormControlKind::tab) {
        if (tabs_->tabText(row.page) != caption) tabs_->setTabText(row.page, caption);
        return;
    }
    QWidget* const widget = widgets_.value(ToQt(row.name));
    widget->setEnabled(row.enabled);
    if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
        ShowCaption(button, caption);
        if (button->isCheckable()) button->setChecked(row.checked);
    } else if (auto* const label = qobject_cast<QLabel*>(widget)) {
        ShowCaption(label, caption);
    } else if (auto* const frame = qobject_cast<QGroupBox*>(widget)) {
        if (frame->title() != caption) frame->setTitle(caption);
    } else if (auto* const field = qobject_cast<QLineEdit*>(widget)) {
        ShowCaption(field, ToQt(row.text));
    }
}

/// Wide enough for all tabs, as far as the screen goes.
QSize FormDialog::sizeHint() const {
    const QSize hint = QDialog::sizeHint();
    const QMargins margins = layout()->contentsMargins();
    const int tabs = tabs_->tabBar()->sizeHint().width() + margins.left() + margins.right() +
                     fontMetrics().averageCharWidth();
    const QSize available = screen()->availableSize();
    return {std::min(std::max(hint.width(), tabs), available.width()),
            std::min(hint.height(), available.height())};
}

void FormDialog::reject() {
    Do([this] {
        form_.Cancel();
    });
}

void FormDialog::closeEvent(QCloseEvent* closing) {
    Do([this] {
        form_.Close();
    });
    closing->accept();
}

void FormDialog::HelpOn(const QObject* widget) {
    while (widget != nullptr && widget != this && widget != tabs_ && !widgets_.contains(widget->objectName()))
        widget = widget->parent();
    if (widget == nullptr) return;
    const std::string name = widget->objectName().toStdString();
    Do([this, widget, &name] {
        if (widget == this)
            form_.Help();
        else
            form_.HelpOn(name);
    });
}

void FormDialog::keyPressEvent(QKeyEvent* key) {
    if (key->key() != Qt::Key_F1) return QDialog::keyPressEvent(key);
    if (key->modifiers() == Qt::ShiftModifier)
        QWhatsThis::enterWhatsThisMode();
    else
        HelpOn(focusWidget() == nullptr ? this : focusWidget());
}

bool FormDialog::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        Do([this] {
            form_.Activate();
        });
    return QDialog::event(event);
}

bool FormDialog::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::QueryWhatsThis:
            event->accept();
            return true;
        case QEvent::WhatsThis:
            HelpOn(watched);
            return true;
        default:
            return QDialog::eventFilter(watched, event);
    }
}

}  // namespace wxbrg
