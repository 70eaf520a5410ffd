"""The faults that scripts/mutate puts into a C++ source, by its words and the layout of
clang-format: a binary operator stands between blanks, a template's bracket does not."""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*)
      | (?P<string>(?:u8|u|U|L)?R"(?P<delimiter>[^(]*)\(.*?\)(?P=delimiter)"|(?:u8|u|U|L)?"(?:\\.|[^"\\])*"(?:_\w+)?)
      | (?P<char>(?:u8|u|U|L)?'(?:\\.|[^'\\])+')
      | (?P<number>\b(?:0[xX][0-9a-fA-F']+|[0-9][0-9']*(?:\.[0-9]*)?(?:[eE][-+]?[0-9]+)?)[uUlLfF]*\b)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<operator><<=|>>=|<=>|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|[^\s\w])
    """, re.VERBOSE | re.DOTALL | re.MULTILINE)

OPERATORS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||",
             "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+="}
# What is in the brackets of these is for translators and developers only.
UNSEEN = {"tr", "translate", "qWarning", "qFatal", "qDebug", "Q_ASSERT", "static_assert",
          "Q_UNREACHABLE", "QT_TRANSLATE_NOOP", "Q_OBJECT", "Q_DECLARE_TR_FUNCTIONS", "alignas"}
NO_CALLS = {"return", "if", "for", "while", "switch", "case", "default", "else", "do", "break",
            "continue", "using", "namespace", "class", "struct", "enum", "public", "private",
            "protected", "template", "typedef", "static", "constexpr", "const", "auto", "explicit",
            "friend", "throw", "goto", "Q_OBJECT", "Q_UNREACHABLE", "Q_ASSERT", "qWarning",
            "static_assert", "virtual", "try", "catch", "inline", "extern", "operator", "sizeof",
            "Q_DISABLE_COPY_MOVE", "qFatal"}
OPENING, CLOSING = {"(": ")", "[": "]", "{": "}"}, {")", "]", "}"}


@dataclass(frozen=True)
class Fault:
    """`text` in the place of what stands from `start` to `end` of a source."""
    kind: str
    line: int
    start: int
    end: int
    text: str
    description: str

    def apply(self, source):
        return source[:self.start] + self.text + source[self.end:]


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


class Source:
    def __init__(self, text):
        self.text = text
        self.tokens = [Token(match.lastgroup if match.lastgroup != "delimiter" else "string",
                             match.group(), match.start(), match.end())
                       for match in TOKEN.finditer(text)]
        self.tokens = [token for token in self.tokens
                       if token.kind not in ("comment", "directive")]
        self.partner, self.around = self._partners()
        self.unseen = self._unseen()
        self.faults = []

    def _partners(self):
        """Which bracket closes which, and which opening one each token is in."""
        partner, around, stack = {}, {}, []
        for i, token in enumerate(self.tokens):
            around[i] = self.tokens[stack[-1]].text if stack else ""
            if token.kind != "operator":
                continue
            if token.text in OPENING:
                stack.append(i)
            elif token.text in CLOSING and stack:
                partner[stack.pop()] = i
        return partner, around

    def _unseen(self):
        hidden = set()
        for i, token in enumerate(self.tokens[:-1]):
            if token.text in UNSEEN and self.tokens[i + 1].text == "(":
                hidden.update(range(i, self.partner.get(i + 1, i) + 1))
        return hidden

    def word(self, i):
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ""

    def add(self, kind, first, last, text, shown=None):
        """A fault in the place of the tokens from `first` to `last`."""
        start, end = self.tokens[first].start, self.tokens[last].end
        old = " ".join(self.text[start:end].split())
        description = shown or f"{old} -> {text or 'nothing'}"
        line = self.text.count("\n", 0, start) + 1
        self.faults.append(Fault(kind, line, start, end, text, description))

    def between_blanks(self, i):
        token = self.tokens[i]
        before = self.text[token.start - 1:token.start]
        after = self.text[token.end:token.end + 1]
        return before.isspace() and after.isspace()

    # The kinds of faults.

    def operators(self):
        for i, token in enumerate(self.tokens):
            other = OPERATORS.get(token.text) if token.kind == "operator" else None
            if not other or i in self.unseen or not self.between_blanks(i):
                continue
            # With what is left and right of it, for whoever reads the list.
            shown = f"{self.word(i - 1)} {token.text} {self.word(i + 1)} -> {other}"
            self.add("operator", i, i, other, shown)

    def constants(self):
        for i, token in enumerate(self.tokens):
            if i in self.unseen:
                continue
            if token.text in ("true", "false"):
                other = "false" if token.text == "true" else "true"
                shown = f"{self.word(i - 2)}{self.word(i - 1)} {token.text} -> {other}"
                self.add("constant", i, i, other, shown)
            elif token.kind == "number":
                match = re.match(r"0[xX][0-9a-fA-F']+|[0-9']+", token.text)
                base = 16 if match.group().lower().startswith("0x") else 10
                number = int(match.group().replace("'", ""), base) + 1
                other = str(number) + token.text[match.end():]
                shown = f"{self.word(i - 2)}{self.word(i - 1)} {token.text} -> {other}"
                self.add("constant", i, i, other, shown)

    def conditions(self):
        for i, token in enumerate(self.tokens):
            if token.text == "if" and self.word(i + 1) == "(" and i + 1 in self.partner:
                first, last = i + 2, self.partner[i + 1] - 1
                inside = [self.word(k) for k in range(first, last + 1)]
                if "=" not in inside and ";" not in inside:
                    start, end = self.tokens[first].start, self.tokens[last].end
                    inside = " ".join(self.text[start:end].split())
                    self.add("condition", first, last, f"!({self.text[start:end]})",
                             f"{inside} negated")

    def statements(self):
        """(first, last) of each statement that is only a call or only an assignment."""
        for i, token in enumerate(self.tokens):
            starts = self.word(i - 1) in ("{", "}", ";", "else", "") or (
                self.word(i - 1) == ")" and self.word(i - 2) != "(" and self._closes_head(i - 1))
            if not starts or token.kind != "word" or token.text in NO_CALLS:
                continue
            if self.around[i] == "(":  # the head of a loop
                continue
            k = i
            while k < len(self.tokens) and self.word(k) not in (";", "{", "}", "?"):
                k = self.partner.get(k, k) + 1
            if k < len(self.tokens) and self.word(k) == ";":
                yield i, k

    def _closes_head(self, i):
        opening = next((o for o, c in self.partner.items() if c == i), -1)
        return self.word(opening - 1) in ("if", "for", "while")

    def left_out(self):
        for first, last in self.statements():
            if first in self.unseen:
                continue
            begin = first + 1 if self.word(first) in ("emit", "delete") else first
            words, k = [], begin
            while k < last:
                words.append(k)
                k = self.partner.get(k, k) + 1
            kinds = [self.tokens[k].kind for k in words]
            declares = any(a == "word" and b == "word" for a, b in zip(kinds, kinds[1:]))
            shown = " ".join(self.text[self.tokens[first].start:self.tokens[last].end].split())
            target = next((n for n, k in enumerate(words)
                           if self.word(k) in ("=", "+=", "-=", "|=")), 0)
            assigns = target > 0
            # As in "Type *name = value".
            declares |= any(self.word(k) in ("*", "&", ">") for k in words[:target])
            if declares:
                continue
            if assigns or self.word(first) == "delete" or self.word(last - 1) == ")":
                kind = "assignment left out" if assigns else "call left out"
                self.add(kind, first, last, ";", shown)

    def returns(self):
        for i, token in enumerate(self.tokens):
            if token.text != "return" or i in self.unseen:
                continue
            last = i + 1
            while last < len(self.tokens) and self.word(last) != ";":
                last = self.partner.get(last, last) + 1
            value = [self.word(k) for k in range(i + 1, last)]
            if not value or value in (["{", "}"], ["true"], ["false"], ["nullptr"]):
                continue
            start, end = self.tokens[i + 1].start, self.tokens[last - 1].end
            if any(word in ("==", "!=", "&&", "||", "<=", ">=", "!") for word in value):
                shown = " ".join(self.text[start:end].split())
                self.add("return value", i + 1, last - 1, f"!({self.text[start:end]})",
                         f"{shown} negated")
            else:
                self.add("return value", i + 1, last - 1, "{}")

    def early_returns(self):
        for i, token in enumerate(self.tokens):
            if token.text != "void" or self.word(i - 1) in ("(", ",", "<"):
                continue
            k = i + 1
            while self.tokens[k].kind == "word" or self.word(k) == "::":
                k += 1
                if k >= len(self.tokens):
                    return
            if self.word(k) != "(" or k not in self.partner:
                continue
            name = "".join(self.word(n) for n in range(i + 1, k))
            k = self.partner[k] + 1
            while self.word(k) in ("const", "override", "noexcept", "final"):
                k += 1
            if self.word(k) == "{" and self.word(k + 1) != "}":
                self.add("early return", k, k, "{ return;", f"{name}() does nothing")


def faults_in(text):
    """All faults of a source, in the order of their places."""
    source = Source(text)
    for find in (source.operators, source.constants, source.conditions, source.left_out,
                 source.returns, source.early_returns):
        find()
    return sorted(source.faults, key=lambda fault: (fault.start, fault.kind, fault.text))
