#pragma once

#include <sched.h>
#include <sys/mount.h>

#include <functional>
#include <string>

#include "support/Child.h"

namespace lurkwell {

/// RunForked as process 1 of new pid and mount namespaces, with a proc of its own mounted at
/// `folder` with `options`. Nothing of it is seen outside, and all its processes end with it.
inline std::string RunInPidNamespace(const std::string& folder, const char* options,
                                     const std::function<std::string()>& body) {
  return RunForked([&]() -> std::string {
    if (::unshare(CLONE_NEWPID | CLONE_NEWNS) != 0) return "no namespaces";
    return RunForked([&]() -> std::string {
      if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return "not private";
      if (::mount("proc", folder.c_str(), "proc", 0, options) != 0) return "no proc";
      return body();
    });
  });
}

}  // namespace lurkwell
