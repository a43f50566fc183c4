#include "platform/linux/LinuxSignals.h"

#include "platform/FileDescriptor.h"

namespace lurkwell {

bool LinuxSignals::Send(ProcessIdentity process, int signal) {
  if (process.pid < 2) return false;
  const FileDescriptor handle = OpenProcessHandle(process.pid);
  if (!handle.IsOpen()) return false;
  // Looked up after the handle was taken: if the stamp is right, the handle either is that process
  // or one before it, which has ended and takes no signal any more.
  if (process.startStamp != 0 && CurrentStartStamp(mFiles, process.pid) != process.startStamp) {
    return false;
  }
  return SendThroughHandle(handle, signal);
}

}  // namespace lurkwell
