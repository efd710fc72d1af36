"""All mutants of a source in one program: each spoiled expression stands beside the original, chosen at run time.

`a + b` becomes `(sagomi_mutante(7) ? (a - b) : (a + b))`, the whole expression between two delimiters, so that what
is computed is what the text of the mutant alone would compute, order and short cuts included. Lines keep their
numbers. What cannot stand so (labels, sizes of arrays, constants that a type needs) is told by the compiler's errors
and taken out.
"""

import bisect
import re

HEADER = """#pragma once
#include <cstdlib>
inline int sagomi_mutante_scelto = -2;
inline bool sagomi_mutanti_visti[65536];
inline bool sagomi_mutante(int numero) {
    if (sagomi_mutante_scelto == -2) {
        const char* scelto = std::getenv("SAGOMI_MUTANTE");
        sagomi_mutante_scelto = scelto ? std::atoi(scelto) : -1;
    }
    sagomi_mutanti_visti[numero] = true;
    return numero == sagomi_mutante_scelto;
}
"""

# Stands in a test program: writes which mutants each test comes by, and its time [ms]; first those before any test.
LISTENER = """#include <fstream>
#include <gtest/gtest.h>
#include "{header}"
namespace {
struct SagomiVisti : testing::EmptyTestEventListener {
    std::ofstream file{std::getenv("SAGOMI_MUTANTI_VISTI")};
    void Scrive(const std::string& prova, long long tempo) {
        file << prova << '\\t' << tempo << '\\t';
        for (int i = 0; i < 65536; ++i) {
            if (sagomi_mutanti_visti[i])
                file << i << ' ';
            sagomi_mutanti_visti[i] = false;
        }
        file << std::endl;
    }
    void OnTestProgramStart(const testing::UnitTest&) override { Scrive("-", 0); }
    void OnTestEnd(const testing::TestInfo& t) override {
        Scrive(std::string(t.test_suite_name()) + "." + t.name(), t.result()->elapsed_time());
    }
};
const bool sagomi_visti = [] {
    if (std::getenv("SAGOMI_MUTANTI_VISTI"))
        testing::UnitTest::GetInstance()->listeners().Append(new SagomiVisti);
    return true;
}();
} // namespace
"""
FIRST_LINES = '#include "{header}"\n#line 1\n'

COMMENT_OR_TEXT = re.compile(
    r'(?P<comment>//[^\n]*|/\*.*?\*/)|R"(?P<raw>[^(]*)\(.*?\)(?P=raw)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.S)
ENDS = {"return", "else", "do", "throw", "case", "goto", "co_return", "co_yield"}
HEADS = re.compile(r"\b(?:if|if\s+constexpr|for|while|switch|catch)\s*$")
COMPARISON = re.compile(r"<=>|[=!<>]=")


def blanks(text):
    return re.sub(r"[^\n]", " ", text)


def without_comments(text):
    return COMMENT_OR_TEXT.sub(lambda m: blanks(m.group(0)) if m.group("comment") else m.group(0), text)


def pairs(code):
    """Where the other bracket of each bracket stands."""
    other, open_ones = {}, []
    for i, c in enumerate(code):
        if c in "([{":
            open_ones.append(i)
        elif c in ")]}" and open_ones:
            j = open_ones.pop()
            other[i], other[j] = j, i
    return other


def left_end(code, other, i):
    """Where the expression begins that holds what stands at i; None when it is a label."""
    while i > 0:
        c = code[i - 1]
        if c in ")]}":
            j = other.get(i - 1)
            if j is None or c == ")" and HEADS.search(code[:j]):
                return i
            inside = code[j + 1 : i - 1].strip()
            if c == "}" and (inside.endswith((";", "}")) or not inside and code[i : i + 1] == "\n"):
                return i
            i = j
        elif c in "([{;,?":
            return i
        elif c == ":":
            if code[i - 2] != ":":
                return i
            i -= 2
        elif c == "=":
            if not COMPARISON.fullmatch(code[i - 2 : i]) or code[i - 3 : i - 1] in ("<<", ">>"):
                return i
            i -= 2
        elif c.isalnum() or c == "_":
            word = re.search(r"\w+$", code[max(0, i - 60) : i]).group(0)
            if word in ENDS:
                return None if word == "case" else i
            i -= len(word)
        else:
            i -= 1
    return None


def right_end(code, other, i, assigned):
    """Where the expression ends; None when something is assigned to it. What is assigned may be a choice."""
    choices = 0
    while i < len(code):
        c = code[i]
        comparison = COMPARISON.match(code, i)
        if c in "([{":
            if i not in other:
                return None
            i = other[i] + 1
        elif c == ":" and code[i + 1] == ":":
            i += 2
        elif c == "?" and assigned or c == ":" and choices:
            choices += 1 if c == "?" else -1
            i += 1
        elif c in ")]};,?:":
            return i
        elif comparison:
            i = comparison.end()
        elif c == "=":
            return None
        else:
            i += 1
    return None


class Wrap:
    """An expression and the numbers and texts of its mutants."""

    def __init__(self, start, end):
        self.start, self.end, self.mutants = start, end, []


class Source:
    """A source with its mutants; `code` is its text where comments, texts and directives are blank."""

    def __init__(self, text, code):
        self.text, self.code, self.bare = text, code, without_comments(text)
        self.other = pairs(code)
        self.wraps, self.loose = {}, set()

    def adds(self, number, start, end, new):
        """False when this mutant has to be built alone."""
        assigned = self.code[start:end] in ("+=", "-=", "*=", "/=")
        left, right = left_end(self.code, self.other, start), right_end(self.code, self.other, end, assigned)
        if left is None or right is None or 'R"' in self.text[left:right]:
            return False
        left += len(self.bare[left:right]) - len(self.bare[left:right].lstrip())
        right -= len(self.bare[left:right]) - len(self.bare[left:right].rstrip())
        if any(w.start < left < w.end < right or left < w.start < right < w.end for w in self.wraps.values()):
            return False
        wrap = self.wraps.setdefault((left, right), Wrap(left, right))
        spoiled = re.sub(r"\s*\n\s*", " ", self.bare[left:start] + new + self.bare[end:right])
        wrap.mutants.append((number, spoiled))
        self.loosens(start)
        return True

    def constant(self, i):
        """Where the word constexpr stands that rules what stands at i, or None."""
        at = self.code.rfind("constexpr", 0, i)
        if at < 0 or ";" in self.code[at:i] or re.search(r"\bif\s*$", self.code[:at]):
            return None
        return at

    def loosens(self, i):
        """A constant that can be spoiled is computed when the program runs."""
        at = self.constant(i)
        if at is not None:
            self.loose.add(at)
        return at

    def loosened(self):
        """The text where the spoiled constants are no longer of the compiler; nothing moves."""
        text = self.text
        for at in self.loose:
            head = self.code[at:].split(";", 1)[0]
            function = re.match(r"[^={]*\([^={]*\)[^={]*\{", head)
            text = text[:at] + ("         " if function else "const    ") + text[at + len("constexpr") :]
        return text

    def takes_out(self, numbers):
        for key, wrap in list(self.wraps.items()):
            wrap.mutants = [m for m in wrap.mutants if m[0] not in numbers]
            if not wrap.mutants:
                del self.wraps[key]

    def numbers(self):
        return {m[0] for w in self.wraps.values() for m in w.mutants}

    def written(self):
        """(text, regions): the source with all its mutants; a region is (start, end, numbers, is it a spoiled text)."""
        text, out, regions, length = self.loosened(), [], [], 0

        def put(piece):
            nonlocal length
            out.append(piece)
            length += len(piece)

        def spoils(wrap, inner):
            begin = length
            put("(")
            for number, spoiled in wrap.mutants:
                put(f"sagomi_mutante({number}) ? (")
                regions.append((length, length + len(spoiled), {number}, True))
                put(spoiled + ") : ")
            put("(")
            part(wrap.start, wrap.end, inner)
            put("))")
            regions.append((begin, length, {n for n, _ in wrap.mutants}, False))

        def part(start, end, wraps):
            while wraps:
                wrap, inside = wraps[0], [w for w in wraps[1:] if w.end <= wraps[0].end]
                put(text[start : wrap.start])
                spoils(wrap, inside)
                start, wraps = wrap.end, [w for w in wraps[1:] if w.end > wrap.end]
            put(text[start:end])

        part(0, len(text), sorted(self.wraps.values(), key=lambda w: (w.start, -w.end)))
        return "".join(out), regions


def positions(log, name):
    """(line, byte column) of each error of a file that a compiler's log tells."""
    told = re.finditer(r"^\S*" + re.escape(name) + r":(\d+):(\d+):\s+(?:error|required from|\s*in .constexpr.)", log, re.M)
    return list(dict.fromkeys((int(m.group(1)), int(m.group(2))) for m in told))


def offset(text, line, column):
    rows = text.split("\n")
    before = rows[line - 1].encode()[: column - 1].decode(errors="ignore")
    return sum(len(r) + 1 for r in rows[: line - 1]) + len(before)


def first_ones(places, text):
    """The errors on the first line that has any, function by function: the rest may come of them."""
    ends = [i for i, row in enumerate(text.split("\n"), 1) if row.startswith("}")]
    first = {}
    for line, column in sorted(places):
        function = bisect.bisect_left(ends, line)
        if line == first.setdefault(function, line):
            yield line, column


def mended(source, log, name, patient=True):
    """Takes what a compiler refuses out of a source; gives the numbers of the mutants taken out."""
    text, regions = source.written()
    spoiled, around, elsewhere = set(), set(), []
    places = positions(log, name)
    for line, column in first_ones(places, text) if patient else places:
        at = offset(text, line, column)
        hit = min((r for r in regions if r[0] <= at < r[1]), key=lambda r: r[1] - r[0], default=None)
        if hit is None:
            elsewhere.append(line)
        elif hit[3]:
            spoiled |= hit[2]
        else:
            around |= hit[2]
    numbers = spoiled or around or constants_mended(source, elsewhere)
    source.takes_out(numbers)
    return numbers


def constants_mended(source, errors):
    """A constant that needs a spoiled one is spoiled too; else the spoiled ones stay with the compiler."""
    rows = source.text.split("\n")
    known = len(source.loose)
    for line in errors:
        source.loosens(sum(len(r) + 1 for r in rows[:line]) - 1)
    if len(source.loose) > known:
        return set()
    told = " ".join(rows[line - 1] for line in errors)
    named = {at for at in source.loose
             if (m := re.match(r"constexpr[^=({]*?(\w+)\s*[={(\[]", source.code[at:])) and
             re.search(r"\b" + m.group(1) + r"\b", told)}
    freed = named or set(source.loose)
    numbers = {n for w in source.wraps.values() if source.constant(w.start) in freed or not freed
               for n, _ in w.mutants}
    source.loose -= freed
    return numbers


def fitted(sources, write, build):
    """Writes and builds sources, by name, until the compiler takes them; gives the numbers of the mutants taken out.

    write(name, text) stores a source, build() gives (is it built, log).
    """
    taken, changed, tries = set(), set(sources), 0
    while changed:
        tries += 1
        texts = {name: source.written()[0] for name, source in sources.items()}
        for name in changed:
            write(name, texts[name])
        good, log = build()
        if good:
            return taken
        for name, source in sources.items():
            if positions(log, name):
                taken |= mended(source, log, name, tries < 12)
        changed = {name for name, source in sources.items() if source.written()[0] != texts[name]}
    raise RuntimeError(log[-3000:])
