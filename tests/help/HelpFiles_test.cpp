// The help files as they ship: a page for each control, in both languages, and no link that leads nowhere.

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>

#include "options/FormControls.h"
#include "options/modHelp.h"
#include "platform/HelpBook.h"
#include "platform/posix/DlLanguageLibraries.h"
#include "platform/terminal/lines/FormCaption.h"
#include "support/Text.h"
#include "tests/TemporaryFolder.h"
#include "tests/help/HelpExamples.h"

namespace wxbrg {
namespace {

/// What a page says first, as one line.
std::string FirstParagraph(const HelpPage& page) {
    std::string paragraph;
    std::string_view rest = page.text;
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        const bool between = line.empty() || line.starts_with('#');
        if (between && !paragraph.empty()) break;
        if (between) continue;
        if (!paragraph.empty()) paragraph += ' ';
        paragraph += line;
    }
    return paragraph;
}

using Numbers = std::set<std::int32_t>;

/// What the test knows of a language of the help.
struct HelpLanguage {
    std::string tag;
    std::string on;   ///< how a page says that an option is on by default
    std::string off;  ///< or off
    std::string_view ExportOption::*description;
};

const HelpLanguage languages[] = {
    {"ENU", "Default: on.", "Default: off.", &ExportOption::english},
    {"DEU", "Voreinstellung: ein.", "Voreinstellung: aus.", &ExportOption::german}};

class HelpFile : public testing::TestWithParam<HelpLanguage> {
  protected:
    HelpFile()
        : text_(
              ReadBytes(std::filesystem::path(WXBRG_PROGRAM_FOLDER) / ("wxbrg" + GetParam().tag + ".hlp"))) {}

    std::string Caption(std::int32_t number) {
        const auto library =
            DlLanguageLibraries(WXBRG_PROGRAM_FOLDER).Load("wxbrg" + GetParam().tag + ".dll");
        if (!library) throw std::runtime_error("no language library");
        return PlainCaption(library->LoadString(static_cast<std::uint32_t>(number), 4096));
    }

    const HelpPage& Page(std::int32_t number) const {
        const HelpPage* page = book_.Page(number);
        if (page == nullptr) throw std::runtime_error("no page " + std::to_string(number));
        return *page;
    }

    std::string text_;
    HelpBook book_{text_};
};

/// The controls that stand for an option, each with the option's name.
std::map<const FormControl*, std::string_view> OptionControls() {
    std::map<const FormControl*, std::string_view> options;
    for (const FormControl& control : formControls) {
        if (!control.option.empty()) options[&control] = control.option;
        if (control.kind != FormControlKind::optionButton) continue;
        for (const FormControl& other : formControls)
            if (other.frame == control.frame && !other.option.empty()) options[&control] = other.option;
    }
    return options;
}

Numbers HelpNumbers() {
    Numbers numbers{formHelpNumber, outputFileHelpNumber};
    for (const FormControl& control : formControls)
        if (control.helpNumber != 0) numbers.insert(control.helpNumber);
    return numbers;
}

Numbers LinksOf(const HelpPage& page) {
    static const std::regex link(R"(\]\(#([0-9]+)\))");
    Numbers links;
    for (std::sregex_iterator found(page.text.begin(), page.text.end(), link), end; found != end; ++found)
        links.insert(std::stoi((*found)[1]));
    return links;
}

TEST_P(HelpFile, HasAPageForEachHelpNumberOfTheFormAndTheFileDialogAndNoOther) {
    Numbers pages;
    for (const HelpPage& page : book_.Pages()) EXPECT_TRUE(pages.insert(page.number).second) << page.number;
    EXPECT_THAT(pages, testing::ContainerEq(HelpNumbers()));
}

TEST_P(HelpFile, IsUtf8WithoutTabs) {
    EXPECT_TRUE(IsUtf8(text_));
    EXPECT_EQ(text_.find('\t'), std::string::npos);
}

TEST_P(HelpFile, TitlesAreTheCaptionsOfTheControls) {
    EXPECT_EQ(Page(formHelpNumber).title, Caption(formCaptionNumber));
    for (const FormControl& control : formControls) {
        if (control.helpNumber == 0 || control.captionNumber == 0 || control.kind == FormControlKind::tab)
            continue;
        EXPECT_EQ(Page(control.helpNumber).title, Caption(control.captionNumber)) << control.name;
    }
    for (const HelpPage& page : book_.Pages()) EXPECT_FALSE(page.title.empty()) << page.number;
}

TEST_P(HelpFile, LinksLeadToPages) {
    for (const HelpPage& page : book_.Pages()) {
        const Numbers links = LinksOf(page);
        EXPECT_FALSE(links.empty()) << page.number;
        for (const std::int32_t link : links) {
            EXPECT_NE(book_.Page(link), nullptr) << page.number << " to " << link;
            EXPECT_NE(link, page.number);
        }
    }
}

TEST_P(HelpFile, TheFirstPageLeadsToEachOption) {
    const Numbers links = LinksOf(Page(formHelpNumber));
    for (const auto& [control, option] : OptionControls())
        EXPECT_TRUE(links.contains(control->helpNumber)) << option;
}

TEST_P(HelpFile, FirstParagraphsAreShortAndPlain) {
    for (const HelpPage& page : book_.Pages()) {
        const std::string paragraph = FirstParagraph(page);
        EXPECT_THAT(CharacterCount(paragraph), testing::AllOf(testing::Ge(40U), testing::Le(340U)))
            << page.number;
        EXPECT_THAT(paragraph, testing::MatchesRegex(R"(^[^][`*#]*[.]$)")) << page.number;
    }
}

TEST_P(HelpFile, PagesOfOptionsBeginWithTheDescriptionOfTheirOption) {
    for (const ExportOption& option : exportOptions) {
        const std::string_view description = option.*GetParam().description;
        EXPECT_THAT(FirstParagraph(Page(option.control.helpNumber)) + ' ',
                    testing::StartsWith(std::string(description) + ' '))
            << option.valueName;
    }
}

TEST_P(HelpFile, PagesOfOptionsTellNameAndDefault) {
    for (const auto& [control, option] : OptionControls()) {
        const std::string& page = Page(control->helpNumber).text;
        EXPECT_THAT(page, testing::HasSubstr('`' + std::string(option) + '`'));
        if (control->kind == FormControlKind::checkBox) {
            EXPECT_THAT(page, testing::HasSubstr(control->byDefault != 0 ? GetParam().on : GetParam().off))
                << option;
        }
    }
}

TEST_P(HelpFile, PagesOfOptionsShowTheDefaultAndSomethingElse) {
    const std::vector<HelpExample> examples = ExamplesOf(text_);
    for (const auto& [control, option] : OptionControls()) {
        std::map<std::string, std::vector<std::string>> shown;
        for (const HelpExample& example : examples)
            if (example.page == control->helpNumber)
                shown[example.setting].insert(shown[example.setting].end(), example.lines.begin(),
                                              example.lines.end());
        ASSERT_EQ(shown.size(), 2U) << option;
        const auto& [first, second] = std::pair(*shown.begin(), *shown.rbegin());
        for (const auto& [setting, lines] : shown)
            EXPECT_TRUE(setting.starts_with(std::string(option) + '=')) << setting;
        EXPECT_NE(first.second, second.second) << option;
        if (!control->option.empty()) {
            EXPECT_TRUE(shown.contains(std::string(option) + '=' + std::to_string(control->byDefault)))
                << option;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, HelpFile, testing::ValuesIn(languages), [](const auto& language) {
    return language.param.tag;
});

TEST(HelpFiles, ShowTheSameExamplesInAllLanguages) {
    const auto examples = [](const HelpLanguage& language) {
        std::vector<std::string> reported;
        const std::filesystem::path folder = WXBRG_PROGRAM_FOLDER;
        for (const HelpExample& example : ExamplesOf(ReadBytes(folder / ("wxbrg" + language.tag + ".hlp"))))
            reported.push_back(std::to_string(example.page) + ' ' + example.repository + ' ' +
                               example.setting);
        return reported;
    };
    EXPECT_THAT(examples(languages[1]), testing::ContainerEq(examples(languages[0])));
}

}  // namespace
}  // namespace wxbrg
