#!/usr/bin/env python3
"""What one scrape of an exporter of processes costs, in CPU time of the exporter.

scrape-cost.py [-n 1000,5000] [-s SCRAPES] [--interval SECONDS] NAME=COMMAND [NAME=COMMAND ...]

Each command runs alone, beside N idle processes of 50 names, and has {address} where its own is to be,
such as "lurkwell-export {address}". After two scrapes its CPU time is taken over some more and the pauses
between them, and divided by their number, so that what it reads in the background counts. One Markdown
row each. Whoever runs it decides what may be read: root sees all. An interval below ten seconds would
spare lurkwell-export what it reads again only then.
"""
import argparse
import pathlib
import shlex
import socket
import subprocess
import sys
import time
import urllib.request

from idlers import Idlers, cpu_seconds


def free_address():
    with socket.create_server(("127.0.0.1", 0)) as server:
        return f"127.0.0.1:{server.getsockname()[1]}"


def scrape(address):
    start = time.monotonic()
    with urllib.request.urlopen(f"http://{address}/metrics", timeout=120) as answer:
        length = len(answer.read())
    return time.monotonic() - start, length


def measure(name, command, count, options):
    address = free_address()
    exporter = subprocess.Popen(shlex.split(command.replace("{address}", address)),
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        for _ in range(300):
            try:
                scrape(address)
                break
            except OSError:
                if exporter.poll() is not None:
                    sys.exit(f"{name} has ended with {exporter.returncode}")
                time.sleep(0.2)
        time.sleep(options.interval)
        scrape(address)
        time.sleep(options.interval)
        before, waits = cpu_seconds(exporter.pid), []
        for _ in range(options.scrapes):
            wait, length = scrape(address)
            waits.append(wait)
            time.sleep(options.interval)
        cost = (cpu_seconds(exporter.pid) - before) / options.scrapes
        status = pathlib.Path(f"/proc/{exporter.pid}/status").read_text(encoding="ascii")
        resident = int(status.split("VmRSS:")[1].split()[0]) / 1024
    finally:
        exporter.terminate()
        exporter.wait()
    print(f"| {count} | {name} | {1000 * cost:.1f} | {1000 * min(waits):.1f} | "
          f"{length / 1024:.0f} | {resident:.0f} |", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("-n", default="1000,5000")
    parser.add_argument("-s", "--scrapes", type=int, default=6)
    parser.add_argument("--interval", type=float, default=15.0)
    parser.add_argument("exporters", nargs="+", metavar="NAME=COMMAND")
    options = parser.parse_args()
    columns = ("idle processes", "exporter", "CPU ms per scrape", "shortest answer ms",
               "answer KiB", "resident MiB")
    print("| " + " | ".join(columns) + " |\n| ---: | --- |" + " ---: |" * 4, flush=True)
    with Idlers() as idlers:
        for count in options.n.split(","):
            with idlers.running(count, 50) as are_there:
                if not are_there:
                    print(f"| {count} | not that many processes are allowed here |" + " |" * 4)
                    continue
                for exporter in options.exporters:
                    measure(*exporter.split("=", 1), count, options)


if __name__ == "__main__":
    main()
