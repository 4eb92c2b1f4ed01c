#include "tests/bench/SilentRun.h"

#include <sstream>
#include <utility>

#include "data/StructureIndex.h"
#include "mapping/RuleTable.h"
#include "options/MessageTexts.h"
#include "options/OptionTable.h"
#include "run/clsARIS_Interface.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"

namespace wxbrg::bench {

namespace {

constexpr std::int32_t english = 1033;
constexpr const char* logInMemory = "out.log";

/// A text for every number that a message can have.
MemoryLanguageLibraries::Texts PlainTexts() {
    constexpr std::uint32_t firstMessage = 1000;
    constexpr std::uint32_t lastMessage = 4100;
    MemoryLanguageLibraries::Texts texts;
    for (std::uint32_t number = firstMessage; number <= lastMessage; number += 10)
        texts[number] = "%1$s|%2$s|%3$s|%4$s";
    return texts;
}

}  // namespace

SilentRun::SilentRun() : SilentRun(nullptr, "out.wpx") {}

SilentRun::SilentRun(FileSystem& files, std::string output) : SilentRun(&files, std::move(output)) {}

SilentRun::SilentRun(FileSystem* files, std::string output)
    : output_(std::move(output)),
      platform_(memory_.With(files != nullptr ? *files : memory_.fileSystem, memory_.helpViewer)) {
    memory_.languageLibraries.Put("wxbrgENU.dll", PlainTexts());
}

SilentRun::~SilentRun() {
    RenewGlobals();
}

RunReport SilentRun::Export(aris::Automation& automation, std::vector<ARISModel> models,
                            std::size_t stackSize) {
    memory_.script = AnswerScript::Parse("options ok\nfile " + output_);
    RunRequest request;
    request.selection = ExportSelection{"user", "Demo", "LOCAL", "", english, std::move(models)};
    request.stackSize = stackSize;
    return RunExport(request, platform_, automation);
}

void SilentRun::Begin() {
    RenewGlobals();
    gBlock.gPlatform = &platform_;
    LoadLocalizedResources();
    gBlock.gExceptionHandler = gBlock.gPool.Create<clsExceptionHandler>();
    gBlock.gIOHandler = gBlock.gPool.Create<clsIOHandler>();
    gBlock.gIOHandler->sOutputFileName = output_;
    gBlock.gIOHandler->sLogFileName = logInMemory;
    gBlock.gIOHandler->AllocateFile(logInMemory);
    gBlock.gStructureIndex = gBlock.gPool.Create<StructureIndex>();
    gBlock.gLocale = english;
    gBlock.gDataStructureNamePrefix = "DATA_STRUCTURE_";
    for (const ExportOption& option : exportOptions)
        if (option.flag != nullptr) gBlock.*option.flag = option.byDefault != 0;
    CreateDefaultMappingRules();
    gBlock.gCurrentProcedure = "modMain.Main";
}

std::vector<std::string> SilentRun::LogLines() const {
    std::istringstream log(memory_.fileSystem.Bytes(logInMemory).value_or(""));
    std::vector<std::string> lines;
    for (std::string line; std::getline(log, line);) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

}  // namespace wxbrg::bench
