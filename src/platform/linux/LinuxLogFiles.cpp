#include "platform/linux/LinuxLogFiles.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "platform/FileDescriptor.h"

namespace lurkwell {
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

}  // namespace lurkwell
