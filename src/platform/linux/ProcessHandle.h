#pragma once

#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

#include "platform/linux/FileDescriptor.h"

namespace lurkwell {

// The library's header for these declares them for C alone in some of its versions.

/// A pidfd of the process, close-on-exec, readable once it has ended; none and errno on failure.
inline FileDescriptor OpenProcessHandle(pid_t pid) {
  return FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)));
}

/// Sends a signal to the process that the handle means; false and errno on failure.
inline bool SendThroughHandle(const FileDescriptor& handle, int signal) {
  return ::syscall(SYS_pidfd_send_signal, handle.Get(), signal, nullptr, 0) == 0;
}

}  // namespace lurkwell
