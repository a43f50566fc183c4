#include "platform/linux/LinuxServices.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/Diagnostics.h"
#include "platform/FileDescriptor.h"

namespace lurkwell {
namespace {

template <clockid_t kClock>
TimeValue Read() {
  timespec time{};
  clock_gettime(kClock, &time);
  return {time.tv_sec, static_cast<std::int32_t>(time.tv_nsec / 1000)};
}

}  // namespace

LinuxClock::LinuxClock() : LinuxClock(Read<CLOCK_REALTIME>, Read<CLOCK_BOOTTIME>) {}

LinuxClock::LinuxClock(Reader calendar, Reader sinceBoot)
    : mCalendar(calendar),
      mSinceBoot(sinceBoot),
      mStart(mCalendar()),
      mBootTimeAtStart(mSinceBoot()) {}

TimeValue LinuxClock::Now() {
  return mStart + (mSinceBoot() - mBootTimeAtStart);
}

TimeValue LinuxClock::CalendarNow() {
  return mCalendar();
}

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

namespace {

std::string HomeFolder() {
  if (const char* home = std::getenv("HOME"); home != nullptr && *home == '/') return home;
  const passwd* user = ::getpwuid(::getuid());
  return user != nullptr && user->pw_dir != nullptr && *user->pw_dir == '/' ? user->pw_dir : "";
}

/// Makes what is missing of the path, for the user alone.
bool HaveFolder(const std::string& path) {
  for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
    const std::string part = path.substr(0, slash);
    if (::mkdir(part.c_str(), 0700) != 0 && errno != EEXIST) {
      // A folder above that we may not write, but that is there, is no obstacle.
      if (std::error_code ignored; !std::filesystem::is_directory(part, ignored)) return false;
    }
    if (slash == std::string::npos) break;
  }
  std::error_code ignored;
  return std::filesystem::is_directory(path, ignored);
}

}  // namespace

LinuxBundle::LinuxBundle(const std::string& executable)
    : mPrefix(std::filesystem::path(executable).parent_path().parent_path()) {
  // Of /bin/lurkwell.
  if (mPrefix == "/") mPrefix.clear();
}

std::string LinuxBundle::RunningExecutable() {
  std::error_code ignored;
  return std::filesystem::read_symlink("/proc/self/exe", ignored);
}

std::optional<std::string> LinuxBundle::ApplicationSupportFolder() const {
  std::string folder;
  if (std::error_code ignored; std::filesystem::exists(Path() + "/Contents/build-tree", ignored)) {
    folder = mPrefix + "/Application Support";
  } else if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') {
    folder = data;
  } else if (const std::string home = HomeFolder(); !home.empty()) {
    folder = home + "/.local/share";
  }
  while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
  if (folder.empty() || !HaveFolder(folder)) return std::nullopt;
  return folder;
}

AlertButton TerminalAlerts::RunAlertPanel(const std::string& title, const std::string& message,
                                          const std::string&, const std::string& alternateButton,
                                          const std::string& otherButton) {
  Print(title, message, otherButton);
  if (!otherButton.empty()) return AlertButton::kOther;
  return alternateButton.empty() ? AlertButton::kDefault : AlertButton::kAlternate;
}

std::unique_ptr<Alert> TerminalAlerts::Ask(const AlertText& text,
                                           std::function<void(AlertAnswer)> answered) {
  Print(text.title, text.message, text.otherButton);
  answered(AlertAnswer::kNobody);
  return nullptr;
}

void TerminalAlerts::Print(const std::string& title, const std::string& message,
                           const std::string& otherButton) {
  std::string text = "lurkwell: " + title;
  if (message.find_first_not_of(' ') != std::string::npos) text += " " + message;
  if (!mPrinted.insert(text).second) return;
  if (!otherButton.empty()) text += " (" + otherButton + ")";
  DiagnoseVerbatim("%s", text.c_str());
}

namespace {

constexpr int kMostNames = 100;

std::string InWords(int error) {
  return std::generic_category().message(error);
}

std::string VariableAsFolder(const char* name) {
  const char* folder = std::getenv(name);
  return folder != nullptr && *folder == '/' ? folder : "";
}

std::string LogFolder() {
  auto data = VariableAsFolder("XDG_DATA_HOME");
  if (data.empty()) data = VariableAsFolder("HOME") + "/.local/share";
  return data + "/lurkwell/logs";
}

/// Makes the folder and those above it that are missing. 0, or why not.
int MakeFolder(const std::string& path) {
  for (auto end = path.find('/', 1);; end = path.find('/', end + 1)) {
    const auto folder = path.substr(0, end);
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST && errno != EISDIR) return errno;
    if (end == std::string::npos) return 0;
  }
}

class LinuxLogFile final : public LogFile {
 public:
  LinuxLogFile(std::string path, FileDescriptor file)
      : mPath(std::move(path)), mFile(std::move(file)) {}

  const std::string& Path() const override { return mPath; }

  bool Is(const struct stat& other) const {
    struct stat status {};
    return ::fstat(mFile.Get(), &status) == 0 && status.st_dev == other.st_dev &&
           status.st_ino == other.st_ino;
  }

  std::string Append(std::string_view line) override {
    struct stat status {};
    if (::fstat(mFile.Get(), &status) != 0) return InWords(errno);
    // What is written to a file without a name is lost with the window.
    if (status.st_nlink == 0) return InWords(ENOENT);
    std::string text(line);
    text += '\n';
    std::size_t written = 0;
    while (written < text.size()) {
      const auto count = ::write(mFile.Get(), text.data() + written, text.size() - written);
      if (count > 0) {
        written += static_cast<std::size_t>(count);
      } else if (count == 0 || errno != EINTR) {
        const int error = count == 0 ? EIO : errno;
        TakeBack(written);
        return InWords(error);
      }
    }
    return {};
  }

 private:
  /// Takes the beginning of a line off the end, unless something came behind it.
  void TakeBack(std::size_t written) {
    if (written == 0) return;
    const off_t end = ::lseek(mFile.Get(), 0, SEEK_CUR);
    struct stat status {};
    if (::fstat(mFile.Get(), &status) != 0 || status.st_size != end) return;
    // Where even this fails, the next line begins behind half of one.
    if (::ftruncate(mFile.Get(), end - static_cast<off_t>(written)) != 0) return;
  }

  std::string mPath;
  FileDescriptor mFile;
};

/// A log that is continued, and begun anew before it is too large.
class RotatedLogFile final : public LogFile {
 public:
  RotatedLogFile(std::string base, std::string_view header, std::int64_t mostBytes)
      : mPath(base + ".tsv"), mOldPath(base + "-1.tsv"), mHeader(header), mMostBytes(mostBytes) {}

  const std::string& Path() const override { return mPath; }

  /// Opens the file that has its name now; empty, or why not.
  std::string Open() {
    FileDescriptor file(
        ::open(mPath.c_str(),
               O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY | O_NONBLOCK,
               S_IRUSR | S_IWUSR));
    struct stat status {};
    if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0) return InWords(errno);
    if (!S_ISREG(status.st_mode) || status.st_nlink != 1 || status.st_uid != ::geteuid())
      return InWords(EPERM);
    if ((status.st_mode & (S_IRWXG | S_IRWXO)) != 0 && ::fchmod(file.Get(), S_IRUSR | S_IWUSR) != 0)
      return InWords(errno);
    mFile.emplace(mPath, std::move(file));
    return status.st_size == 0 ? mFile->Append(mHeader) : std::string();
  }

  std::string Append(std::string_view line) override {
    struct stat status {};
    // Another program may have begun a new one, or somebody has taken it away.
    const bool isThere = mFile && ::lstat(mPath.c_str(), &status) == 0 && mFile->Is(status);
    if (!isThere)
      if (auto problem = Open(); !problem.empty()) return problem;
    if (isThere && status.st_size + static_cast<std::int64_t>(line.size()) >= mMostBytes) {
      if (::rename(mPath.c_str(), mOldPath.c_str()) != 0) return InWords(errno);
      if (auto problem = Open(); !problem.empty()) return problem;
    }
    return mFile->Append(line);
  }

 private:
  std::string mPath;
  std::string mOldPath;
  std::string mHeader;
  std::int64_t mMostBytes;
  std::optional<LinuxLogFile> mFile;
};

}  // namespace

LogFiles::Creation LinuxLogFiles::Create(std::string_view name) {
  const auto folder = LogFolder();
  int error = MakeFolder(folder);
  for (int number = 1; error == 0 && number <= kMostNames; ++number) {
    std::string path = folder + '/' + std::string(name);
    if (number > 1) path += '-' + std::to_string(number);
    path += ".tsv";
    FileDescriptor file(::open(
        path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY,
        S_IRUSR | S_IWUSR));
    if (file.IsOpen())
      return {std::make_unique<LinuxLogFile>(std::move(path), std::move(file)), {}};
    if (errno != EEXIST && errno != EINTR) error = errno;
  }
  return {nullptr, InWords(error != 0 ? error : EEXIST)};
}

LogFiles::Creation LinuxLogFiles::Continue(std::string_view name, std::string_view header,
                                           std::int64_t mostBytes) {
  const auto folder = LogFolder();
  if (const int error = MakeFolder(folder); error != 0) return {nullptr, InWords(error)};
  auto file = std::make_unique<RotatedLogFile>(folder + '/' + std::string(name), header, mostBytes);
  if (auto problem = file->Open(); !problem.empty()) return {nullptr, std::move(problem)};
  return {std::move(file), {}};
}

}  // namespace lurkwell
