#pragma once

#include <QPointer>
#include <string>
#include <utility>

#include "platform/HelpViewer.h"

namespace wxbrg {

class HelpWindow;

/// The help in a window of its own, which stays open beside the dialog that it was called from, and goes with
/// it. The titles of all pages are beside the page; links lead to other pages.
class QtHelpViewer : public HelpViewer {
  public:
    /// `language` is the tag of the language of the window's own words, `directory` the folder of the help
    /// files.
    QtHelpViewer(std::string language, std::string directory)
        : language_(std::move(language)), directory_(std::move(directory)) {}
    ~QtHelpViewer() override;
    void ShowPage(std::string_view helpFile, std::int32_t number) override;

  private:
    std::string language_;
    std::string directory_;
    QPointer<HelpWindow> window_;
};

}  // namespace wxbrg
