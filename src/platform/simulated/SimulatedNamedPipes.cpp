#include "platform/simulated/SimulatedNamedPipes.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace lurkwell {
namespace {

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '\n') {
      quoted += "\\n";
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

}  // namespace

std::string SimulatedNamedPipes::TemporaryName(std::string_view prefix) {
  return "/tmp/" + std::string(prefix) + std::to_string(++mNames);
}

bool SimulatedNamedPipes::MakeFifo(const std::string& path, unsigned mode) {
  char octal[16];
  std::snprintf(octal, sizeof octal, "%06o", mode);
  mLog.Add("NamedPipes.MakeFifo " + path + " " + octal);
  if (mRefusesFifos) return false;
  return mModes.emplace(path, mode).second;
}

int SimulatedNamedPipes::Open(const char* operation, const std::string& path) {
  if (!mModes.contains(path) || mBehaviour == Behaviour::kDoesNotOpen) return -1;
  mLog.Add(std::string("NamedPipes.") + operation + " " + path);
  mOpen[mNextDescriptor] = path;
  return mNextDescriptor++;
}

int SimulatedNamedPipes::OpenForWriting(const std::string& path, Milliseconds) {
  const int descriptor = Open("OpenForWriting", path);
  if (descriptor < 0) return -1;
  mGreeted = mDied = false;
  mToRead.clear();
  return descriptor;
}

int SimulatedNamedPipes::OpenForReading(const std::string& path, Milliseconds) {
  return Open("OpenForReading", path);
}

bool SimulatedNamedPipes::HasClosed() const {
  return mDied || (mGreeted && mToRead.empty() && mBehaviour == Behaviour::kClosesAfterGreeting);
}

std::ptrdiff_t SimulatedNamedPipes::Write(int descriptor, std::string_view text, Milliseconds) {
  if (!mOpen.contains(descriptor) || HasClosed()) {
    errno = EPIPE;
    return -1;
  }
  if (!mGreeted || mRecordsExchanges) mLog.Add("NamedPipes.Write " + Quoted(text));
  if (!mGreeted) {
    mGreeted = true;
    if (mBehaviour != Behaviour::kDoesNotGreet) mToRead.emplace_back("At your service.\n");
  } else if (mBehaviour == Behaviour::kAnswers) {
    const std::string answer = mHelper(text);
    mToRead.push_back(answer.empty() ? "\n" : answer);
  } else if (mBehaviour == Behaviour::kDiesOnRequest) {
    mDied = true;
  }
  return static_cast<std::ptrdiff_t>(text.size());
}

std::ptrdiff_t SimulatedNamedPipes::Read(int descriptor, std::span<char> buffer, Milliseconds) {
  if (!mOpen.contains(descriptor)) {
    errno = EBADF;
    return -1;
  }
  if (mToRead.empty()) {
    errno = ETIMEDOUT;
    return HasClosed() ? 0 : -1;
  }
  std::string& text = mToRead.front();
  const std::size_t size = std::min(text.size(), buffer.size());
  std::memcpy(buffer.data(), text.data(), size);
  if (mRecordsExchanges) mLog.Add("NamedPipes.Read " + Quoted({text.data(), size}));
  // What did not fit stays, as in a pipe.
  text.erase(0, size);
  if (text.empty()) mToRead.pop_front();
  return static_cast<std::ptrdiff_t>(size);
}

int SimulatedNamedPipes::Close(int descriptor) {
  const auto found = mOpen.find(descriptor);
  if (found == mOpen.end()) return -1;
  mLog.Add("NamedPipes.Close " + found->second);
  mOpen.erase(found);
  return 0;
}

void SimulatedNamedPipes::Unlink(const std::string& path) {
  mLog.Add("NamedPipes.Unlink " + path);
  mModes.erase(path);
}

}  // namespace lurkwell
