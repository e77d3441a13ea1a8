#!/usr/bin/env python3
"""Checks that each source and each header compiles by itself.

The usual builds join sources and precompile the toolkit's headers, which hides missing includes.
Prints the compiler's errors, and fails if a file does not compile."""
import json
import os
import pathlib
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

top = pathlib.Path(__file__).resolve().parent.parent
build = top / "build-tidy"
subprocess.run([top / "tools/install.sh", "build", "test", "fuzz", "bench"], check=True)
subprocess.run(["cmake", "--preset", "tidy", "-DBUILD_TESTING=ON", "-DKESTRIVANE_BENCH=ON",
                "-DKESTRIVANE_FUZZ=ON", "-DKESTRIVANE_SANITIZE=address"],
               cwd=top, check=True, stdout=subprocess.DEVNULL)

# Each source's compiler command, without the source and the output file.
commands = {}
for entry in json.loads((build / "compile_commands.json").read_text()):
    source = pathlib.Path(entry["file"])
    if build not in source.parents:
        words = shlex.split(entry["command"])
        commands[source] = words[:words.index("-o")] + ["-fsyntax-only"]

checks = {source: words + [source] for source, words in commands.items()}
headers = [header for part in ("src", "standin", "tests", "fuzz", "bench")
           for header in (top / part).rglob("*.h") if not header.name.endswith("_windows.h")]
for header in headers:
    # Uses the command of the source with the same name, or else of another one in the folder.
    beside = [source for source in commands if source.parent == header.parent]
    like = min(beside, key=lambda source: source.stem != header.stem)
    checks[header] = commands[like] + ["-include", header, "-x", "c++", os.devnull]

print(f"Compiling each by itself: {len(commands)} sources, {len(headers)} headers", flush=True)
with ThreadPoolExecutor(os.cpu_count()) as pool:
    results = pool.map(lambda words: subprocess.run(words, cwd=build).returncode, checks.values())
bad = [str(file.relative_to(top)) for file, result in zip(checks, results) if result != 0]
if bad:
    sys.exit("These do not compile by themselves: " + " ".join(bad))
