#include "platform/linux/FileLock.h"

#include <fcntl.h>

#include <cerrno>
#include <random>
#include <thread>

namespace lurkwell {
namespace {

// Byte 0 is the lock. A process that waits holds a shared lock on byte 1, so that a busy writer
// sees that it would otherwise take the lock again before anybody who sleeps between two tries.
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

}  // namespace lurkwell
