#!/usr/bin/python3
"""Two starts at the same instant leave one program."""

from harness import DesktopTest, main, until

TIMES = 50
NAME = "org.tambrelle.Tambrelle"


class TwoAtOnce(DesktopTest):
    limit = 150

    def test_one_stays(self):
        for time in range(TIMES):
            with self.subTest(time=time):
                pair = [self.start_program(), self.start_program()]
                gone = until("one of them has ended", lambda: [one for one in pair if not one.running], 10)
                self.assertEqual(len(gone), 1, "both have ended")
                self.assertEqual(gone[0].wait(), 0, gone[0].output())
                stays, = (one for one in pair if one.running)
                self.assertEqual(self.desktop.bus.pid_of(NAME), stays.pid)
                stays.process.kill()
                until("its name is free", lambda: not self.desktop.bus.has_owner(NAME))


if __name__ == "__main__":
    main()
