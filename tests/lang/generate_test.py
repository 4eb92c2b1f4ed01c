"""Tests of lang/generate.py: what it makes of a good catalogue, and how it rejects a bad one."""
import io
import pathlib
import re
import sys
import tempfile
import unittest

LANG = pathlib.Path(__file__).resolve().parents[2] / "lang"
sys.path.insert(0, str(LANG))
import generate  # noqa: E402

LANGUAGES = "language ENU 1252\nlanguage DEU 1252\n"
GOOD = LANGUAGES + """
# A comment
2020  bad selection; %1$s the item
ENU   Item "%1$s" is wrong.\\n
      Correct it
      and \\\\ start again.
DEU   Eintrag "%1$s" für später.

3040  category; %1$s the name
ENU   Category %1$s.
DEU   Kategorie %1$s.
"""


class GeneratorTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.catalogue = pathlib.Path(folder.name) / "messages.txt"
        self.output = pathlib.Path(folder.name) / "messages.cpp"

    def run_on(self, content, language="ENU"):
        """Exit status and what went to stderr, with the catalogue's folder taken off."""
        self.catalogue.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))
        errors = io.StringIO()
        status = generate.main([str(self.catalogue), language, str(self.output)], errors)
        return status, errors.getvalue().replace(str(self.catalogue.parent) + "/", "")

    def texts(self, content, language):
        """The rows of the table that is made: number -> text as it stands in the source."""
        self.assertEqual(self.run_on(content, language), (0, ""))
        rows = re.findall(r'^    \{(\d+), "(.*)"\},$', self.output.read_text(encoding="utf-8"), re.MULTILINE)
        return {int(number): text for number, text in rows}

    def assert_rejected(self, content, *messages):
        """Each of the messages is reported, in this order and no other one; nothing is written."""
        status, errors = self.run_on(content)
        self.assertEqual(errors.splitlines(), ["messages.txt:" + message for message in messages])
        self.assertEqual(status, 1)
        self.assertFalse(self.output.exists())


class Texts(GeneratorTest):
    def test_lines_are_joined_and_escapes_resolved(self):
        self.assertEqual(self.texts(GOOD, "ENU"), {
            2020: r'Item \"%1$s\" is wrong.\r\nCorrect it and \\ start again.',
            3040: "Category %1$s.",
        })

    def test_characters_outside_ascii_are_kept(self):
        self.assertEqual(self.texts(GOOD, "DEU")[2020], r'Eintrag \"%1$s\" für später.')

    def test_artificial_language_shows_number_and_arguments(self):
        self.assertEqual(self.texts(GOOD, "TST"), {
            2020: "2020|%1$s|%2$s|%3$s|%4$s",
            3040: "3040|%1$s|%2$s|%3$s|%4$s",
        })

    def test_byte_order_mark_and_windows_line_ends_make_no_difference(self):
        plain = self.texts(GOOD, "DEU")
        self.assertEqual(self.texts(b"\xef\xbb\xbf" + GOOD.replace("\n", "\r\n").encode("utf-8"), "DEU"), plain)

    def test_escaped_backslash_before_n_is_no_line_break(self):
        content = LANGUAGES + "1  path\nENU  C:\\\\new\n     folder\nDEU  C:\\\\n\n     x\n"
        self.assertEqual(self.texts(content, "ENU")[1], r"C:\\new folder")
        self.assertEqual(self.texts(content, "DEU")[1], r"C:\\n x")

    def test_order_and_repetition_of_placeholders_may_differ(self):
        content = LANGUAGES + "1  x; %1$s a, %2$s b\nENU  %1$s %2$s 100 %\nDEU  %2$s %1$s %2$s 50%\n"
        self.assertEqual(self.texts(content, "DEU")[1], "%2$s %1$s %2$s 50%")

    def test_text_of_4095_bytes_in_its_code_page_passes(self):
        self.assertEqual(len(self.texts(LANGUAGES + f"1  x\nENU  {'ü' * 4095}\nDEU  x\n", "ENU")[1]), 4095)

    def test_same_catalogue_gives_the_same_source(self):
        self.texts(GOOD, "ENU")
        first = self.output.read_bytes()
        self.texts(GOOD, "ENU")
        self.assertEqual(self.output.read_bytes(), first)


class Rejections(GeneratorTest):
    def test_missing_language(self):
        self.assert_rejected(LANGUAGES + "2010  x\nENU  a\n2020  y\nENU  b\nDEU  b\n",
                             "3: number 2010 has no text of DEU")

    def test_message_without_any_text(self):
        self.assert_rejected(LANGUAGES + "2010  x\n", "3: number 2010 has no text of ENU",
                             "3: number 2010 has no text of DEU")

    def test_unknown_language(self):
        self.assert_rejected(LANGUAGES + "2010  x\nENU  a\nDEU  a\nFRA  a\n", "6: unknown language FRA")

    def test_text_of_the_artificial_language(self):
        self.assert_rejected(LANGUAGES + "2010  x\nENU  a\nDEU  a\nTST  a\n", "6: unknown language TST")

    def test_second_text_of_a_language(self):
        self.assert_rejected(LANGUAGES + "2010  x\nENU  a\nDEU  a\nENU  b\n", "6: number 2010 has a second text of ENU")

    def test_text_above_the_first_number(self):
        self.assert_rejected(LANGUAGES + "ENU  a\n2010  x\nENU  a\nDEU  a\n",
                             "3: a text of ENU comes before the first number")

    def test_duplicate_number(self):
        self.assert_rejected(LANGUAGES + "1  x\nENU  a\nDEU  a\n2  x\nENU  a\nDEU  a\n1  x\nENU  a\nDEU  a\n",
                             "9: number 1 is there twice")

    def test_number_out_of_order(self):
        self.assert_rejected(LANGUAGES + "20  x\nENU  a\nDEU  a\n10  x\nENU  a\nDEU  a\n",
                             "6: number 10 is out of order, it comes after 20")

    def test_number_out_of_range(self):
        self.assert_rejected(LANGUAGES + "65536  x\nENU  a\nDEU  a\n", "3: number 65536 is above 65535")

    def test_placeholders_that_differ_between_languages(self):
        self.assert_rejected(LANGUAGES + "1  x; %1$s a, %2$s b\nENU  %1$s %2$s\nDEU  %1$s\n",
                             "5: the text of 1 in DEU has the placeholders %1$s, not %1$s %2$s as in ENU")

    def test_placeholder_in_one_language_only(self):
        self.assert_rejected(LANGUAGES + "1  x; %1$s a\nENU  a\nDEU  %1$s\n",
                             "5: the text of 1 in DEU has the placeholders %1$s, not none as in ENU")

    def test_placeholder_of_an_argument_that_is_not_passed(self):
        self.assert_rejected(LANGUAGES + "1  x; %1$s a\nENU  %1$s %2$s\nDEU  %1$s %2$s\n",
                             "4: the text of 1 in ENU has %2$s, which its number's line does not name",
                             "5: the text of 1 in DEU has %2$s, which its number's line does not name")

    def test_slips_in_placeholders(self):
        for wrong in ("%5$s", "%0$s", "%12$s", "%s", "%d", "%1s", "%1$S", "%$1s"):
            with self.subTest(wrong):
                self.assert_rejected(
                    LANGUAGES + f"1  x\nENU  a {wrong} b\nDEU  a\n",
                    f"4: the text of 1 in ENU has {wrong}, which is none of the placeholders %1$s to %4$s")

    def test_arguments_named_out_of_order(self):
        for named in ("%2$s a, %1$s b", "%2$s b", "%1$s a, %1$s b", "%1$s a, %3$s c"):
            with self.subTest(named):
                self.assert_rejected(LANGUAGES + f"1  x; {named}\nENU  a\nDEU  a\n",
                                     "3: the line of 1 does not name its arguments as %1$s, %2$s and so on")

    def test_text_that_is_too_long_in_its_code_page(self):
        self.assert_rejected(LANGUAGES + f"1  x\nENU  a\nDEU  {'ü' * 4094}\\nx\n",
                             "5: the text of 1 in DEU has 4097 bytes in cp1252, more than 4095")

    def test_character_that_the_code_page_lacks(self):
        self.assert_rejected(LANGUAGES + "1  x\nENU  a → b\nDEU  a\n",
                             "4: the text of 1 in ENU has → (U+2192), which cp1252 lacks")

    def test_control_character(self):
        self.assert_rejected(LANGUAGES + "1  x\nENU  a\tb\nDEU  a\n",
                             "4: the text of 1 in ENU has the control character U+0009")

    def test_unknown_escapes(self):
        self.assert_rejected(LANGUAGES + "1  x\nENU  a\\tb\nDEU  a\\\n",
                             "4: the text of 1 in ENU has \\t, only \\n and \\\\ are known",
                             "5: the text of 1 in DEU has \\, only \\n and \\\\ are known")

    def test_line_break_in_a_note_a_word_or_a_caption(self):
        for number in (3000, 3999, 4000, 50000, 65535):
            with self.subTest(number):
                self.assert_rejected(LANGUAGES + f"{number}  x\nENU  a\\n b\nDEU  a\n",
                                     f"4: the text of {number} in ENU has a line break, but is to be one line")

    def test_access_keys_of_captions_pass_as_they_stand(self):
        content = LANGUAGES + "50000  x\nENU  R & D\nDEU  R & D\n50001  x\nENU  &A && b\nDEU  Ä &ö\n"
        self.assertEqual(self.texts(content, "ENU"), {50000: "R & D", 50001: "&A && b"})
        self.assertEqual(self.texts(content, "DEU"), {50000: "R & D", 50001: "Ä &ö"})

    def test_ampersands_of_messages_mark_nothing(self):
        self.assertEqual(self.texts(LANGUAGES + "1  x\nENU  &a &b &\nDEU  a\n", "ENU"), {1: "&a &b &"})

    def test_caption_with_two_access_keys(self):
        self.assert_rejected(LANGUAGES + "50001  x\nENU  &a &b\nDEU  &a\n",
                             "4: the text of 50001 in ENU marks 2 access keys")

    def test_access_key_that_is_no_letter_or_digit(self):
        for text in ("a & b", "a&", "a &-"):
            with self.subTest(text):
                self.assert_rejected(LANGUAGES + f"65535  x\nENU  &a\nDEU  {text}\n",
                                     "5: the text of 65535 in DEU has & in front of no letter or digit; && is an "
                                     "ampersand")

    def test_access_key_in_one_language_only(self):
        self.assert_rejected(LANGUAGES + "50001  x\nENU  &a\nDEU  a\n",
                             "5: the text of 50001 in DEU marks no access key, unlike ENU")
        self.assert_rejected(LANGUAGES + "50001  x\nENU  a && b\nDEU  &a\n",
                             "5: the text of 50001 in DEU marks an access key, unlike ENU")

    def test_malformed_lines(self):
        words = "malformed line, neither language, number, text nor continuation: "
        for line in ("ENU", "2020", "0020  x", "-1  x", "Enu  a", "ENUS  a", "\tENU  a", "language ENU", "language"):
            with self.subTest(line):
                self.assert_rejected(LANGUAGES + f"1  x\nENU  a\nDEU  a\n{line}\n", f"6: {words}{line}")

    def test_continuation_of_nothing(self):
        words = "malformed line, neither language, number, text nor continuation: "
        self.assert_rejected(LANGUAGES + "1  x\n     more\nENU  a\nDEU  a\n", f"4: {words}     more")

    def test_line_that_is_not_utf8(self):
        self.assert_rejected(LANGUAGES.encode() + b"1  x\nENU  a\nDEU  a\n      \xfcber\n", "6: the line is not UTF-8")

    def test_wrong_declarations_of_languages(self):
        rest = "1  x\nENU  a\n"
        self.assert_rejected("language ENU 1252\nlanguage ENU 850\n" + rest, "2: language ENU is declared twice")
        self.assert_rejected("language ENU 9999\n" + rest, "1: code page 9999 of language ENU is unknown")
        self.assert_rejected("language ENU 1252\nlanguage TST 1252\n" + rest,
                             "2: language TST is made by the generator and cannot be declared")
        self.assert_rejected("language ENU 1252\n" + rest + "language DEU 1252\n",
                             "4: language DEU is declared below the first message")

    def test_catalogue_without_messages(self):
        self.assert_rejected("# nothing\n", "1: the catalogue holds no messages")

    def test_everything_that_is_wrong_is_told_at_once(self):
        self.assert_rejected(LANGUAGES + "2  x\nENU  %1$s\nDEU  a\\q\n1  x\nDEU  a\n???\n",
                             "4: the text of 2 in ENU has %1$s, which its number's line does not name",
                             "5: the text of 2 in DEU has the placeholders none, not %1$s as in ENU",
                             "5: the text of 2 in DEU has \\q, only \\n and \\\\ are known",
                             "6: number 1 is out of order, it comes after 2",
                             "6: number 1 has no text of ENU",
                             "8: malformed line, neither language, number, text nor continuation: ???")


class CommandLine(GeneratorTest):
    def test_language_that_the_catalogue_lacks(self):
        status, errors = self.run_on(GOOD, "FRA")
        self.assertEqual((status, errors), (1, "messages.txt: there is no language FRA, only ENU, DEU and TST\n"))
        self.assertFalse(self.output.exists())

    def test_bad_catalogue_is_rejected_for_the_artificial_language_too(self):
        status, errors = self.run_on(LANGUAGES + "1  x\nENU  a\n", "TST")
        self.assertEqual((status, errors), (1, "messages.txt:3: number 1 has no text of DEU\n"))

    def test_missing_catalogue(self):
        errors = io.StringIO()
        self.assertEqual(generate.main([str(self.catalogue), "ENU", str(self.output)], errors), 1)
        self.assertEqual(errors.getvalue(), f"{self.catalogue}: No such file or directory\n")

    def test_wrong_number_of_arguments(self):
        errors = io.StringIO()
        self.assertEqual(generate.main(["messages.txt"], errors), 2)
        self.assertIn("usage: generate.py CATALOGUE LANGUAGE OUTPUT", errors.getvalue())


if __name__ == "__main__":
    unittest.main()
