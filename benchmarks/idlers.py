"""Idle processes to measure beside, births and ends among them, and what a process has cost."""
import contextlib
import pathlib
import subprocess
import tempfile
import time

IDLER = r"""
#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/prctl.h>
#include <time.h>
#include <unistd.h>
/* The processor time of a pass over all stat files, in milliseconds. */
static double floor_of_a_pass(void) {
  enum { kPasses = 10 };
  DIR* const folder = opendir("/proc");
  for (int pass = 0; pass < kPasses; ++pass) {
    rewinddir(folder);
    for (struct dirent* entry; (entry = readdir(folder)) != NULL;) {
      if (entry->d_name[0] < '1' || entry->d_name[0] > '9') continue;
      char text[4096];
      snprintf(text, sizeof text, "%s/stat", entry->d_name);
      const int file = openat(dirfd(folder), text, O_RDONLY);
      if (file >= 0 && read(file, text, sizeof text) >= 0) close(file);
    }
  }
  struct timespec used;
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return ((double)used.tv_sec * 1e3 + (double)used.tv_nsec / 1e6) / kPasses;
}
/* So many processes a second come and stay for one; as many are there at any time. */
static void give_birth(int births) {
  const struct timespec second = {1, 0};
  struct timespec next;
  clock_gettime(CLOCK_MONOTONIC, &next);
  for (;;) {
    next.tv_nsec += 1000000000 / births;
    if (next.tv_nsec >= 1000000000) {
      next.tv_nsec -= 1000000000;
      ++next.tv_sec;
    }
    clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &next, NULL);
    if (fork() == 0) {
      prctl(PR_SET_NAME, "short-lived");
      prctl(PR_SET_PDEATHSIG, 9);
      nanosleep(&second, NULL);
      _exit(0);
    }
  }
}
int main(int argc, char** argv) {
  if (argc > 1 && strcmp(argv[1], "floor") == 0) return printf("%.3f\n", floor_of_a_pass()) < 0;
  const int count = argc > 1 ? atoi(argv[1]) : 0;
  const int names = argc > 2 ? atoi(argv[2]) : count;
  const int births = argc > 3 ? atoi(argv[3]) : 0;
  /* Nobody waits for those that end. */
  signal(SIGCHLD, SIG_IGN);
  for (int i = 0; i < count; ++i) {
    const pid_t pid = fork();
    if (pid < 0) return 1;
    if (pid == 0) {
      char name[16];
      snprintf(name, sizeof name, "idler-%05d", i % names);
      prctl(PR_SET_NAME, name);
      prctl(PR_SET_PDEATHSIG, 9);
      for (;;) pause();
    }
  }
  puts("ready");
  fflush(stdout);
  if (births > 0) give_birth(births);
  for (;;) pause();
}
"""


def cpu_seconds(pid):
    """User and system time of a process with all its threads; 0 when it is gone."""
    try:
        return time.clock_gettime((~pid << 3) | 2)
    except OSError:
        return 0.0


class Idlers:
    """The program that makes them, for as long as a with statement lasts."""

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        source = pathlib.Path(self.folder.name, "idler.c")
        source.write_text(IDLER, encoding="ascii")
        self.program = self.folder.name + "/idler"
        subprocess.run(["cc", "-O1", "-o", self.program, source], check=True)
        return self

    def __exit__(self, *_):
        self.folder.cleanup()

    @contextlib.contextmanager
    def running(self, count, names=None, births=0):
        """So many processes, of as many names or fewer, and so many births a second of others that
        live for one; False where so many are not allowed."""
        command = [self.program, str(count), str(names or count), str(births)]
        with subprocess.Popen(command, stdout=subprocess.PIPE) as idlers:
            yield idlers.stdout.readline() == b"ready\n"
            idlers.kill()

    def bare_pass(self):
        """Milliseconds of CPU time that reading every stat file takes."""
        return float(subprocess.run([self.program, "floor"], check=True,
                                    stdout=subprocess.PIPE).stdout)
