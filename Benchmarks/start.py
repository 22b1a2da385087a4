"""Times whole processes in random order: an empty program, and one that prints its first text. Medians in milliseconds."""
import os
import random
import statistics
import subprocess
import sys
import time

folder, runs = sys.argv[1], 500
environment = os.environ | {"LC_ALL": "ru_RU.UTF-8", "LANGUAGE": ""}
expected = {"start-empty": "Continue\n", "start-text": "Продолжить\n"}
for name, text in expected.items():
    said = subprocess.run([f"{folder}/{name}"], env=environment, capture_output=True, text=True, check=True).stdout
    if said != text:
        sys.exit(f"{name} says {said!r}")


def run(program):
    begin = time.perf_counter()
    child = os.posix_spawn(program, [program], environment,
                           file_actions=[(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0)])
    os.waitpid(child, 0)
    return (time.perf_counter() - begin) * 1e3


times = {name: [] for name in expected}
for _ in range(runs):
    for name in random.sample(list(expected), len(expected)):
        times[name].append(run(f"{folder}/{name}"))
for name, all_runs in times.items():
    print(f"{name:12} {statistics.median(all_runs):.3f} ms")
