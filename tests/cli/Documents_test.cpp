// The manual page, the completion and the README tell exactly the subcommands and options that there are.

#include <gmock/gmock.h>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <span>
#include <sstream>

#include "cli/OptionSettings.h"
#include "cli/ToolParser.h"
#include "tests/cli/Process.h"

namespace wxbrg::cli {
namespace {

using testing::ContainerEq;
using testing::HasSubstr;
using testing::UnorderedElementsAreArray;

using Names = std::set<std::string>;

const std::string packaging = WXBRG_PACKAGING;

std::string ReadAll(const std::string& file) {
    std::ifstream stream(file);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// The options of a part of the grammar with their hyphens, without those in `without`.
Names OptionsOf(const CLI::App& app, const Names& without = {}) {
    Names names;
    for (const CLI::Option* option : app.get_options()) {
        for (const std::string& name : option->get_lnames()) names.insert("--" + name);
        for (const std::string& name : option->get_snames()) names.insert("-" + name);
    }
    for (const std::string& name : without) names.erase(name);
    return names;
}

std::vector<const CLI::App*> SubcommandsOf(const CLI::App& app) {
    return app.get_subcommands([](const CLI::App*) {
        return true;
    });
}

Names NamesOf(const CLI::App& app) {
    Names names;
    for (const CLI::App* subcommand : SubcommandsOf(app)) names.insert(subcommand->get_name());
    return names;
}

/// Every part of the grammar under the words that lead to it, such as "options set"; the root under "".
void Walk(const CLI::App& app, const std::string& path, std::map<std::string, const CLI::App*>& found) {
    found[path] = &app;
    for (const CLI::App* subcommand : SubcommandsOf(app))
        Walk(*subcommand, path.empty() ? subcommand->get_name() : path + " " + subcommand->get_name(), found);
}

class Documents : public testing::Test {
  protected:
    Documents() { Walk(*grammar, "", parts); }

    ToolArguments arguments;
    std::unique_ptr<CLI::App> grammar = MakeGrammar(arguments);
    std::map<std::string, const CLI::App*> parts;
};

/// A section of the manual page on a subcommand.
struct ManualSection {
    std::string heading;
    Names options;  ///< those that are explained, a tagged paragraph each
};

/// The sections by the words that lead to the subcommand; the options of the program itself under "".
std::map<std::string, ManualSection> ReadManual(const std::set<std::string>& paths) {
    std::istringstream page(std::regex_replace(ReadAll(packaging + "/wxbrg.1"), std::regex(R"(\\-)"), "-"));
    std::map<std::string, ManualSection> sections;
    ManualSection* current = nullptr;
    bool tag = false;
    for (std::string line; std::getline(page, line); tag = line == ".TP") {
        if (line.starts_with(".SH ")) current = line == ".SH OPTIONS" ? &sections[""] : nullptr;
        if (line.starts_with(".SS ")) {
            const std::string heading = std::regex_replace(line.substr(4), std::regex(R"([\[\]])"), "");
            std::string path = heading.substr(0, heading.find(' '));
            const std::string two = heading.substr(0, heading.find(' ', path.size() + 1));
            if (paths.contains(two)) path = two;
            current = &sections[path];
            current->heading = heading;
        }
        if (!tag || current == nullptr) continue;
        const std::regex option(R"(--?[a-z][a-z-]*)");
        for (std::sregex_iterator found(line.begin(), line.end(), option), end; found != end; ++found)
            current->options.insert(found->str());
    }
    return sections;
}

TEST_F(Documents, ManualPageTellsTheSubcommandsAndOptionsThatThereAre) {
    Names paths;
    for (const auto& [path, part] : parts) paths.insert(path);
    // The list of options is told under the subcommand's own name.
    std::map<std::string, ManualSection> sections = ReadManual(paths);
    ASSERT_TRUE(sections.contains("options list"));
    sections["options"] = sections["options list"];
    Names told;
    for (const auto& [path, section] : sections) told.insert(path);
    EXPECT_THAT(told, ContainerEq(paths));
    for (const auto& [path, part] : parts) {
        const Names general = path.empty() ? Names() : Names{"-h", "--help"};
        EXPECT_THAT(sections[path].options, ContainerEq(OptionsOf(*part, general)))
            << "section \"" << path << '"';
    }
}

TEST_F(Documents, ManualPageNamesTheArgumentsOfEachSubcommand) {
    Names paths;
    for (const auto& [path, part] : parts) paths.insert(path);
    std::map<std::string, ManualSection> sections = ReadManual(paths);
    for (const auto& [path, part] : parts)
        for (const CLI::Option* option : part->get_options())
            if (option->get_positional()) {
                EXPECT_THAT(sections[path].heading, HasSubstr(" " + option->get_name())) << path;
            }
}

/// A part of a document that is written out of the table of stored options: all between two lines.
struct OptionPart {
    const char* file;
    const char* above;  ///< the line above it
    const char* below;  ///< what begins the line below it
    std::string (*write)();
};

/// The default as it is typed; empty for none.
std::string DefaultOf(const ExportOption& option) {
    return option.kind == OptionKind::text ? std::string(option.textByDefault)
                                           : std::to_string(option.byDefault);
}

std::string RowsOfReadme() {
    std::string rows;
    for (const ExportOption& option : storedOptions) {
        const std::string byDefault = DefaultOf(option);
        rows += "| `" + std::string(option.valueName) + "` |" + (byDefault.empty() ? "" : " " + byDefault) +
                " | " + std::string(option.english) + " |\n";
    }
    return rows;
}

std::string ParagraphsOfManual() {
    std::string paragraphs;
    for (const ExportOption& option : storedOptions) {
        const std::string byDefault = std::regex_replace(DefaultOf(option), std::regex("-"), "\\-");
        const std::string name(option.valueName);
        paragraphs += ".TP\n";
        paragraphs += byDefault.empty() ? ".B " + name + '\n' : ".BR " + name + " \" (" + byDefault + ")\"\n";
        paragraphs += std::string(option.english) + '\n';
    }
    return paragraphs;
}

/// The names as the words of `echo`, in lines of at most 110 characters.
std::string WordsOfCompletion(std::span<const ExportOption> options) {
    std::string lines = "    echo '";
    std::size_t length = lines.size();
    for (const ExportOption& option : options) {
        const bool first = &option == &options.front();
        const bool fits = length + option.valueName.size() + 4 <= 110;
        if (!first) lines += fits ? " " : "' \\\n        '";
        length = fits ? length + option.valueName.size() + 1 : 9 + option.valueName.size();
        lines += option.valueName;
    }
    return lines + "'\n";
}

const OptionPart optionParts[] = {
    {"../README.md", "| Name | Default | Meaning |\n|---|---|---|\n", "\n", RowsOfReadme},
    {"wxbrg.1", ".\\\" The stored options, from their table.\n", ".SH ", ParagraphsOfManual},
    {"wxbrg.bash", "_wxbrg_option_names() {\n", "}\n",
     [] {
         return WordsOfCompletion(exportOptions);
     }},
    {"wxbrg.bash", "_wxbrg_text_names() {\n", "}\n", [] {
         return WordsOfCompletion(std::span(storedOptions).subspan(exportOptions.size()));
     }}};

TEST(OptionDocuments, AreAsTheTableOfOptionsHasThem) {
    for (const OptionPart& part : optionParts) {
        const std::string file = packaging + "/" + part.file;
        std::string text = ReadAll(file);
        const std::size_t above = text.find(part.above);
        ASSERT_NE(above, std::string::npos) << file << " lacks the line " << part.above;
        const std::size_t begin = above + std::string_view(part.above).size();
        const std::size_t end = text.find("\n" + std::string(part.below), begin - 1) + 1;
        const std::string written = text.substr(begin, end - begin);
        if (written == part.write()) continue;
        ADD_FAILURE() << file
                      << ": not as the table of options has it; to write it anew, run this test with "
                         "WXBRG_WRITE_DOCUMENTS=1\n"
                      << written << "---\n"
                      << part.write();
        if (std::getenv("WXBRG_WRITE_DOCUMENTS") != nullptr)
            std::ofstream(file) << text.replace(begin, end - begin, part.write());
    }
}

/// What bash offers behind the words, the last of which is the one to complete.
std::vector<std::string> Completions(const std::vector<std::string>& words) {
    std::vector<std::string> command{"bash",
                                     "--norc",
                                     "-c",
                                     "source \"$0\"\n"
                                     "COMP_WORDS=(\"$@\")\n"
                                     "COMP_CWORD=$(($# - 1))\n"
                                     "_wxbrg\n"
                                     "printf '%s\\n' \"${COMPREPLY[@]}\"\n",
                                     packaging + "/wxbrg.bash",
                                     "wxbrg"};
    command.insert(command.end(), words.begin(), words.end());
    const ProcessResult result = RunProcess(command);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    std::istringstream out(result.out);
    std::vector<std::string> lines;
    for (std::string line; std::getline(out, line);)
        if (!line.empty()) lines.push_back(line);
    return lines;
}

/// The words of a path such as "options set", and one more.
std::vector<std::string> Words(const std::string& path, const std::string& last) {
    std::istringstream stream(path);
    std::vector<std::string> words{std::istream_iterator<std::string>(stream), {}};
    words.push_back(last);
    return words;
}

TEST_F(Documents, CompletionOffersTheOptionsThatThereAre) {
    for (const auto& [path, part] : parts)
        EXPECT_THAT(Completions(Words(path, "-")), UnorderedElementsAreArray(OptionsOf(*part))) << path;
}

TEST_F(Documents, CompletionOffersTheSubcommandsThatThereAre) {
    for (const std::string path : {"", "profile", "options"}) {
        Names expected = OptionsOf(*parts.at(path));
        expected.merge(NamesOf(*parts.at(path)));
        EXPECT_THAT(Completions(Words(path, "")), UnorderedElementsAreArray(expected)) << path;
    }
}

TEST_F(Documents, CompletionOffersTheNamesOfOptions) {
    std::vector<std::string> settings;
    for (const ExportOption& option : exportOptions) settings.push_back(std::string(option.valueName) + "=");
    EXPECT_THAT(Completions({"export", "--set", ""}), UnorderedElementsAreArray(settings));
    for (const std::string action : {"get", "set", "reset"})
        EXPECT_THAT(Completions({"options", action, ""}), UnorderedElementsAreArray(StoredValueNames()));
}

TEST_F(Documents, CompletionKeepsToWhatIsTyped) {
    EXPECT_THAT(Completions({"ex"}), testing::ElementsAre("export"));
    EXPECT_THAT(Completions({"export", "--st"}), testing::ElementsAre("--strict"));
    EXPECT_THAT(Completions({"export", "--language", "D"}), testing::ElementsAre("DEU"));
}

TEST_F(Documents, CompletionOffersFilesWhereFilesAreDue) {
    EXPECT_THAT(Completions({"export", packaging + "/wxbrg.b"}), testing::IsEmpty());
    EXPECT_THAT(Completions({"export", "--types", packaging + "/wxbrg.b"}),
                testing::ElementsAre(packaging + "/wxbrg.bash"));
    const std::string profiles = WXBRG_EXAMPLES "/profiles/";
    for (std::vector<std::string> words : {std::vector<std::string>{"export", "--profile"},
                                           {"models", "--profile"},
                                           {"profile", "print", "--profile"},
                                           {"profile", "check"},
                                           {"profile", "diff", "a.prf"}}) {
        words.push_back(profiles);
        EXPECT_THAT(Completions(words),
                    testing::ElementsAre(profiles + "descriptions.prf", profiles + "functions.prf",
                                         profiles + "roles.prf"))
            << words[1];
    }
    EXPECT_THAT(Completions({"replay", packaging.substr(0, packaging.size() - 1)}),
                testing::ElementsAre(packaging));
}

}  // namespace
}  // namespace wxbrg::cli
