"""Which tests come to a mutant, and whether they notice it."""
import collections
import concurrent.futures
import dataclasses
import os
import pathlib
import re
import signal
import subprocess
import tempfile

from mutation.mutants import KILLED, SURVIVED

PASSED = re.compile(r"\[       OK \] ([^\s,]+).*\((\d+) ms\)")
FAILED = re.compile(r"\[  FAILED  \] ([^\s,(]+[./][^\s,(]+)")
BEGUN = re.compile(r"\[ RUN      \] (\S+)")
# A mutant may remove or write any file that a test can: they are given a temporary folder alone.
ENCLOSED = ["bwrap", "--die-with-parent", "--cap-add", "ALL", "--ro-bind", "/", "/", "--dev-bind", "/dev",
            "/dev", "--bind", "/proc", "/proc", "--tmpfs", "/tmp"]
# How much longer than without a mutant tests may take, and for starting what they need.
SLOWER, START = 5, 25
# More than that, and the whole program is as quick as choosing.
LONGEST_FILTER = 100_000
# A program that takes no longer is run as a whole before a mutant has survived it; of others the
# suites of tests that come to the mutant.
QUICK = 40


@dataclasses.dataclass
class Run:
    status: int | None
    output: str

    @property
    def noticed(self) -> str:
        """The first test that failed, or that was running at the end; empty where all passed."""
        if self.status == 0:
            return ""
        failed = FAILED.search(self.output)
        begun = BEGUN.findall(self.output)
        if failed:
            return failed[1]
        reason = "hangs" if self.status is None else "ends"
        return f"{begun[-1] if begun else 'the start'} ({reason})"


class Programs:
    def __init__(self, folder: pathlib.Path, names: list[str]):
        self._folder = folder.resolve()
        self._scratch = folder.parent / "reached"
        self._scratch.mkdir(exist_ok=True)
        self.names = names
        self._times: dict[str, dict[str, float]] = {}
        self._reached: dict[str, dict[int, set]] = {}

    def run_clean(self, at_once: int) -> None:
        """Runs everything once without a mutant, and writes down which tests come to which.

        As many programs at once as mutants later, so that the times are those that tests then take.
        """
        with concurrent.futures.ThreadPoolExecutor(at_once) as threads:
            for told in threads.map(self._run_clean, self.names):
                print(told, flush=True)

    def _run_clean(self, name: str) -> str:
        with tempfile.NamedTemporaryFile("r", dir=self._scratch) as reached:
            run = self._run(name, "*", -1, 1800, reached.name)
            reached.seek(0)
            self._reached[name] = collections.defaultdict(set)
            for line in reached:
                number, _, test = line.rstrip("\n").partition(" ")
                self._reached[name][int(number)].add(test)
        self._times[name] = {test: int(ms) / 1000 for test, ms in PASSED.findall(run.output)}
        if run.status is None or not self._times[name]:
            raise SystemExit(f"corvane_{name}_tests did not run:\n{run.output[-3000:]}")
        failed = sorted(set(FAILED.findall(run.output)))
        return (f"  {name}: {len(self._times[name])} tests, {sum(self._times[name].values()):.0f} s,"
                f" come to {len(self._reached[name])} mutants"
                + (f"\n    not used, for they fail without a mutant: {', '.join(failed)}" if failed
                   else ""))

    def try_out(self, number: int, path: str) -> tuple[str, str]:
        """The result, and which test noticed the mutant in that source."""
        ran = 0
        for name in self._in_order(path):
            tests = self._reached[name].get(number)
            if not tests:
                continue
            ran += 1
            noticed = self._noticed(name, number, tests)
            if noticed:
                return KILLED, f"{name}: {noticed}"
        return SURVIVED, "" if ran else "no test comes here"

    def _in_order(self, path: str) -> list[str]:
        """The folder's own program first."""
        own = [name for name in reversed(self.names) if f"/{name}/" in path]
        return own + [name for name in self.names if name not in own]

    def _noticed(self, name: str, number: int, tests: set) -> str:
        times = self._times[name]
        chosen = sorted(test for test in tests if test in times)
        # Not in any test: before the first one, or in a thread after the last.
        if "" in tests or not chosen or len(":".join(chosen)) > LONGEST_FILTER:
            return self._noticed_by(name, number, sorted(times))
        # What is made once in a process is noted at the first test that needs it, and others may look.
        suites = {test.rpartition(".")[0] for test in chosen}
        wider = sorted(test for test in times
                       if sum(times.values()) < QUICK or test.rpartition(".")[0] in suites)
        return self._noticed_by(name, number, chosen) or (
            self._noticed_by(name, number, wider) if wider != chosen else "")

    def _noticed_by(self, name: str, number: int, tests: list[str]) -> str:
        times = self._times[name]
        names = ":".join(tests) if len(":".join(tests)) < LONGEST_FILTER else "*"
        limit = START + SLOWER * sum(times[test] for test in tests)
        run = self._run(name, names, number, limit)
        if not run.noticed:
            return ""
        # On a busy machine a test may fail for another reason.
        first = run.noticed.split(" ")[0]
        again = self._run(name, first if first in times else names, number, limit)
        if again.noticed:
            return run.noticed
        return self._run(name, names, number, limit).noticed

    def _run(self, name: str, tests: str, number: int, limit: float, reached: str = "") -> Run:
        environment = {**os.environ, "CORVANE_MUTANT": str(number), "GTEST_FILTER": tests}
        environment.pop("GTEST_BRIEF", None)
        if number > 0:
            environment["GTEST_FAIL_FAST"] = "1"
        environment["CORVANE_MUTANTS_REACHED"] = reached
        with tempfile.TemporaryFile() as output:
            process = subprocess.Popen(self._enclosed(self._folder / f"corvane_{name}_tests"),
                                       cwd=self._scratch, stdin=subprocess.DEVNULL, stdout=output,
                                       stderr=subprocess.STDOUT, start_new_session=True,
                                       env=environment)
            try:
                status = process.wait(limit)
            except subprocess.TimeoutExpired:
                status = None
            finally:
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
                process.wait()
            output.seek(0)
            return Run(status, output.read().decode(errors="replace"))

    def _enclosed(self, program: pathlib.Path) -> list[str]:
        # The tree may itself stand below the folder that is hidden.
        tree, scratch = str(self._folder.parents[2]), str(self._scratch)
        return [*ENCLOSED, "--ro-bind", tree, tree, "--bind", scratch, scratch, "--", str(program)]
