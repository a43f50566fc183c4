"""Mutants.

Small faults put into the sources one at a time, where a seed says: other comparisons, other arithmetic, constants one
higher or lower, conditions reversed, calls and assignments left out, arguments exchanged. The test programs that concern
the source should notice each.
What does not compile, or comes out as the same program, counts for nothing. What nobody noticed and yet is no fault,
because no run of the program can differ, is listed with the reason and counts for nothing either.
"""
import pathlib

from . import _mutation as mutation
from .tools import ROOT, goal, share, table

IS_PART = True

EQUIVALENTS = ROOT / "docs/proof/equivalent-mutants"
WANTED = {"helper": 95, "engine": 85}

# The programs of tests, and for a source or a folder those that concern it, the quickest first.
PROGRAMS = {
    "helper": ["helper_session_test", "helper_oracle_test", "helper_takeover_test",
               "helper_canary_test", "helper_launch_test", "helper_serve_test",
               "helper_install_test"],
    "engine": ["query", "platform_text", "platform_host_statistics", "platform_process_table",
               "consolidator", "control_simulated", "platform_costly_figures",
               "platform_process_details", "platform_live_processes", "consolidator_real"]}
LOGIC = ["helper_session_test", "helper_oracle_test", "helper_serve_test", "helper_canary_test"]
FIRST = {
    "src/helper/RealSystem.cpp": ["helper_serve_test", "helper_canary_test"],
    "src/helper/Channel.cpp": ["helper_serve_test"],
    "src/helper/CallFilter.h": ["helper_session_test", "helper_takeover_test"],
    "src/helper/Confinement.cpp": ["helper_serve_test", "helper_takeover_test",
                                   "helper_canary_test", "helper_launch_test"],
    "src/helper/Launch.cpp": ["helper_launch_test", "helper_serve_test", "helper_install_test"],
    "src/helper/OwnFile.cpp": ["helper_install_test", "helper_serve_test"],
    "src/helper/main.cpp": ["helper_serve_test", "helper_install_test", "helper_launch_test"],
    "src/permission_step/main.cpp": ["helper_install_test"],
    "src/consolidator": ["consolidator", "consolidator_real", "control_simulated"],
    "src/process_control": ["control_simulated", "consolidator"],
    "src/channel": ["control_simulated"],
    "src/query": ["query"],
    "src/platform": ["platform_text", "platform_process_table", "platform_host_statistics",
                     "platform_costly_figures", "platform_process_details", "consolidator", "query"],
}
# Programs that a test starts.
STARTED = ["Lurkwell_helper", "Lurkwell_permissions"]
BUILT_WITH = {name: STARTED for name in PROGRAMS["helper"][2:]}
BUILT_WITH["helper_takeover_test"] = ["helper_takeover_probe"]
BUILT_WITH["helper_install_test"] = [*STARTED, "helper_packaged", "permissions_packaged"]
MORE = {}


def sources(group):
    if group == "helper":
        found = [*(ROOT / "src/helper").glob("*"), *(ROOT / "src/permission_step").glob("*.cpp")]
        return [str(path.relative_to(ROOT)) for path in found if path.suffix in (".cpp", ".h")]
    folders = ("src/consolidator", "src/platform", "src/process_control", "src/query")
    found = [path for folder in folders for path in (ROOT / folder).glob("*.cpp")]
    # Of the real machine's services, what reads the kernel's texts.
    found += [ROOT / f"src/platform/linux/{name}.cpp"
              for name in ("ProcessReader", "FigureFiles", "ProcFiles", "LinuxHostStatistics",
                           "ProcpsDialect", "ParentClosure", "UnitFiles", "GraphicsUsage",
                           "DetailsText", "DetailsSockets", "NetworkAccounts", "DescriptorFigures")]
    return sorted(str(path.relative_to(ROOT)) for path in found if path.is_file())


def programs_for(path):
    """The test programs that concern a source, the quickest first."""
    folder = str(pathlib.Path(path).parent)
    return FIRST.get(path) or FIRST.get(folder) or FIRST.get(str(pathlib.Path(folder).parent)) or LOGIC


def add_options(parser):
    parser.add_argument("--of", choices=sorted(PROGRAMS), action="append", help="one of the two alone")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=200, help="faults in each (default 200)")
    parser.add_argument("--again", action="store_true",
                        help="tries what survived before once more, as after new tests")
    parser.add_argument("--minutes", type=int, default=240, help="of each; the rest is left out")


def measure(group, options):
    chosen, of_all = mutation.choose(sources(group), options.count, options.seed)
    trial = mutation.Trial(PROGRAMS[group], MORE, BUILT_WITH)
    trial.begin()
    verdicts = mutation.try_all(group, chosen, trial, programs_for, options.minutes,
                                options.again)
    rows = mutation.survivors(verdicts, mutation.equivalents(EQUIVALENTS))
    ends = list(verdicts.values())
    void = sum(end in ("compiler", "same") for end in ends)
    equivalent = sum(bool(row[2]) for row in rows)
    return {"chosen": len(chosen), "tried": len(ends), "possible": of_all, "seed": options.seed, "void": void,
            "equivalent": equivalent, "counted": len(ends) - void - equivalent,
            "killed": len(ends) - void - len(rows), "by_time": sum("by its time" in end for end in ends),
            "survivors": rows}


def run(options):
    from . import report
    mutation.prepare()
    kept = report.kept("mutants").get("groups", {})
    for group in options.of or sorted(PROGRAMS, reverse=True):
        kept[group] = {"commit": report.commit(), **measure(group, options)}
    goals, tables, rows = [], [], []
    for group in sorted(kept, reverse=True):
        one = kept[group]
        found = share(one["killed"], one["counted"])
        goals.append(goal(f"mutants of the {group} that a test notices", f"{WANTED[group]} %",
                          f"{found} % of {one['counted']}; {one['tried']} of {one['chosen']} were"
                          " tried", found >= WANTED[group] and one["tried"] == one["chosen"]))
        rows.append([group, one["commit"], one["seed"], one["possible"], one["chosen"], one["tried"], one["void"],
                     one["equivalent"], one["killed"], one["by_time"],
                     one["counted"] - one["killed"]])
        tables.append(table(f"What no test of the {group} noticed", ["line", "became",
                                                                     "why it is no fault"],
                            one["survivors"]))
    tables.insert(0, table("Faults", ["of", "commit", "seed", "possible", "chosen", "tried",
                                      "no other program",
                                      "no fault", "noticed", "of them by time", "not noticed"], rows))
    return {"goals": goals, "tables": tables, "groups": kept}
