#!/usr/bin/env python3
"""Turns Google Benchmark's JSON on standard input into one Markdown table."""
import json
import sys

SECONDS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}


def spelled(seconds):
    for factor, unit in ((1, "s"), (1e3, "ms"), (1e6, "µs"), (1e9, "ns")):
        if seconds * factor >= 1 or unit == "ns":
            return f"{seconds * factor:.3g} {unit}"


def main():
    report = json.load(sys.stdin)
    context = report["context"]
    print(f"{context['num_cpus']} processors of {context['mhz_per_cpu']} MHz,"
          f" load {context['load_avg'][0]:.2f}\n")
    print("| benchmark | time | CPU | helper's CPU | thread's CPU | per process | longest | × bare stat pass |")
    print("| --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: |")
    used = {}
    for row in report["benchmarks"]:
        # "BeatForTheTable/32000/iterations:20"
        parts = row["name"].removeprefix("BM_").split("/")
        # "ReadInBackground/Memory/1000"
        count = 2 if len(parts) < 2 or parts[1].isdigit() else 3
        name = "/".join(parts[:count])
        if row.get("error_occurred"):
            print(f"| {name} | {row['error_message']} | | | | | | |")
            continue
        unit = SECONDS[row["time_unit"]]
        helper, thread, item, longest = (
            spelled(row[key]) if key in row else ""
            for key in ("helper_cpu", "thread_cpu", "per_process", "longest"))
        used[name] = row["cpu_time"] * unit
        floor = used.get("BareStatPass/" + name.rpartition("/")[2])
        ratio = f"{used[name] / floor:.2f}" if floor and name.startswith("Beat") else ""
        print(f"| {name} | {spelled(row['real_time'] * unit)} |"
              f" {spelled(row['cpu_time'] * unit)} | {helper} | {thread} | {item} |"
              f" {longest} | {ratio} |")
    few, many = (used.get(f"BeatForTheTable/{count}") for count in (5000, 20000))
    if few and many:
        print(f"\nA beat for the table over 20,000 processes takes {many / few:.2f} times that over"
              " 5,000.")


main()
