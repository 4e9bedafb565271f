#!/usr/bin/python3
"""A preference file that nobody sane has written: it costs neither the calendar nor memory nor what is chosen next."""

import os
import random

from harness import PanelTest, main
from harness.processes import memory_kb

MEGABYTE = 1 << 20
# A program that has read the whole of the largest file has at least this much more.
MOST_MEMORY_KB = 90 * 1024


class PreferencesAbuse(PanelTest):
    def file(self):
        file = self.desktop.config / "tambrelle" / "tambrelle.conf"
        file.parent.mkdir(exist_ok=True)
        return file

    def counts_as_empty_and_is_replaced(self, content):
        self.file().write_bytes(content)
        program = self.start()
        self.assertLess(memory_kb(program.pid, "VmHWM"), MOST_MEMORY_KB)
        # The first launch stores what it begins with, and sets the strange file aside.
        self.preference_becomes("soundEnabled=true")
        self.assertLess(self.file().stat().st_size, 1000)
        self.assertEqual(self.file().with_name("tambrelle.conf.damaged").stat().st_size, len(content))
        self.open_panel()
        self.click_on("Toggle chime")
        self.preference_becomes("soundEnabled=false")

    def test_a_hundred_megabytes(self):
        self.counts_as_empty_and_is_replaced(b"[General]\n" + b"menuBarFormat=date\n" * (100 * MEGABYTE // 19))

    def test_noise(self):
        self.counts_as_empty_and_is_replaced(random.Random(1793).randbytes(MEGABYTE))

    def test_keys_a_megabyte_long(self):
        self.counts_as_empty_and_is_replaced(b"[General]\n" + b"k" * MEGABYTE + b"=1\n" + b"menuBarFormat=" + b"v" * MEGABYTE)

    def test_little_noise_is_harmless(self):
        for seed in range(8):
            with self.subTest(seed=seed):
                self.file().write_bytes(random.Random(seed).randbytes(3000))
                program = self.start()
                program.stop()

    def test_a_pipe_is_not_waited_for(self):
        os.mkfifo(self.file())
        self.start()


if __name__ == "__main__":
    main()
