// Linked into every test program of the thread sanitizer's build, which asks for it by this name.

/// Processes that tests fork may start threads although the test has some. What libraries do that
/// were built without the sanitizer counts only where their threads are none of their own: it does
/// not see their locks.
extern "C" const char* __tsan_default_options();
extern "C" const char* __tsan_default_options() {
#ifdef LURKWELL_FOREIGN_THREADS
  return "die_after_fork=0:ignore_noninstrumented_modules=1";
#else
  return "die_after_fork=0";
#endif
}
