// Whose folders root uses when the environment names those of another user, as under `sudo -E`.
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/linux/OwnFolders.h"
#include "support/Child.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

struct Environment {
  std::string home, configuration;
};

/// What is said, and which folders there are then, each behind a blank; in a process of its own.
std::string Kept(const Environment& environment, uid_t user = 0) {
  return RunForked([&]() -> std::string {
    if (user != 0) BecomeUser(user);
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XAUTHORITY"})
      ::unsetenv(variable);
    ::setenv("HOME", environment.home.c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", environment.configuration.c_str(), 1);
    std::string kept = KeepToOwnFolders();
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XAUTHORITY"}) {
      const char* folder = std::getenv(variable);
      kept += std::string(" ") + (folder != nullptr ? folder : "-");
    }
    return kept;
  });
}

std::string Complaint(const std::string& folder) {
  return "'" + folder + "' is another user's; root keeps to its own settings";
}

TEST(OwnFolders, OfAnotherUserAreNotRoots) {
  ASSERT_EQ(::geteuid(), 0u);
  const std::string roots = ::getpwuid(0)->pw_dir;
  const TemporaryFolder own(0700), foreign(0755, kUser);
  // Whatever is not root's alone, on the way there, too.
  const std::string shared = own.Make("shared", 0777), below = foreign.Make("below", 0700, 0);
  std::filesystem::create_symlink(foreign.Path(), own / "link");
  for (const std::string& folder :
       {foreign.Path(), below, foreign / "not/there", shared, own / "link", own / "link/below"}) {
    EXPECT_EQ(Kept({folder, own.Path()}),
              Complaint(folder) + ' ' + roots + ' ' + own.Path() + ' ' + folder + "/.Xauthority");
    EXPECT_EQ(Kept({own.Path(), folder}), Complaint(folder) + ' ' + own.Path() + " - -");
  }
  // Others may make files in a sticky folder, but not exchange root's.
  const std::string sticky = own.Make("sticky", 01777);
  for (const std::string& folder : {own.Path(), own / "not/there", sticky})
    EXPECT_EQ(Kept({folder, folder}), ' ' + folder + ' ' + folder + " -");
  EXPECT_EQ(Kept({"relative", ""}), " relative  -") << "that is for others to refuse";
  EXPECT_EQ(Kept({own.Path(), foreign.Path()}, kUser),
            ' ' + own.Path() + ' ' + foreign.Path() + " -")
      << "only root is kept from anything";
}

}  // namespace
}  // namespace lurkwell
