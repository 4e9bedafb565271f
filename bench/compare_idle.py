#!/usr/bin/python3
"""compare_idle.py [--seconds S] COMMAND [COMMAND...]

What each program costs while nobody touches it, side by side in the same run on the present desktop: it is started,
left alone for 8 seconds, then watched for S seconds (172.8, two decimal minutes, by default) and ended. A command with
options is one argument. For each one line: processor time and wake-ups (voluntary context switches of all threads) a
minute, private dirty memory at the end, and the processor time of the first 8 seconds, which is that of its start and a
few ticks. The last columns are the ratios to the first program.
"""
import argparse
import os
import re
import shlex
import subprocess
import time

SETTLE_SECONDS = 8


def processor_ns(pid):
    """The process's own clock, exact where the accounting in ticks is not."""
    return time.clock_gettime_ns((~pid << 3) | 2)


def wake_ups(pid):
    total = 0
    for thread in os.listdir(f'/proc/{pid}/task'):
        with open(f'/proc/{pid}/task/{thread}/status') as status:
            total += int(re.search(r'^voluntary_ctxt_switches:\s+(\d+)', status.read(), re.M)[1])
    return total


def private_dirty_kb(pid):
    with open(f'/proc/{pid}/smaps_rollup') as rollup:
        return int(re.search(r'^Private_Dirty:\s+(\d+)', rollup.read(), re.M)[1])


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument('--seconds', type=float, default=172.8)
    parser.add_argument('commands', nargs='+')
    options = parser.parse_args()

    processes = [subprocess.Popen(shlex.split(command)) for command in options.commands]
    try:
        time.sleep(SETTLE_SECONDS)
        before = [(processor_ns(p.pid), wake_ups(p.pid)) for p in processes]
        begin = time.monotonic()
        time.sleep(options.seconds)
        per_minute = 60 / (time.monotonic() - begin)
        rows = []
        for process, (cpu, wakes) in zip(processes, before):
            rows.append(((processor_ns(process.pid) - cpu) * per_minute / 1e6,
                         (wake_ups(process.pid) - wakes) * per_minute,
                         private_dirty_kb(process.pid),
                         cpu / 1e6))
    finally:
        for process in processes:
            process.terminate()
            process.wait()

    for command, row in zip(options.commands, rows):
        ratios = ' '.join(f'{value / first:5.2f}' for value, first in zip(row, rows[0]))
        print(f'{os.path.basename(command):26} {row[0]:6.2f} ms/min {row[1]:6.1f} wake-ups/min {row[2]:6d} kB dirty '
              f'{row[3]:6.1f} ms at start   {ratios}')


if __name__ == '__main__':
    main()
