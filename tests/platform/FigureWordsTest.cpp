// What paths of control groups and the kernel's numbers mean.
#include <gtest/gtest.h>

#include <string>

#include "platform/ControlGroupPath.h"
#include "platform/FigureWords.h"
#include "platform/ProcessorSet.h"

namespace lurkwell {
namespace {

const std::string kNumber(64, 'a');
const std::string kShort = kNumber.substr(0, 12);

TEST(ControlGroupPathTest, ContainersAreKnownByTheirPaths) {
  const struct {
    std::string path, container;
  } table[] = {
      {"/docker/" + kNumber, "Docker " + kShort},
      {"/system.slice/docker-" + kNumber + ".scope", "Docker " + kShort},
      {"/system.slice/docker-" + kNumber + ".scope/init.scope", "Docker " + kShort},
      {"/system.slice/docker.service", ""},
      {"/machine.slice/libpod-" + kNumber + ".scope/container", "Podman " + kShort},
      {"/libpod_parent/libpod-" + kNumber, "Podman " + kShort},
      {"/machine.slice/libpod-conmon-" + kNumber + ".scope", ""},
      {"/kubepods.slice/kubepods-pod12.slice/cri-containerd-" + kNumber + ".scope",
       "Containerd " + kShort},
      {"/kubepods.slice/kubepods-pod12.slice/crio-" + kNumber + ".scope", "CRI-O " + kShort},
      {"/kubepods/besteffort/pod12-34/" + kNumber, "Kubernetes " + kShort},
      {"/lxc.payload.web/system.slice/cron.service", "LXC web"},
      {"/lxc/web/init.scope", "LXC web"},
      {"/lxc.monitor.web", ""},
      {"/machine.slice/systemd-nspawn@debian.service/payload", "nspawn debian"},
      {"/machine.slice/machine-my\\x2dbox.scope", "nspawn my-box"},
      {"/user.slice/user-1000.slice/user@1000.service/app.slice/"
       "app-flatpak-org.example.Maps-4711.scope",
       "Flatpak org.example.Maps"},
      {"/user.slice/app.slice/snap.web.web-12-34.scope", "Snap web"},
      {"/system.slice/snap.lxd.daemon.service", "Snap lxd"},
      {"/lxc.payload.web/docker/" + kNumber, "Docker " + kShort},
      {"/../" + kNumber, "Container " + kShort},
      {"/docker/short", ""},
      {"/", ""},
      {"", ""},
      {"//app-flatpak-.scope/snap..scope/libpod-/pod/", ""},
  };
  for (const auto& [path, container] : table) EXPECT_EQ(ContainerOfPath(path), container) << path;
}

TEST(ControlGroupPathTest, UnitsAndSlicesAreTheInnermostOnes) {
  const std::string path =
      "/user.slice/user-1000.slice/user@1000.service/app.slice/app-gnome-org.example.Ed-12.scope";
  EXPECT_EQ(UnitOfPath(path), "app-gnome-org.example.Ed-12.scope");
  EXPECT_EQ(SliceOfPath(path), "app.slice");
  EXPECT_EQ(UnitOfPath("/system.slice/system-getty.slice/getty@tty1.service"),
            "getty@tty1.service");
  EXPECT_EQ(UnitOfPath("/system.slice/dev\\x2dsda.mount/deeper"), "dev-sda.mount");
  EXPECT_EQ(UnitOfPath("/.service/plain"), "");
  EXPECT_EQ(SliceOfPath("/.slice"), "");
  // The unified hierarchy, the manager's own, the longest of the others.
  EXPECT_EQ(PathOfControlGroups("9:blkio:/other\n0::/a:b\n"), "/a:b");
  EXPECT_EQ(PathOfControlGroups("2:cpu:/x/y\n1:name=systemd:/m.service\n0::/\n"), "/m.service");
  EXPECT_EQ(PathOfControlGroups("2:cpu:/\n4:memory:/a/b\n1:name=systemd:/\n0::/\n"), "/a/b");
  EXPECT_EQ(PathOfControlGroups("0::/\n"), "/");
  EXPECT_EQ(PathOfControlGroups("nonsense"), "");
}

TEST(FigureWordsTest, NumbersOfTheKernelHaveWordsAndUnknownOnesAreShown) {
  EXPECT_EQ(StateInWords('D'), "uninterruptible");
  EXPECT_EQ(StateInWords(1), "1");
  const auto device = [](int major, int minor) {
    return std::int64_t{(minor & 0xff) | major << 8 | (minor & ~0xff) << 12};
  };
  EXPECT_EQ(TerminalInWords(0), "");
  EXPECT_EQ(TerminalInWords(device(136, 5)), "pts/5");
  EXPECT_EQ(TerminalInWords(device(136, 300)), "pts/300");
  EXPECT_EQ(TerminalInWords(device(4, 1)), "tty1");
  EXPECT_EQ(TerminalInWords(device(4, 65)), "ttyS1");
  EXPECT_EQ(TerminalInWords(device(99, 3)), "99:3");
  EXPECT_EQ(SchedulerInWords(3), "batch");
  EXPECT_EQ(SchedulerInWords(99), "99");
  EXPECT_EQ(IOPriorityInWords(0), "by nice value");
  EXPECT_EQ(IOPriorityInWords(2 << 13 | 7), "best effort 7");
  EXPECT_EQ(IOPriorityInWords(1 << 13 | 3), "real time 3");
  EXPECT_EQ(IOPriorityInWords(3 << 13), "idle");
  EXPECT_EQ(SeccompInWords(2), "filter");
  EXPECT_EQ(ElevationInWords(kHasCapabilities), "capabilities");
}

TEST(FigureWordsTest, SetsOfCapabilitiesAreNamed) {
  // As capsh --decode has them.
  constexpr std::int64_t kAll = 0x1ffffffffff;
  EXPECT_EQ(CapabilitiesInWords(0), "none");
  EXPECT_EQ(CapabilitiesInWords(kAll), "all");
  EXPECT_EQ(CapabilitiesInWords(0x3fffffffff), "all") << "of a kernel that knows fewer";
  EXPECT_EQ(CapabilitiesInWords(kAll & ~std::int64_t{1 << 21}), "all but sys_admin");
  EXPECT_EQ(CapabilitiesInWords(0x2000), "net_raw");
  EXPECT_EQ(CapabilitiesInWords(0x800020), "kill, sys_nice");
  EXPECT_EQ(CapabilitiesInWords(std::int64_t{1} << 50), "50");
}

TEST(ProcessorSetTest, ListsAreReadAndWritten) {
  const struct {
    const char *text, *list;
  } lists[] = {{"0", "0"},         {"0-3,6", "0-3,6"}, {"6, 3 - 0", ""},  {"6,0-2,1,2", "0-2,6"},
               {"63-65", "63-65"}, {" 5 ", "5"},       {"", ""},          {",", ""},
               {"0,", ""},         {"-1", ""},         {"1-", ""},        {"0x1", ""},
               {"16383", "16383"}, {"16384", ""},      {"0-99999999", ""}};
  for (const auto& [text, list] : lists)
    EXPECT_EQ(ListOfProcessors(ProcessorsOfList(text).value_or(ProcessorSet{})), list) << text;
  EXPECT_TRUE(AreAmong({0x6}, {0xF}));
  EXPECT_FALSE(AreAmong({0, 1}, {0xF})) << "the 64th is not there";
}

}  // namespace
}  // namespace lurkwell
