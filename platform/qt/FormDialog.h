#pragma once

#include <QDialog>
#include <QHash>
#include <QList>
#include <QString>
#include <exception>
#include <functional>
#include <string_view>

#include "platform/OptionsFormView.h"

class QTabWidget;
class QVBoxLayout;

namespace wxbrg {

/// The window of the options form. Its widgets are built from the form's rows and have no rules of their own:
/// each act of the user goes to the form, and the form's rows are shown anew. A widget bears the name of its
/// control as its object name.
class FormDialog : public QDialog {
  public:
    explicit FormDialog(OptionsFormEvents& form);

    /// Shows the window until the form has been ended. Throws what the form threw, with the window closed.
    void Run();

    QSize sizeHint() const override;
    /// Esc: the Cancel button.
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* closing) override;
    void keyPressEvent(QKeyEvent* key) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Build();
    /// Puts the controls of a page into its layout, from top to bottom.
    void FillPage(QVBoxLayout* page, const QList<FormControlRow>& rows);
    QWidget* MakeControl(const FormControlRow& row);
    QWidget* MakeButton(const FormControlRow& row);
    QWidget* MakeTextField(const FormControlRow& row);
    void AddButtons(QVBoxLayout* whole, const QList<FormControlRow>& rows);
    /// Makes the buttons as wide as the widest of them.
    void AlignButtons();

    /// Brings what an act of the user brings: shows the form anew, and closes the window when the form has
    /// been ended or has failed.
    void Do(const std::function<void()>& act);
    /// Shows why the options could not be stored, if that has just happened.
    void ShowStoreProblem();
    void Refresh();
    void Show(const FormControlRow& row);
    /// Help on the control that a widget is, or is in.
    void HelpOn(const QObject* widget);

    OptionsFormEvents& form_;
    std::exception_ptr failure_;
    QTabWidget* tabs_;
    QHash<QString, QWidget*> widgets_;  ///< by name, without the tabs
};

}  // namespace wxbrg
