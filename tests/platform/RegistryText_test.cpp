#include "platform/posix/RegistryText.h"

#include <gtest/gtest.h>

#include "platform/posix/Utf16.h"

namespace wxbrg {
namespace {

constexpr std::string_view key = R"(HKEY_CURRENT_USER\Software\Example)";

/// A registry whose key holds these lines.
std::string WithLines(const std::string& lines) {
    return "REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\Example]\n" + lines;
}

RegistryText Parsed(const std::string& text) {
    return RegistryText::Parse(text).value();
}

/// The value "A" of a registry whose key holds these lines.
ProfileValue ValueIn(const std::string& lines) {
    return Parsed(WithLines(lines)).Get(key, "A");
}

/// The text after the value "A" was set.
std::string AfterSet(const std::string& text, const ProfileValue& value) {
    RegistryText registry = Parsed(text);
    EXPECT_TRUE(registry.Set(key, "A", value));
    EXPECT_EQ(registry.Get(key, "A"), value);
    EXPECT_EQ(Parsed(registry.Bytes()).Get(key, "A"), value);
    return registry.Bytes();
}

TEST(RegistryText, ReadsStrings) {
    EXPECT_EQ(ValueIn("\"A\"=\"text\"\n"), ProfileValue("text"));
    EXPECT_EQ(ValueIn("\"A\"=\"\"\n"), ProfileValue(""));
    EXPECT_EQ(ValueIn(R"("A"="C:\\new \"x\" ; = [y]")"), ProfileValue(R"(C:\new "x" ; = [y])"));
    EXPECT_EQ(ValueIn("\"A\"=\"Grüße 漢字\"\r\n"), ProfileValue("Grüße 漢字"));
}

TEST(RegistryText, ReadsNumbersAsTwosComplement) {
    EXPECT_EQ(ValueIn("\"A\"=dword:0000000a\n"), ProfileValue(10));
    EXPECT_EQ(ValueIn("\"A\"=dword:FFFFFFFF\n"), ProfileValue(-1));
    EXPECT_EQ(ValueIn("\"A\"=dword:80000000\n"), ProfileValue(std::int32_t{-2147483647 - 1}));
    EXPECT_EQ(ValueIn("\"A\"=DWORD:7\n"), ProfileValue(7));
}

TEST(RegistryText, ReadsStringsAndNumbersFromTheirBytes) {
    EXPECT_EQ(ValueIn("\"A\"=hex(1):61,0d,0a,c3,a4,00\n"), ProfileValue("a\r\nä"));
    EXPECT_EQ(ValueIn("\"A\"=hex(1):61,\\\n  62,\\\r\n  00\n"), ProfileValue("ab"));
    EXPECT_EQ(ValueIn("\"A\"=hex(4):fe,ff,ff,ff\n"), ProfileValue(-2));
}

TEST(RegistryText, AStringOfBytesLosesItsLastCharacterWhetherOrNotThatIsAZero) {
    EXPECT_EQ(ValueIn("\"A\"=hex(1):61,62,00\n"), ProfileValue("ab"));
    EXPECT_EQ(ValueIn("\"A\"=hex(1):61,62\n"), ProfileValue("a"));
    EXPECT_EQ(ValueIn("\"A\"=hex(1):61,c3,a4\n"), ProfileValue("a"));
    EXPECT_EQ(ValueIn("\"A\"=hex(1):61\n"), ProfileValue(""));
    EXPECT_EQ(ValueIn("\"A\"=hex(1):00\n"), ProfileValue(""));
    EXPECT_EQ(ValueIn("\"A\"=hex(1):\n"), ProfileValue(""));
    EXPECT_EQ(ValueIn("\"A\"=hex(1):61,00,62,00\n"), ProfileValue());
    EXPECT_EQ(ValueIn("\"A\"=hex(1):61,c3\n"), ProfileValue());
}

TEST(RegistryText, OtherTypesHoldNothing) {
    EXPECT_EQ(ValueIn("\"A\"=hex:61,62\n"), ProfileValue());
    EXPECT_EQ(ValueIn("\"A\"=hex(2):25,50,25,00\n"), ProfileValue());
    EXPECT_EQ(ValueIn("\"A\"=hex(4):01,02\n"), ProfileValue());
    EXPECT_EQ(ValueIn("\"A\"=-\n"), ProfileValue());
}

TEST(RegistryText, BlanksAndCommentsAroundAValueDoNotCount) {
    EXPECT_EQ(ValueIn("; before\n  \"A\" \t= dword:00000001  ; behind\n"), ProfileValue(1));
    EXPECT_EQ(ValueIn(";\"A\"=dword:00000001\n"), ProfileValue());
}

TEST(RegistryText, ReadsTheDefaultValueByItsEmptyName) {
    EXPECT_EQ(Parsed(WithLines("@=\"default\"\n\n; comment\ntorn\n")).Get(key, ""), ProfileValue("default"));
}

TEST(RegistryText, WhatCannotBeReadHoldsNothing) {
    for (const std::string line :
         {"\"A\"", "\"A\"=", "\"A\"=text", "\"A\"=\"open", "\"A\"=\"C:\\temp\"", "\"A\"=\"x\" y",
          "\"A\"=dword:", "\"A\"=dword:xyz", "\"A\"=dword:123456789", "\"A\"=dword:-1", "\"A=dword:00000001",
          "A=dword:00000001", "\"A\"=hex:61,6g", "\"A\"=hex(1:61", "\"A\"=\"\xFF\""})
        EXPECT_EQ(ValueIn(line + "\n\"B\"=dword:00000001\n"), ProfileValue()) << line;
}

TEST(RegistryText, ALineThatCannotBeReadTakesNoOtherWithIt) {
    for (const std::string line :
         {"\"B\"=\"C:\\", "\"B\"=\"open", "\"B\"=hex:61,\\", "\"B\"=hex:zz,\\", "\\", "\"B\"=dword:1\\"})
        EXPECT_EQ(ValueIn(line + "\n\"A\"=dword:00000001\n"), ProfileValue(1)) << line;
}

TEST(RegistryText, ValuesStandUnderTheKeyAboveThem) {
    const RegistryText registry = Parsed(
        "REGEDIT4\n[HKEY_CURRENT_USER\\One]\n\"A\"=dword:1\n[HKEY_CURRENT_USER\\Two\\]\n\"A\"=dword:2\n"
        "[HKEY_CURRENT_USER\\Torn\n\"A\"=dword:3\n[-HKEY_CURRENT_USER\\Gone]\n\"A\"=dword:4\n");
    EXPECT_EQ(registry.Get(R"(HKEY_CURRENT_USER\one)", "a"), ProfileValue(1));
    EXPECT_EQ(registry.Get(R"(HKEY_CURRENT_USER\Two)", "A"), ProfileValue(2));
    EXPECT_EQ(registry.Get(R"(HKEY_CURRENT_USER\Torn)", "A"), ProfileValue());
    EXPECT_EQ(registry.Get(R"(HKEY_CURRENT_USER\Gone)", "A"), ProfileValue());
}

TEST(RegistryText, TheLastOfSeveralCounts) {
    EXPECT_EQ(ValueIn("\"A\"=dword:1\n\"a\"=dword:2\n"), ProfileValue(2));
    EXPECT_EQ(ValueIn("\"A\"=dword:1\n[HKEY_CURRENT_USER\\Other]\n[HKEY_CURRENT_USER\\SOFTWARE\\EXAMPLE]\n"
                      "\"A\"=dword:3\n"),
              ProfileValue(3));
    EXPECT_EQ(ValueIn("\"A\"=dword:1\n\"A\"=torn\n"), ProfileValue(1));
}

TEST(RegistryText, TheFirstLineTellsTheForm) {
    for (const std::string text :
         {"REGEDIT4", "REGEDIT4\n", "REGEDIT4 \r\n\r\n", "\xEF\xBB\xBFREGEDIT4\n", ""})
        EXPECT_TRUE(RegistryText::Parse(text)) << text;
    for (const std::string text : {"\n", "REGEDIT", "REGEDIT45\n", "\nREGEDIT4\n", "[HKEY_CURRENT_USER]\n",
                                   "Windows Registry Editor Version 4.00\n", "\x7F\x45LF"})
        EXPECT_FALSE(RegistryText::Parse(text)) << text;
}

TEST(RegistryText, AnyTextOfTheFormComesBackByteForByte) {
    for (const std::string& text :
         {std::string("REGEDIT4"), std::string("REGEDIT4\r\n\r\n[K]\r\n\"A\"=hex(7):61,\\\r\n  00\r\nrest"),
          std::string("REGEDIT4\n\0\n[\n]\n\"\n@\n@=\n\\\n\\", 25), std::string("REGEDIT4\n\n\n\xFF\xFE\n")})
        EXPECT_EQ(Parsed(text).Bytes(), text);
}

TEST(RegistryText, AnEmptyRegistryGetsItsFirstValue) {
    const std::string text = "REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\Example]\n\"A\"=dword:ffffffff\n";
    EXPECT_EQ(AfterSet("", -1), text);
    EXPECT_EQ(AfterSet("REGEDIT4", -1), text);
    EXPECT_EQ(AfterSet("REGEDIT4\n\n", -1), text);
}

TEST(RegistryText, WritesStringsWithEscapesAndLineBreaksAsBytes) {
    EXPECT_EQ(AfterSet(WithLines(""), R"(a "b" \c)"), WithLines("\"A\"=\"a \\\"b\\\" \\\\c\"\n"));
    EXPECT_EQ(AfterSet(WithLines(""), "a\nb"), WithLines("\"A\"=hex(1):61,0a,62,00\n"));
}

TEST(RegistryText, AChangeTouchesTheDataOfTheOneValueAlone) {
    const std::string before = "; mine\n[HKEY_CURRENT_USER\\Software\\EXAMPLE]\n\"B\"=hex:01,\\\n  02\n";
    const std::string behind =
        "what is this?\n\n; next\n[HKEY_USERS\\x]\n\"A\"=dword:00000005\n\"C\"=hex(b):01";
    EXPECT_EQ(AfterSet("REGEDIT4\n" + before + "  \"a\" =  \"old\" ; why\n" + behind, 10),
              "REGEDIT4\n" + before + "  \"a\" =  dword:0000000a ; why\n" + behind);
}

TEST(RegistryText, AValueOfAnotherTypeIsReplacedWhole) {
    EXPECT_EQ(AfterSet(WithLines("\"A\"=hex:01,\\\n  02\n\"B\"=-\n"), 1),
              WithLines("\"A\"=dword:00000001\n\"B\"=-\n"));
    EXPECT_EQ(AfterSet(WithLines("\"A\"=-\n"), 1), WithLines("\"A\"=dword:00000001\n"));
}

TEST(RegistryText, ANewValueStandsBehindTheOthersOfItsKey) {
    EXPECT_EQ(
        AfterSet(WithLines("\"B\"=dword:00000001\n\n; of the next\n[HKEY_CURRENT_USER\\Z]\n"), 1),
        WithLines("\"B\"=dword:00000001\n\"A\"=dword:00000001\n\n; of the next\n[HKEY_CURRENT_USER\\Z]\n"));
    EXPECT_EQ(AfterSet(WithLines("\"B\"=dword:00000001"), 1),
              WithLines("\"B\"=dword:00000001\n\"A\"=dword:00000001\n"));
}

TEST(RegistryText, ALineThatCannotBeReadStaysBesideTheNewValue) {
    EXPECT_EQ(AfterSet(WithLines("\"A\"=torn\n"), 1), WithLines("\"A\"=torn\n\"A\"=dword:00000001\n"));
}

TEST(RegistryText, ANewKeyStandsAtTheEnd) {
    EXPECT_EQ(AfterSet("REGEDIT4\n\n[HKEY_CURRENT_USER\\Z]\n\"A\"=dword:00000005", 1),
              "REGEDIT4\n\n[HKEY_CURRENT_USER\\Z]\n\"A\"=dword:00000005\n\n"
              "[HKEY_CURRENT_USER\\Software\\Example]\n\"A\"=dword:00000001\n");
}

TEST(RegistryText, NewLinesEndAsTheFirstOneDoes) {
    EXPECT_EQ(AfterSet("REGEDIT4\r\n", 1),
              "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Example]\r\n\"A\"=dword:00000001\r\n");
}

TEST(RegistryText, WhatHasNoPlaceInTheFormIsNotSet) {
    RegistryText registry;
    const std::string before = registry.Bytes();
    EXPECT_FALSE(registry.Set(key, "A", ProfileValue()));
    EXPECT_FALSE(registry.Set(key, "A", std::string("a\0b", 3)));
    EXPECT_FALSE(registry.Set(key, "A", "\xFF"));
    EXPECT_FALSE(registry.Set(key, "A\nB", 1));
    EXPECT_FALSE(registry.Set(key, "\xFF", 1));
    EXPECT_FALSE(registry.Set("HKEY_CURRENT_USER\\a\nb", "A", 1));
    EXPECT_FALSE(registry.Set("\\", "A", 1));
    EXPECT_EQ(registry.Bytes(), before);
}

TEST(RegistryText, NamesOfAnyPrintableCharacterAreKept) {
    RegistryText registry;
    for (const std::string name : {"", R"(a"b\c)", "=", "ä ]", "@"}) {
        EXPECT_TRUE(registry.Set(R"(HKEY_CURRENT_USER\a]b [c])", name, "x" + name));
        EXPECT_EQ(Parsed(registry.Bytes()).Get(R"(HKEY_CURRENT_USER\A]b [c]\)", name),
                  ProfileValue("x" + name));
    }
}

TEST(RegistryText, RemovingTakesOutEveryLineOfTheValue) {
    RegistryText registry =
        Parsed(WithLines("\"A\"=dword:1\n\"B\"=dword:2\n\"a\"=hex:01,\\\n 02\n\"A\"=torn\n; A\n"));
    EXPECT_TRUE(registry.Remove(key, "A"));
    EXPECT_EQ(registry.Bytes(), WithLines("\"B\"=dword:2\n\"A\"=torn\n; A\n"));
    EXPECT_FALSE(registry.Remove(key, "A"));
}

constexpr std::string_view editorsHead = "Windows Registry Editor Version 5.00\r\n\r\n";

/// A file as today's registry editor writes it, whose key holds these lines.
std::string EditorsText(const std::string& lines) {
    return std::string(editorsHead) + "[HKEY_CURRENT_USER\\Software\\Example]\r\n" + lines;
}

/// A text in UTF-16 with its byte order mark.
std::string Marked(const std::string& text) {
    return Utf16OfUtf8("\xEF\xBB\xBF" + text);
}

TEST(RegistryText, FilesOfTodaysRegistryEditorAreReadInUtf8AndUtf16) {
    const std::string text = EditorsText("\"A\"=\"Grüße 漢字 😀\"\r\n");
    for (const std::string& bytes : {text, "\xEF\xBB\xBF" + text, Marked(text)}) {
        EXPECT_EQ(Parsed(bytes).Get(key, "A"), ProfileValue("Grüße 漢字 😀"));
        EXPECT_EQ(Parsed(bytes).Bytes(), bytes);
    }
}

TEST(RegistryText, AChangedFileKeepsItsFirstLineAndItsEncoding) {
    const std::string old = EditorsText("\"A\"=dword:00000001\r\n");
    const std::string changed = EditorsText("\"A\"=\"ä\"\r\n");
    EXPECT_EQ(AfterSet(old, ProfileValue("ä")), changed);
    EXPECT_EQ(AfterSet(Marked(old), ProfileValue("ä")), Marked(changed));
    const std::string own = "REGEDIT4\r\n[HKEY_CURRENT_USER\\Software\\Example]\r\n";
    EXPECT_EQ(AfterSet(Marked(own), 2), Marked(own + "\"A\"=dword:00000002\r\n"));
}

TEST(RegistryText, TodaysRegistryEditorStoresStringsAsBytesOfUtf16) {
    const std::string text = EditorsText("\"A\"=hex(1):61,00,0a,00,e4,00,00,00\r\n");
    EXPECT_EQ(Parsed(text).Get(key, "A"), ProfileValue("a\nä"));
    EXPECT_EQ(AfterSet(EditorsText(""), ProfileValue("a\nä")), text);
    EXPECT_EQ(Parsed(EditorsText("\"A\"=hex(1):61,00,62\r\n")).Get(key, "A"), ProfileValue());
}

TEST(RegistryText, Utf16ThatIsNoTextStaysAsItIs) {
    const std::string lone = Marked(EditorsText("\"B\"=\"")) + std::string("\x3D\xD8", 2) +
                             Utf16OfUtf8("\"\r\n\"A\"=dword:00000001\r\n");
    EXPECT_EQ(Parsed(lone).Get(key, "A"), ProfileValue(1));
    EXPECT_EQ(Parsed(lone).Get(key, "B"), ProfileValue());
    EXPECT_EQ(Parsed(lone).Bytes(), lone);
}

TEST(RegistryText, OtherFirstLinesAndHalfUnitsAreOfAnotherForm) {
    EXPECT_FALSE(RegistryText::Parse("Windows Registry Editor Version 6.00\r\n"));
    EXPECT_FALSE(RegistryText::Parse("\xFF\xFE"));
    EXPECT_FALSE(RegistryText::Parse(Marked(std::string(editorsHead)) + "x"));
    EXPECT_FALSE(RegistryText::Parse(Utf16OfUtf8(editorsHead)));
    EXPECT_FALSE(RegistryText::Parse(Marked("[HKEY_CURRENT_USER]\r\n")));
}

TEST(Utf16, EveryCharacterComesBack) {
    for (const std::string text : {"", "a", "é", "\xEF\xBF\xBF", "😀", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(Utf8OfUtf16(Utf16OfUtf8(text)), text);
    EXPECT_EQ(Utf16OfUtf8("a😀"), std::string("a\0\x3D\xD8\x00\xDE", 6));
}

TEST(Utf16, EveryUnitComesBack) {
    std::string bytes;
    for (unsigned unit = 0; unit < 0x10000; ++unit)
        bytes.append({static_cast<char>(unit & 0xFFU), static_cast<char>(unit >> 8U)});
    EXPECT_EQ(Utf16OfUtf8(Utf8OfUtf16(bytes).value()), bytes);
}

}  // namespace
}  // namespace wxbrg
