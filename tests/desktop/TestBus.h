#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/ChildProgram.h"
#include "support/TemporaryFolder.h"

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

/// A session bus that lets every user in, which usual ones do not.
class OpenBus {
 public:
  OpenBus() {
    mFolder.Write("bus.conf", "<busconfig><type>session</type><listen>unix:path=" + Socket() +
                                  "</listen><policy context='default'><allow user='*'/>"
                                  "<allow send_destination='*' eavesdrop='true'/><allow own='*'/>"
                                  "<allow receive_sender='*'/></policy></busconfig>");
    mDaemon = std::make_unique<ChildProgram>(std::vector<std::string>{
        "dbus-daemon", "--config-file=" + mFolder / "bus.conf", "--nofork", "--print-address=1"});
    mAddress = mDaemon->ReadLine();
  }
  const std::string& Address() const { return mAddress; }
  std::string Socket() const { return mFolder / "socket"; }

 private:
  TemporaryFolder mFolder;
  std::unique_ptr<ChildProgram> mDaemon;
  std::string mAddress;
};

}  // namespace lurkwell
