"""A C++ source as tokens, brackets and statements.

No parser: what is looked for are places where a small change very probably still compiles, and a
place that does not is dropped when the compiler says so. Sources are formatted, which tells
comparisons (`a < b`) from templates (`QList<int>`) and products (`a * b`) from pointers (`T *a`).
"""
import bisect
import dataclasses
import re

TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*)
  | (?P<string>(?:u8|u|U|L)?R"(?P<delimiter>[^()\\\s]{0,16})\(.*?\)(?P=delimiter)"\w*
             |(?:u8|u|U|L)?"(?:[^"\\\n]|\\.)*"\w*)
  | (?P<character>(?:u8|u|U|L)?'(?:[^'\\\n]|\\.)+'\w*)
  | (?P<number>0[xX][0-9a-fA-F']+\w*|\d[\d']*(?:\.\d*)?(?:[eE][+-]?\d+)?\w*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<mark><=>|->\*|<<=|>>=|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|\S)
""", re.S | re.M | re.X)
PAIRS = {"(": ")", "[": "]", "{": "}"}
# What a brace may open.
NAMESPACE, TYPE, BODY, LAMBDA, BLOCK, LIST = "namespace type body lambda block list".split()
CODE = (BODY, LAMBDA, BLOCK)
CONTROL = ("if", "for", "while", "switch", "catch")


@dataclasses.dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


class Source:
    def __init__(self, text: str):
        self.text = text
        self.tokens = [Token(m.lastgroup if m.lastgroup != "delimiter" else "string", m[0],
                             m.start(), m.end())
                       for m in TOKEN.finditer(text)
                       if m.lastgroup not in ("comment", "directive")]
        self._line_starts = [0] + [m.end() for m in re.finditer("\n", text)]
        self.partner = self._matched()
        self.in_template = self._template_arguments()
        self.brace_kind: dict[int, str] = {}
        self.head_of: dict[int, int] = {}
        self._classify_braces()

    def line(self, offset: int) -> int:
        return bisect.bisect_right(self._line_starts, offset)

    def word(self, index: int) -> str:
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ""

    def span(self, first: int, last: int) -> str:
        """The text of the tokens from `first` to `last`, both included."""
        return self.text[self.tokens[first].start:self.tokens[last].end]

    def is_spaced(self, index: int) -> bool:
        """Whether white space stands on both sides, as beside operators with two operands."""
        token = self.tokens[index]
        return self.text[token.start - 1].isspace() and self.text[token.end].isspace()

    def code_blocks(self):
        """(opening, closing) brackets of everything that holds statements."""
        for opening, kind in self.brace_kind.items():
            if kind in CODE and opening in self.partner:
                yield opening, self.partner[opening]

    def statements(self, opening: int, closing: int):
        """(first, last) tokens of the plain statements right inside a block; `last` is its `;`."""
        at = opening + 1
        while at < closing:
            text = self.word(at)
            if text == "{":
                at = self.partner.get(at, closing) + 1
            elif text in CONTROL:
                bracket = at + (2 if self.word(at + 1) == "constexpr" else 1)
                at = self.partner.get(bracket, bracket) + 1
            elif text in ("else", "do", "try", ";"):
                at += 1
            elif text in ("case", "default"):
                at = self.next_of(at, closing, (":",)) + 1
            else:
                last = self.next_of(at, closing, (";",))
                if last < closing:
                    yield at, last
                at = last + 1

    def next_of(self, at: int, limit: int, wanted: tuple) -> int:
        """The first of `wanted` at the same depth, or `limit`."""
        while at < limit and self.word(at) not in wanted:
            at = self.partner.get(at, at) + 1 if self.word(at) in PAIRS else at + 1
        return min(at, limit)

    def back_to(self, at: int, stops: frozenset) -> int:
        """The index after the nearest token to the left, at the same depth, that is in `stops`."""
        at -= 1
        while at >= 0:
            closes = self.word(at) in (")", "]") or (
                self.word(at) == "}" and self.brace_kind.get(self.partner.get(at)) in (LIST, LAMBDA))
            if closes:
                at = self.partner.get(at, at)
            elif self.word(at) in PAIRS or self._is_stop(at, stops):
                break
            at -= 1
        return at + 1

    def forward_to(self, at: int, stops: frozenset) -> int:
        """The index before the nearest token to the right, at the same depth, that is in `stops`."""
        at += 1
        while at < len(self.tokens):
            if self.word(at) in PAIRS and self.brace_kind.get(at, LIST) in (LIST, LAMBDA):
                at = self.partner.get(at, at)
            elif self.word(at) in PAIRS.values() or self._is_stop(at, stops):
                break
            at += 1
        return at - 1

    def _is_stop(self, at: int, stops: frozenset) -> bool:
        return self.word(at) in stops and not self.in_template[at]

    def arguments(self, bracket: int) -> list:
        """(first, last) tokens of what stands between the commas of a bracket."""
        result = []
        at, end = bracket + 1, self.partner[bracket]
        while at < end:
            comma = at
            while comma < end and not (self.word(comma) == "," and not self.in_template[comma]):
                comma = self.partner.get(comma, comma) + 1 if self.word(comma) in PAIRS else comma + 1
            result.append((at, comma - 1))
            at = comma + 1
        return result

    def _matched(self) -> dict:
        partner, stack = {}, []
        for index, token in enumerate(self.tokens):
            if token.kind != "mark":
                continue
            if token.text in PAIRS:
                stack.append(index)
            elif token.text in PAIRS.values() and stack:
                opening = stack.pop()
                partner[opening], partner[index] = index, opening
        return partner

    def _template_arguments(self) -> list:
        inside, depth = [], 0
        for index, token in enumerate(self.tokens):
            opens = token.text == "<" and (self.word(index - 1) == "template"
                                           or not self.text[token.start - 1].isspace())
            if opens:
                depth += 1
            inside.append(depth > 0)
            if depth and token.text in (">", ">>"):
                depth = max(0, depth - len(token.text))
            elif token.text in (";", "{", "}"):
                depth = 0
        return inside

    def _classify_braces(self) -> None:
        stack, head = [], 0
        for index, token in enumerate(self.tokens):
            if token.kind != "mark":
                continue
            if token.text == "{":
                kind = self._kind_of_brace(index, head, stack[-1] if stack else NAMESPACE)
                self.brace_kind[index], self.head_of[index] = kind, head
                stack.append(kind)
                if kind != LIST:
                    head = index + 1
            elif token.text == "}" and stack:
                if stack.pop() != LIST:
                    head = index + 1
            elif token.text == ";":
                head = index + 1

    def _kind_of_brace(self, at: int, head: int, outer: str) -> str:
        if self._begins_lambda(at):
            return LAMBDA
        if outer == LIST:
            return LIST
        words = self._at_depth_zero(head, at)
        if outer in CODE:
            return self._kind_in_code(self.word(at - 1), words)
        if "namespace" in words:
            return NAMESPACE
        if "enum" in words:
            return LIST
        if "(" not in words:
            return TYPE if {"class", "struct", "union"} & set(words) and "=" not in words else LIST
        if "=" in words and "operator" not in words:
            return LIST
        after = words[words.index("("):]
        initialises = ":" in after and (self.tokens[at - 1].kind == "word"
                                        and self.word(at - 1) not in ("const", "noexcept"))
        return LIST if initialises else BODY

    @staticmethod
    def _kind_in_code(before: str, words: list) -> str:
        if words and words[0] in ("struct", "class", "union"):
            return TYPE
        if before in (")", ";", "{", "}", ":", "else", "do", "try"):
            return BLOCK
        return LIST

    def _begins_lambda(self, at: int) -> bool:
        before = self.word(at - 1)
        if before == "]":
            return True
        for back in range(at - 1, max(at - 16, 0), -1):
            text = self.word(back)
            if text in (";", "{", "}", "="):
                return False
            if text == ")":
                ends = back == at - 1 or self.word(back + 1) in ("->", "mutable", "noexcept")
                opening = self.partner.get(back, 0)
                return ends and self.word(opening - 1) == "]"
        return False

    def _at_depth_zero(self, first: int, end: int) -> list:
        words = []
        while first < end:
            words.append(self.word(first))
            first = self.partner.get(first, first) + 1 if self.word(first) in PAIRS else first + 1
        return words
