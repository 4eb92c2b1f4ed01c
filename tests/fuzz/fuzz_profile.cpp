// Reads any bytes as a mapping profile: as a run does, and with places. Both find the same tokens, fail alike
// and give the same rules; what can be read can be printed, and comes back as it was.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "mapping/ProfileCheck.h"
#include "mapping/ProfileClauses.h"
#include "mapping/ProfileReading.h"
#include "mapping/ProfileText.h"
#include "mapping/clsMappingRuleToken.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/scripted/AnswerScript.h"
#include "platform/scripted/FixedClock.h"
#include "platform/scripted/MemoryFileSystem.h"
#include "platform/scripted/MemoryLanguageLibraries.h"
#include "platform/scripted/MemoryProfileStore.h"
#include "platform/scripted/NoHelp.h"
#include "platform/scripted/NoProgress.h"
#include "platform/scripted/PlainUserLocale.h"
#include "platform/scripted/ScriptedFileDialog.h"
#include "platform/scripted/ScriptedOptionsFormView.h"
#include "run/Frame.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"

namespace {

using namespace wxbrg;

constexpr const char* profileName = "/wxbrg.prf";
constexpr std::uint32_t utf8CodePage = 65001;

class OkMessageBox : public MessageBox {
  public:
    BoxAnswer Show(std::string_view, std::string_view, std::int32_t) override { return BoxAnswer::ok; }
};

/// A run that has come to its mapping profile.
class ProfileRun {
  public:
    ProfileRun(std::string bytes, CodePage& codePage) : codePage_(codePage) {
        fileSystem_.Put(profileName, std::move(bytes));
        RenewGlobals();
        gBlock.gPlatform = &platform_;
        gBlock.gExceptionHandler = gBlock.gPool.Create<clsExceptionHandler>();
        gBlock.gIOHandler = gBlock.gPool.Create<clsIOHandler>();
    }
    ~ProfileRun() { RenewGlobals(); }
    ProfileRun(const ProfileRun&) = delete;
    ProfileRun& operator=(const ProfileRun&) = delete;

    /// Runs a part of it; the number of the failure that ends it, or 0.
    template <class Part>
    std::int32_t EndOf(const Part& part) {
        try {
            Procedure("modFuzz.Run", [&](Frame&) {
                part();
            });
        } catch (const RunEnd& end) {
            return end.number;
        }
        return 0;
    }

  private:
    MemoryProfileStore profileStore_;
    MemoryLanguageLibraries languageLibraries_;
    CodePage& codePage_;
    FixedClock clock_{LocalTime{}};
    PlainUserLocale userLocale_;
    MemoryFileSystem fileSystem_;
    OkMessageBox messageBox_;
    AnswerScript script_{{}};
    ScriptedFileDialog fileDialog_{script_};
    ScriptedOptionsFormView optionsFormView_{script_};
    NoHelp helpViewer_;
    NoProgress progress_;
    Platform platform_{.profileStore = profileStore_,
                       .languageLibraries = languageLibraries_,
                       .codePage = codePage_,
                       .clock = clock_,
                       .userLocale = userLocale_,
                       .fileSystem = fileSystem_,
                       .messageBox = messageBox_,
                       .fileDialog = fileDialog_,
                       .optionsFormView = optionsFormView_,
                       .helpViewer = helpViewer_,
                       .progress = progress_,
                       .programDirectory = "/",
                       .programName = "wxbrg"};
};

void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
}

void CompareTokens(ProfileRun& run, const std::string& text, const ProfileReading& reading) {
    Collection<Ref<clsMappingRuleToken>> tokens;
    const std::int32_t end = run.EndOf([&] {
        tokens = gBlock.gIOHandler->TokenizeMappingProfile(text);
    });
    Require(reading.overflow.has_value() == (end == FailureKind::overflow), "both readings overflow alike");
    if (reading.overflow) return;
    Require(static_cast<std::size_t>(tokens.Count()) == reading.tokens.size(), "there are as many tokens");
    std::size_t next = 0;
    for (const Ref<clsMappingRuleToken>& token : tokens) {
        const ProfileToken& other = reading.tokens[next++];
        Require(token->TokenType == other.type && token->TokenValue == other.value,
                "the tokens are the same");
    }
}

void CompareRules(ProfileRun& run, const std::string& text, const ProfileReading& reading) {
    const std::int32_t end = run.EndOf([] {
        gBlock.gIOHandler->ParseMappingFile();
    });
    if (text.empty()) return;
    const ProfileClauses clauses = ReadClauses(reading, DecimalSeparator());
    std::int32_t told = 0;
    for (const ProfileFinding& finding : clauses.findings)
        if (told == 0) told = finding.endsWith;
    Require(told == end, "the failure of a run is told");
    if (end == 0)
        Require(ProfileText(RulesOf(clauses)) == ProfileText(RulesOf(gBlock.gColMappingRule)),
                "the rules are the same");
}

/// Profiles that can be read come back from their printed text.
void PrintAndReadBack(const std::string& text, char32_t separator) {
    CheckProfile(text, separator);
    if (text.empty()) return;
    const ProfileRules read = ReadProfileRules(text, separator);
    const std::string printed = ProfileText(read.rules);
    const ProfileRules again = ReadProfileRules(printed + "\n", separator);
    Require(again.mistakes.empty() && ProfileText(again.rules) == printed, "a printed profile can be read");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static IconvCodePage codePage(utf8CodePage);
    ProfileRun run(std::string(reinterpret_cast<const char*>(data), size), codePage);
    std::string text;
    run.EndOf([&] {
        text = gBlock.gIOHandler->ReadFile(profileName);
    });
    const char32_t separator = DecimalSeparator();
    const ProfileReading reading = ReadProfile(text, separator);
    CompareTokens(run, text, reading);
    CompareRules(run, text, reading);
    PrintAndReadBack(text, separator);
    return 0;
}
