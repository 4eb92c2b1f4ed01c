// An export with a mapping profile that cannot be used ends like the interactive run with that profile.

#include <gmock/gmock.h>

#include <regex>
#include <string>

#include "support/TerminalText.h"
#include "support/Text.h"
#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::HasSubstr;

struct BadProfile {
    std::string name;
    std::string text;
    int endsWith;  ///< number of the failure that ends the run
};

/// The rules that a run asks for up to the first one of a process.
constexpr const char* categoryRules =
    "ATTRIBUTE_MAPPING PROCESS_CATEGORY_ObjectName ATTRIBUTE_TYPE = -1 END "
    "ATTRIBUTE_MAPPING PROCESS_CATEGORY_DESCRIPTION ATTRIBUTE_TYPE = 9 END "
    "ATTRIBUTE_MAPPING PROCESS_CATEGORY_DOCUMENTATION ATTRIBUTE_TYPE = 9 END ";

std::string ConnectionRule(const std::string& kind, const std::string& type) {
    return "CONNECTION_MAPPING A SOURCE_OBJECT_TYPE = 22 TARGET_OBJECT_TYPE = 78 CONNECTION_KIND = " + kind +
           " CONNECTION_TYPE = " + type + " END ";
}

class BadProfileTest : public ProgramTest, public testing::WithParamInterface<BadProfile> {
  protected:
    BadProfileTest() {
        WriteOneModel();
        WriteExport("case/repository.aml", {{"{m1}", "Orders"}});
        folder.Write("case/command", "/USR=me /DB=any /SVR=host /REG= /SEL={m1},Orders,13 /LOC=1033\n");
        folder.Write("case/options", "Language=s:ENU\n");
        folder.Write("case/answers", "options ok\nfile result.wpx\n");
        folder.Write("case/profile.prf", GetParam().text);
        folder.Write("bad.prf", GetParam().text);
    }

    ProcessResult Export(const std::vector<std::string>& choice) const {
        std::vector<std::string> arguments{"export", "one.aml", "-o", "out.wpx", "--profile", "bad.prf"};
        arguments.insert(arguments.end(), choice.begin(), choice.end());
        return Run(arguments);
    }

    /// What an export prints of the boxes of a transcript.
    static std::string PrintedBoxes(const std::string& transcript) {
        const std::regex box(R"#(\{"box": \{"title": "(.*)", "text": "(.*)", "buttons": )#");
        std::string printed;
        for (std::sregex_iterator found(transcript.begin(), transcript.end(), box), end; found != end;
             ++found)
            printed += (*found)[1].str() + "\n" +
                       PrintableLines(Replace((*found)[2].str(), R"(\")", "\""), R"(\r\n)", boxIndent) + "\n";
        return printed;
    }
};

/// What an export adds.
constexpr const char* incomplete =
    "wxbrg: The export is not complete: out.wpx was not written; what there is of it is in out.wpx.partial "
    "and "
    "out.log.partial.\n";

TEST_P(BadProfileTest, EndsTheExportAsItEndsTheInteractiveRun) {
    const ProcessResult replayed = Run({"replay", "case", "--out", "out"});
    ASSERT_EQ(replayed.status, 0) << replayed.err;
    ASSERT_THAT(replayed.out, HasSubstr("\"number\": " + std::to_string(GetParam().endsWith) + ","));

    for (const std::vector<std::string>& choice :
         {std::vector<std::string>{}, {"--all"}, {"--model", "Orders"}, {"--model", "{m1}"}}) {
        const ProcessResult exported = Export(choice);
        EXPECT_EQ(exported.status, 1);
        EXPECT_EQ(exported.err, PrintedBoxes(replayed.out) + incomplete);
        EXPECT_EQ(exported.out, "");
        EXPECT_EQ(folder.Read("out.wpx.partial"), folder.Read("out/result.wpx"));
        EXPECT_EQ(folder.Read("out.log.partial"), folder.Read("out/result.log"));
    }
}

TEST_P(BadProfileTest, AModelThatIsNotThereIsStillWrongUsage) {
    EXPECT_EQ(Export({"--model", "Invoices"}).status, 2);
    EXPECT_FALSE(Exists("out.wpx"));
}

INSTANTIATE_TEST_SUITE_P(
    , BadProfileTest,
    testing::Values(BadProfile{"blank", " \n ", 2100},
                    BadProfile{"without_the_first_rules", "OBJECT_MAPPING ACTIVITY OBJECT_TYPE = 22 END ",
                               2100},
                    BadProfile{"without_processes", categoryRules, 2100},
                    BadProfile{"no_keyword", "no profile at all\n", 2130},
                    BadProfile{"no_name", "OBJECT_MAPPING = 22 END ", 2140},
                    BadProfile{"no_equals_sign", "OBJECT_MAPPING ACTIVITY OBJECT_TYPE 22 END ", 2150},
                    BadProfile{"no_object_type", "OBJECT_MAPPING ACTIVITY OBJECT_TYPE = x END ", 2160},
                    BadProfile{"no_attribute_type", "ATTRIBUTE_MAPPING A ATTRIBUTE_TYPE = x END ", 2170},
                    BadProfile{"no_connection_kind", ConnectionRule("x", "218"), 2180},
                    BadProfile{"no_connection_type", ConnectionRule("2", "x"), 2190},
                    BadProfile{"number_too_large", "OBJECT_MAPPING A OBJECT_TYPE = 99999999999 END ", 6},
                    BadProfile{"attribute_twice", std::string(categoryRules) + categoryRules, 457}),
    [](const testing::TestParamInfo<BadProfile>& bad) {
        return bad.param.name;
    });

}  // namespace
}  // namespace wxbrg::cli
