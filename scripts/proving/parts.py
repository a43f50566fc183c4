"""Finds the parts and runs one."""
import argparse
import dataclasses
import importlib
import pathlib
import pkgutil
import time
from typing import Callable, Optional

from . import report
from .tools import Failure, say


@dataclasses.dataclass
class Part:
    title: str
    text: str
    run: Callable
    add_options: Optional[Callable]


def load(name):
    """The part of that name, or None when the module is none."""
    module = importlib.import_module(f"proving.{name}")
    if not hasattr(module, "run") or not getattr(module, "IS_PART", False):
        return None
    title, _, text = (module.__doc__ or name).strip().partition("\n")
    return Part(title.rstrip("."), text.strip(), module.run, getattr(module, "add_options", None))


def names():
    folder = str(pathlib.Path(__file__).parent)
    return sorted(name for _, name, _ in pkgutil.iter_modules([folder]) if load(name) is not None)


def measure(name, arguments):
    """Runs a part, keeps its figures and renews the page; the exit status."""
    part = load(name)
    parser = argparse.ArgumentParser(prog=f"scripts/proof {name}", description=part.title)
    if part.add_options is not None:
        part.add_options(parser)
    options = parser.parse_args(arguments)
    before = report.commit()
    begun = time.monotonic()
    try:
        figures = part.run(options)
    except Failure as failure:
        say(f"{name}: {failure}")
        return 1
    report.keep(name, figures, before, time.monotonic() - begun)
    report.write_page()
    missed = [goal for goal in figures.get("goals", []) if not goal["met"]]
    for one in figures.get("goals", []):
        say(f"{one['what']}: {one['found']}; wanted {one['wanted']}"
            f"{'' if one['met'] else ' (not reached)'}")
    return 2 if missed else 0
