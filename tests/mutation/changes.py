"""One-place changes to C++ sources: what a test suite should notice."""
import dataclasses
import re

# Comments, raw strings, strings and characters; of these only strings are changed.
LITERAL = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?:.*?)\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.S)

# A pattern in the code outside comments and literals, and what replaces it.
RULES = [
    (r" == ", " != "), (r" != ", " == "),
    (r" <= ", " < "), (r" >= ", " > "), (r" < ", " <= "), (r" > ", " >= "),
    (r" && ", " || "), (r" \|\| ", " && "),
    (r"(?<=[(&| ])!(?=[\w(])", ""),
    (r"(?<=\w) \+ (?=\d)", " - "), (r"(?<=\w) - (?=\d)", " + "),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"(?<![\w.'])0(?![\w.'])", "1"), (r"(?<![\w.'])1(?![\w.'])", "2"),
    (r"(?<=if \()(?=[^;\n]*\) )", "false && "),
    (r"(?<=\n)(?: {4,})(?!return\b|throw\b|break\b|continue\b|using\b)[\w.:>\-]+\([^\n]*\);(?=\n)", "    ;"),
    # These values are what {} means anyway.
    (r"(?<=\breturn )(?!(?:\{\}|false|nullptr|0|std::nullopt);)[^;\n]+(?=;)", "{}"),
]
# Most fields are set before they are read, and a pure function has no other value.
INITIAL_VALUE = re.compile(r"(?!.*\bconstexpr\b).*= [^;]*;")
IGNORED_LINE = re.compile(r"\s*(#|static_assert|template|using |friend |class |struct |enum )|.*\b(operator|concept)\b")


@dataclasses.dataclass(frozen=True)
class Change:
    path: str
    start: int
    old: str
    new: str

    def applied(self, text):
        return text[: self.start] + self.new + text[self.start + len(self.old):]

    def describe(self, text):
        line = text.count("\n", 0, self.start) + 1
        end = text.find("\n", self.start + len(self.old))
        around = text[text.rfind("\n", 0, self.start) + 1: end if end >= 0 else len(text)]
        return f"{self.path}:{line}: {self.old.strip()!r} -> {self.new.strip()!r} in: {around.strip()}"


def without_literals(text):
    """The text with every comment and literal blanked, at the same length."""
    return LITERAL.sub(lambda found: re.sub(r"[^\n]", "\x00", found.group()), text)


def in_strings(path, text):
    for found in LITERAL.finditer(text):
        if found.group().startswith('"') and len(found.group()) > 3 and not on_ignored_line(path, text, found.start()):
            yield Change(path, found.start() + 1, found.group()[1:-1], found.group()[1:-1] + "~")


def on_ignored_line(path, text, at):
    start = text.rfind("\n", 0, at) + 1
    return bool(IGNORED_LINE.match(text, start) or path.endswith(".h") and INITIAL_VALUE.match(text, start))


def in_code(path, text):
    code = without_literals(text)
    for pattern, new in RULES:
        for found in re.finditer(pattern, code):
            if not on_ignored_line(path, code, found.start()):
                yield Change(path, found.start(), text[found.start(): found.end()], new)


def changes(path, text):
    """All changes to a file, in the order of its text."""
    found = [*in_code(path, text), *in_strings(path, text)]
    return sorted(found, key=lambda change: (change.start, change.old, change.new))
