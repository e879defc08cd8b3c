"""A copy of the tree whose sources contain many mutants at once, each behind a switch.

The sources that people work on are never touched. The copy stays where it is, so that the next build
only compiles what differs.
"""
import dataclasses
import pathlib
import re
import subprocess

from mutation.mutants import NOT_TRIED, Candidates, Mutant
from mutation.places import Place, edited

@dataclasses.dataclass
class Placed:
    """A mutant that the copy contains, and the lines that it takes."""

    number: int
    mutant: Mutant
    place: Place
    first: int
    last: int


HERE = pathlib.Path(__file__).resolve().parent
ROUNDS = 25
# What a mutated source may do: an unused variable is no reason not to try.
FLAGS = """
set_source_files_properties({files}
    PROPERTIES COMPILE_OPTIONS "-w;-Wno-narrowing;-fmax-errors=30")
"""
NAMED_LINE = re.compile(r"(src/[\w/.]+\.cpp):(\d+)")


class Copy:
    def __init__(self, root: pathlib.Path, folder: pathlib.Path, jobs: int):
        self._root = root
        self._tree = folder
        self._jobs = ["-j", str(jobs)] if jobs else []
        self.programs = folder / "build" / "dev" / "bin"

    def make(self, numbered: list[tuple[int, Mutant]], programs: list[str]) -> set[int]:
        """Builds the test programs with these mutants, and says which numbers they contain.

        Those that do not compile are given up; of two at the same place the second stays pending.
        """
        places = self._placed(numbered)
        self._refresh(places)
        self._run(["cmake", "--preset", "dev"])
        for _ in range(ROUNDS):
            text = self._build(programs)
            if text is None:
                return {placed.number for of_file in places.values() for placed in of_file}
            dropped = self._drop(text, places)
            if not dropped:
                raise SystemExit(f"The copy in {self._tree} cannot be built:\n{text[-4000:]}")
            print(f"  {dropped} that do not compile are left out", flush=True)
            self._refresh(places)
        raise SystemExit("The copy still does not compile.")

    def _placed(self, numbered: list) -> dict[str, list]:
        files: dict[str, list] = {}
        found: dict[str, Candidates] = {}
        for number, mutant in numbered:
            candidates = found.get(mutant.path)
            if candidates is None and (self._root / mutant.path).exists():
                candidates = found[mutant.path] = Candidates(self._root, mutant.path)
            match = candidates.by_key.get(mutant.key()) if candidates else None
            if match is None:
                mutant.result, mutant.by = NOT_TRIED, "the source has changed"
                continue
            mutant.line, place = match[0].line, match[1]
            lines = (candidates.text.count("\n", 0, at) + 1 for at in (place.start, place.end))
            of_file = files.setdefault(mutant.path, [])
            if not any(placed.place.overlaps(place) for placed in of_file):
                of_file.append(Placed(number, mutant, place, *lines))
        return files

    def _refresh(self, places: dict[str, list]) -> None:
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                                cwd=self._root, capture_output=True, check=True)
        wanted = {}
        for name in listed.stdout.decode().split("\0"):
            if name and (self._root / name).is_file():
                wanted[name] = (self._root / name).read_bytes()
        for path, mutants in places.items():
            if mutants:
                wanted[path] = switched(wanted[path].decode(), mutants).encode()
        wanted["src/platform/base/corvane_mutant.h"] = (HERE / "corvane_mutant.h").read_bytes()
        wanted["tests/fakes/mutant_listener.cpp"] = (HERE / "mutant_listener.cpp").read_bytes()
        files = " ".join(sorted(path.removeprefix("src/") for path in places))
        wanted["src/CMakeLists.txt"] += FLAGS.format(files=files).encode() if files else b""
        for name, contents in wanted.items():
            path = self._tree / name
            if not path.exists() or path.read_bytes() != contents:
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_bytes(contents)
                if (self._root / name).exists():
                    path.chmod((self._root / name).stat().st_mode)
        self._remove_others(set(wanted))

    def _remove_others(self, wanted: set) -> None:
        for folder in ("src", "tests"):
            for path in (self._tree / folder).rglob("*"):
                if path.is_file() and str(path.relative_to(self._tree)) not in wanted:
                    path.unlink()

    def _run(self, command: list[str]) -> None:
        subprocess.run(command, cwd=self._tree, check=True, stdout=subprocess.DEVNULL)

    def _build(self, programs: list[str]) -> str | None:
        """None, or what the compiler said."""
        targets = [f"corvane_{name}_tests" for name in programs]
        done = subprocess.run(["cmake", "--build", "build/dev", *self._jobs, "--target", *targets,
                               "--", "-k", "0"], cwd=self._tree, text=True, errors="replace",
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        return None if done.returncode == 0 else done.stdout

    @staticmethod
    def _drop(text: str, places: dict[str, list]) -> int:
        """Gives up the smallest mutant at each line that is named by an error, else all of its file."""
        count = 0
        for part in text.split("FAILED: ")[1:]:
            errors, others, files = set(), set(), set()
            for line in part.split("\n"):
                if re.match(r"\[\d+/\d+\]", line):
                    break
                for path, number in NAMED_LINE.findall(line):
                    (errors if " error: " in line else others).add((path, int(number)))
            files = {path for path, _ in errors | others if places.get(path)}
            dropped = drop_at(errors, places) or drop_at(others, places)
            if not dropped:
                for path in files:
                    dropped += give_up(places[path], list(places[path]))
            count += dropped
        return count


def drop_at(named: set, places: dict[str, list]) -> int:
    victims = []
    for path, line in sorted(named):
        covering = [placed for placed in places.get(path, []) if placed.first <= line <= placed.last]
        if covering:
            victims.append((path, min(covering, key=lambda p: (p.last - p.first, p.number))))
    return sum(give_up(places[path], [placed]) for path, placed in victims)


def give_up(of_file: list, victims: list) -> int:
    count = 0
    for placed in victims:
        if placed in of_file:
            placed.mutant.result, placed.mutant.by = NOT_TRIED, "does not compile"
            of_file.remove(placed)
            count += 1
    return count


def switched(text: str, mutants: list[Placed]) -> str:
    """The source with every mutant behind its switch, all lines where they were."""
    edits = [(start, end, new.replace("@", str(placed.number)))
             for placed in mutants for start, end, new in placed.place.switched]
    return '#include "platform/base/corvane_mutant.h"\n#line 1\n' + edited(text, edits)
