"""What is printed at the end."""
from mutation.mutants import FOLDERS, KILLED, NOT_TRIED, PENDING, SURVIVED, Mutant


def table(mutants: list[Mutant]) -> str:
    lines = ["| folder | tried | killed | survived | killed, % | not tried | pending |",
             "|---|---|---|---|---|---|---|"]
    for folder in [*FOLDERS, "all"]:
        here = [m for m in mutants if folder in ("all", m.folder)]
        count = {result: sum(m.result == result for m in here)
                 for result in (KILLED, SURVIVED, NOT_TRIED, PENDING)}
        tried = count[KILLED] + count[SURVIVED]
        share = f"{100 * count[KILLED] / tried:.0f}" if tried else ""
        if here:
            lines.append(f"| {folder} | {tried} | {count[KILLED]} | {count[SURVIVED]} | {share} |"
                         f" {count[NOT_TRIED]} | {count[PENDING]} |")
    return "\n".join(lines)


def survivors(mutants: list[Mutant]) -> str:
    return "\n".join(told(m) for m in sorted(mutants, key=lambda m: (m.path, m.line))
                     if m.result == SURVIVED)


def told(mutant: Mutant) -> str:
    note = f"  ({mutant.by})" if mutant.by else ""
    return (f"{mutant.path}:{mutant.line}: {mutant.kind}{note}\n"
            f"  -{mutant.before}\n  +{mutant.after}")
