#pragma once

#include <string>

#include "platform/Signals.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// Signals through a pidfd, which means one process and no other. A kernel or a sandbox without
/// pidfds gets no signals sent at all.
class LinuxSignals final : public Signals {
 public:
  /// `root` is where proc is mounted, for the start stamps.
  explicit LinuxSignals(const std::string& root = "/proc") : mFiles(root) {}
  bool Send(ProcessIdentity process, int signal) override;

 private:
  ProcFiles mFiles;
};

}  // namespace lurkwell
