"""Keeps the figures of the parts, and writes the page from them."""
import datetime
import json
import os
import platform
import subprocess

from .tools import ROOT, Failure, output, say

FIGURES = ROOT / "docs/proof"
PAGE = ROOT / "docs/proof.md"

HEAD = """# Proof

What was measured, when, and of which commit. `scripts/proof PART` measures a part again; this page is written by it
from the figures in `docs/proof`, and by nothing else. [testing.md](testing.md) says what runs with every change and
what by hand.
"""


def commit():
    """The short name of the commit that is checked out; "and changes" where the tree differs."""
    try:
        name = output("git", "rev-parse", "--short=9", "HEAD").strip()
        changed = output("git", "status", "--porcelain", "--untracked-files=no", "--", ".",
                         ":!docs/proof", ":!docs/proof.md").strip()
    except (Failure, OSError):
        return "unknown"
    return name + (" and changes" if changed else "")


def machine():
    with open("/etc/os-release", encoding="utf-8") as file:
        release = dict(line.rstrip().split("=", 1) for line in file if "=" in line)
    system = release.get("PRETTY_NAME", "Linux").strip('"')
    return (f"{os.cpu_count()} processors, {system}, Linux {platform.release().split('-')[0]},"
            f" {platform.machine()}")


def kept(name):
    """The figures that a part has kept, {} for none."""
    path = FIGURES / f"{name}.json"
    return json.loads(path.read_text(encoding="utf-8")) if path.is_file() else {}


def keep(name, figures, of_commit, seconds):
    """Writes the figures of a part, with where they are from."""
    FIGURES.mkdir(exist_ok=True)
    all_of_it = {"date": datetime.datetime.now(datetime.timezone.utc).date().isoformat(),
            "commit": of_commit, "seconds": round(seconds), "machine": machine(), **figures}
    text = json.dumps(all_of_it, indent=1, ensure_ascii=False) + "\n"
    (FIGURES / f"{name}.json").write_text(text, encoding="utf-8")


def cells(row):
    return "| " + " | ".join(str(cell).replace("|", "\\|") for cell in row) + " |"


def rows(columns, lines):
    """A table; columns of numbers are right-aligned."""
    def numeric(index):
        return bool(lines) and all(isinstance(line[index], (int, float)) for line in lines)
    rule = "| " + " | ".join("---:" if numeric(i) else "---" for i in range(len(columns))) + " |"
    shown = [[f"{cell:,}" if isinstance(cell, (int, float)) else cell for cell in line]
             for line in lines]
    return [cells(columns), rule, *(cells(line) for line in shown)]


def duration(seconds):
    return f"{seconds} s" if seconds < 120 else f"{seconds / 60:.0f} minutes"


def section(name, part, figures):
    text = [f"## {part.title}", "",
            f"`scripts/proof {name}`, {figures['date']}, commit {figures['commit']},"
            f" {duration(figures['seconds'])} on {figures['machine']}.", ""]
    if part.text:
        text += [part.text, ""]
    for one in figures.get("tables", []):
        if one["rows"]:
            text += [one["title"] + ":", "", *rows(one["columns"], one["rows"]), ""]
    for note in figures.get("notes", []):
        text += [note, ""]
    return text


def page():
    from . import parts
    there = {path.stem: kept(path.stem) for path in sorted(FIGURES.glob("*.json"))}
    summary, sections = [], []
    for name in parts.names():
        if name not in there:
            continue
        figures = there.pop(name)
        for one in figures.get("goals", []):
            found = one["found"] if one["met"] else f"{one['found']} (not reached)"
            summary.append([one["what"], one["wanted"], found, figures["date"], figures["commit"]])
        sections += section(name, parts.load(name), figures)
    if there:
        raise Failure(f"docs/proof has figures of no part: {', '.join(there)}")
    goals = rows(["what", "wanted", "found", "on", "of commit"], summary) + [""] if summary else []
    return "\n".join([HEAD, *goals, *sections]).rstrip() + "\n"


def write_page():
    PAGE.write_text(page(), encoding="utf-8")


def check_page():
    there = PAGE.read_text(encoding="utf-8") if PAGE.is_file() else ""
    if there == page():
        return 0
    say("docs/proof.md is not what its figures give: scripts/proof --page writes it.")
    subprocess.run(["diff", "-u", PAGE, "-"], input=page(), text=True, check=False)
    return 1
