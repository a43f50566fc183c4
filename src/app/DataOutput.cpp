#include "app/DataOutput.h"

#include <fcntl.h>
#include <unistd.h>

namespace lurkwell {

DataOutput::DataOutput() : mStream(stdout) {
  std::fflush(stdout);
  const int data = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  if (data < 0) return;
  auto* stream = ::fdopen(data, "w");
  if (stream == nullptr || ::dup2(STDERR_FILENO, STDOUT_FILENO) < 0) {
    stream != nullptr ? std::fclose(stream) : ::close(data);
    return;
  }
  mStream = stream;
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
}

DataOutput::~DataOutput() {
  if (mStream == stdout) return;
  std::fflush(stdout);
  std::fflush(mStream);
  ::dup2(::fileno(mStream), STDOUT_FILENO);
  std::fclose(mStream);
}

}  // namespace lurkwell
