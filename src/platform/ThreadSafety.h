#pragma once

/// What clang's -Wthread-safety checks: which lock guards which data, and which functions expect
/// their caller to hold one. Other compilers see nothing. The preset `thread-safety` runs the
/// check.
#if defined(__clang__)
#define LURKWELL_THREAD_ATTRIBUTE(words) __attribute__((words))
#else
#define LURKWELL_THREAD_ATTRIBUTE(words)
#endif

/// A class whose objects are locks; `name` is what the compiler calls one.
#define LURKWELL_CAPABILITY(name) LURKWELL_THREAD_ATTRIBUTE(capability(name))
/// A class whose objects hold a lock for as long as they live.
#define LURKWELL_SCOPED_CAPABILITY LURKWELL_THREAD_ATTRIBUTE(scoped_lockable)

/// Data that is read and written only while the lock is held.
#define LURKWELL_GUARDED_BY(lock) LURKWELL_THREAD_ATTRIBUTE(guarded_by(lock))

/// The caller holds the lock.
#define LURKWELL_REQUIRES(lock) LURKWELL_THREAD_ATTRIBUTE(requires_capability(lock))
/// The function takes or leaves the lock; without an argument, the object's own.
#define LURKWELL_ACQUIRE(...) LURKWELL_THREAD_ATTRIBUTE(acquire_capability(__VA_ARGS__))
#define LURKWELL_RELEASE(...) LURKWELL_THREAD_ATTRIBUTE(release_capability(__VA_ARGS__))

/// What the function does with locks is more than the compiler can follow; a comment there says
/// why it is right.
#define LURKWELL_UNCHECKED_LOCKING LURKWELL_THREAD_ATTRIBUTE(no_thread_safety_analysis)
