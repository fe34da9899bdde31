"""Packs the same files with package_bench and zip in turn. Arguments: package_bench, an empty folder."""
import pathlib
import random
import subprocess
import sys
import time

FILES, BYTES, TURNS, LEVEL = 200, 50_000_000, 5, "-6"
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


def seconds(command, folder):
    begin = time.perf_counter()
    subprocess.run(command, cwd=folder, check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - begin


def zip_seconds():
    (work / "x.zip").unlink(missing_ok=True)
    return seconds(["zip", "-X", "-q", "-r", LEVEL, str(work / "x.zip"), "."], source)


ours, theirs = [], []
for _ in range(TURNS):
    ours.append(seconds([bench, str(source), str(work)], work))
    theirs.append(zip_seconds())
package = next(work.glob("*.qlpkg"))
print(f"package {min(ours):.2f} s, {package.stat().st_size:,} bytes (with a SHA-256 of each file)")
print(f"zip     {min(theirs):.2f} s, {(work / 'x.zip').stat().st_size:,} bytes")
print(f"ratio   {min(ours) / min(theirs):.2f}")
