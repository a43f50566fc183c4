"""Small faults in sources, put in one at a time: what they can be, and whether a test notices.

Everything happens in a copy of the tree below build/mutants. Tests run as process 1 of a pid namespace:
a helper that signals the wrong process must find none of the machine's.
"""
import dataclasses
import hashlib
import json
import math
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import time

from .tools import ROOT, Failure, install, listed, output, run, say

PLACE = ROOT / "build/mutants"
TREE = PLACE / "tree"
BUILD = PLACE / "build"
# How much more processor time than without a fault a process of the tests may take; and how much longer
# they may last, which a busy machine must not decide.
PATIENCE = 4
PATIENCE_WITH_WAITS = 6

TOKEN = re.compile(
    r"(?P<comment>//[^\n]*|/\*.*?\*/)"
    r'|(?P<string>R"(?P<mark>[^(]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\')'
    r"|(?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)"
    r"|(?P<number>\b\d[\w']*)"
    r"|(?P<word>[A-Za-z_]\w*)"
    r"|(?P<sign><=>|<<=|>>=|->|::|\+\+|--|&&|\|\||<<|>>|<=|>=|==|!=|\+=|-=|\*=|/=|%=|\|=|&=|\^=|[^\s\w])",
    re.DOTALL | re.MULTILINE)

# Binary signs stand between blanks, so that brackets of templates and signs of one operand differ.
BETWEEN_BLANKS = {
    "<": ["<=", ">="], ">": [">=", "<="], "<=": ["<", ">"], ">=": [">", "<"], "==": ["!="],
    "!=": ["=="], "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"], "&&": ["||"],
    "||": ["&&"], "&": ["|"], "|": ["&"], "<<": [">>"], ">>": ["<<"], "+=": ["-="], "-=": ["+="],
    "|=": ["&="], "&=": ["|="]}
ANYWHERE = {"++": ["--"], "--": ["++"]}
WORDS = {"true": ["false"], "false": ["true"], "min": ["max"], "max": ["min"], "break": ["continue"],
         "continue": ["break"]}
# A statement of one line that calls or assigns, and declares nothing.
STATEMENT = re.compile(r"^(?!return\b|using\b|delete\b|case\b|default\b|else\b|goto\b)"
                       r"(?:\+\+|--|\*)?[A-Za-z_][\w:.>\[\]-]*(?:<[^<>]*>)?\s*"
                       r"(?:\(.*\)|(?:[-+*|&]|<<|>>)?=[^=].*|\+\+|--);$")


@dataclasses.dataclass(frozen=True)
class Mutant:
    path: str
    line: int
    column: int
    old: str
    new: str

    def apply(self, text):
        lines = text.split("\n")
        line = lines[self.line - 1]
        if line[self.column:self.column + len(self.old)] != self.old:
            raise Failure(f"{self.path}:{self.line} has changed meanwhile")
        lines[self.line - 1] = line[:self.column] + self.new + line[self.column + len(self.old):]
        return "\n".join(lines)

    def shown(self):
        return f"`{self.old}` → `{self.new}`" if self.new else f"`{self.old}` left out"


def closing(line, place):
    """The place of the bracket that closes the one at `place`, in the same line; -1 for none."""
    depth = 0
    for at in range(place, len(line)):
        depth += (line[at] == "(") - (line[at] == ")")
        if depth == 0:
            return at
    return -1


def mutants_of(path, text):
    """All faults of a file, in order. It is formatted as all sources are."""
    lines = text.split("\n")
    starts = [0]
    for line in lines:
        starts.append(starts[-1] + len(line) + 1)
    found = []
    quiet = set()
    number = 0
    for token in TOKEN.finditer(text):
        while starts[number + 1] <= token.start():
            number += 1
        line, column, word = lines[number], token.start() - starts[number], token.group()
        if token.lastgroup in ("comment", "directive", "string", "mark"):
            quiet.add(number)
            if token.lastgroup == "directive" or "\n" in word:
                continue
        if line.lstrip().startswith(("static_assert", "template", "namespace", "using", "#")):
            continue

        def add(new, old=word, at=column, of=number):
            found.append(Mutant(path, of + 1, at, old, new))

        if token.lastgroup == "number" and re.fullmatch(r"\d+", word):
            base, form = (8, "0{:o}") if word[0] == "0" < word[1:] else (10, "{}")
            for new in (int(word, base) + 1, int(word, base) - 1):
                if new >= 0:
                    add(form.format(new))
        elif token.lastgroup == "word":
            for new in WORDS.get(word, []):
                add(new)
            if word in ("if", "while"):
                opening = line.find("(", column)
                end = closing(line, opening) if opening >= 0 else -1
                condition = line[opening + 1:end]
                if end > 0 and ";" not in condition and "=" != condition.strip():
                    add(f"!({condition})", condition, opening + 1)
        elif token.lastgroup == "sign":
            spaced = line[column - 1:column] == " " and line[column + len(word):][:1] in (" ", "")
            for new in BETWEEN_BLANKS.get(word, []) if spaced else ANYWHERE.get(word, []):
                add(new)
            if word == "!" and re.match(r"[\w(]", line[column + 1:]):
                add("")
            if word == "?" and spaced:
                rest = re.match(r"\? ([^?:;]+) : ([^?:;]+)([;,)])", line[column:])
                if rest and rest[2].count("(") == rest[2].count(")"):
                    old = f"{rest[1]} : {rest[2]}"
                    add(f"{rest[2]} : {rest[1]}", old, column + 2)
            if word == "(":
                two = re.match(r"\(([\w.]+), ([\w.]+)\)", line[column:])
                if two and two[1] != two[2]:
                    add(f"({two[2]}, {two[1]})", two[0])
    before = "{"
    for number, line in enumerate(lines):
        bare = line.strip()
        if STATEMENT.match(bare) and bare.count("(") == bare.count(")") and \
                re.search(r"([;{}:]|else|do)$|^(if|for|while)\b.*\)$|^//", before):
            found.append(Mutant(path, number + 1, len(line) - len(line.lstrip()), bare, ";"))
        before = bare or before
    return sorted(set(found), key=lambda mutant: (mutant.line, mutant.column, mutant.new))


def choose(paths, count, seed):
    """`count` faults: from lines that are equally likely, none twice before each had its turn."""
    by_line = {}
    for path in paths:
        text = (ROOT / path).read_text(encoding="utf-8")
        for mutant in mutants_of(path, text):
            by_line.setdefault((path, mutant.line), []).append(mutant)
    chance = random.Random(seed)
    chosen = []
    while len(chosen) < count and any(by_line.values()):
        lines = [line for line in sorted(by_line) if by_line[line]]
        chance.shuffle(lines)
        for line in lines[:count - len(chosen)]:
            chosen.append(by_line[line].pop(chance.randrange(len(by_line[line]))))
    return chosen, sum(len(rest) for rest in by_line.values()) + len(chosen)


def prepare():
    """A copy of the tree, configured."""
    install("build_packages", "test_packages")
    TREE.mkdir(parents=True, exist_ok=True)
    wanted = set(output("git", "ls-files", "-z").split("\0")) - {""}
    for path in wanted:
        source, copy = ROOT / path, TREE / path
        if not source.is_file():
            continue
        if not copy.is_file() or copy.read_bytes() != source.read_bytes():
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, copy)
    for copy in TREE.rglob("*"):
        if copy.is_file() and str(copy.relative_to(TREE)) not in wanted:
            copy.unlink()
    if not (BUILD / "build.ninja").is_file():
        run("cmake", "-G", "Ninja", "-S", TREE, "-B", BUILD, "-DCMAKE_BUILD_TYPE=Debug",
            "-DCMAKE_CXX_FLAGS=-O1", "-DCMAKE_CXX_FLAGS_DEBUG=", "-DLURKWELL_EXPORTER=OFF",
            "-DLURKWELL_BENCHMARKS=OFF", stdout=subprocess.DEVNULL)


def compile_programs(*targets, **variables):
    """Whether they could be built."""
    return subprocess.run(["ninja", "-C", str(BUILD), *targets], stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, check=False,
                          env={**os.environ, **variables}).returncode == 0


def keep_small(seconds):
    """A fault may ask for memory, write or compute for ever."""
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 30, 1 << 30))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))


def processor_time():
    """Of all that has ended."""
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


@dataclasses.dataclass(frozen=True)
class Limits:
    """In seconds: of the processor's time for one process, and for the whole program."""
    processor: int = 600
    whole: float = 600


def run_test(program, more, limits):
    """How a test program ended: 0 when no test failed, "time" when it took too long."""
    if os.geteuid() != 0:
        raise Failure("the tests with faults need root, for processes of their own")
    # The shell is process 1.
    started = subprocess.Popen(
        ["unshare", "--pid", "--fork", "--kill-child", "--mount-proc", "sh", "-c", '"$@"; exit $?', "sh",
         str(TREE / "scripts/test-place"), str(BUILD / "bin" / program), "--gtest_brief=1",
         "--gtest_fail_fast", *more],
        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        start_new_session=True, preexec_fn=lambda: keep_small(limits.processor))
    try:
        end = started.wait(limits.whole)
    except subprocess.TimeoutExpired:
        os.killpg(started.pid, signal.SIGKILL)
        started.wait()
        return "time"
    # The kernel kills what has used up its processor time.
    return "time" if end == 128 + signal.SIGKILL else end


def digest(*paths):
    return [hashlib.sha256(path.read_bytes()).hexdigest() if path.is_file() else "" for path in paths]


class Trial:
    """Tries faults, one after the other."""

    def __init__(self, programs, more_of, built_with):
        self.programs, self.more_of, self.built_with = programs, more_of, built_with
        self.limits = {}
        self.plain = {}

    def begin(self):
        """Without a fault everything passes, and takes so long."""
        everything = [*self.programs, *{one for more in self.built_with.values() for one in more}]
        if not compile_programs(*everything):
            raise Failure("the tree cannot be built, see ninja -C build/mutants/build")
        for program in self.programs:
            # A test of time on a busy machine: once more.
            end = self.measure(program) and self.measure(program)
            if end != 0:
                raise Failure(f"{program} fails without a fault ({end})")
            self.plain[program] = digest(*self.files(program))
            say(f"{program}: {self.limits[program]}")

    def measure(self, program):
        """Runs a program without a fault, and sets its limits by what it took."""
        begun, used = time.monotonic(), processor_time()
        end = run_test(program, self.more_of.get(program, []), Limits())
        self.limits[program] = Limits(
            10 + math.ceil(PATIENCE * (processor_time() - used)),
            30 + PATIENCE_WITH_WAITS * (time.monotonic() - begun))
        return end

    def run(self, program):
        return run_test(program, self.more_of.get(program, []), self.limits[program])

    def files(self, program):
        names = [program, *self.built_with.get(program, [])]
        return [path for name in names for path in (BUILD / "bin" / name,
                                                    *BUILD.glob(f"lib/**/{name}"),
                                                    *sorted(BUILD.glob("tests/*/packaged/*")
                                                            if "packaged" in name else []))]

    def judge(self, mutant, order):
        """"compiler" when it cannot be built, "same" when the programs are as without it, the program
        that noticed it, or "survived"."""
        source = TREE / mutant.path
        text = source.read_text(encoding="utf-8")
        source.write_text(mutant.apply(text), encoding="utf-8")
        differs = False
        try:
            for program in order:
                if not compile_programs(program, *self.built_with.get(program, []),
                                        CCACHE_READONLY="1"):
                    return "compiler"
                if digest(*self.files(program)) == self.plain[program]:
                    continue
                differs = True
                end = self.run(program)
                # What else the machine does may make a test fail once.
                if end not in (0, "time"):
                    end = self.run(program)
                if end != 0:
                    return program + (" by its time" if end == "time" else "")
            return "survived" if differs else "same"
        finally:
            source.write_text(text, encoding="utf-8")


def try_all(name, chosen, trial, programs_for, minutes, again):
    """Judges the faults that are not judged yet; ends early when the time is over."""
    kept = PLACE / f"{name}.jsonl"
    judged = {}
    sources = {}
    if kept.is_file():
        for line in kept.read_text(encoding="utf-8").splitlines():
            one = json.loads(line)
            judged[one["mutant"], one["of"]] = one["end"]
    if again:
        judged = {key: verdict for key, verdict in judged.items() if verdict != "survived"}

    def of(path):
        if path not in sources:
            sources[path] = hashlib.sha256((ROOT / path).read_bytes()).hexdigest()[:16]
        return sources[path]

    end = time.monotonic() + 60 * minutes
    verdicts = {}
    # All of a file together: a source that has no fault any more is compiled only once.
    for mutant in sorted(chosen, key=lambda one: (one.path, one.line, one.column)):
        key = (str(dataclasses.astuple(mutant)), of(mutant.path))
        if key not in judged:
            if time.monotonic() > end:
                continue
            judged[key] = trial.judge(mutant, programs_for(mutant.path))
            with open(kept, "a", encoding="utf-8") as file:
                file.write(json.dumps({"mutant": key[0], "of": key[1], "end": judged[key]}) + "\n")
            say(f"{mutant.path}:{mutant.line} {mutant.shown()}: {judged[key]}")
        verdicts[mutant] = judged[key]
    return verdicts


def equivalents(path):
    """Faults that change nothing that anybody could see, with the reason: by file, the line's text and
    what is in its place."""
    return {(source, change): reason for source, change, reason in listed(path)}


def changed_line(mutant):
    if mutant.new == ";":
        return f"without {mutant.old}"
    return mutant.apply((ROOT / mutant.path).read_text(encoding="utf-8")).split("\n")[
        mutant.line - 1].strip()


def survivors(verdicts, known):
    """Rows of what no test noticed: where, what, and why that is no fault, if it is none."""
    rows = []
    for mutant, verdict in sorted(verdicts.items(), key=lambda one: (one[0].path, one[0].line)):
        if verdict == "survived":
            rows.append([f"{mutant.path}:{mutant.line}", f"`{changed_line(mutant)}`",
                         known.get((mutant.path, changed_line(mutant)), "")])
    return rows
