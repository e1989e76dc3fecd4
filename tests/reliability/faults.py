#!/usr/bin/env python3
"""Usage: faults.py ZOLV_BATCH DATA [--table]

Tries every file that Zolv writes and every file that it reads against what can go wrong with files: full disks, folders
that are gone, missing permissions, folders and links in place of files, a kill in the middle of a save; rubbish, files
cut off at every byte, gigantic lines. DATA is the folder of the shipped languages. Prints what was tried and what
happened, with --table as Markdown; the status is 1 if anything happened that must not. What needs root, or strace, is
skipped without it, and said so.
"""

import collections
import contextlib
import os
import pathlib
import random
import re
import resource
import select
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import time

ROOT = os.geteuid() == 0
NOBODY = 65534
PATIENCE = 30  # seconds; behind them a run counts as hanging
MOST_MEMORY = 256 << 20
MARK = "get AccDataLabel(0) tooltip"
ANSWER_TO_MARK = "AccDataLabel(0) tooltip = "
LITTER = re.compile(r"zolv-\d+\.tmp")

seeded = random.Random(1)
failures = []
skipped = []


class Table:
    """What happened, by fault, in the order of the first tries."""

    def __init__(self):
        self.rows = {}

    def note(self, fault, what, outcome):
        row = self.rows.setdefault(fault, ([], collections.Counter()))
        if what not in row[0]:
            row[0].append(what)
        row[1][outcome] += 1

    def lines(self):
        for fault, (whats, outcomes) in self.rows.items():
            happened = "; ".join(outcome if len(outcomes) == 1 else f"{count:,} {outcome}"
                                 for outcome, count in outcomes.most_common())
            kinds = "all six" if len(whats) == len(WRITERS) and self is writes else ", ".join(whats)
            yield fault, kinds, f"{sum(outcomes.values()):,}", happened


writes = Table()
reads = Table()


def expect(good, fault, what, text):
    if not good:
        failures.append(f"{fault}: {what}: {text}")
    return good


# Folders and runs


@contextlib.contextmanager
def folder(parent=None):
    path = pathlib.Path(tempfile.mkdtemp(prefix="zolv-faults-", dir=parent)).resolve()
    path.chmod(0o755)
    try:
        yield path
    finally:
        for entry in [path, *path.glob("**/")]:
            if not entry.is_symlink():
                entry.chmod(0o755)
        shutil.rmtree(path)


def snapshot(path):
    """Everything under a folder: kinds, permissions and contents."""
    found = {}
    for entry in sorted(path.rglob("*")):  # which passes over folders that may not be entered
        name = str(entry.relative_to(path))
        if entry.is_symlink():
            found[name] = os.readlink(entry)
        elif entry.is_file():
            found[name] = (stat.S_IMODE(entry.stat().st_mode), entry.read_bytes())
        else:
            found[name] = stat.S_IFMT(entry.stat().st_mode)
    return found


def limited(size):
    return lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (size, resource.RLIM_INFINITY))


def run(lines, cwd, user=None, before=None, wrapper=()):
    """Status, output and errors of a whole run, by lines on standard input."""
    as_user = {"user": user, "group": user, "extra_groups": []} if user else {}
    done = subprocess.run([*wrapper, BATCH], input="\n".join(lines).encode(), cwd=cwd, capture_output=True, timeout=PATIENCE,
                          preexec_fn=before, **as_user)
    return done.returncode, done.stdout.decode(errors="replace"), done.stderr.decode(errors="replace")


class Session:
    """A program that stays open, as a user's does."""

    def __init__(self, cwd, user=None):
        as_user = {"user": user, "group": user, "extra_groups": []} if user else {}
        self.process = subprocess.Popen([BATCH], cwd=cwd, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE, **as_user)
        self.greeting = self.ask([])

    def ask(self, lines):
        """What the lines print."""
        self.process.stdin.write("".join(line + "\n" for line in [*lines, MARK]).encode())
        self.process.stdin.flush()
        end = f"{ANSWER_TO_MARK}\n".encode()
        answer = bytearray()
        while not answer.endswith(end):
            if not select.select([self.process.stdout], [], [], PATIENCE)[0]:
                raise RuntimeError(f"no answer to {lines}")
            got = os.read(self.process.stdout.fileno(), 1 << 20)
            if not got:
                raise RuntimeError(f"ended at {lines}: {self.process.stderr.read().decode()}")
            answer += got
        return answer[:-len(end)].decode(errors="replace")

    def peak(self):
        text = pathlib.Path(f"/proc/{self.process.pid}/status").read_text()
        return int(re.search(r"VmHWM:\s+(\d+)", text)[1]) << 10

    def close(self):
        self.process.stdin.close()
        status = self.process.wait(PATIENCE)
        self.process.stdout.close()
        self.process.stderr.close()
        return status


# The files that are written


class Writer:
    """How a kind of file is saved, in two versions that differ."""

    def __init__(self, name, save, versions, prepare=(), fixed=None):
        self.name, self.save, self.versions, self.prepare, self.fixed = name, save, versions, list(prepare), fixed

    def lines(self, version, target):
        return [*self.prepare, *self.again(version, target)]

    def again(self, version, target):
        return [*self.versions[version], *(line.format(target) for line in self.save)]

    def target(self, cwd):
        return cwd / (self.fixed or "mine")

    def set_up(self, cwd):
        """A folder with an old version of the file; returns what the new version must be."""
        for name in ("languages.lst", "language_English.txt", "language_French.txt", "Options.ini"):
            shutil.copy(DATA / name, cwd)
        (cwd / "unknown.jpg").write_bytes(b"x")
        target = self.target(cwd)
        run(self.lines(1, target), cwd)
        new = target.read_bytes()
        if len(self.versions[0]) == 0:
            target.write_bytes(b"old and whole")
        else:
            run(self.lines(0, target), cwd)
        expect(target.read_bytes() != new, "preparing", self.name, "both versions are the same")
        return new


WRITERS = [
    Writer("settings", ["answer {}", "click FileSaveAs"], [["set GearF 3"], ["set GearF 4.5"]]),
    Writer("preset", ["answer {}", "click CP_Save"],
           [["set EditMass 900", "click EditUpdate"], ["set EditMass 1100", "click EditUpdate"]],
           ["set NewCar Mote 900", "set NewName Mine", "click AddCar", "set EditName Mine"]),
    Writer("options", ["click OptionsSave"],
           [["set OptionsPanel.Select_SpeedUnits Meters per Second"],
            ["set OptionsPanel.Select_SpeedUnits Kilometers per Hour"]], fixed="Options.ini"),
    Writer("language list", ["click SaveLanguage"], [["set LanguageList English"], ["set LanguageList French"]],
           fixed="languages.lst"),
    Writer("picture", ["picture SpeedPlot {}"], [["set GearF 3"], ["set GearF 4.5"]]),
    Writer("language file", ["write-language {}"], [[], []]),
]
NAMED = [writer for writer in WRITERS if not writer.fixed]


def told(result):
    """The reason that a failed save gives, wherever the program tells it; None without one."""
    status, output, errors = result
    found = re.search(r"(?:Cannot (?:write|read) .*: (.*))|(does not exist - the language cannot be saved)",
                      errors if status == 2 else output)
    return found and (found[1] or "the list does not exist")


def listed(writer):
    """Without the list there is no language to pick in it."""
    return ["click SaveLanguage"] if writer.name == "language list" else None


def refuse(fault, writer, cwd, target=None, reason=None, lines=None, **how):
    """A save that must fail with its message and change nothing."""
    before = snapshot(cwd)
    result = run(lines or writer.lines(1, target or writer.target(cwd)), cwd, **how)
    said = told(result)
    fine = expect(said is not None and (reason is None or said == reason), fault, writer.name, f"said {result}")
    fine &= expect(snapshot(cwd) == before, fault, writer.name, "something changed")
    if fine:
        writes.note(fault, writer.name, f"told \"{said}\", nothing changed")


def succeed(fault, writer, cwd, path, new, **how):
    """A save that must succeed into `path`, and change nothing else."""
    before = snapshot(cwd)
    result = run(writer.lines(1, writer.target(cwd)), cwd, **how)
    after = snapshot(cwd)
    fine = expect(told(result) is None and path.read_bytes() == new, fault, writer.name, f"not saved, said {result}")
    name = str(path.relative_to(cwd))
    before.pop(name, None), after.pop(name)
    fine &= expect(after == before, fault, writer.name, "something else changed")
    if fine:
        writes.note(fault, writer.name, "saved, the link stays")


@contextlib.contextmanager
def small_disk(options):
    with folder() as place:
        subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", place], check=True)
        try:
            yield place
        finally:
            subprocess.run(["umount", place], check=True)


def fill(disk, pages_left):
    left = os.statvfs(disk)
    size = (left.f_bavail - pages_left) * left.f_bsize
    if size > 0:
        (disk / "filling").write_bytes(b"x" * size)


def full_disks():
    """From no page of room upward until the save fits: the writing breaks off at every page of the file."""
    fault = "disk full, to every page of the file"
    for writer in WRITERS:
        for pages in range(40):
            with small_disk("size=1m,mode=755") as disk:
                new = writer.set_up(disk)
                old = writer.target(disk).read_bytes()
                fill(disk, pages)
                before = snapshot(disk)
                said = told(run(writer.lines(1, writer.target(disk)), disk))
                content = writer.target(disk).read_bytes()
                if said is None:
                    if expect(content == new, fault, writer.name, "said nothing and wrote another file"):
                        writes.note(fault, writer.name, "room enough: saved")
                    break
                if expect(content == old and snapshot(disk) == before, fault, writer.name, "something changed"):
                    writes.note(fault, writer.name, f"told \"{said}\", nothing changed")
        with small_disk("size=1m,nr_inodes=20,mode=755") as disk:
            writer.set_up(disk)
            with contextlib.suppress(OSError):
                for i in range(20):
                    (disk / f"filling{i}").touch()
            refuse("disk without room for a further file", writer, disk, reason="No space left on device")


def read_only_disk():
    for writer in WRITERS:
        with small_disk("size=1m,mode=755") as disk:
            writer.set_up(disk)
            subprocess.run(["mount", "-o", "remount,ro", disk], check=True)
            refuse("disk read-only", writer, disk, reason="Read-only file system")
            subprocess.run(["mount", "-o", "remount,rw", disk], check=True)


def file_size_limits():
    for writer in WRITERS:
        with folder() as cwd:
            size = len(writer.set_up(cwd))
            for limit in (0, 1, size // 2, size - 1):
                refuse("file beyond the user's size limit", writer, cwd, before=limited(limit),
                       reason="File too large")


def gone_folders():
    for writer in NAMED:
        with folder() as cwd:
            writer.set_up(cwd)
            refuse("no such folder", writer, cwd, cwd / "gone" / "mine", "No such file or directory")
            refuse("a file in place of the folder", writer, cwd, cwd / "mine" / "mine", "Not a directory")
            refuse("name longer than a name can be", writer, cwd, cwd / ("n" * 256), "File name too long")
    for writer in WRITERS:
        with folder() as parent:
            for fault, early in (("folder removed before the start", True),
                                 ("folder removed while the program runs", False)):
                cwd = parent / "gone"
                cwd.mkdir()
                writer.set_up(cwd)
                root = set(os.listdir("/"))
                leave = lambda: shutil.rmtree(cwd)
                if early:
                    result = run(listed(writer) or writer.lines(1, writer.target(cwd)), cwd, before=leave)
                else:
                    session = Session(cwd)
                    leave()
                    session.process.stdin.write("\n".join(writer.lines(1, writer.target(cwd))).encode())
                    output, errors = session.process.communicate(timeout=PATIENCE)
                    result = session.process.returncode, output.decode(), errors.decode()
                said = told(result)
                if expect(said and not cwd.exists() and set(os.listdir("/")) == root, fault, writer.name, f"{result}"):
                    writes.note(fault, writer.name, f"told \"{said}\", nothing written elsewhere")


def give_to(user, path):
    if user:
        for entry in [path, *path.rglob("*")]:
            os.chown(entry, user, user, follow_symlinks=False)


def missing_permissions():
    """As another user if this is root, who may write everything."""
    user = NOBODY if ROOT else None
    for writer in WRITERS:
        with folder() as cwd:
            writer.set_up(cwd)
            writer.target(cwd).chmod(0o444)
            give_to(user, cwd)
            refuse("file without permission to write", writer, cwd, user=user, reason="Permission denied")
        with folder() as cwd:
            writer.set_up(cwd)
            give_to(user, cwd)
            cwd.chmod(0o555)
            refuse("folder without permission to write", writer, cwd, user=user, reason="Permission denied")
    for writer in NAMED:
        with folder() as cwd:
            writer.set_up(cwd)
            (cwd / "closed").mkdir()
            give_to(user, cwd)
            (cwd / "closed").chmod(0)
            refuse("folder without permission to enter", writer, cwd, cwd / "closed" / "mine", "Permission denied",
                   user=user)


def other_things_than_files():
    for writer in WRITERS:
        for fault, make in (("a folder in place of the file", lambda path: path.mkdir()),
                            ("a link to a folder", lambda path: path.symlink_to(".")),
                            ("a link in a circle", lambda path: path.symlink_to(path)),
                            ("a dangling link into no folder", lambda path: path.symlink_to("gone/file")),
                            ("a pipe in place of the file", os.mkfifo),
                            ("a link to a device", lambda path: path.symlink_to("/dev/null"))):
            with folder() as cwd:
                writer.set_up(cwd)
                writer.target(cwd).unlink()
                make(writer.target(cwd))
                refuse(fault, writer, cwd, lines=listed(writer))
        for fault, to in (("a link to a file", "elsewhere/file"), ("two links to a file", "first")):
            with folder() as cwd:
                new = writer.set_up(cwd)
                target = writer.target(cwd)
                (cwd / "elsewhere").mkdir()
                (cwd / "first").symlink_to("elsewhere/file")
                target.rename(cwd / "elsewhere" / "file")
                target.symlink_to(to)
                succeed(fault, writer, cwd, cwd / "elsewhere" / "file", new)
        if writer.name == "language list":
            continue  # which reads what it is about to write
        with folder() as cwd:
            writer.set_up(cwd)
            writer.target(cwd).unlink()
            run(writer.lines(1, writer.target(cwd)), cwd)  # options that were not read are those of a first start
            new = writer.target(cwd).read_bytes()
            writer.target(cwd).unlink()
            writer.target(cwd).symlink_to("later")
            succeed("a dangling link beside its target", writer, cwd, cwd / "later", new)


def kills():
    """At random moments of a run that does nothing but save. The folder's listing tells whether one hit."""
    fault = "killed in the middle of a save, at random moments"
    for writer in WRITERS:
        with folder() as cwd:
            new = writer.set_up(cwd)
            target = writer.target(cwd)
            whole = {target.read_bytes(), new}
            left = 0
            for _ in range(25):
                session = Session(cwd)
                session.ask(writer.prepare)
                saves = "\n".join(line for i in range(100) for line in writer.again(i % 2, target)) + "\n"
                session.process.stdin.write(saves.encode())
                session.process.stdin.flush()
                time.sleep(seeded.uniform(0, 0.02))
                session.process.send_signal(signal.SIGKILL)
                session.process.communicate()
                content = target.read_bytes()
                if expect(content in whole, fault, writer.name, f"a part of {len(content)} bytes"):
                    writes.note(fault, writer.name, "the old or the new file, whole")
                litter = [entry for entry in cwd.iterdir() if LITTER.fullmatch(entry.name)]
                expect(len(litter) <= 1, fault, writer.name, "more than one temporary file")
                left += len(litter)
                for entry in litter:
                    entry.unlink()
            for _ in range(left):
                writes.note("of these, during a save", writer.name, "its temporary file stays behind")
            run(writer.lines(1, target), cwd)
            expect(target.read_bytes() == new, fault, writer.name, "no save afterwards")


def interrupted_calls():
    """A kill at, and an error from, each system call of a save; strace plants both. The first of each is the save's."""
    for writer in WRITERS:
        for call in ("write", "fsync", "rename"):
            with folder() as cwd:
                new = writer.set_up(cwd)
                old = writer.target(cwd).read_bytes()
                planted = ["strace", "-f", "-o", "/dev/null", "-e", f"trace={call}", "-e"]
                fault = f"{call} fails with an error of the disk"
                refuse(fault, writer, cwd, reason="Input/output error",
                       wrapper=[*planted, f"inject={call}:error=EIO:when=1"])
                fault = f"killed at the {call} of a save"
                run(writer.lines(1, writer.target(cwd)), cwd,
                    wrapper=[*planted, f"inject={call}:signal=KILL:when=1"])
                content = writer.target(cwd).read_bytes()
                if expect(content in (old, new), fault, writer.name, "a part"):
                    writes.note(fault, writer.name, ("the old" if content == old else "the new") + " file, whole")


def savers_at_once():
    fault = "four programs save one file at once, 50 times each"
    for writer in WRITERS:
        with folder() as cwd:
            new = writer.set_up(cwd)
            target = writer.target(cwd)
            whole = {target.read_bytes(), new}
            sessions = [Session(cwd) for _ in range(4)]
            for session in sessions:
                session.ask(writer.prepare)
            for session in sessions:
                lines = [line for i in range(50) for line in writer.again(i % 2, target)]
                session.process.stdin.write(("\n".join(lines) + "\n").encode())
                session.process.stdin.flush()
            while any(session.process.poll() is None for session in sessions):
                expect(target.read_bytes() in whole, fault, writer.name, "a part")
                for session in sessions:
                    if session.process.stdin and not session.process.stdin.closed:
                        session.process.stdin.close()
                time.sleep(0.001)
            for session in sessions:
                output = session.process.stdout.read().decode() + session.process.stderr.read().decode()
                expect("Cannot" not in output, fault, writer.name, output)
                session.process.stdout.close(), session.process.stderr.close()
            if expect(not any(LITTER.fullmatch(entry.name) for entry in cwd.iterdir()), fault, writer.name, "litter"):
                writes.note(fault, writer.name, "one of the two files, whole; no litter")


# The files that are read

FIGURES = ([f"get {name}" for name in ("Zolv", "Select_Car", "GearF", "B_Final", "Select_PressureF", "NewPower")] +
           [f"get Gear{i}" for i in range(1, 7)] + [f"get B_Speed{i}" for i in range(1, 7)] +
           [f"get Speed{i}" for i in range(1, 7)] + [f"get AccDataLabel({i})" for i in range(10)] +
           [f"get InfoLabel({i})" for i in range(12)] + ["report"])


REFUSED = re.compile(r"message: (Cannot read |Language file does not have |The language file cannot be found|"
                     r"Error: Options.ini does not exist|The language list does not exist)")


class Reader:
    """How a kind of file is read again and again in one session."""

    def __init__(self, name, file, lines, good, limit, figures):
        self.name, self.file, self.lines, self.good, self.limit, self.figures = name, file, lines, good, limit, figures
        self.known = None  # what the figures showed last


def readers(cwd):
    settings = pathlib.Path(DATA.parent / "examples" / "sable_t_road.zolv").read_bytes()
    preset = cwd / "preset"
    run(WRITERS[1].lines(0, preset), cwd)
    panel = [f"get {name}" for name in ("NewName", "NewCar", "NewPower", "NewPowerRPM", "NewTorque", "NewMass", "NewCx",
                                        "NewDrivetrain", "NewGears", "NewWheelbase", "NewRTyreWidth")]
    limit = 64 << 10
    return [
        Reader("settings", cwd / "x.zolv", [f"answer {cwd}/x.zolv", "click FileOpen"], settings, limit, FIGURES),
        Reader("preset", cwd / "x.cup", [f"answer {cwd}/x.cup", "click CP_Load"], preset.read_bytes(), limit, panel),
        Reader("options", cwd / "Options.ini", ["click OptionsLoad"], (DATA / "Options.ini").read_bytes(), limit,
               FIGURES),
        Reader("language file", cwd / "language_French.txt", ["set LanguageList French"],
               (DATA / "language_French.txt").read_bytes(), limit, [*FIGURES, "get FileMenu", "get OptionsSave"]),
    ]


def lines_needed(reader):
    """The cut behind which the file has all its lines, though the last may be shorter."""
    body = reader.good[:-2] if reader.good.endswith(b"\r\n") else reader.good
    start = body.rindex(b"\r\n") + 2
    return start if reader.name == "language file" else start + 1


def no_odd_number(text):
    return not re.search(r"(?<![A-Za-z])-?(nan|inf)(?![A-Za-z])", text)


def read_once(session, reader, fault, loaded="loaded"):
    """Loaded or refused; a refusal changes nothing."""
    before = reader.known or session.ask(reader.figures)
    said = session.ask(reader.lines)
    after = reader.known = session.ask(reader.figures)
    refused = REFUSED.search(said) is not None
    unchanged = not refused or after == before
    if expect(unchanged, fault, reader.name, "refused and changed") & \
            expect(reader.name == "language file" or no_odd_number(after), fault, reader.name, "a number that is none"):
        reads.note(fault, reader.name, "refused, nothing changed" if refused else loaded)
    return refused


def rubbish(good):
    """Contents that are no such file, or nearly one."""
    lines = good.split(b"\r\n")
    yield from (b"", b"\0", b"\n", b"\r", b"\xef\xbb\xbf", b"\xef\xbb", b"\xff\xfe")
    yield from (b"\r\n" * count for count in (1, 40, 400))
    yield from (good.replace(b"\r\n", b"\n"), good.replace(b"\r\n", b"\r"), good.replace(b"\r", b"\r\r"))
    yield from (good.decode().encode("utf-16"), good.decode().encode("utf-32"), b"\r\n".join(reversed(lines)), good * 2)
    yield from (re.sub(rb"[0-9.]+", lambda _: word, good)
                for word in (b"nan", b"inf", b"-inf", b"1e999", b"-1e999", b"1e-999", b"0", b"-1", b"9" * 300, b"1,5",
                             b"\0", b"0x10", b"--1", b""))
    yield from (bytes(seeded.randrange(256) for _ in range(size)) for size in (1, 2, 10, 100, 1000, 10000, 60000))
    for _ in range(150):
        changed = bytearray(good)
        for _ in range(seeded.randint(1, 6)):
            changed[seeded.randrange(len(changed))] = seeded.randrange(256)
        yield bytes(changed)
    for _ in range(50):
        changed = list(lines)
        changed.insert(seeded.randrange(len(lines)), changed.pop(seeded.randrange(len(lines))))
        yield b"\r\n".join(changed)


def big_lines(reader):
    lines = reader.good.split(b"\r\n")
    suffix = [89] if reader.name == "language file" else []  # which each row of the acceleration table repeats
    for i in suffix + seeded.sample(range(len(lines) - 1), 8):
        for size in (reader.limit - len(reader.good) - 10, 4 << 20):
            yield b"\r\n".join([*lines[:i], lines[i] + b"9" * size, *lines[i + 1:]])


def odd_places(path):
    """What else can be under a file's name."""
    yield "missing", lambda: None
    yield "a folder in its place", path.mkdir
    yield "a pipe in its place", lambda: os.mkfifo(path)
    yield "a link to a device without an end", lambda: path.symlink_to("/dev/zero")
    yield "a link in a circle", lambda: path.symlink_to(path)
    yield "a dangling link", lambda: path.symlink_to("gone")


def unreadable_places(path):
    """The same, for whoever is not root."""
    yield from odd_places(path)
    yield "without permission to read", lambda: (path.write_bytes(b"x"), path.chmod(0))


def remove(path):
    if path.is_dir() and not path.is_symlink():
        path.rmdir()
    else:
        path.unlink(missing_ok=True)


def damaged_files():
    user = NOBODY if ROOT else None
    with folder() as cwd:
        for name in os.listdir(DATA):
            if (DATA / name).is_file():
                shutil.copy(DATA / name, cwd)
        (cwd / "unknown.jpg").write_bytes(b"x")
        for reader in readers(cwd):
            reader.file.write_bytes(reader.good)
            give_to(user, cwd)
            session = Session(cwd, user)
            expect(not read_once(session, reader, "as it was saved"), "as it was saved", reader.name, "refused")

            enough = lines_needed(reader)
            for cut in range(len(reader.good) - 1, -1, -1):
                os.truncate(reader.file, cut)
                fault = "cut off at every byte" if cut < enough else "cut off within its last line"
                refused = (read_once if len(reader.good) < 2000 else read_quickly)(session, reader, fault)
                expect(refused == (cut < enough), fault, reader.name, f"{cut} bytes: refused is {refused}")

            for content in rubbish(reader.good):
                reader.file.write_bytes(content)
                read_once(session, reader, "rubbish, or one or a few bytes or lines changed")
            for content in big_lines(reader):
                reader.file.write_bytes(content)
                refused = read_once(session, reader, "a line up to the longest file, or of 4 MiB")
                expect(refused or len(content) <= reader.limit, "gigantic lines", reader.name, "taken")
            os.truncate(reader.file, 1 << 34)
            expect(read_once(session, reader, "a file of 16 GiB"), "a file of 16 GiB", reader.name, "taken")
            expect(session.peak() < MOST_MEMORY, "memory", reader.name, f"{session.peak()} bytes")

            for fault, make in unreadable_places(reader.file):
                remove(reader.file)
                make()
                if user and reader.file.is_file() and not reader.file.is_symlink():
                    os.chown(reader.file, user, user)
                expect(read_once(session, reader, fault), fault, reader.name, "not refused")
            remove(reader.file)
            reader.file.write_bytes(reader.good)
            expect(not read_once(session, reader, "as it was saved"), "afterwards", reader.name, "refused")
            expect(session.close() == 0, "ending", reader.name, "another status than 0")


def read_quickly(session, reader, fault):
    """For thousands of cuts: one exchange each."""
    said = session.ask([*reader.lines, *reader.figures[-2:]])
    refused = REFUSED.match(said) is not None
    reads.note(fault, reader.name, "refused, nothing changed" if refused else "loaded")
    shown = said.splitlines()[-2:]
    if not refused:
        reader.known = session.ask(reader.figures)
    expect(not refused or reader.known.splitlines()[-2:] == shown, fault, reader.name, "refused and changed")
    return refused


def start(cwd, fault, what, user=None):
    """A start that must come to its end, with every figure a number."""
    status, output, errors = run(["report", "get LanguageList rows", "get LanguageList"], cwd, user=user)
    if expect(status == 0 and errors == "" and no_odd_number(output), fault, what, f"{status} {errors}"):
        reads.note(fault, what, "refused, nothing changed" if REFUSED.search(output) else "loaded")
    return output


def damaged_at_start():
    """Options and language list as the start finds them."""
    user = NOBODY if ROOT else None
    for name, what in (("languages.lst", "language list"), ("Options.ini", "options at start")):
        with folder() as cwd:
            for other in ("languages.lst", "Options.ini", "language_English.txt", "language_French.txt"):
                shutil.copy(DATA / other, cwd)
            (cwd / "unknown.jpg").write_bytes(b"x")
            path = cwd / name
            good = path.read_bytes()
            give_to(user, cwd)
            for cut in range(len(good) if name == "languages.lst" else 0):
                path.write_bytes(good[:cut])
                start(cwd, "cut off at every byte", what)
            for content in [*rubbish(good)][::3]:
                path.write_bytes(content)
                start(cwd, "rubbish, or one or a few bytes or lines changed", what)
            for size in (60000, 4 << 20):
                path.write_bytes(good + b"9" * size)
                start(cwd, "a line up to the longest file, or of 4 MiB", what)
            os.truncate(path, 1 << 34)
            start(cwd, "a file of 16 GiB", what)
            for fault, make in unreadable_places(path):
                remove(path)
                make()
                if user and path.is_file() and not path.is_symlink():
                    os.chown(path, user, user)
                expect(REFUSED.search(start(cwd, fault, what, user)), fault, what, "no message")


def pictures():
    user = NOBODY if ROOT else None
    with folder() as cwd:
        for name in ("languages.lst", "Options.ini"):
            shutil.copy(DATA / name, cwd)
        unknown, path = cwd / "unknown.jpg", cwd / "Wisp 4.jpg"
        unknown.write_bytes(b"x")
        give_to(user, cwd)
        session = Session(cwd, user)
        see = ["set Select_Car Wisp 4", "get Info_CarPic"]
        for fault, make in [*odd_places(path), ("empty", path.touch)]:
            remove(path)
            make()
            if expect(session.ask(see) == f"Info_CarPic = {unknown}\n", fault, "car picture", "another picture"):
                reads.note(fault, "car picture", "the picture of an unknown car")
        remove(path)
        path.write_bytes(bytes(seeded.randrange(256) for _ in range(1000)))
        expect(session.ask(see) == f"Info_CarPic = {path}\n", "rubbish", "car picture", "another picture")
        remove(unknown), remove(path)
        expect(session.ask(see).startswith("message: "), "missing", "car picture", "no message for a missing one")
        session.close()


def failing_reads():
    """An error of the disk in the middle of a file, planted by strace."""
    with folder() as cwd:
        for name in ("languages.lst", "Options.ini", "language_French.txt"):
            shutil.copy(DATA / name, cwd)
        run(WRITERS[0].lines(0, cwd / "mine"), cwd)
        for what, path, lines in (("settings", "mine", ["answer mine", "click FileOpen"]),
                                  ("options", "Options.ini", []),
                                  ("language list", "languages.lst", []),
                                  ("language file", "language_French.txt", ["set LanguageList French"])):
            wrapper = ["strace", "-o", "/dev/null", "-P", str(cwd / path), "-e", "trace=read",
                       "-e", "inject=read:error=EIO"]
            status, output, _ = run(lines, cwd, wrapper=wrapper)
            if expect(status == 0 and re.search("Cannot read .*Input/output error|Loading failed", output),
                      "an error of the disk while reading", what, output):
                reads.note("an error of the disk while reading", what, "refused, nothing changed")


# All of it


def skip(what, why):
    skipped.append(f"SKIPPED: {what}: {why}")


def show(table, heading, markdown):
    print(f"\n{heading}\n")
    rows = [("fault", "tried on", "tries", "what happened"), *table.lines()]
    if markdown:
        rows.insert(1, ("---",) * 4)
        for row in rows:
            print("| " + " | ".join(row) + " |")
    else:
        for row in rows:
            print("  ".join((row[0].ljust(52), row[2].rjust(6), row[3], f"[{row[1]}]")))


def main():
    traced = shutil.which("strace") and subprocess.run(["strace", "-o", "/dev/null", "true"]).returncode == 0
    parts = [file_size_limits, gone_folders, missing_permissions, other_things_than_files, kills, savers_at_once,
             damaged_files, damaged_at_start, pictures]
    if APART:
        parts += [full_disks, read_only_disk]
    else:
        skip("full and read-only disks", "mounting a small disk needs root")
    if traced:
        parts += [interrupted_calls, failing_reads]
    else:
        skip("errors and kills at each system call", "strace is not there, or may not trace")
    for part in parts:
        began = time.monotonic()
        try:
            part()
        except (RuntimeError, subprocess.SubprocessError, OSError) as error:
            failures.append(f"{part.__name__}: {error!r}")
        print(f"{part.__name__}: {time.monotonic() - began:.1f} s", file=sys.stderr)
    markdown = "--table" in sys.argv
    show(writes, "Writing: " + ", ".join(writer.name for writer in WRITERS), markdown)
    show(reads, "Reading", markdown)
    print()
    for line in skipped + failures[:40]:
        print(line)
    print(f"faults: {len(failures)} of them did what they must not" if failures else
          f"faults: all as they must be{', some skipped' if skipped else ''}")
    return 1 if failures else 0


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    # Mounts in a name space of their own go when the script goes, however it ends.
    APART = os.environ.pop("ZOLV_FAULTS_APART", None)
    if ROOT and not APART and subprocess.run(["unshare", "-m", "true"]).returncode == 0:
        os.environ["ZOLV_FAULTS_APART"] = "1"
        os.execvp("unshare", ["unshare", "-m", sys.executable, *sys.argv])
    DATA = pathlib.Path(sys.argv[2]).resolve()
    # Another user may not reach the build folder.
    with folder() as programs:
        BATCH = str(programs / "zolv-batch")
        shutil.copy(sys.argv[1], BATCH)
        status = main()
    sys.exit(status)
