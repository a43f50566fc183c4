#!/usr/bin/env python3
"""The exporter's answers, rules and dashboard before Prometheus's own programs.

prometheus_test.py EXPORTER SOURCE [unittest arguments]
"""
import json
import pathlib
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import unittest
import urllib.error
import urllib.parse
import urllib.request

from exporter_support import Exporter, soon, words

EXPORTER, SOURCE = (sys.argv.pop(1) for _ in range(2))
RESOURCES = pathlib.Path(SOURCE, "resources/export")


def tools():
    done = words(SOURCE + "/scripts/fetch-prometheus")
    assert done.returncode == 0, done.stderr
    return pathlib.Path(done.stdout.strip())


class Prometheus(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tools = tools()
        folder = tempfile.TemporaryDirectory(prefix="lurkwell-test-")
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)

    def promtool(self, *arguments, **more):
        done = words(str(self.tools / "promtool"), *arguments, **more)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return done.stdout + done.stderr

    def test_rules_are_rules_and_wait_as_long_as_they_say(self):
        shutil.copy(RESOURCES / "lurkwell.rules.yml", self.folder)
        shutil.copy(pathlib.Path(SOURCE, "tests/exporter/lurkwell.rules.test.yml"), self.folder)
        self.assertIn("rules found", self.promtool("check", "rules",
                                                   str(self.folder / "lurkwell.rules.yml")))
        self.promtool("test", "rules", str(self.folder / "lurkwell.rules.test.yml"))

    def test_answers_follow_the_conventions(self):
        exporter = Exporter(self, EXPORTER)
        with exporter.get() as answer:
            self.assertEqual(self.promtool("check", "metrics", input=answer.read().decode()), "")

    def serve(self, exporter):
        """A server that scrapes it every second; what asks it."""
        with socket.create_server(("127.0.0.1", 0)) as free:
            address = f"127.0.0.1:{free.getsockname()[1]}"
        # The piece that ships, with this exporter and these rules.
        piece = (RESOURCES / "scrape.yml").read_text(encoding="utf-8")
        config = piece.replace("127.0.0.1:19256", f"127.0.0.1:{exporter.port}").replace(
            "/usr/share/lurkwell-export", str(RESOURCES))
        self.assertNotEqual(config, piece)
        path = self.folder / "prometheus.yml"
        path.write_text("global: {scrape_interval: 1s, evaluation_interval: 1s}\n" + config,
                        encoding="utf-8")
        self.promtool("check", "config", str(path))
        with open(self.folder / "log", "w", encoding="utf-8") as log:
            server = subprocess.Popen(
                [str(self.tools / "prometheus"), f"--config.file={path}",
                 f"--storage.tsdb.path={self.folder / 'data'}", f"--web.listen-address={address}"],
                stdout=log, stderr=log)
        self.addCleanup(lambda: (server.terminate(), server.wait(20)))

        def ask(path, **parameters):
            url = f"http://{address}/api/v1/{path}?" + urllib.parse.urlencode(parameters)
            try:
                with urllib.request.urlopen(url, timeout=10) as answer:
                    return json.load(answer)["data"]
            except urllib.error.HTTPError as error:
                with error:
                    if error.code == 503:  # it is starting
                        return None
                    self.fail(f"{parameters}: {error.read().decode()}")
            except OSError:
                return None
        return ask

    def test_a_server_scrapes_it_and_the_rules_and_the_dashboard_work(self):
        ask = self.serve(Exporter(self, EXPORTER))

        def value(query):
            answer = ask("query", query=query)
            return answer and answer["result"]
        soon(lambda: value('rate(lurkwell_group_cpu_seconds_total{kind="user"}[1m])'), 60)
        self.assertEqual(value('up{job="lurkwell"}')[0]["value"][1], "1")
        target = ask("targets")["activeTargets"][0]
        self.assertEqual((target["health"], target["lastError"]), ("up", ""))
        for group in soon(lambda: (ask("rules") or {}).get("groups")):
            for rule in group["rules"]:
                soon(lambda rule=rule: rule["health"] != "unknown" or
                     rule.update(self.rule(ask, rule["name"])))
                self.assertEqual(rule["health"], "ok", rule)
        dashboard = json.loads((RESOURCES / "lurkwell-dashboard.json").read_text(encoding="utf-8"))
        known = set(ask("label/__name__/values"))
        names, empty = set(), []
        for panel in dashboard["panels"]:
            for target in panel.get("targets", ()):
                expression = target["expr"]
                names |= set(re.findall(r"lurkwell_\w+", expression))
                for name, text in (("$__rate_interval", "1m"), ("$instance", ".*"),
                                   ("$kind", "program"), ("$group", ".*")):
                    expression = expression.replace(name, text)
                self.assertNotIn("$", expression)
                if not value(expression):
                    empty.append(panel["title"])
        # This machine has no such units, no such kernel, or nobody who waits.
        self.assertLessEqual(set(empty), {"Network", "Processes that are not well", "Time waited"})
        documented = pathlib.Path(SOURCE, "docs/metrics.md").read_text(encoding="utf-8")
        for name in names:
            self.assertIn(f"`{name}`", documented)
        self.assertGreater(len(names & known), 10)

    @staticmethod
    def rule(ask, name):
        return next(rule for group in ask("rules")["groups"] for rule in group["rules"]
                    if rule["name"] == name)


if __name__ == "__main__":
    unittest.main(verbosity=2)
