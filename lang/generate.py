#!/usr/bin/env python3
"""Makes the C++ source of one language library from the catalogue of messages.

usage: generate.py CATALOGUE LANGUAGE OUTPUT

CATALOGUE is messages.txt, which describes its form at its top. LANGUAGE is one of the languages declared there,
or TST, whose text of number N is "N|%1$s|%2$s|%3$s|%4$s". The whole catalogue is checked whichever language
is asked for: each thing wrong with it goes to stderr as "FILE:LINE: what is wrong", nothing is written then,
and the exit status is 1.
"""
import codecs
import re
import sys
import unicodedata
from dataclasses import dataclass, field

ARTIFICIAL_LANGUAGE = "TST"
HIGHEST_NUMBER = 65535  # the string tables of Windows have no room for more
MOST_BYTES = 4095
ONE_LINE_NUMBERS = (range(3000, 5000), range(50000, HIGHEST_NUMBER + 1))
CAPTION_NUMBERS = range(50001, HIGHEST_NUMBER + 1)

LANGUAGE_LINE = re.compile(r"language +([A-Z]{3}) +([0-9]+)$")
NUMBER_LINE = re.compile(r"([1-9][0-9]*) +(\S.*)$")
TEXT_LINE = re.compile(r"([A-Z]{3}) +(\S.*)$")
CONTINUATION_LINE = re.compile(r" +(\S.*)$")
PLACEHOLDER = re.compile(r"%([1-4])\$s")
PLACEHOLDER_SLIP = re.compile(r"%(?![1-4]\$s)(?:[0-9$]+\w*|[sd]\b)")
ACCESS_KEY = re.compile(r"&(.?)")
ENDS_WITH_BREAK = re.compile(r"(?<!\\)(\\\\)*\\n$")
ESCAPES = {"\\n": "\r\n", "\\\\": "\\"}


@dataclass
class Text:
    line: int
    number: int
    language: str
    source: str

    def __str__(self):
        return f"the text of {self.number} in {self.language}"

    def add(self, source):
        self.source += source if ENDS_WITH_BREAK.search(self.source) else " " + source

    def value(self):
        return re.sub(r"\\.", lambda escape: ESCAPES[escape[0]], self.source)

    def placeholders(self):
        return set(PLACEHOLDER.findall(self.source))

    def access_keys(self):
        """What follows each & that marks an access key; nothing behind one that ends the text."""
        return [key for key in ACCESS_KEY.findall(self.source) if key != "&"]


@dataclass
class Message:
    line: int
    number: int
    arguments: set
    texts: dict = field(default_factory=dict)  # language -> Text


class Problems:
    """Collects what is wrong, so that one run shows all of it."""

    def __init__(self, path):
        self.path = path
        self.found = []

    def add(self, line, words):
        self.found.append((line, words))

    def report(self, stream):
        for line, words in sorted(self.found, key=lambda problem: problem[0]):
            print(f"{self.path}:{line}: {words}", file=stream)


class Catalogue:
    def __init__(self, problems):
        self.problems = problems
        self.languages = {}  # language -> name of its code page in Python
        self.messages = []

    def read(self, content):
        """Takes the lines of a file apart and checks each line, then each message."""
        last_text = None
        for line, encoded in enumerate(content.removeprefix(b"\xef\xbb\xbf").splitlines(), start=1):
            try:
                words = encoded.decode("utf-8").rstrip(" ")
            except UnicodeDecodeError:
                self.problems.add(line, "the line is not UTF-8")
                continue
            if words and not words.startswith("#"):
                last_text = self.read_line(line, words, last_text)
        if not self.messages:
            self.problems.add(1, "the catalogue holds no messages")
        for message in self.messages:
            self.check_message(message)

    def read_line(self, line, words, last_text):
        """Reads one line that is neither empty nor a comment. Gives the text that it belongs to, if any."""
        if match := LANGUAGE_LINE.match(words):
            self.add_language(line, match[1], match[2])
        elif match := NUMBER_LINE.match(words):
            self.add_message(line, int(match[1]), match[2])
        elif match := TEXT_LINE.match(words):
            return self.add_text(line, match[1], match[2])
        elif (match := CONTINUATION_LINE.match(words)) and last_text:
            last_text.add(match[1])
            return last_text
        else:
            self.problems.add(line, f"malformed line, neither language, number, text nor continuation: {words}")
        return None

    def add_language(self, line, language, code_page):
        if self.messages:
            self.problems.add(line, f"language {language} is declared below the first message")
        elif language == ARTIFICIAL_LANGUAGE:
            self.problems.add(line, f"language {language} is made by the generator and cannot be declared")
        elif language in self.languages:
            self.problems.add(line, f"language {language} is declared twice")
        else:
            self.languages[language] = "cp" + code_page
            try:
                codecs.lookup("cp" + code_page)
            except LookupError:
                self.problems.add(line, f"code page {code_page} of language {language} is unknown")
                self.languages[language] = "utf-8"

    def add_message(self, line, number, situation):
        before = self.messages[-1].number if self.messages else 0
        if any(message.number == number for message in self.messages):
            self.problems.add(line, f"number {number} is there twice")
        elif number < before:
            self.problems.add(line, f"number {number} is out of order, it comes after {before}")
        if number > HIGHEST_NUMBER:
            self.problems.add(line, f"number {number} is above {HIGHEST_NUMBER}")
        arguments = PLACEHOLDER.findall(situation)
        if arguments != [str(position) for position in range(1, len(arguments) + 1)]:
            self.problems.add(line, f"the line of {number} does not name its arguments as %1$s, %2$s and so on")
        self.messages.append(Message(line, number, set(arguments)))

    def add_text(self, line, language, source):
        number = self.messages[-1].number if self.messages else 0
        text = Text(line, number, language, source)
        if language not in self.languages:
            self.problems.add(line, f"unknown language {language}")
        elif not self.messages:
            self.problems.add(line, f"a text of {language} comes before the first number")
        elif language in self.messages[-1].texts:
            self.problems.add(line, f"number {number} has a second text of {language}")
        else:
            self.messages[-1].texts[language] = text
        return text

    def check_message(self, message):
        for language in self.languages:
            if language not in message.texts:
                self.problems.add(message.line, f"number {message.number} has no text of {language}")
        texts = list(message.texts.values())
        for text in texts:
            self.check_placeholders(text, message.arguments)
            self.check_same_placeholders(text, texts[0])
            if message.number in CAPTION_NUMBERS:
                self.check_access_key(text, texts[0])
            if self.check_escapes(text):
                self.check_characters(text)

    def check_placeholders(self, text, arguments):
        for slip in PLACEHOLDER_SLIP.findall(text.source):
            self.problems.add(text.line, f"{text} has {slip}, which is none of the placeholders %1$s to %4$s")
        unnamed = text.placeholders() - arguments
        if unnamed:
            self.problems.add(text.line, f"{text} has {listed(unnamed)}, which its number's line does not name")

    def check_same_placeholders(self, text, first):
        here, there = text.placeholders(), first.placeholders()
        if here != there:
            as_there = f"not {listed(there)} as in {first.language}"
            self.problems.add(text.line, f"{text} has the placeholders {listed(here)}, {as_there}")

    def check_access_key(self, text, first):
        keys = text.access_keys()
        if len(keys) > 1:
            self.problems.add(text.line, f"{text} marks {len(keys)} access keys")
        elif keys and not keys[0].isalnum():
            self.problems.add(text.line, f"{text} has & in front of no letter or digit; && is an ampersand")
        elif bool(keys) != bool(first.access_keys()):
            which = "an access key" if keys else "no access key"
            self.problems.add(text.line, f"{text} marks {which}, unlike {first.language}")

    def check_escapes(self, text):
        wrong = [escape for escape in re.findall(r"\\.?", text.source) if escape not in ESCAPES]
        for escape in wrong:
            self.problems.add(text.line, f"{text} has {escape}, only \\n and \\\\ are known")
        return not wrong

    def check_characters(self, text):
        value = text.value()
        if "\r\n" in value and any(text.number in numbers for numbers in ONE_LINE_NUMBERS):
            self.problems.add(text.line, f"{text} has a line break, but is to be one line")
        code_page = self.languages[text.language]
        for character in sorted(set(value.replace("\r\n", ""))):
            if unicodedata.category(character) == "Cc":
                self.problems.add(text.line, f"{text} has the control character U+{ord(character):04X}")
            elif not can_encode(character, code_page):
                shown = f"{character} (U+{ord(character):04X})"
                self.problems.add(text.line, f"{text} has {shown}, which {code_page} lacks")
        size = len(value.encode(code_page, errors="replace"))
        if size > MOST_BYTES:
            self.problems.add(text.line, f"{text} has {size} bytes in {code_page}, more than {MOST_BYTES}")

    def texts_of(self, language):
        """(number, text) of each message, in the order of the numbers."""
        if language == ARTIFICIAL_LANGUAGE:
            return [(message.number, f"{message.number}|%1$s|%2$s|%3$s|%4$s") for message in self.messages]
        return [(message.number, message.texts[language].value()) for message in self.messages]


def listed(placeholders):
    return " ".join(f"%{position}$s" for position in sorted(placeholders)) or "none"


def can_encode(character, code_page):
    try:
        character.encode(code_page)
        return True
    except UnicodeEncodeError:
        return False


def literal(text):
    escaped = text.replace("\\", "\\\\").replace('"', '\\"').replace("\r\n", "\\r\\n")
    return f'"{escaped}"'


def source_of(language, texts):
    rows = "\n".join(f"    {{{number}, {literal(text)}}}," for number, text in texts)
    return f"""// Made by lang/generate.py from lang/messages.txt: the texts of the language {language}.
#include "lang/MessageTable.h"

namespace wxbrg {{
namespace {{

constexpr Message messages[] = {{
{rows}
}};
static_assert(NumbersRise(messages));

}}  // namespace

constinit const std::span<const Message> messageTable = messages;

}}  // namespace wxbrg
"""


def generate(path, language, output, errors):
    problems = Problems(path)
    catalogue = Catalogue(problems)
    with open(path, "rb") as file:
        catalogue.read(file.read())
    if problems.found:
        problems.report(errors)
        return 1
    if language not in (*catalogue.languages, ARTIFICIAL_LANGUAGE):
        print(f"{path}: there is no language {language}, only {', '.join(catalogue.languages)} and "
              f"{ARTIFICIAL_LANGUAGE}", file=errors)
        return 1
    with open(output, "w", encoding="utf-8", newline="\n") as file:
        file.write(source_of(language, catalogue.texts_of(language)))
    return 0


def main(arguments, errors=sys.stderr):
    if len(arguments) != 3:
        print(__doc__, file=errors)
        return 2
    try:
        return generate(*arguments, errors)
    except OSError as error:
        print(f"{error.filename}: {error.strerror}", file=errors)
        return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
