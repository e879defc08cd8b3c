"""The places of a source where something small can be broken, and how.

Every breakage is written twice: as a person would make it, for the report, and as a switch that is
compiled in beside all others and turned on at run time: `corvane_mutant(@)`, with its number for @.
"""
import dataclasses
import re

from mutation.source import BODY, CODE, LAMBDA, NAMESPACE, Source

MARK = "corvane_mutant(@)"
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>="}
WEAKEST = frozenset(ASSIGNMENTS | {"(", "[", "{", "}", ",", ";", "?", ":", "return", "co_return",
                                   "else", "do"})
LOGICAL = frozenset(WEAKEST | {"&&", "||"})
EQUALITY = frozenset(LOGICAL | {"==", "!=", "&", "|", "^"})
COMPARISONS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}
# What begins a statement that is no expression, or one whose absence nobody could notice.
NO_EXPRESSION = {"return", "break", "continue", "goto", "throw", "using", "typedef", "delete", "static",
                 "const", "constexpr", "auto", "struct", "class", "enum", "union", "static_assert",
                 "template", "friend", "public", "private", "protected", "co_return", "extern"}
NO_CALLEE = {"if", "for", "while", "switch", "catch", "return", "sizeof", "alignof", "decltype",
             "noexcept", "defined", "operator", "assert", "static_assert", "new", "delete"}
UNNOTICED = re.compile(r"\b(reserve|squeeze|shrink_to_fit|Q_ASSERT|assert|static_assert|Q_UNUSED)\b")
LITERAL_MAKERS = {"QStringLiteral", "QLatin1String", "QByteArrayLiteral"}


@dataclasses.dataclass
class Place:
    """One breakage. Edits replace text[start:end] of the source, and never overlap."""

    kind: str
    start: int
    end: int
    switched: list
    plain: list

    def overlaps(self, other: "Place") -> bool:
        return self.start < other.end and other.start < self.end


def edited(text: str, edits: list) -> str:
    parts, at = [], 0
    for start, end, new in sorted(edits, key=lambda edit: edit[:2]):
        parts += [text[at:start], new]
        at = end
    return "".join(parts) + text[at:]


def on_one_line(text: str) -> str:
    return re.sub(r"\s*\n\s*", " ", text)


class Finder:
    def __init__(self, source: Source):
        self.source = source
        self.places: list[Place] = []
        self._fixed = self._compile_time_tokens()

    def find(self) -> list:
        for opening, closing in self.source.code_blocks():
            self._early_return(opening)
            for first, last in self.source.statements(opening, closing):
                self._deleted_statement(first, last)
        for at in range(1, len(self.source.tokens) - 1):
            if at not in self._fixed and not self.source.in_template[at]:
                self._at_token(at)
        self._constants_of_file()
        unique = {(p.start, p.end, str(p.plain)): p for p in reversed(self.places)}
        conditions = {(p.start, p.end) for p in self.places if p.kind == "condition"}
        return sorted((p for p in unique.values() if not (p.kind == "equality" and (p.start, p.end) in conditions)),
                      key=lambda place: (place.start, place.end, place.kind))

    def _at_token(self, at: int) -> None:
        source = self.source
        token = source.tokens[at]
        if token.kind in ("number", "character"):
            self._literal(at)
        elif token.text in ("true", "false"):
            self._replaced("constant", at, f"({MARK} != {token.text})",
                           "false" if token.text == "true" else "true")
        elif token.text in ("if", "while"):
            self._condition(at)
        elif token.text in ("&&", "||") and source.is_spaced(at):
            self._negated(source.back_to(at, LOGICAL), at - 1)
            self._negated(at + 1, source.forward_to(at, LOGICAL))
        elif token.text == "?" and source.is_spaced(at):
            self._negated(source.back_to(at, WEAKEST), at - 1)
        elif token.text in COMPARISONS and source.is_spaced(at):
            self._comparison(at)
        elif token.text in ("+", "-", "+=", "-="):
            self._sign(at)
        elif token.text == "(" and source.tokens[at - 1].kind == "word":
            self._call(at)

    def _add(self, kind: str, first: int, last: int, switched: list, plain: list) -> None:
        if last >= first:
            tokens = self.source.tokens
            self.places.append(Place(kind, tokens[first].start, tokens[last].end, switched, plain))

    def _replaced(self, kind: str, at: int, switched: str, plain: str) -> None:
        token = self.source.tokens[at]
        self._add(kind, at, at, [(token.start, token.end, switched)],
                  [(token.start, token.end, plain)])

    def _around(self, kind: str, first: int, last: int, before: str, after: str, plain: list) -> None:
        if last < first:
            return
        start, end = self.source.tokens[first].start, self.source.tokens[last].end
        self._add(kind, first, last, [(start, start, before), (end, end, after)], plain)

    def _alternative(self, kind: str, first: int, last: int, other: list) -> None:
        """The tokens as they are, or with the edits of `other` made to them."""
        tokens = self.source.tokens
        start, end = tokens[first].start, tokens[last].end
        text = self.source.text[start:end]
        if "//" in text:
            return
        changed = edited(text, [(a - start, b - start, new) for a, b, new in other])
        self._around(kind, first, last, f"({MARK} ? {on_one_line(changed)} : ", ")", other)

    # Conditions

    def _condition(self, at: int) -> None:
        source = self.source
        if source.word(at + 1) != "(" or at + 1 not in source.partner:
            return
        first, last = at + 2, source.partner[at + 1] - 1
        semicolon = source.next_of(first, last, (";",))
        first = semicolon + 1 if semicolon < last else first
        assigned = source.next_of(first, last, ("=",))
        if assigned < last:
            self._declared_condition(at, assigned, last)
        elif source.word(at) == "if":
            self._negated(first, last)
        else:
            start, end = source.tokens[first].start, source.tokens[last].end
            self._around("condition", first, last, f"!{MARK} && static_cast<bool>(", ")",
                         [(start, start, "false && ("), (end, end, ")")])

    def _declared_condition(self, at: int, assigned: int, last: int) -> None:
        name, end = self.source.tokens[assigned - 1], self.source.tokens[last].end
        if self.source.word(at) == "if" and name.kind == "word":
            self._add("condition", at + 2, last,
                      [(end, end, f"; {MARK} != static_cast<bool>({name.text})")],
                      [(end, end, f"; !{name.text}")])

    def _negated(self, first: int, last: int) -> None:
        if last < first:
            return
        start, end = self.source.tokens[first].start, self.source.tokens[last].end
        self._around("condition", first, last, f"({MARK} != static_cast<bool>(", "))",
                     [(start, start, "!("), (end, end, ")")])

    def _comparison(self, at: int) -> None:
        operator = self.source.tokens[at]
        first, last = self.source.back_to(at, EQUALITY), self.source.forward_to(at, EQUALITY)
        if first < at < last + 1:
            kind = "equality" if operator.text in ("==", "!=") else "boundary"
            self._alternative(kind, first, last,
                              [(operator.start, operator.end, COMPARISONS[operator.text])])

    # Constants and signs

    def _literal(self, at: int) -> None:
        token = self.source.tokens[at]
        other = other_literal(token.text)
        if other and self.source.word(at - 1) != "case":
            self._replaced("constant", at, f"({MARK} ? {other} : {token.text})", other)

    def _sign(self, at: int) -> None:
        source, operator = self.source, self.source.tokens[at]
        neighbours = source.tokens[at - 1], source.tokens[at + 1]
        if any(t.kind in ("string", "character") or t.text in LITERAL_MAKERS for t in neighbours):
            return
        other = operator.text.translate(str.maketrans("+-", "-+"))
        plain = [(operator.start, operator.end, other)]
        if operator.text in ("+=", "-="):
            end = source.forward_to(at, frozenset({";", ")"}))
            stop = source.tokens[end].end
            self._add("sign", at, end, [(operator.end, operator.end, f" ({MARK} ? -1 : 1) * ("),
                                        (stop, stop, ")")], plain)
        elif source.is_spaced(at):
            self._add("sign", at, at, [(operator.end, operator.end, f" ({MARK} ? -1 : 1) *")], plain)
        elif operator.text == "-" and source.word(at - 1) in WEAKEST - {"}"}:
            self._replaced("sign", at, f"({MARK} ? 1 : -1) * ", "")

    def _constants_of_file(self) -> None:
        """`constexpr double margin = 14;` beside the functions: constant no more, where it may."""
        scopes = [-1] + [o for o, kind in self.source.brace_kind.items() if kind == NAMESPACE]
        for opening in scopes:
            closing = self.source.partner.get(opening, len(self.source.tokens))
            for first, last in self.source.statements(opening, closing):
                self._constant_of_file(first, last)

    def _constant_of_file(self, first: int, last: int) -> None:
        source = self.source
        head = source.tokens[first]
        number = source.tokens[last - 1]
        other = other_literal(number.text) if number.kind == "number" else None
        if head.text == "constexpr" and other and source.word(last - 2) == "=":
            self._add("constant", first, last - 1,
                      [(head.start, head.end, "const"),
                       (number.start, number.end, f"({MARK} ? {other} : {number.text})")],
                      [(number.start, number.end, other)])

    # Calls

    def _call(self, bracket: int) -> None:
        source = self.source
        name = source.tokens[bracket - 1].text
        if bracket not in source.partner or name in NO_CALLEE or name.isupper():
            return
        last = source.partner[bracket]
        if name in LITERAL_MAKERS:
            self._text(bracket, last)
            return
        first = self._callee(bracket - 1)
        if first is None or name.startswith("Q_"):
            return
        if source.span(first, bracket - 1) in ("std::min", "std::max"):
            token = source.tokens[bracket - 1]
            self._alternative("bound", first, last,
                              [(token.start, token.end, "max" if name == "min" else "min")])
        else:
            self._swapped_arguments(first, bracket, last)

    def _text(self, bracket: int, last: int) -> None:
        literal = self.source.tokens[bracket + 1]
        if last == bracket + 2 and literal.kind == "string" and literal.text.endswith('"'):
            self._alternative("text", bracket - 1, last, [(literal.end - 1, literal.end - 1, "~")])

    def _swapped_arguments(self, first: int, bracket: int, last: int) -> None:
        source = self.source
        arguments = source.arguments(bracket)
        for (a, b), (c, d) in zip(arguments, arguments[1:]):
            texts = source.span(a, b), source.span(c, d)
            if texts[0] == texts[1] or any(text[0] in "[{" for text in texts):
                continue
            self._alternative("arguments", first, last,
                              [(source.tokens[a].start, source.tokens[b].end, texts[1]),
                               (source.tokens[c].start, source.tokens[d].end, texts[0])])

    def _callee(self, name: int) -> int | None:
        """Where `a.b(c)->name` begins, unless it is a name that is being declared."""
        source = self.source
        at = name
        while source.word(at - 1) in ("::", ".", "->"):
            connector = source.word(at - 1)
            at -= 2
            if source.word(at) in (")", "]"):
                while source.word(at) in (")", "]"):
                    at = source.partner.get(at, 1) - 1
                if source.tokens[at].kind != "word":
                    at += 1
            elif source.word(at) == ">":
                return None
            elif source.tokens[at].kind != "word":
                if connector != "::":
                    return None
                at += 1
                break
        before = source.tokens[at - 1]
        declares = (before.kind == "word" and before.text not in ("return", "else", "co_return")) or (
            before.text in (">", "*", "&", "&&", "~") and not source.is_spaced(at - 1))
        return None if declares or at < 1 else at

    # Statements

    def _deleted_statement(self, first: int, last: int) -> None:
        source = self.source
        if first in self._fixed or source.word(first) in NO_EXPRESSION or self._declares(first, last):
            return
        text = source.span(first, last)
        changes = any(source.next_of(first, last, (sign,)) < last for sign in ASSIGNMENTS)
        counts = "++" in text or "--" in text
        if UNNOTICED.search(text) or not (source.word(last - 1) == ")" or changes or counts):
            return
        start, end = source.tokens[first].start, source.tokens[last].end
        self._add("deletion", first, last,
                  [(start, start, f"{{ if (!{MARK}) "), (end, end, " }")], [(start, end, "")])

    def _declares(self, first: int, last: int) -> bool:
        source = self.source
        at = first
        if source.tokens[at].kind != "word":
            return source.word(at) == "["
        while at < last and (source.tokens[at].kind == "word" or source.word(at) == "::"
                             or source.in_template[at]):
            following = source.tokens[at + 1]
            closes = source.tokens[at].kind == "word" or source.word(at) in (">", ">>")
            if closes and following.kind == "word" and not source.in_template[at + 1]:
                return True
            at += 1
        return source.word(at) in ("*", "&", "&&") and not source.is_spaced(at)

    def _early_return(self, opening: int) -> None:
        source = self.source
        kind = source.brace_kind[opening]
        head = [t.text for t in source.tokens[source.head_of[opening]:opening]]
        inside = source.span(opening, source.partner[opening])
        if kind not in (BODY, LAMBDA) or len(inside) < 8 or "constexpr" in head or ":" in head:
            return
        if kind == LAMBDA:
            value = "" if "return " not in inside else None
        else:
            value = "" if "void" in head[:3] or "~" in head else " {}"
            name = head.index("(") - 1 if "(" in head else 0
            if value and name >= 2 and head[name - 1] == "::" and head[name - 2] == head[name]:
                value = ""
            elif value and name == 0:
                value = None
        if value is None or re.match(r"\{\s*return;", inside):
            return
        end = source.tokens[opening].end
        self._add("return", opening, opening,
                  [(end, end, f" if ({MARK}) return{value};")], [(end, end, f" return{value};")])

    def _compile_time_tokens(self) -> set:
        """The tokens that are no code, or that only a compiler calculates with."""
        source = self.source
        code = set()
        for opening, closing in sorted(source.code_blocks()):
            code.update(range(opening, closing))
        for opening, kind in source.brace_kind.items():
            if kind not in CODE and source.word(source.head_of[opening]) in ("struct", "class", "enum"):
                code.difference_update(range(opening, source.partner.get(opening, opening)))
        fixed = set(range(len(source.tokens))) - code
        for opening, closing in source.code_blocks():
            head = source.tokens[source.head_of[opening]:opening]
            if source.brace_kind[opening] == BODY and any(t.text == "constexpr" for t in head):
                fixed.update(range(opening, closing))
            for first, last in source.statements(opening, closing):
                beginning = {source.word(i) for i in range(first, min(first + 3, last))}
                is_unnoticed = UNNOTICED.search(source.span(first, min(first + 4, last)))
                if is_unnoticed or beginning & {"constexpr", "using"}:
                    fixed.update(range(first, last))
        for at, token in enumerate(source.tokens):
            if token.text == "constexpr" and source.word(at - 1) == "if" and at + 1 in source.partner:
                fixed.update(range(at, source.partner[at + 1]))
            elif token.text == "case":
                fixed.update(range(at, source.next_of(at, len(source.tokens), (":",))))
        return fixed


def other_literal(text: str) -> str | None:
    """A number or character that differs from the given one so much that it should be noticed."""
    character = re.fullmatch(r"(\w*)'(.+)'(\w*)", text)
    if character and not text[0].isdigit():
        return f"{character[1]}'{'%' if character[2] == '#' else '#'}'{character[3]}"
    number = re.fullmatch(r"(0[xX][\da-fA-F']+|[\d']+)([a-zA-Z_]\w*)?", text)
    if number:
        digits, suffix = number[1].replace("'", ""), number[2] or ""
        if digits[:2] in ("0x", "0X"):
            return hex(int(digits, 16) + 1) + suffix
        if len(digits) > 1 and digits[0] == "0":
            return f"0{int(digits, 8) ^ 0o40:o}{suffix}"
        value = int(digits)
        return f"{value + 1 if value <= 16 else value * 3 // 2}{suffix}"
    real = re.fullmatch(r"([\d']+\.\d*(?:[eE][+-]?\d+)?)(\w*)", text)
    if real:
        value = float(real[1].replace("'", ""))
        return f"{value * 1.5 if value else 1.0!r}{real[2]}"
    return None


def places_of(text: str) -> list:
    return Finder(Source(text)).find()
