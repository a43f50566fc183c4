// What the store does when the machine refuses.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <algorithm>
#include <cerrno>

#include "CallSupervisor.h"
#include "PreferenceTestSupport.h"
#include "platform/linux/PropertyListDocument.h"

namespace lurkwell {
namespace {

std::int64_t OnDisk(const PreferenceFolder& folder, const std::string& key) {
  const char* why = nullptr;
  const auto document = PropertyListDocument::Parse(ReadFile(folder.PreferenceFile()), why);
  if (!document) return -2;
  const auto value = document->Value(key);
  const auto* integer = value ? std::get_if<std::int64_t>(&*value) : nullptr;
  return integer != nullptr ? *integer : -1;
}

std::ptrdiff_t Lines(const std::string& text) {
  return std::count(text.begin(), text.end(), '\n');
}

// A disk in memory on the folder, seen by this process and its children alone.
bool MountDisk(const PreferenceFolder& folder, const char* options) {
  return unshare(CLONE_NEWNS) == 0 &&
         mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount("disk", folder.Path().c_str(), "tmpfs", 0, options) == 0;
}

// Four sets, of which any may fail; then the machine is well again. How many failed, or 10 and more
// for what went wrong.
int SetUnderFaults(const PreferenceFolder& folder, bool hasOld, int allowedFailures) {
  ToggleSupervision();
  testing::internal::CaptureStderr();
  ToggleSupervision();
  PropertyListDomain domain(folder.Path());
  int failures = 0;
  for (std::int64_t number = 1; number <= 4; ++number) {
    domain.SetValue("K", number);
    const bool isSaved = domain.Synchronize();
    ToggleSupervision();
    failures += isSaved ? 0 : 1;
    if (IntegerAt(domain, "K") != number) return 10;
    const bool isThere = std::filesystem::exists(folder.PreferenceFile());
    const std::int64_t onDisk = OnDisk(folder, "K");
    if (isSaved && onDisk != number) return 11;
    if (isThere && onDisk == -2) return 12;  // torn
    if (!isThere && (hasOld || isSaved)) return 13;
    ToggleSupervision();
  }
  ToggleSupervision();
  const bool isSaved = domain.Synchronize();
  const std::string said = testing::internal::GetCapturedStderr();
  if (!isSaved || failures > allowedFailures) return 14;
  // One fault gives one message at most, or two when the file cannot even be moved aside.
  if (Lines(said) > 2 || (failures > 0 && Lines(said) == 0)) return 15;
  return failures;
}

enum class Before { kNothing, kFile, kLink };

void Prepare(const PreferenceFolder& folder, Before before, const std::string& old) {
  if (before == Before::kFile) WriteFile(folder.PreferenceFile(), old);
  if (before != Before::kLink) return;
  std::filesystem::create_directory(folder / "elsewhere");
  WriteFile(folder / "elsewhere/real", old);
  std::filesystem::create_symlink("elsewhere/real", folder.PreferenceFile());
}

// After the run: nothing lost, nothing left over, and an old file used on or kept aside.
void Examine(const PreferenceFolder& folder, Before before, const std::string& old, int error) {
  PropertyListDomain after(folder.Path());
  ASSERT_EQ(IntegerAt(after, "K"), 4);
  ASSERT_EQ(folder.CountOf(".new"), 0);
  ASSERT_EQ(std::filesystem::is_symlink(folder.PreferenceFile()), before == Before::kLink);
  std::string aside;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path()))
    if (entry.path().string().find(".damaged-") != std::string::npos) aside = entry.path();
  if (aside.empty()) {
    ASSERT_EQ(IntegerAt(after, "OLD"), before == Before::kNothing ? -1 : 7);
    return;
  }
  // A file that this user may not open is out of use, but still there.
  ASSERT_TRUE(error == EACCES || error == EPERM);
  ASSERT_EQ(ReadFile(aside), old);
}

TEST(PreferenceFault, EachErrorAtEachCall) {
  // Some 15,000 synchronised writes: on a disk that does not make the test wait.
  const PreferenceFolder disk;
  ASSERT_TRUE(MountDisk(disk, "size=64m"));
  std::size_t runs = 0;
  const std::string old =
      PropertyList("<key>OLD</key><integer>7</integer><key>K</key><integer>0</integer>");
  for (const Before before : {Before::kNothing, Before::kFile, Before::kLink}) {
    std::vector<int> errors = {ENOSPC, EIO, EACCES, EINTR, kWriteLess};
    if (before == Before::kFile)
      errors.insert(errors.end(), {EDQUOT, EROFS, EPERM, ENOMEM, EMFILE});
    for (const int error : errors) {
      const int allowedFailures = error == EINTR || error == kWriteLess ? 0 : 1;
      bool isReached = true;
      for (std::size_t point = 0; isReached; ++point, ++runs) {
        SCOPED_TRACE("error " + std::to_string(error) + " at call " + std::to_string(point));
        const PreferenceFolder folder(disk.Path());
        Prepare(folder, before, old);
        int kindOfCall = -1;
        const SupervisedEnd end = Supervise(
            [&] { return SetUnderFaults(folder, before != Before::kNothing, allowedFailures); },
            [&](std::size_t index, int kind) {
              if (index == point) kindOfCall = kind;
              return index == point ? error : kLetItPass;
            });
        isReached = point < end.calls;
        ASSERT_LE(end.exit, allowedFailures) << "kind of call " << kindOfCall;
        // What never reached the disk is not saved.
        if (kindOfCall == SYS_fsync && allowedFailures > 0) {
          ASSERT_EQ(end.exit, 1);
        }
        ASSERT_NO_FATAL_FAILURE(Examine(folder, before, old, error));
      }
    }
  }
  EXPECT_EQ(umount(disk.Path().c_str()), 0);
  RecordProperty("runs", std::to_string(runs));
  EXPECT_GT(runs, 1000U);
}

constexpr const char* kSmall = "size=64k,mode=755";

void FillUp(const std::filesystem::path& path) {
  const FileDescriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
  const std::string block(4096, 'x');
  while (write(file.Get(), block.data(), block.size()) > 0) {
  }
}

TEST(PreferenceFault, AFullOrReadOnlyDiskKeepsTheOldFileAndTheSessionsValues) {
  for (const bool isFull : {true, false}) {
    const PreferenceFolder folder;
    const auto remount = [&folder](unsigned long flags) {
      return mount("disk", folder.Path().c_str(), "tmpfs", MS_REMOUNT | flags, "size=64k") == 0;
    };
    const auto run = [&] {
      if (!MountDisk(folder, kSmall)) return 1;
      {
        PropertyListDomain earlier(folder.Path());
        earlier.SetValue("K", std::int64_t{1});
        if (!earlier.Synchronize()) return 2;
      }
      folder.Write(std::string(".") + PropertyListDomain::kFileName + ".0123456789abcdef.new", "");
      if (isFull) FillUp(folder / "filler");
      if (!isFull && !remount(MS_RDONLY)) return 3;
      testing::internal::CaptureStderr();
      PropertyListDomain domain(folder.Path());
      if (IntegerAt(domain, "K") != 1) return 4;
      for (std::int64_t number = 2; number < 50; ++number) {
        domain.SetValue("K", number);
        if (domain.Synchronize() || IntegerAt(domain, "K") != number) return 5;
        if (OnDisk(folder, "K") != 1 || folder.CountOf(".new") != (isFull ? 0 : 1)) return 6;
      }
      if (Lines(testing::internal::GetCapturedStderr()) != 1) return 7;
      if (isFull) std::filesystem::remove(folder / "filler");
      if (!isFull && !remount(0)) return 8;
      return domain.Synchronize() && OnDisk(folder, "K") == 49 ? 0 : 9;
    };
    EXPECT_EQ(InChild(run), 0) << isFull;
  }
}

TEST(PreferenceFault, AUserWithoutRightsToTheFolderKeepsTheSessionsValues) {
  const struct {
    const char* name;
    mode_t mode;
    const char* inside;
  } cases[] = {{"read-only folder", 0755, ""},
               {"closed folder", 0700, ""},
               {"folder that cannot be made", 0755, "missing/deeper"}};
  for (const auto& example : cases) {
    SCOPED_TRACE(example.name);
    const PreferenceFolder folder;
    ASSERT_EQ(chmod(folder.Path().c_str(), example.mode), 0);
    const pid_t child = Fork([&] {
      if (setgid(61001) != 0 || setuid(61001) != 0) return 1;
      testing::internal::CaptureStderr();
      PropertyListDomain domain(folder / example.inside);
      for (std::int64_t number = 0; number < 5; ++number) {
        domain.SetValue("K", number);
        if (domain.Synchronize() || IntegerAt(domain, "K") != number) return 2;
      }
      const auto lines = Lines(testing::internal::GetCapturedStderr());
      return lines >= 1 && lines <= 2 ? 0 : 3;
    });
    EXPECT_EQ(WaitFor(child), 0);
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
  }
}

}  // namespace
}  // namespace lurkwell
