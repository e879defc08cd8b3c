"""Breakages as they are kept in a results file, and how they are found again in a changed source."""
import dataclasses
import json
import pathlib
import random

from mutation.places import Place, edited, places_of

FOLDERS = ["input", "core", "services", "shelf", "preview", "app", "platform"]
# How often each kind is taken, of those that a folder has.
WEIGHTS = {"condition": 5, "deletion": 5, "constant": 4, "return": 2, "sign": 2, "arguments": 3,
           "boundary": 2, "equality": 1, "bound": 1, "text": 1}
# What became of a mutant.
PENDING, KILLED, SURVIVED, NOT_TRIED = "pending", "killed", "survived", "not tried"


@dataclasses.dataclass
class Mutant:
    path: str
    line: int
    kind: str
    before: str
    after: str
    nth: int
    result: str = PENDING
    by: str = ""

    @property
    def folder(self) -> str:
        return self.path.split("/")[1]

    def key(self) -> tuple:
        """Independent of the line's number, so that it stands when something above has changed."""
        return self.path, self.kind, self.before, self.after, self.nth


class Candidates:
    """Every mutant of a file, with the place that it changes."""

    def __init__(self, root: pathlib.Path, path: str):
        self.path = path
        self.text = (root / path).read_text(encoding="utf-8")
        self.by_key: dict[tuple, tuple[Mutant, Place]] = {}
        for place in places_of(self.text):
            mutant = self._mutant(place)
            self.by_key[mutant.key()] = mutant, place

    def _mutant(self, place: Place) -> Mutant:
        line, last = (self.text.count("\n", 0, at) + 1 for at in (place.start, place.end))
        # A function that returns at once is told by its head.
        first = line - 1 if place.kind == "return" and line > 1 else line
        changed = edited(self.text, place.plain)
        grown = changed.count("\n") - self.text.count("\n")
        before = self._lines(self.text, first, last)
        after = self._lines(changed, first, last + grown)
        nth = 0
        while (self.path, place.kind, before, after, nth) in self.by_key:
            nth += 1
        return Mutant(self.path, line, place.kind, before, after, nth)

    @staticmethod
    def _lines(text: str, first: int, last: int) -> str:
        lines = [line.strip() for line in text.split("\n")[first - 1:last]]
        if len(lines) > 6:
            lines = lines[:3] + ["..."] + lines[-2:]
        return " ".join(line for line in lines if line)


def sample(root: pathlib.Path, paths: list[str], count: int, seed: str) -> list[Mutant]:
    """Up to `count` mutants of these files whose places do not overlap."""
    chance = random.Random(seed)
    of_kind: dict[str, list] = {}
    for path in paths:
        for mutant, place in Candidates(root, path).by_key.values():
            of_kind.setdefault(mutant.kind, []).append((mutant, place))
    for places in of_kind.values():
        chance.shuffle(places)
    taken: list[tuple[Mutant, Place]] = []
    while len(taken) < count and any(of_kind.values()):
        kinds = [kind for kind in sorted(of_kind) if of_kind[kind]]
        kind = chance.choices(kinds, [WEIGHTS[kind] for kind in kinds])[0]
        mutant, place = of_kind[kind].pop()
        if not any(m.path == mutant.path and p.overlaps(place) for m, p in taken):
            taken.append((mutant, place))
    return [mutant for mutant, _ in taken]


def load(path: pathlib.Path) -> list[Mutant]:
    return [Mutant(**entry) for entry in json.loads(path.read_text(encoding="utf-8"))]


def save(path: pathlib.Path, mutants: list[Mutant]) -> None:
    beside = path.with_suffix(".new")
    beside.write_text(json.dumps([dataclasses.asdict(m) for m in mutants], indent=1,
                                 ensure_ascii=False), encoding="utf-8")
    beside.replace(path)
