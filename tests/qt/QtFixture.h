#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <functional>

#include "platform/qt/Session.h"
#include "tests/options/OptionsFixture.h"

namespace wxbrg {

/// How long to wait for a window, in milliseconds. Only against one that never comes: below the limit that
/// ctest has for a test.
inline constexpr int patience = 240'000;

/// Windows that nobody sees.
class HiddenSession {
  public:
    HiddenSession() {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        OpenSession("ENU");
    }
};

/// A window that is of a kind and visible; null where there is none.
template <class Window>
Window* FindWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* const window = dynamic_cast<Window*>(widget); window != nullptr && window->isVisible())
            return window;
    return nullptr;
}

/// Acts as soon as the window system's loop runs again: behind the opening of a modal window.
inline void Soon(const std::function<void()>& act) {
    QTimer::singleShot(0, act);
}

/// The options form with its real window, at work on stored options in memory.
class FormWindowTest : private HiddenSession, public OptionsFixture {
  protected:
    /// Shows the form as the run does, to a user who acts on its window; then the window is closed, where it
    /// is still open.
    std::optional<RunEnd> ShowWindow(const std::function<void()>& act);

    /// A widget by the name of its control.
    template <class Widget = QWidget>
    Widget& Find(const char* name) {
        auto* const widget = window_->findChild<Widget*>(name);
        if (widget == nullptr) throw std::invalid_argument(std::string("no widget ") + name);
        return *widget;
    }
    QTabWidget& Tabs() { return Find<QTabWidget>("SSTab1"); }

    /// Brings the page of a control to the front and clicks on the control with the mouse.
    void ClickOn(const char* name);
    /// Types keys into the text field, over all that it holds.
    void TypeOver(const QString& keys);
    /// What is in the clipboard goes into the text field, over all that it holds.
    void PasteOver(const QString& text);
    bool ApplyIsEnabled() { return Find("cmdApply").isEnabled(); }

    QPointer<QDialog> window_;
};

}  // namespace wxbrg
