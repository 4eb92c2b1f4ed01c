#pragma once

#include <string>
#include <utility>

#include "platform/OptionsFormView.h"

namespace wxbrg {

/// The options form in a window.
class QtOptionsFormView : public OptionsFormView {
  public:
    /// `language` is the tag of the language of the window system's own words.
    explicit QtOptionsFormView(std::string language) : language_(std::move(language)) {}
    FormFont DefaultFont() const override;
    /// Throws what an event of the form throws, behind the window system's loop.
    void ShowModal(OptionsFormEvents& form) override;

  private:
    std::string language_;
};

}  // namespace wxbrg
