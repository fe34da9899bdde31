"""Writes modules with the same structure in both languages, measures both compilers in turn and prints the ratios."""
import json
import os
import pathlib
import resource
import statistics
import subprocess
import sys
import time

MODULES, PROCEDURES, RUNS = 40, 250, 7
MANY_MODULES, FEW_PROCEDURES = 1000, 20

VB = """Public Function Work{n}(ByVal first As Long, ByVal second As Long) As Long
    Dim i As Long, total As Long
    Dim text As String
    total = first * 2 + second
    For i = 1 To 10
        If total > second And i < 8 Then
            text = text & "item " & CStr(i)
            total = total + (i * first - second) \\ 3
        ElseIf total = 0 Then
            text = ""
        Else
            total = total - 1
        End If
    Next
    Select Case total
        Case 1, 2
            total = Len(text)
        Case Else
            total = Abs(total) + 1
    End Select
    While total > 100
        total = total - first  ' towards the limit
    Wend
    Work{n} = total
End Function

"""

GAMBAS = """Public Function Work{n}(first As Integer, second As Integer) As Integer
    Dim i As Integer, total As Integer
    Dim text As String
    total = first * 2 + second
    For i = 1 To 10
        If total > second And i < 8 Then
            text = text & "item " & CStr(i)
            total = total + (i * first - second) \\ 3
        Else If total = 0 Then
            text = ""
        Else
            total = total - 1
        Endif
    Next
    Select Case total
        Case 1, 2
            total = Len(text)
        Case Else
            total = Abs(total) + 1
    End Select
    While total > 100
        total = total - first  ' towards the limit
    Wend
    Return total
End

"""


def vb_module(name, procedures):
    text = f'Attribute VB_Name = "{name}"\nOption Explicit\n\n' + "".join(VB.format(n=n) for n in range(procedures))
    return text.replace("\n", "\r\n")


def gambas_module(procedures):
    return "' Gambas module file\n\n" + "".join(GAMBAS.format(n=n) for n in range(procedures))


def write_projects(work, modules, procedures):
    vb, gambas = work / "vb", work / "gambas"
    vb.mkdir(parents=True)
    (gambas / ".src").mkdir(parents=True)
    (gambas / ".project").write_text("# Gambas Project File 3.0\nTitle=Bench\nStartup=Main\nVersion=0.0.1\n")
    (gambas / ".src" / "Main.module").write_text("' Gambas module file\n\nPublic Sub Main()\nEnd\n")
    files = []
    for m in range(modules):
        files.append(vb / f"Module{m}.bas")
        files[-1].write_bytes(vb_module(f"Module{m}", procedures).encode("ascii"))
        (gambas / ".src" / f"Module{m}.module").write_text(gambas_module(procedures))
    return files, gambas


def write_vbp(files):
    path = files[0].parent / "Many.vbp"
    members = "".join(f"Module={f.stem}; {f.name}\r\n" for f in files)
    path.write_bytes(f'Type=Exe\r\n{members}Startup="Sub Main"\r\nName="Many"\r\n'.encode("ascii"))
    return path


def children_cpu():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def timed(command, **options):
    """(seconds by the clock, what it printed, seconds of processor time)"""
    cpu, start = children_cpu(), time.perf_counter()
    done = subprocess.run(command, capture_output=True, text=True, **options)
    if done.returncode != 0:
        sys.exit(f"{command[0]} failed:\n{done.stdout[-2000:]}{done.stderr[-2000:]}")
    return time.perf_counter() - start, done.stdout, children_cpu() - cpu


def check_again(program, work):
    """Processor and wall time of the first check of many modules, of the second one, and of gbc3's compile."""
    files, gambas = write_projects(work, MANY_MODULES, FEW_PROCEDURES)
    command = [str(program), "check", str(write_vbp(files))]
    first, again, theirs = [], [], []
    time.sleep(4)  # what changed a moment before is read again
    for run in range(RUNS):
        environment = dict(os.environ, XDG_CACHE_HOME=str(work / f"cache{run}"))
        first.append(timed(command, env=environment)[::2])
        again.append(timed(command, env=environment)[::2])
        theirs.append(timed(["gbc3", "-a", "-j", "1", str(gambas)])[::2])
    for i, time_of in enumerate(("", " in processor time")):
        a, b, c = (statistics.median(r[i] for r in runs) for runs in (first, again, theirs))
        print(f"check of {MANY_MODULES} modules{time_of}: {a:.3f} s, unchanged {b:.3f} s; gbc3 -a {c:.3f} s")
        print(f"unchanged : first = {b / a:.2f}  (at most 0.1), unchanged : gbc3 = {b / c:.2f}  (at most 0.2)")


def main():
    bench, work = sys.argv[1], pathlib.Path(sys.argv[2])
    files, gambas = write_projects(work / "few", MODULES, PROCEDURES)
    lines = sum(f.read_bytes().count(b"\n") for f in files)
    check = pathlib.Path(bench).with_name("check_bench")
    ours, theirs, checks, compiles = [], [], {1: [], 2: []}, {1: [], 2: []}
    for _ in range(RUNS):
        ours.append(timed([bench, *map(str, files)])[::2])
        theirs.append(timed(["gbc3", "-a", "-j", "1", str(gambas)])[::2])
        for threads, runs in checks.items():
            runs.append(timed([str(check), "--threads", str(threads), *map(str, files)])[::2])
        for threads, runs in compiles.items():
            runs.append(timed([str(check), "--threads", str(threads), "--image", str(work / "few.qlx"),
                               *map(str, files)])[::2])
    peak_of_check = json.loads(timed([str(check), *map(str, files)])[1])
    small, large = work / "Small.bas", work / "Large.bas"
    per_procedure = VB.count("\n")
    small.write_bytes(vb_module("Small", 100_000 // per_procedure).encode("ascii"))
    large.write_bytes(vb_module("Large", 1_000_000 // per_procedure + 1).encode("ascii"))
    cost, memory = {}, 0
    for name, file in (("100,000", small), ("1,000,000", large)):
        runs = [json.loads(timed([bench, "--json", str(file)])[1]) for _ in range(RUNS)]
        cost[name] = statistics.median(r["seconds"] / r["lines"] for r in runs)
        memory = runs[0]["tree_bytes"] / runs[0]["source_bytes"]
        peak = runs[0]["peak_bytes"] / runs[0]["source_bytes"]
    a, b = (statistics.median(r[0] for r in runs) for runs in (ours, theirs))
    cpu_a, cpu_b = (statistics.median(r[1] for r in runs) for runs in (ours, theirs))
    print(f"{lines} lines in {MODULES} modules, median of {RUNS} runs in turn")
    print(f"parser   {a:.3f} s  {lines / a / 1e6:.2f} million lines a second")
    print(f"gbc3 -a  {b:.3f} s  {lines / b / 1e6:.2f} million lines a second")
    print(f"parser : gbc3 = {a / b:.2f}  (at most 0.35); in processor time {cpu_a / cpu_b:.2f}")
    for what, measured, limits in (("parse and check", checks, (0.8, 0.45)), ("whole compile", compiles, (1.0, 0.5))):
        for (threads, runs), limit in zip(measured.items(), limits):
            wall, cpu = (statistics.median(r[i] for r in runs) for i in (0, 1))
            print(f"{what}, {threads} thread{'s' * (threads > 1)} : gbc3 = {wall / b:.2f}  (at most {limit}); "
                  f"in processor time {cpu / cpu_b:.2f}")
    print(f"memory of the check: {peak_of_check['peak_bytes'] / peak_of_check['source_bytes']:.1f} times the source  (at most 12)")
    for name, seconds in cost.items():
        print(f"one module of {name} lines: {seconds * 1e9:.0f} ns a line")
    print(f"1,000,000 : 100,000 = {cost['1,000,000'] / cost['100,000']:.2f}  (at most 1.20)")
    print(f"tree: {memory:.1f} times the source, whole process: {peak:.1f} times  (at most 60)")
    check_again(pathlib.Path(bench).parent.with_name("Apps") / "fernwick/fernwick", work / "many")


main()
