#pragma once

#include <string>
#include <utility>

#include "platform/MessageBox.h"

namespace wxbrg {

/// Message boxes in windows: the icon by the severity, the first button of the set as the default one. A box
/// closed without a button is answered by the button that takes nothing further: OK, Cancel or No.
class QtMessageBox : public MessageBox {
  public:
    /// `language` is the tag of the language of the buttons.
    explicit QtMessageBox(std::string language) : language_(std::move(language)) {}
    BoxAnswer Show(std::string_view title, std::string_view text, std::int32_t buttons) override;

  private:
    std::string language_;
};

}  // namespace wxbrg
