#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "tests/TemporaryFolder.h"
#include "tests/cli/Process.h"
#include "tests/cli/SmallExport.h"

namespace wxbrg::cli {

/// Runs the built program as a process in a folder of its own, with stored options of its own, in the
/// plainest of locales and without a display.
class ProgramTest : public testing::Test {
  protected:
    ProgramTest() { std::filesystem::create_directory(folder / "settings"); }

    ProcessResult Run(std::vector<std::string> arguments, std::string input = {}) const {
        arguments.insert(arguments.begin(), WXBRG_PROGRAM);
        return RunProcess(arguments, {std::move(input), folder.Path(), environment});
    }
    bool Exists(const std::string& name) const { return std::filesystem::exists(folder / name); }

    /// Writes an export of the models as `name`.
    void WriteExport(const std::string& name, const std::vector<SmallModel>& models) const {
        folder.Write(name, SmallExport(models));
    }
    void WriteOneModel() const { WriteExport("one.aml", {{"{m1}", "Orders"}}); }

    TemporaryFolder folder;
    std::map<std::string, std::string> environment{{"XDG_CONFIG_HOME", (folder / "settings").string()},
                                                   {"LC_ALL", "C"},
                                                   {"DISPLAY", ""},
                                                   {"WAYLAND_DISPLAY", ""},
                                                   {"QT_QPA_PLATFORM", ""}};
};

}  // namespace wxbrg::cli
