// The example profiles of a site, and that a printed profile exports as the one that it was printed from.

#include <gmock/gmock.h>

#include <cctype>
#include <random>
#include <sstream>

#include "mapping/ProfileText.h"
#include "mapping/RuleTable.h"
#include "tests/cli/ProgramFixture.h"

namespace wxbrg::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const std::string examples = WXBRG_EXAMPLES;

class SiteProfiles : public ProgramTest {
  protected:
    static std::string Profile(const std::string& name) { return examples + "/profiles/" + name + ".prf"; }
    /// The definition file of an example model, by the rules that the arguments name.
    std::string Exported(const std::string& model, const std::vector<std::string>& rules) const {
        std::vector<std::string> arguments{
            "export", examples + "/profiles/house-style.aml", "--model", model, "-o", "out.wpx"};
        arguments.insert(arguments.end(), rules.begin(), rules.end());
        EXPECT_EQ(Run(arguments).status, 0);
        return folder.Read("out.wpx");
    }
    std::string BuiltIn(const std::string& model) const { return Exported(model, {"--default-rules"}); }
    std::string With(const std::string& name, const std::string& model) const {
        return Exported(model, {"--profile", Profile(name)});
    }
    std::string Diff(const std::string& name) const { return Run({"profile", "diff", Profile(name)}).out; }
};

TEST_F(SiteProfiles, AreClean) {
    for (const std::string name : {"functions", "roles", "descriptions"}) {
        const ProcessResult result = Run({"profile", "check", Profile(name)});
        EXPECT_EQ(result.status, 0) << result.out;
    }
}

TEST_F(SiteProfiles, FunctionsOfAnotherType) {
    EXPECT_THAT(Diff("functions"),
                AllOf(HasSubstr("ACTIVITY: changed\n  - OBJECT_TYPE = 22\n  + OBJECT_TYPE = 153\n"),
                      HasSubstr("Rules: 18 changed, 0 missing, 0 added, 67 the same\n")));
    EXPECT_THAT(BuiltIn("services"), Not(HasSubstr("PROGRAM_ACTIVITY")));
    EXPECT_THAT(With("functions", "services"),
                AllOf(HasSubstr("PROGRAM_ACTIVITY 'Record complaint'"),
                      HasSubstr("DONE_BY MEMBER OF ROLE 'Complaint clerk'"),
                      HasSubstr("FROM 'Record complaint' TO 'Answer complaint'")));
}

TEST_F(SiteProfiles, RolesOnAnotherConnection) {
    EXPECT_THAT(
        Diff("roles"),
        HasSubstr(
            "ACTIVITY_MEMBER_OF_ROLE: changed\n"
            "  - SOURCE_OBJECT_TYPE = 22 TARGET_OBJECT_TYPE = 78 CONNECTION_KIND = 2 CONNECTION_TYPE = 218\n"
            "  + SOURCE_OBJECT_TYPE = 22 TARGET_OBJECT_TYPE = 78 CONNECTION_KIND = 2 CONNECTION_TYPE = 65\n"
            "Rules: 1 changed, "));
    EXPECT_THAT(BuiltIn("roles"), Not(HasSubstr("DONE_BY")));
    EXPECT_THAT(With("roles", "roles"), HasSubstr("DONE_BY MEMBER OF ROLE 'Complaint clerk'"));
}

TEST_F(SiteProfiles, DescriptionsInAnotherAttribute) {
    EXPECT_THAT(Diff("descriptions"), HasSubstr("ACTIVITY_DESCRIPTION: changed\n"
                                                "  - ATTRIBUTE_TYPE = 9\n"
                                                "  + ATTRIBUTE_TYPE = 986\n"
                                                "Rules: 1 changed, "));
    const std::string description = "DESCRIPTION 'Tells the customer what will be done.'";
    EXPECT_THAT(BuiltIn("descriptions"), Not(HasSubstr(description)));
    EXPECT_THAT(With("descriptions", "descriptions"), HasSubstr(description));
}

/// A definition file without the lines that tell the date and where the rules come from.
std::string Masked(const std::string& text) {
    std::string rest;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with("*  WPX definitions generated") &&
            !line.starts_with("*  Default mapping rules") && !line.starts_with("*  Mapping rules taken"))
            rest += line + "\n";
    return rest;
}

/// A built-in table with a number changed, or an entry taken out, in some of its rules.
RuleTable Perturbed(std::mt19937& engine) {
    RuleTable rules = BuiltInRules();
    const auto oneIn = [&](std::uint32_t count) {
        return engine() % count == 0;
    };
    for (clsMappingRule& rule : rules) {
        if (rule.Name == "PROCESS" || !oneIn(6)) continue;
        if (!rule.AttributeMapping.empty()) rule.AttributeMapping = oneIn(2) ? "-1" : "8";
        Collection<clsConnectionMapping> steps;
        for (clsConnectionMapping step : rule.ColConnectionMapping) {
            if (oneIn(3)) step.CnxTypeNum = oneIn(2) ? 65 : 43;
            if (steps.IsEmpty() || !oneIn(4)) steps.Add(step);
        }
        rule.ColConnectionMapping = steps;
    }
    return rules;
}

class PrintedProfiles : public ProgramTest, public testing::WithParamInterface<const char*> {
  protected:
    /// What an export of all models by the named rules leaves: exit status, boxes, definition file and log.
    std::string Export(const std::vector<std::string>& rules) const {
        std::vector<std::string> arguments{"export", examples + "/" + GetParam(), "-o", "out.wpx", "--all",
                                           "--quiet"};
        arguments.insert(arguments.end(), rules.begin(), rules.end());
        const ProcessResult result = Run(arguments);
        return std::to_string(result.status) + "\n" + result.err + Masked(folder.Read("out.wpx")) +
               folder.Read("out.log");
    }
};

TEST_P(PrintedProfiles, ExportAsTheBuiltInRules) {
    folder.Write("printed.prf", Run({"profile", "print", "--default"}).out);
    EXPECT_EQ(Export({"--profile", "printed.prf"}), Export({"--default-rules"}));
}

TEST_P(PrintedProfiles, ExportAsTheProfilesThatTheyWerePrintedFrom) {
    std::mt19937 engine(31);
    for (int i = 0; i < 4; ++i) {
        // Written by another hand: in lower case, on lines of their own, and with tabs.
        std::string text = ProfileText(Perturbed(engine));
        for (char& letter : text) letter = letter == ' ' ? '\t' : static_cast<char>(std::tolower(letter));
        folder.Write("ours.prf", text);
        const ProcessResult printed = Run({"profile", "print", "--profile", "ours.prf"});
        ASSERT_EQ(printed.status, 0) << printed.err;
        folder.Write("printed.prf", printed.out);
        EXPECT_EQ(Export({"--profile", "printed.prf"}), Export({"--profile", "ours.prf"})) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, PrintedProfiles,
                         testing::Values("order-processing.aml", "order-approval.aml", "claims.aml",
                                         "purchase.aml", "data-heavy.aml", "rechnung.aml"));

}  // namespace
}  // namespace wxbrg::cli
