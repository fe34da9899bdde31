"""Packs the same files with package_bench and zip in turn. Arguments: package_bench, an empty folder."""
import os
import pathlib
import random
import subprocess
import sys
import time

FILES, BYTES, TURNS, LEVEL = 200, 50_000_000, 7, "-6"
# Of zip's time on two cores and more, and of its processor time on any machine, however busy.
MOST_TIME, MOST_PROCESSOR_TIME = 0.6, 1.1
bench, work = sys.argv[1], pathlib.Path(sys.argv[2])
source = work / "files"
source.mkdir()

# Half is text of a small vocabulary, like data; half is incompressible, like pictures and sounds.
chance = random.Random(1)
words = ["".join(chance.choices("abcdefghijklmnopqrstuvwxyz", k=chance.randint(2, 9))) for _ in range(2000)]
for number in range(FILES):
    size = BYTES // FILES
    text = " ".join(chance.choices(words, k=size // 5)).encode()[:size]
    (source / f"{number:03}.txt").write_bytes(text if number % 2 else chance.randbytes(size))


def measure(command, folder):
    """Returns seconds, and seconds of processor time."""
    begin = time.perf_counter()
    process = subprocess.Popen(command, cwd=folder, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"{command[0]} failed")
    return time.perf_counter() - begin, usage.ru_utime + usage.ru_stime


def measure_zip():
    (work / "x.zip").unlink(missing_ok=True)
    return measure(["zip", "-X", "-q", "-r", LEVEL, str(work / "x.zip"), "."], source)


def best(runs):
    return [min(values) for values in zip(*runs)]


ours, theirs = [], []
for _ in range(TURNS):
    ours.append(measure([bench, str(source), str(work)], work))
    theirs.append(measure_zip())
package = next(work.glob("*.qlpkg"))
rows = {"package": (best(ours), package), "zip": (best(theirs), work / "x.zip")}
for name, ((elapsed, processor), file) in rows.items():
    print(f"{name:8}{elapsed:.2f} s, processor {processor:.2f} s, {file.stat().st_size:,} bytes")
ratio, processor_ratio = (mine / other for mine, other in zip(*(row[0] for row in rows.values())))
cores = len(os.sched_getaffinity(0))
print(f"ratio   {ratio:.2f} on {cores} cores, processor time {processor_ratio:.2f}")
sys.exit((cores > 1 and ratio > MOST_TIME) or processor_ratio > MOST_PROCESSOR_TIME)
