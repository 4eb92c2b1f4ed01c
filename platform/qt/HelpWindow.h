#pragma once

#include <QDialog>
#include <QList>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/HelpBook.h"

class QListWidget;
class QPushButton;
class QTextBrowser;
class QUrl;

namespace wxbrg {

/// The window that shows the pages of one help file.
class HelpWindow : public QDialog {
  public:
    /// Opens the help file at `path`. Where there is none, or it has no such page, the window says so.
    HelpWindow(const std::string& path, QWidget* parent);

    void ShowPage(std::int32_t number);
    const std::string& Path() const { return path_; }
    /// The number of the page shown; 0 while none is.
    std::int32_t ShownPage() const { return shown_; }

  private:
    void LayOut();
    void ListPages();
    void Follow(const QUrl& link);
    void GoBack();
    void Display(std::int32_t number);

    std::string path_;
    std::optional<HelpBook> book_;
    std::int32_t shown_ = 0;
    QList<std::int32_t> history_;
    QListWidget* contents_;
    QTextBrowser* text_;
    QPushButton* back_;
};

}  // namespace wxbrg
