"""The exporter as a program, driven from outside."""
import pathlib
import re
import shutil
import ssl
import subprocess
import tempfile
import time
import urllib.request


def words(*command, **more):
    return subprocess.run(command, capture_output=True, text=True, check=False, timeout=60, **more)


def soon(condition, patience=20.0):
    """What the condition gives once it is true; fails when it never is."""
    end = time.monotonic() + patience
    while not (result := condition()):
        assert time.monotonic() < end, "it did not come true"
        time.sleep(0.05)
    return result


class Exporter:
    """Runs it on a port that is free, until the test ends."""

    def __init__(self, test, program, *arguments, address="127.0.0.1:0", prefix=()):
        # Standard error goes to a file: nobody empties a pipe.
        self.said = tempfile.NamedTemporaryFile("r", prefix="lurkwell-test-")
        test.addCleanup(self.said.close)
        with open(self.said.name, "w", encoding="utf-8") as log:
            self.process = subprocess.Popen([*prefix, program, *arguments, address], stderr=log)
        test.addCleanup(self.end)
        self.url = soon(self._url)

    def _url(self):
        assert self.process.poll() is None, self.log()
        match = re.search(r"serving (\S+)/metrics", self.log())
        return match and match.group(1)

    def log(self):
        return pathlib.Path(self.said.name).read_text(encoding="utf-8")

    @property
    def port(self):
        return int(self.url.rpartition(":")[2])

    def get(self, path="/metrics", method="GET", trust=None, **headers):
        request = urllib.request.Request(
            self.url + path, method=method,
            headers={name.replace("_", "-"): value for name, value in headers.items()})
        context = None
        if self.url.startswith("https"):
            context = ssl.create_default_context(cafile=trust)
        return urllib.request.urlopen(request, timeout=20, context=context)

    def scrape(self, **more):
        with self.get(**more) as answer:
            return Samples(answer.read().decode())

    def end(self):
        self.process.terminate()
        assert self.process.wait(10) == 0, self.log()


class Samples:
    """An answer in Prometheus's text format."""

    LINE = re.compile(r"^([a-z_0-9]+)(?:\{(.*)\})? (\S+)$")

    def __init__(self, text):
        self.text = text
        self.values = {}
        for line in text.splitlines():
            if line.startswith("#"):
                continue
            name, labels, value = self.LINE.match(line).groups()
            labels = re.findall(r'([a-z]+)="((?:\\.|[^"\\])*)"', labels or "")
            key = (name, frozenset(labels))
            assert key not in self.values, line
            self.values[key] = float(value)

    def of(self, name, **labels):
        return self.values.get((name, frozenset(labels.items())))

    def families(self):
        return set(re.findall(r"^# TYPE (\S+) ", self.text, re.M))


def make_certificate(folder, name):
    """A certificate for 127.0.0.1 that signs itself, and its key."""
    certificate, key = folder / f"{name}.crt", folder / f"{name}.key"
    done = words("openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt",
                 "ec_paramgen_curve:prime256v1", "-nodes", "-days", "2", "-subj", f"/CN={name}",
                 "-addext", "subjectAltName=IP:127.0.0.1", "-keyout", str(key), "-out",
                 str(certificate))
    assert done.returncode == 0, done.stderr
    key.chmod(0o600)
    return str(certificate), str(key)


def needed(program):
    path = shutil.which(program)
    assert path is not None, f"{program} is not installed"
    return path
