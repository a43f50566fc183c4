#pragma once

#include <string>

#include "support/ChildProgram.h"

namespace lurkwell {

/// A session bus of this test's own.
class TestBus {
 public:
  const std::string& Address() const { return mAddress; }
  void End() { mDaemon.End(); }

 private:
  ChildProgram mDaemon{
      {"dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"}};
  std::string mAddress = mDaemon.ReadLine();
};

}  // namespace lurkwell
