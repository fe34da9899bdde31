"""Runs the programs of bench/programs with `fernwick run`, Lua, LuaJIT and Gambas in turn, and prints processor times as ratios
to Lua's: the best of several runs. Arguments: the fernwick program and a folder for temporary files."""
import os
import pathlib
import resource
import subprocess
import sys

PROGRAMS = pathlib.Path(__file__).parent / "programs"
RUNS = 5
LIMITS = {"fib": 0.75, "fib_byref": 1.0, "sieve": 0.75, "nbody": 0.75, "mandelbrot": 0.75, "text": 0.4, "dictionary": 0.4}


def vb_project(name, folder):
    project = folder / f"{name}.vbp"
    source = PROGRAMS / f"{name}.bas"
    project.write_text(f'Type=Exe\r\nModule=Program; {os.path.relpath(source, folder)}\r\nStartup="Sub Main"\r\nName="{name}"\r\n')
    return project


def gambas_program(name, folder):
    place = folder / f"{name}-gambas"
    (place / ".src").mkdir(parents=True)
    (place / ".project").write_text(f"# Gambas Project File 3.0\nTitle={name}\nStartup=Main\nVersion=1.0\n")
    (place / ".src" / "Main.module").write_text("' Gambas module file\n" + (PROGRAMS / f"{name}.gambas").read_text())
    subprocess.run(["gbc3", "-a", place], check=True, stdout=subprocess.DEVNULL)
    return place


def measured(command):
    """Processor seconds and output."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    output = subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, output


def main():
    fernwick, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    print(f"{'':12}{'fernwick':>10}{'luajit':>10}{'gbx3':>10}   times as part of lua5.4's")
    for name, limit in LIMITS.items():
        commands = {
            "lua": ["lua5.4", PROGRAMS / f"{name}.lua"],
            "fernwick": [fernwick, "run", vb_project(name, folder)],
            "luajit": ["luajit", PROGRAMS / f"{name}.lua"],
            "gbx3": ["gbx3", gambas_program(name, folder)],
        }
        best = {}
        for _ in range(RUNS):
            for who, command in commands.items():
                seconds, output = measured(command)
                best[who] = min(best.get(who, seconds), seconds)
        ratios = {who: best[who] / best["lua"] for who in ("fernwick", "luajit", "gbx3")}
        note = "" if ratios["fernwick"] <= limit else f"   more than {limit}"
        print(f"{name:12}" + "".join(f"{ratio:10.2f}" for ratio in ratios.values()) + f"   {best['lua']:.2f} s{note}")


main()
