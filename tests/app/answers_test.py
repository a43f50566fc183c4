#!/usr/bin/env python3
"""The window goes on answering among many processes, whatever the helper does.

answers_test.py BINARY [unittest arguments]
"""
import os
import signal
import subprocess
import threading
import time
import unittest

from desktop_support import BINARY, Desktop, helpers
from window_ping import WindowPing

# Sleeping processes that end soon after their maker.
SLEEPERS = ("$| = 1; $maker = $$; for (1 .. $ARGV[0]) { next if fork; sleep 20 while getppid == $maker;"
            " exit } print qq(ready\n); sleep 1000 while 1")


class Answers(Desktop):
    def start_sleepers(self, count):
        maker = subprocess.Popen(["perl", "-e", SLEEPERS, str(count)], stdout=subprocess.PIPE,
                                 start_new_session=True)
        self.addCleanup(maker.stdout.close)
        self.addCleanup(maker.wait)
        self.addCleanup(os.killpg, maker.pid, signal.SIGKILL)
        self.assertEqual(maker.stdout.readline(), b"ready\n")

    def slow_down(self, pids, end):
        """Lets them run for three tenths of the time, so that answers are slow and still come."""
        while not end.is_set():
            for number, seconds in ((signal.SIGSTOP, 0.07), (signal.SIGCONT, 0.03)):
                for pid in pids:
                    os.kill(pid, number)
                time.sleep(seconds)

    def test_a_slow_helper_does_not_stop_the_window(self):
        self.start_sleepers(5000)
        self.open_display()
        self.write_preferences({"FIGURES_FROM_HELPER": 1})
        program = self.start([BINARY])
        self.wait_for(lambda: '"Processes"' in self.windows())
        self.wait_for(helpers)
        time.sleep(3)
        ours = helpers()
        self.assertEqual(len(ours), 1)
        end = threading.Event()
        thread = threading.Thread(target=self.slow_down, args=(ours, end))
        thread.start()
        window = int(self.output("xdotool", "search", "--onlyvisible", "--name", "^Processes$"))
        ping = WindowPing(self.environment["DISPLAY"], window)
        time.sleep(8)
        waits = sorted(ping.stop())
        end.set()
        thread.join()
        print(f"{len(waits)} answers, the longest waits in ms:",
              *(round(1000 * wait) for wait in waits[-5:]))
        # Without a bound each beat would take half a minute. On a machine that does nothing else the
        # longest wait stays below a tenth of a second.
        self.assertLess(waits[-1], 0.5)
        self.assertGreater(len(waits), 300)
        self.assertEqual(ours, helpers(), "the helper that was slow is still in use")
        program.terminate()
        program.communicate(timeout=20)
        self.check_nothing_is_left()


if __name__ == "__main__":
    unittest.main(verbosity=2)
