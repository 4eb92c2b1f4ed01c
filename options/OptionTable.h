#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/OptionsFormView.h"
#include "run/modGlobals.h"

namespace wxbrg {

/// The program's key in the profile store.
inline constexpr std::string_view programKey =
    R"(Software\Quenby\Tarnlight Workflow Aris Bridge\CurrentVersion\)";
/// The key under which the ARIS tool integration keeps what it provides; only ever read.
inline constexpr std::string_view toolIntegrationKey =
    R"(Software\IDS Scheer\Aris\5.0\ToolIntegration\quenby)";

/// What is stored for an option.
enum class OptionKind {
    flag,    ///< the number -1 (on) or 0 (off)
    number,  ///< a number from 0 on
    text,
};

/// The control of the options form that stands for an option. A check box is checked where its flag is on. A
/// flag may also be the one of two option buttons in a frame that is selected where it is on; the other
/// button is a row of the form. The text field holds a number.
struct OptionControl {
    std::string_view name;  ///< empty: the option is not on the form
    FormControlKind kind;
    std::int32_t page;               ///< the tab it stands on, from 0
    std::int32_t place;              ///< on the page, from 1 at the top; each only once
    std::string_view frame;          ///< the frame it stands in; empty: in none
    std::int32_t captionNumber;      ///< of the language library; 0: it has no caption
    std::string_view designCaption;  ///< what it says until the language library is asked
    std::int32_t helpNumber;         ///< page of the help
};

/// One stored option, with all that is to be known of it. Load, save, the form, the command line tool and the
/// documents go by these rows. Texts are no export options: they stand behind them and on no form.
struct ExportOption {
    std::string_view valueName;
    OptionKind kind;
    std::int32_t byDefault;          ///< of flags and numbers; counts where nothing is stored
    std::string_view textByDefault;  ///< of texts
    std::int32_t savePosition;       ///< from 1: options are saved in another order than loaded; 0 for texts
    bool GlobalBlock::*flag;         ///< null for all but flags
    OptionControl control;
    std::string_view english;  ///< a sentence that says what it does; the first one of its page of the help
    std::string_view german;

    constexpr bool IsNumber() const { return kind == OptionKind::number; }
    /// Whether a number may be stored by the command line tool. The run goes by whatever it finds stored.
    constexpr bool Takes(std::int32_t number) const {
        if (kind == OptionKind::flag) return number == -1 || number == 0;
        return kind == OptionKind::number && number >= 0;
    }
};

inline constexpr std::string_view languageValue = "Language";
inline constexpr std::string_view defaultLanguage = "ENU";
inline constexpr std::string_view repositoryPathValue = "RepositoryPath";

/// All stored options, the export options first and in the order of loading.
// clang-format off
inline constexpr std::array storedOptions{
    ExportOption{"ConvertNames", OptionKind::flag, -1, {}, 1, &GlobalBlock::gOptConvertNames,
                 {"cbConvertARISNames", FormControlKind::checkBox, 0, 1, {},
                  50024, "Convert ARIS names into WPX compatible names", 50018},
                 "Makes names, texts and data types legal in the definition file: signs that are not allowed "
                 "become underscores, long names are cut.",
                 "Macht Namen, Texte und Datentypen für die Definitionsdatei zulässig: Unerlaubte Zeichen "
                 "werden zu Unterstrichen, lange Namen werden gekürzt."},
    ExportOption{"RemoveLineBreaks", OptionKind::flag, -1, {}, 2, &GlobalBlock::gOptRemoveLineBreaks,
                 {"cbRemoveLineBreaks", FormControlKind::checkBox, 0, 2, {},
                  50023, "Remove any line breaks from ARIS names", 50017},
                 "Writes a blank for each line break in the texts of your ARIS attributes, so that every text "
                 "stands on one line of the definition file.",
                 "Schreibt in den Texten Ihrer ARIS-Attribute für jeden Zeilenumbruch ein Leerzeichen, sodass "
                 "jeder Text in einer Zeile der Definitionsdatei steht."},
    ExportOption{"FirstSuffixNumber", OptionKind::number, 0, {}, 3, nullptr,
                 {"efNumSuffix", FormControlKind::textField, 0, 4, {},
                  0, {}, 50011},
                 "The number that the first generated data structure gets at the end of its name.",
                 "Die Nummer, mit der der Name der ersten erzeugten Datenstruktur endet."},
    ExportOption{"UseDataConBendPoints", OptionKind::flag, -1, {}, 5, &GlobalBlock::gOptUseDataConBendPoints,
                 {"cbDrawDataConWithBendPoints", FormControlKind::checkBox, 1, 2, {},
                  50021, "Insert bendpoints into  WPX data connectors", 50015},
                 "Draws a data connector not straight from activity to activity but bent towards the place "
                 "where its data object stands in ARIS.",
                 "Zeichnet eine Datenflussverbindung nicht gerade von Aktivität zu Aktivität, sondern mit "
                 "einem Knick dorthin, wo in ARIS das Datenobjekt steht."},
    ExportOption{"UseCtrlConBendPoints", OptionKind::flag, -1, {}, 4, &GlobalBlock::gOptUseCtrlConBendPoints,
                 {"cbDrawControlConWithBendPoints", FormControlKind::checkBox, 1, 1, {},
                  50022, "Insert bendpoints into WPX control connectors", 50016},
                 "Draws a control connector not straight from activity to activity but bent towards the place "
                 "where the events and rules between them stand in ARIS.",
                 "Zeichnet eine Kontrollflussverbindung nicht gerade von Aktivität zu Aktivität, sondern mit "
                 "einem Knick dorthin, wo in ARIS die Ereignisse und Operatoren dazwischen stehen."},
    ExportOption{"UseDescriptionAttr", OptionKind::flag, -1, {}, 6, &GlobalBlock::gOptUseDescriptionAttr,
                 {"cbWriteDescription", FormControlKind::checkBox, 2, 1, {},
                  50020, "Include description attributes", 50014},
                 "Writes the attribute \"Description/Definition\" of your ARIS objects as DESCRIPTION into the "
                 "definition file.",
                 "Schreibt das Attribut „Beschreibung/Definition“ Ihrer ARIS-Objekte als DESCRIPTION in die "
                 "Definitionsdatei."},
    ExportOption{"UseDocumentationAttr", OptionKind::flag, -1, {}, 7, &GlobalBlock::gOptUseDocumentationAttr,
                 {"cbWriteDocumentation", FormControlKind::checkBox, 2, 2, {},
                  50019, "Include documentation attributes", 50013},
                 "Writes the attribute \"Remark/Example\" of your ARIS objects as DOCUMENTATION into the "
                 "definition file.",
                 "Schreibt das Attribut „Bemerkung/Beispiel“ Ihrer ARIS-Objekte als DOCUMENTATION in die "
                 "Definitionsdatei."},
    ExportOption{"UseOtherSettings", OptionKind::flag, 0, {}, 8, &GlobalBlock::gOptUseOtherSettings,
                 {"cbWriteOtherSettings", FormControlKind::checkBox, 2, 3, {},
                  50009, "Include other settings", 50003},
                 "Takes along settings that you have typed into user attributes of ARIS because ARIS has no "
                 "attribute of its own for them, such as the start mode of an activity or the size of an "
                 "array.",
                 "Übernimmt Einstellungen, die Sie in Benutzerattribute von ARIS eingetragen haben, weil ARIS "
                 "kein eigenes Attribut dafür hat, zum Beispiel den Startmodus einer Aktivität oder die Größe "
                 "eines Feldes."},
    ExportOption{"DynamicStaffAssignment", OptionKind::flag, -1, {}, 9, &GlobalBlock::gOptDynamicStaffAssignment,
                 {"cbDynamicStaffAssignment", FormControlKind::checkBox, 3, 1, {},
                  50018, "Prefer dynamic staff assignment", 50012},
                 "Assigns an activity to roles and organizations where the function is connected with any, "
                 "and to persons only where it is not.",
                 "Ordnet eine Aktivität Rollen und Organisationen zu, wenn die Funktion mit welchen verbunden "
                 "ist, und nur sonst Personen."},
    ExportOption{"FindDataFlowLoops", OptionKind::flag, -1, {}, 10, &GlobalBlock::gOptFindDataFlowLoops,
                 {"cbDataFlowLoops", FormControlKind::checkBox, 4, 2, {},
                  50017, "Find incorrect data flow loops", 50010},
                 "Reports in the log where data is handed round in a circle over several activities, which "
                 "Tarnlight Workflow does not allow.",
                 "Meldet im Protokoll, wo Daten über mehrere Aktivitäten im Kreis weitergereicht werden, was "
                 "Tarnlight Workflow nicht zulässt."},
    ExportOption{"FindControlFlowLoops", OptionKind::flag, -1, {}, 11, &GlobalBlock::gOptFindControlFlowLoops,
                 {"cbControlFlowLoops", FormControlKind::checkBox, 4, 1, {},
                  50016, "Find incorrect control flow loops", 50009},
                 "Reports in the log where control flow runs in a circle over several activities, which "
                 "Tarnlight Workflow does not allow.",
                 "Meldet im Protokoll, wo der Kontrollfluss über mehrere Aktivitäten im Kreis läuft, was "
                 "Tarnlight Workflow nicht zulässt."},
    ExportOption{"StartConditions", OptionKind::flag, 0, {}, 12, &GlobalBlock::gOptStartConditions,
                 {"cbStartConditions", FormControlKind::checkBox, 5, 2, {},
                  50015, "Start conditions", 50008},
                 "Takes from user attribute 1 of a function whether its activity waits for all incoming "
                 "connectors or for at least one.",
                 "Entnimmt dem Benutzerattribut 1 einer Funktion, ob ihre Aktivität auf alle eingehenden "
                 "Verbindungen wartet oder auf wenigstens eine."},
    ExportOption{"ExitConditions", OptionKind::flag, 0, {}, 13, &GlobalBlock::gOptExitConditions,
                 {"cbExitConditions", FormControlKind::checkBox, 5, 3, {},
                  50014, "Exit conditions", 50007},
                 "Takes the condition under which an activity is finished from user attribute 2 of the "
                 "function.",
                 "Entnimmt die Bedingung, unter der eine Aktivität beendet ist, dem Benutzerattribut 2 der "
                 "Funktion."},
    ExportOption{"TransitionConditions", OptionKind::flag, 0, {}, 14, &GlobalBlock::gOptTransitionConditions,
                 {"cbTransitionConditions", FormControlKind::checkBox, 5, 4, {},
                  50013, "Transition conditions", 50006},
                 "Takes the condition of a control connector from user attribute 1 of the events that lie on "
                 "its way.",
                 "Entnimmt die Bedingung einer Kontrollflussverbindung dem Benutzerattribut 1 der Ereignisse, "
                 "die auf ihrem Weg liegen."},
    ExportOption{"DataTypeFromAttribute", OptionKind::flag, -1, {}, 15, &GlobalBlock::gOptDataTypeFromAttribute,
                 {"rbARISAttrDataType", FormControlKind::optionButton, 6, 3, "frDataTypes",
                  50012, "ARIS attribute 'data type'", 50005},
                 "Takes the type of a data member from the attribute \"data type\" of the data attribute first, and "
                 "else from the domain that it is connected with; without this option it is the other way round.",
                 "Entnimmt den Typ eines Datenelements zuerst dem Attribut „Datentyp“ des Datenattributs und "
                 "sonst der Domäne, mit der dieses verbunden ist; ohne diese Option ist es umgekehrt."},
    ExportOption{languageValue, OptionKind::text, 0, defaultLanguage, 0, nullptr, {},
                 "The language of messages, notes and help: ENU or DEU.",
                 "Die Sprache von Meldungen, Protokoll und Hilfe: ENU oder DEU."},
    ExportOption{repositoryPathValue, OptionKind::text, 0, {}, 0, nullptr, {},
                 "The folder in which the databases of an interactive run lie, files NAME.aml for /DB=NAME; where it is "
                 "empty, the working directory.",
                 "Der Ordner, in dem die Datenbanken eines interaktiven Laufs liegen, für /DB=NAME die Datei NAME.aml; wo "
                 "er leer ist, das Arbeitsverzeichnis."},
};
// clang-format on

inline constexpr auto isExportOption = [](const ExportOption& option) {
    return option.kind != OptionKind::text;
};

/// The options of the form, in the order of loading.
inline constexpr std::span exportOptions =
    std::span(storedOptions)
        .first<static_cast<std::size_t>(
            std::count_if(storedOptions.begin(), storedOptions.end(), isExportOption))>();

namespace stored_options {

constexpr bool IsWellFormed(const ExportOption& option) {
    const bool onForm = !option.control.name.empty();
    const bool flag = option.kind == OptionKind::flag;
    const bool fits = option.kind == OptionKind::text
                          ? option.byDefault == 0
                          : option.Takes(option.byDefault) && option.textByDefault.empty();
    const bool field = onForm && option.control.kind == FormControlKind::textField;
    return fits && onForm == isExportOption(option) && flag == (option.flag != nullptr) &&
           field == option.IsNumber() && option.english.ends_with('.') && option.german.ends_with('.');
}

constexpr bool HoldTheirOwn(std::span<const ExportOption> options) {
    return std::all_of(options.begin(), options.end(), [options](const ExportOption& option) {
        const auto times = [&](auto field) {
            return std::count_if(options.begin(), options.end(), [&](const ExportOption& other) {
                return other.*field == option.*field;
            });
        };
        return times(&ExportOption::flag) == 1 && times(&ExportOption::savePosition) == 1 &&
               option.savePosition >= 1 && option.savePosition <= static_cast<std::int32_t>(options.size());
    });
}

constexpr bool NamesAreUnique() {
    return std::all_of(storedOptions.begin(), storedOptions.end(), [](const ExportOption& option) {
        return std::count_if(storedOptions.begin(), storedOptions.end(), [&](const ExportOption& other) {
                   return other.valueName == option.valueName;
               }) == 1;
    });
}

static_assert(std::all_of(storedOptions.begin(), storedOptions.end(), IsWellFormed));
static_assert(std::all_of(exportOptions.begin(), exportOptions.end(), isExportOption));
static_assert(HoldTheirOwn(exportOptions));
static_assert(NamesAreUnique());

}  // namespace stored_options

}  // namespace wxbrg
