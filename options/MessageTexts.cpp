#include "options/MessageTexts.h"

#include "options/OptionTable.h"
#include "options/StoredValues.h"
#include "run/clsExceptionHandler.h"
#include "run/clsIOHandler.h"
#include "run/modGlobals.h"
#include "support/Text.h"

namespace wxbrg {

namespace {

/// What the buffer for a text holds, its terminating zero included.
constexpr std::size_t textCapacity = 4096;

/// The name of a language's files without its ending.
std::string StemOf(std::string_view tag) {
    return std::string("wxbrg").append(tag);
}

std::string TagOf(const ProfileValue& stored) {
    std::string tag = TextOf(stored);
    return tag.empty() ? std::string(defaultLanguage) : tag;
}

}  // namespace

std::string StoredLanguage(const ProfileStore& store) {
    return TagOf(GetProfileValue(store, programKey, languageValue));
}

std::string LanguageLibraryName(std::string_view tag) {
    return StemOf(tag) + ".dll";
}

bool LoadLocalizedResources() {
    return Procedure("modUtilities.LoadLocalizedResources", [&](Frame&) {
        const std::string tag = TagOf(GetProfileValue(programKey, languageValue));
        const std::string fileName = LanguageLibraryName(tag);
        gBlock.gResourceLibrary = gBlock.gPlatform->languageLibraries.Load(fileName);
        const bool loaded = gBlock.gResourceLibrary != nullptr;
        if (!loaded)
            clsExceptionHandler::ShowMessageBox(
                "The Language Resource file '" + fileName + "' could not be found.",
                BoxStyle::ok + Severity::critical + BoxStyle::foreground);
        gBlock.gHelpFile = StemOf(tag) + ".hlp";
        return loaded;
    });
}

std::string GetStringFromResourceFile(std::int32_t ID) {
    if (gBlock.gResourceLibrary == nullptr) return {};
    std::string text = gBlock.gResourceLibrary->LoadString(static_cast<std::uint32_t>(ID), textCapacity);
    if (text.empty()) text = "Error :\r\nThe Resource ID '" + std::to_string(ID) + "' was not found";
    return text;
}

std::string GetNLSString(std::int32_t ID, std::string_view S1, std::string_view S2, std::string_view S3,
                         std::string_view S4) {
    std::string text = GetStringFromResourceFile(ID);
    if (S1.empty()) return text;
    text = Replace(text, "%1$s", S1);
    if (S2.empty()) return text;
    text = Replace(text, "%2$s", S2);
    if (S3.empty()) return text;
    text = Replace(text, "%3$s", S3);
    if (S4.empty()) return text;
    return Replace(text, "%4$s", S4);
}

std::string Get_NLS_String_Message(std::int32_t ID) {
    return GetNLSString(ID);
}

}  // namespace wxbrg
