"""What the parts share."""
import os
import pathlib
import subprocess
import sys
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent


class Failure(Exception):
    """Why a part has no figures."""


def goal(what, wanted, found, met):
    return {"what": what, "wanted": wanted, "found": found, "met": bool(met)}


def table(title, columns, rows):
    return {"title": title, "columns": columns, "rows": rows}


def say(text):
    print(text, file=sys.stderr, flush=True)


def run(*command, **more):
    """The finished process, its output as text; Failure when it ended with another status than 0."""
    done = subprocess.run([str(word) for word in command], text=True, check=False,
                          cwd=more.pop("cwd", ROOT), **more)
    if done.returncode != 0:
        raise Failure(f"{command[0]} ended with {done.returncode}\n{(done.stderr or '')[-2000:]}")
    return done


def output(*command, **more):
    return run(*command, capture_output=True, **more).stdout


def install(*lists):
    """Packages of the lists of scripts/packages that are missing."""
    names = " ".join(f'"${{{name}[@]}}"' for name in lists)
    run("bash", "-c", f". scripts/packages && scripts/install-packages {names}")


def build(preset, *targets):
    """Builds targets of a preset, and gives its folder."""
    run("scripts/build", preset, *targets, stdin=subprocess.DEVNULL)
    return ROOT / "build" / preset


def ctest(folder, *arguments, **environment):
    """Runs tests, as root in scripts/test-place where it is root; the test cases of its report."""
    report = folder / "proof-report.xml"
    report.unlink(missing_ok=True)
    place = [ROOT / "scripts/test-place"] if os.geteuid() == 0 else []
    command = [*place, "ctest", "--test-dir", folder, "--quiet", "--output-junit", report, *arguments]
    with open(folder / "proof-report.log", "w", encoding="utf-8") as log:
        subprocess.run([str(word) for word in command], stdin=subprocess.DEVNULL, stdout=log,
                       stderr=log, cwd=ROOT, check=False, env={**os.environ, **environment})
    if not report.is_file():
        raise Failure(f"no test ran, see {folder.relative_to(ROOT)}/proof-report.log")
    return xml.etree.ElementTree.parse(report).findall("testcase")


def failed(cases):
    return [case.get("name") for case in cases if case.get("status") != "run"]


def listed(path):
    """What a list of docs/proof holds: headings are paths of sources, and what stands below one is a line
    with " ## " and a reason behind it. Triples of source, line and reason."""
    source = ""
    for line in path.read_text(encoding="utf-8").splitlines() if path.is_file() else []:
        if line.startswith("src/"):
            source = line.strip()
        elif line.strip() and not line.startswith("#"):
            text, _, reason = line.partition(" ## ")
            yield source, text.strip(), reason.strip()


def grouped(number):
    return f"{number:,}"


def share(part, whole):
    """A percentage, rounded down: what is not all is never shown as all."""
    return int(1000 * part / whole) / 10 if whole else 100.0
