#pragma once

#include <memory>

#include "platform/FileDialog.h"
#include "platform/HelpViewer.h"
#include "platform/MessageBox.h"
#include "platform/OptionsFormView.h"

namespace wxbrg {

/// The dialogs of an interactive run.
struct Dialogs {
    std::unique_ptr<MessageBox> messageBox;
    std::unique_ptr<FileDialog> fileDialog;
    std::unique_ptr<OptionsFormView> optionsFormView;
    std::unique_ptr<HelpViewer> helpViewer;
    bool inWindows = false;  ///< the user sees windows, and perhaps no terminal
};

}  // namespace wxbrg
