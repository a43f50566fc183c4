// Linked into every test program of the thread sanitizer's build, which asks for it by this name.

/// Processes that tests fork may start threads although the test has some.
extern "C" const char* __tsan_default_options();
extern "C" const char* __tsan_default_options() {
  return "die_after_fork=0";
}
