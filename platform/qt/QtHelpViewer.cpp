#include "platform/qt/QtHelpViewer.h"

#include <QApplication>

#include "platform/Path.h"
#include "platform/qt/HelpWindow.h"
#include "platform/qt/Session.h"

namespace wxbrg {

QtHelpViewer::~QtHelpViewer() {
    delete window_;
}

void QtHelpViewer::ShowPage(std::string_view helpFile, std::int32_t number) {
    OpenSession(language_);
    const std::string path = FileInFolder(directory_, helpFile);
    if (window_ == nullptr || window_->Path() != path) {
        delete window_.data();
        window_ = new HelpWindow(path, QApplication::activeModalWidget());
    }
    window_->ShowPage(number);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

}  // namespace wxbrg
