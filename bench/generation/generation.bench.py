#!/usr/bin/python3
"""Generation, measured from the outside:

- a cold `ipgen generate` of one eight-lane instance against a plain Python program that writes the
  same bytes from the same project (generate.py);
- `ipgen emit` of 1000 eight-lane configurations in one process against writing the same bytes with
  open, write, close, rename.

Runs alternate, and the median of each side counts.
"""
import filecmp
import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
IPGEN = os.path.join(ROOT, "build/release/bin/ipgen")
CASE = os.path.join(ROOT, "tests/golden/138k_eight_lanes/case.json")
FILES = ("define.vh", "param.v", "customized.ini")


def timed(command):
    start = time.perf_counter()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - start


def report(name, ours, baseline, goal):
    ratio = statistics.median(ours) / statistics.median(baseline)
    verdict = "met" if ratio <= goal else "MISSED"
    print(f"{name}: ratio {ratio:.2f} (goal at most {goal}, {verdict})")


def cold_start(folder, case):
    config = {"ip": "customized", "config": case["config"]}
    project = {"format": 1, "device": case["device"], "instances": {"link0": config},
               "data": case.get("data", {})}
    sides = {}
    for side, command in (("ours", [IPGEN, "generate"]),
                          ("plain", ["/usr/bin/python3", os.path.join(HERE, "generate.py")])):
        path = os.path.join(folder, side)
        os.mkdir(path)
        with open(os.path.join(path, "project.json"), "w", encoding="utf-8") as file:
            json.dump(project, file)
        sides[side] = (command + [path] + (["link0"] if side == "plain" else []), path, [])
    for _ in range(21):
        for command, path, times in sides.values():
            shutil.rmtree(os.path.join(path, "transceiver"), ignore_errors=True)
            times.append(timed(command))
    output = os.path.join("transceiver", case["config"]["file"], "temp", "CUSTOMIZED")
    _, wrong, missing = filecmp.cmpfiles(os.path.join(sides["ours"][1], output),
                                         os.path.join(sides["plain"][1], output), FILES, False)
    if wrong or missing:
        sys.exit(f"the two programs do not write the same: {wrong + missing}")
    report("cold generate / plain Python", sides["ours"][2], sides["plain"][2], 0.7)


def write_plainly(folder, contents):
    for name, files in contents.items():
        path = os.path.join(folder, name)
        os.makedirs(path)
        for file, data in files.items():
            target = os.path.join(path, file)
            handle = os.open(target + ".new", os.O_CREAT | os.O_WRONLY)
            os.write(handle, data)
            os.close(handle)
            os.rename(target + ".new", target)


def emit(folder, case, count=1000):
    batch = os.path.join(folder, "batch.jsonl")
    with open(batch, "w", encoding="utf-8") as file:
        for i in range(count):
            item = dict(case, name=f"c{i}")
            item["config"] = dict(case["config"], module=f"Module{i}")
            item.pop("script", None)
            file.write(json.dumps(item) + "\n")
    ours, plain, contents = [], [], {}
    for _ in range(5):
        out = os.path.join(folder, "emit")
        shutil.rmtree(out, ignore_errors=True)
        ours.append(timed([IPGEN, "emit", "--batch", batch, "--out", out, "--report", os.devnull]))
        if not contents:
            for root, _, names in os.walk(out):
                for name in names:
                    with open(os.path.join(root, name), "rb") as file:
                        contents.setdefault(os.path.relpath(root, out), {})[name] = file.read()
            if len(contents) != count:
                sys.exit(f"emit wrote {len(contents)} of {count} configurations")
        out = os.path.join(folder, "plain-emit")
        shutil.rmtree(out, ignore_errors=True)
        start = time.perf_counter()
        write_plainly(out, contents)
        plain.append(time.perf_counter() - start)
    report(f"emit of {count} / plain writing", ours, plain, 2.0)


def main():
    with open(CASE, encoding="utf-8") as file:
        case = json.load(file)
    with tempfile.TemporaryDirectory(dir=os.path.join(ROOT, "build")) as folder:
        cold_start(folder, case)
        emit(folder, case)


if __name__ == "__main__":
    main()
