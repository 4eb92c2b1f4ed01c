#pragma once

#include "platform/HelpViewer.h"

namespace wxbrg {

/// Is asked for help where nobody is there to read it.
class NoHelp : public HelpViewer {
  public:
    void ShowPage(std::string_view /*helpFile*/, std::int32_t /*number*/) override {}
};

}  // namespace wxbrg
