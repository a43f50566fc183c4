"""How much there is to read.

Lines of C++ and Python; the second count leaves out blank lines, brackets alone, comments and includes.
"""
import re

from .tools import ROOT, goal, share, table

IS_PART = True

NOTHING = re.compile(r"^[ });]*($|[#/]|namespace)")
LIMIT_OF_HELPER = 800


def lines_of(folder):
    """All lines of a folder's sources, and those that say something."""
    count = said = 0
    for path in sorted((ROOT / folder).rglob("*")):
        if path.suffix in (".cpp", ".h", ".py"):
            for line in path.read_text(encoding="utf-8").splitlines():
                count += 1
                said += NOTHING.match(line) is None
    return count, said


def run(_options):
    floors = sorted(f"src/{path.name}" for path in (ROOT / "src").iterdir() if path.is_dir())
    counts = {folder: lines_of(folder) for folder in (*floors, "src", "tests", "benchmarks", "scripts")}
    helper, tests = counts["src/helper"][1], counts["tests"][0]
    everything = sum(counts[folder][0] for folder in ("src", "tests", "benchmarks", "scripts"))
    rows = [[folder, *counts[folder]] for folder in counts]
    return {"goals": [goal("lines of the helper", f"at most {LIMIT_OF_HELPER}", str(helper),
                           helper <= LIMIT_OF_HELPER),
                      goal("tests, of all lines", "less than a third",
                           f"{share(tests, everything)} %", 3 * tests < everything)],
            "tables": [table("Lines", ["folder", "lines", "that say something"], rows)]}
