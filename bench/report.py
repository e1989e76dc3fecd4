#!/usr/bin/env python3
"""Usage: report.py BUILD DOCUMENT

Runs the benchmarks of a build folder, the start of zolv-batch as a whole process and scripts of growing length, prints
one table of all, and writes it to DOCUMENT with a description of the machine. Times are medians of CPU time, which says
more than the clock's on a machine that is not quiet.
"""

import collections
import datetime
import json
import os
import pathlib
import platform
import re
import statistics
import subprocess
import sys
import tempfile
import time

REPETITIONS = 9
STARTS = 61
QUIET = 0.5  # running processes, on average over a minute
IN_NS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}

# benchmark, what it measures, its yardstick and how many times that it may take, or the most nanoseconds
ROWS = [
    ("NumberTextOfTwoDecimals", "number text with two decimals", None, 10),
    ("ShortestNumberText", "number text with all its digits", None, None),
    ("NumberFromText", "number from text", None, None),
    ("Run", "acceleration run, 1801 rows", "RunYardstick", 1.2),
    ("RunYardstick", "its yardstick, a flat loop", None, None),
    ("RunAndTable", "run and its table", "RunAndTableYardstick", 1.3),
    ("RunAndTableYardstick", "its yardstick, two flat loops", None, None),
    ("EvaluateSetUp", "a set-up by Evaluate, with its run", "PartsOfSetUp", 1.1),
    ("PartsOfSetUp", "its yardstick, the parts alone", None, None),
    ("SliderMove", "slider move: labels, run, table, four plots", "RunAndTableYardstick", 2),
    ("SliderMoveWithAHeldSetUp", "the same with a set-up held", "SliderMove", 1.3),
    ("ParseSettingsFile", "text of a settings file parsed", None, None),
    ("ChangeOfCar", "change of car", None, None),
    ("ChangeOfSpeedUnit", "change of the speed unit", None, None),
    ("ChangeOfLanguage", "change of language", None, None),
    ("StartUp", "start-up inside the program", None, None),
]
GROWTH = [
    ("RunByRows", "acceleration run", "rows"),
    ("RunAndTableByRows", "run and its table", "rows"),
    ("CanvasByOperations", "drawing on a canvas", "operations"),
    ("NewCanvasByOperations", "drawing on a new canvas", "operations"),
    ("PictureByOperations", "canvas as SVG", "operations"),
]


def text_of(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:#.3g} {unit}".replace(". ", " ")
    return f"{nanoseconds:#.3g} ns".replace(". ", " ")


def run_benchmarks(program):
    """Repetitions of each benchmark by its name."""
    with tempfile.NamedTemporaryFile(suffix=".json") as out:
        options = {"repetitions": REPETITIONS, "enable_random_interleaving": "true", "min_time": 0.1, "out": out.name,
                   "out_format": "json"}
        subprocess.run([program, *(f"--benchmark_{name}={value}" for name, value in options.items())], check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        found = collections.defaultdict(list)
        for one in json.load(out)["benchmarks"]:
            if one["run_type"] != "aggregate":
                found[one["run_name"]].append(one)
        return found


def median(repetitions, clock="cpu_time"):
    return statistics.median(one[clock] * IN_NS[one["time_unit"]] for one in repetitions)


def measure_process(arguments, cwd):
    """CPU and wall time [ns] of a whole process without input."""
    began = time.perf_counter_ns()
    with open(os.devnull, "r+b") as null:
        process = subprocess.Popen(arguments, stdin=null, stdout=null, stderr=null, cwd=cwd)
        _, status, used = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    wall = time.perf_counter_ns() - began
    if process.returncode != 0:
        sys.exit(f"report: {arguments} ended with status {process.returncode}")
    return (used.ru_utime + used.ru_stime) * 1e9, wall


def peak_memory(arguments, cwd):
    """The most memory [bytes] that a process holds until it has done its scripts and waits for standard input. What
    the system tells of an ended child can be the size of its parent."""
    with tempfile.TemporaryFile() as out:
        process = subprocess.Popen([*arguments, "-"], stdin=subprocess.PIPE, stdout=out, cwd=cwd)
        process.stdin.write(b"get Zolv\n")
        process.stdin.flush()
        while b"\nZolv = " not in os.pread(out.fileno(), 200, max(0, os.fstat(out.fileno()).st_size - 200)):
            time.sleep(0.001)
        status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
        process.communicate()
    return int(re.search(r"VmHWM:\s+(\d+) kB", status)[1]) * 1024


def machine(build):
    cpus = re.findall(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text())
    cache = (build / "CMakeCache.txt").read_text()
    compiler = re.search(r"CMAKE_CXX_COMPILER:\w+=(.*)", cache)[1]
    version = subprocess.run([compiler, "--version"], capture_output=True, text=True, check=True).stdout.splitlines()[0]
    load = os.getloadavg()[0]
    state = "The machine was quiet" if load < QUIET else f"The machine was not quiet: {load:.1f} processes besides"
    return (f"Measured by `scripts/bench` on {datetime.date.today()}: {cpus[0] if cpus else platform.processor()}, "
            f"{os.cpu_count()} cores; {platform.system()}; {version}, release build. {state}.")


def as_table(head, rows):
    widths = [max(len(row[i]) for row in [head, *rows]) for i in range(len(head))]
    lines = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |" for row in [head, *rows]]
    lines.insert(1, "|" + "|".join("-" * (width + 2) for width in widths) + "|")
    return lines


def verdict(good):
    return "met" if good else "MISSED"


def timings(found):
    for name, what, yardstick, most in ROWS:
        taken = median(found[name])
        target = ""
        if yardstick:
            ratio = taken / median(found[yardstick])
            which = {"SliderMove": "the second yardstick", "SliderMoveWithAHeldSetUp": "a move without"}
            target = f"{ratio:.2f} of {which.get(name, 'its yardstick')}; at most {most}: {verdict(ratio <= most)}"
        elif most:
            target = f"at most {text_of(most)}: {verdict(taken <= most)}"
        yield what, text_of(taken), target


def set_ups(found):
    rates = {}
    for name, repetitions in sorted(found.items()):
        if name.startswith("TenThousandSetUps"):
            threads = int(re.search(r"threads:(\d+)", name)[1])
            rates[threads] = statistics.median(one["items_per_second"] for one in repetitions)
            used = median(repetitions)
            note = f"{rates[threads]:.0f} set-ups a second by the clock"
            if threads > 1:
                note += f", {rates[threads] / rates[1]:.2f} times those of one"
            yield f"10,000 set-ups through the model, {threads} thread{'s' * (threads > 1)}", text_of(used), note


# by the clock on two threads, of the most that they may take
STUDIES = [
    ("FindGearbox", "search for six gears and the final drive over 1000 m", 300e6),
    ("SweepMap", "sweep of 100 x 100 runs", 500e6),
]


def studies(found):
    for name, what, most in STUDIES:
        for threads in (1, 2):
            run_name = next(one for one in found if one.startswith(f"{name}/threads:{threads}/"))
            wall = median(found[run_name], "real_time")
            target = f"; at most {text_of(most)}: {verdict(wall <= most)}" if threads == 2 else ""
            yield f"{what}, {threads} thread{'s' * (threads > 1)}", text_of(wall), "by the clock" + target


def start_of_process(batch, cwd):
    runs = [measure_process([batch], cwd) for _ in range(STARTS)]
    used, wall = (statistics.median(values) for values in zip(*runs))
    memory = peak_memory([batch], cwd)
    yield "`zolv-batch` with an empty script, whole process", text_of(used), \
        f"{text_of(wall)} by the clock; at most 15 ms: {verdict(wall <= 15e6)}"
    yield "its memory", f"{memory / 2**20:.1f} MiB", f"at most 15 MiB: {verdict(memory <= 15 << 20)}"


def growth(found):
    for name, what, unit in GROWTH:
        for run_name, repetitions in sorted(found.items(), key=lambda item: item[1][0].get("size", 0)):
            if run_name.startswith(name + "/"):
                size, held, taken = repetitions[0]["size"], repetitions[0]["bytes"], median(repetitions)
                yield (what, f"{size:,.0f} {unit}", text_of(taken), text_of(taken / size), f"{held:,.0f} bytes",
                       f"{held / size:.1f}")


def growth_of_scripts(batch, cwd):
    """Without the start, which every script has."""
    start = statistics.median(measure_process([batch], cwd)[0] for _ in range(STARTS))
    for what, line, sizes in (("script of questions", "get Gear3", (10000, 30000, 100000)),
                              ("script of slider moves", "set Select_Ratio3 {}", (1000, 3000, 10000))):
        for lines in sizes:
            script = cwd / "script"
            script.write_text("".join(line.format(1700 + i % 2) + "\n" for i in range(lines)))
            used = statistics.median(measure_process([batch, script], cwd)[0] for _ in range(5)) - start
            memory = peak_memory([batch, script], cwd)
            yield (what, f"{lines:,} lines", text_of(used), text_of(used / lines), f"{memory:,.0f} bytes, whole process",
                   "")


def main():
    build, document = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    described = machine(build)  # before the benchmarks load it
    batch = build / "bin" / "zolv-batch"
    found = run_benchmarks(build / "bin" / "zolv-bench")
    rows = [*timings(found), *set_ups(found), *studies(found)]
    with tempfile.TemporaryDirectory() as folder:
        cwd = pathlib.Path(folder)
        rows += start_of_process(batch.resolve(), cwd)
        grown = [*growth(found), *growth_of_scripts(batch.resolve(), cwd)]
    desktop = build / "bin" / "zolv-desktop-bench"
    if desktop.exists():
        for name, repetitions in run_benchmarks(desktop).items():
            spoken = re.sub("(?<!^)(?=[A-Z])", " ", name.split("/")[0]).lower()
            rows.append((f"windows: {spoken}", text_of(median(repetitions, "real_time")), "by the clock"))
    lines = ["# Performance", "", described,
             f"Times are medians of CPU time over {REPETITIONS} repetitions. A yardstick is the same work as flat loops "
             "without any structure, in `bench/yardstick.cpp`; it gives the same characters.", "",
             *as_table(("what", "time", "against its target"), rows), "", "## Growth", "",
             "Where time and memory grow in a straight line, what one row, operation or line takes stays the same. The "
             "time of a script is without the start of the program. A new canvas takes its memory from the system, and "
             "that zeroes a page for every 85 operations: this, and not the drawing, is what an operation of a large new "
             "drawing takes. Drawn over, as the windows do, it takes the same at any size.", "",
             *as_table(("what", "size", "time", "for each", "memory", "bytes for each"), grown), ""]
    print("\n".join(lines))
    document.write_text("\n".join(lines))
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main())
