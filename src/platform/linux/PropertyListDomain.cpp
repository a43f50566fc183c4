#include "platform/linux/PropertyListDomain.h"

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <random>
#include <thread>

#include "platform/Diagnostics.h"
#include "platform/linux/PropertyListDocument.h"

namespace lurkwell {
namespace {

// Byte 0 is the lock. A process that waits holds a shared lock on byte 1, so that a busy writer
// sees that it would otherwise take the lock again before another one that sleeps between tries.
constexpr off_t kLockByte = 0;
constexpr off_t kCrowdByte = 1;

struct flock ByteLock(short type, off_t byte) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = byte;
  lock.l_len = 1;
  return lock;
}

bool Apply(int file, short type, off_t byte) {
  struct flock lock = ByteLock(type, byte);
  int result = -1;
  do {
    result = fcntl(file, F_OFD_SETLK, &lock);
  } while (result < 0 && errno == EINTR);
  return result == 0;
}

bool OthersWait(int file) {
  struct flock lock = ByteLock(F_WRLCK, kCrowdByte);
  return fcntl(file, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

int OpenLockFile(const std::string& path) {
  int file = -1;
  do {
    file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
  } while (file < 0 && errno == EINTR);
  return file;
}

}  // namespace

FileLock::FileLock(const std::string& path, std::chrono::milliseconds patience)
    : mFile(OpenLockFile(path)) {
  if (!mFile.IsOpen()) return;
  const bool letOthersGoFirst = patience.count() > 0 && OthersWait(mFile.Get());
  if (!letOthersGoFirst && Try()) return;
  if (mState == State::kBusy || letOthersGoFirst) WaitInTheCrowd(patience);
}

bool FileLock::Try() {
  if (Apply(mFile.Get(), F_WRLCK, kLockByte)) {
    mState = State::kHeld;
    return true;
  }
  mState = errno == EAGAIN ? State::kBusy : State::kUnavailable;
  return false;
}

void FileLock::WaitInTheCrowd(std::chrono::milliseconds patience) {
  using std::chrono::steady_clock;
  const auto deadline = steady_clock::now() + patience;
  // Uneven pauses, so that two waiters never keep step.
  static thread_local std::minstd_rand random{std::random_device{}()};
  std::uniform_int_distribution<int> pause(200, 800);
  Apply(mFile.Get(), F_RDLCK, kCrowdByte);
  while (steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::microseconds(pause(random)));
    if (Try() || mState == State::kUnavailable) break;
  }
  Apply(mFile.Get(), F_UNLCK, kCrowdByte);
}

namespace {

constexpr std::chrono::milliseconds kPatience{1000};
constexpr std::chrono::milliseconds kNoPatience{0};
constexpr int kMergeAttempts = 3;

std::string InWords(const FileFault& fault) {
  if (fault.code == 0) return fault.step;
  return std::string(fault.step) + ": " + std::strerror(fault.code);
}

}  // namespace

std::string UserConfigurationFolder() {
  const char* configured = std::getenv("XDG_CONFIG_HOME");
  if (configured != nullptr && configured[0] == '/') return configured;
  const char* home = std::getenv("HOME");
  if (home != nullptr && home[0] == '/') return std::string(home) + "/.config";
  std::array<char, 4096> buffer{};
  passwd entry{};
  passwd* found = nullptr;
  getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found);
  if (found == nullptr || found->pw_dir == nullptr || found->pw_dir[0] != '/') return {};
  return std::string(found->pw_dir) + "/.config";
}

PropertyListDomain::PropertyListDomain(const std::string& folder)
    : mFile(folder, kFileName), mHasFolder(!folder.empty()) {
  if (!mHasFolder) return;
  if (TakeIn() == Intake::kUnfit) {
    const FileLock lock = Lock();
    Merge();
  }
  if (!mFile.HasStrays()) return;
  const FileLock lock(mFile.LockPath(), kNoPatience);
  if (lock.Outcome() == FileLock::State::kHeld) mFile.RemoveStrays();
}

const PreferenceValue* PropertyListDomain::Value(std::string_view key) {
  const auto at = mValues.find(key);
  return at != mValues.end() ? &at->second : nullptr;
}

void PropertyListDomain::SetValue(std::string_view key, PreferenceValue value) {
  const auto at = mValues.find(key);
  if (at != mValues.end())
    at->second = std::move(value);
  else
    mValues.emplace(key, std::move(value));
  mPending.emplace(key);
}

void PropertyListDomain::RemoveValue(std::string_view key) {
  const auto at = mValues.find(key);
  if (at != mValues.end()) mValues.erase(at);
  mPending.emplace(key);
}

bool PropertyListDomain::Synchronize() {
  if (!mHasFolder) {
    Complain("the preferences cannot be saved", {"looking for the home folder", ENOENT});
    return mPending.empty();
  }
  const bool hasChanges = !mPending.empty() || mIsDocumentAhead;
  if (!hasChanges && !mFile.HasChanged()) return true;
  if (hasChanges) {
    if (const auto fault = mFile.EnsureFolder()) {
      Complain("the preferences cannot be saved", *fault);
      return false;
    }
  }
  const FileLock lock = Lock();
  if (!Merge()) return false;
  return BringChangesIntoDocument() ? Write() : true;
}

// A holder that was stopped must not cost every later change a second: once the patience was spent
// in vain it is not spent again before the lock was free.
FileLock PropertyListDomain::Lock() {
  FileLock lock(mFile.LockPath(), mLockWasBusy ? kNoPatience : kPatience);
  mLockWasBusy = lock.Outcome() == FileLock::State::kBusy;
  if (mLockWasBusy)
    Complain("another instance keeps the preferences locked; going on without", {"waiting", 0});
  return lock;
}

// Takes in what another instance has written, and moves aside what cannot be read.
bool PropertyListDomain::Merge() {
  switch (TakeIn()) {
    case Intake::kDone:
      return true;
    case Intake::kUnfit:
      return SetAside();
    case Intake::kFailed:
      break;
  }
  return false;
}

PropertyListDomain::Intake PropertyListDomain::TakeIn() {
  std::string bytes;
  FileFault fault;
  switch (mFile.ReadIfChanged(bytes, fault)) {
    case PreferenceFile::Reading::kUnchanged:
      return Intake::kDone;
    case PreferenceFile::Reading::kMissing:
      mIsDocumentAhead = mIsDocumentAhead || !mValues.empty();
      return Intake::kDone;
    case PreferenceFile::Reading::kUnfit:
      mUnfitness = fault;
      return Intake::kUnfit;
    case PreferenceFile::Reading::kFailed:
      Complain("the preferences cannot be read and will not be saved", fault);
      return Intake::kFailed;
    case PreferenceFile::Reading::kRead:
      break;
  }
  const char* why = nullptr;
  auto document = PropertyListDocument::Parse(bytes, why);
  if (!document) {
    mFile.Forget();
    mUnfitness = {why, 0};
    return Intake::kUnfit;
  }
  Adopt(*std::move(document));
  return Intake::kDone;
}

bool PropertyListDomain::SetAside() {
  std::string newPath;
  if (const auto fault = mFile.MoveAside(newPath)) {
    Complain("the preferences cannot be used and will not be saved", mUnfitness);
    Complain("the preference file stays as it is", *fault);
    return false;
  }
  Say("the preference file cannot be used (" + InWords(mUnfitness) + "); it is kept as " + newPath);
  mIsDocumentAhead = !mValues.empty();
  return true;
}

void PropertyListDomain::Adopt(PropertyListDocument document) {
  PreferenceValues values = document.Values();
  for (const std::string& key : mPending) {
    values.erase(key);
    if (auto mine = mValues.extract(key)) values.insert(std::move(mine));
  }
  mDocument = std::move(document);
  mValues = std::move(values);
  mIsDocumentAhead = false;
}

// True when there is something to write.
bool PropertyListDomain::BringChangesIntoDocument() {
  for (const std::string& key : mPending) {
    const auto at = mValues.find(key);
    if (at == mValues.end()) {
      if (mDocument.Remove(key)) mIsDocumentAhead = true;
      continue;
    }
    if (mDocument.Value(key) == at->second) continue;
    mDocument.Set(key, at->second);
    mIsDocumentAhead = true;
  }
  if (!mIsDocumentAhead) mPending.clear();
  return mIsDocumentAhead;
}

bool PropertyListDomain::Write() {
  constexpr const char* kNotSaved =
      "the preferences cannot be saved; changes last until the program ends";
  for (int attempt = 1;; ++attempt) {
    const std::string text = mDocument.Text();
    if (text.empty() || text.size() > kMaximumPropertyListSize) {
      Complain(kNotSaved, {"keeping it within 4 MiB", EFBIG});
      return false;
    }
    FileFault fault;
    auto staged = mFile.Stage(text, fault);
    if (!staged) {
      Complain(kNotSaved, fault);
      return false;
    }
    // A program without the lock, or an editor, may have been at it.
    if (attempt < kMergeAttempts && mFile.HasChanged()) {
      if (!Merge()) return false;
      if (!BringChangesIntoDocument()) return true;
      continue;
    }
    if (const auto commitFault = mFile.Commit(*std::move(staged))) {
      Complain(kNotSaved, *commitFault);
      return false;
    }
    mPending.clear();
    mIsDocumentAhead = false;
    return true;
  }
}

// Each cause once, whatever the step that met it.
void PropertyListDomain::Complain(const char* what, const FileFault& fault) {
  const char* cause = fault.code != 0 ? std::strerror(fault.code) : fault.step;
  if (mReported.emplace(what, cause).second) Say(what + std::string(" (") + InWords(fault) + ")");
}

void PropertyListDomain::Say(const std::string& complaint) {
  Diagnose("%s", complaint.c_str());
  mComplaint += (mComplaint.empty() ? "" : "; ") + complaint;
}

}  // namespace lurkwell
