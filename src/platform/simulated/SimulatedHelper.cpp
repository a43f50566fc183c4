#include "platform/simulated/SimulatedHelper.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <sstream>

namespace lurkwell {
namespace {

/// On one line.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\n') {
      escaped += "\\n";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string Quoted(std::string_view text) {
  return '"' + Escaped(text) + '"';
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

namespace {

constexpr std::string_view kActionHeader = "Lkw Action Request:\n";
constexpr std::string_view kFiguresHeader = "Lkw Info Extraction:\n";

/// Lines of property, pid and value for one process.
std::string FiguresOf(const SimulatedProcess& process, std::string_view groups) {
  std::string lines;
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto& row = kFigures[i];
    const auto* word = std::ranges::find(kFigureGroupWords, row.group, &FigureGroupWord::group);
    if (word == std::end(kFigureGroupWords) || groups.find(word->word) == std::string_view::npos)
      continue;
    const std::int64_t value = process.Tell(static_cast<Figure>(i));
    lines += std::string(row.property) + ' ' + std::to_string(process.entry.pid) + ' ';
    if (row.kind == FigureKind::kMicroseconds) {
      const auto time = TimeOfMicroseconds(value);
      lines += std::to_string(time.seconds) + '.' + std::to_string(time.microseconds) + '\n';
    } else {
      lines += std::to_string(value) + '\n';
    }
  }
  return lines;
}

}  // namespace

std::string SimulatedHelper::Answer(std::string_view request) {
  const bool figures = request.starts_with(kFiguresHeader);
  if (!figures || mRecordsFigures) mLog.Add("Helper " + Escaped(request));
  if (request == "geteuid") return std::to_string(mEffectiveUid);
  if (figures) return AnswerFigures(request.substr(kFiguresHeader.size()));
  if (request.starts_with(kActionHeader)) return CarryOut(request.substr(kActionHeader.size()));
  return "!Error unknown request";
}

/// What stops, resumes or renices a process does so; nothing ends one.
std::string SimulatedHelper::CarryOut(std::string_view line) {
  std::istringstream words{std::string(line)};
  std::string verb;
  std::int32_t pid = kInvalidPID;
  std::int32_t nice = 0;
  words >> verb >> pid >> nice;
  auto* process = mTable.Find(pid);
  if (process == nullptr) return "done";
  if (verb == "kill_halt") process->entry.state = RunState::kStopped;
  if (verb == "kill_cont") process->entry.state = RunState::kSleeping;
  if (verb == "renice") process->entry.nice = std::min(nice, 19);
  return "done";
}

std::string SimulatedHelper::AnswerFigures(std::string_view lines) {
  std::string answer;
  while (!lines.empty()) {
    const auto line = lines.substr(0, lines.find('\n'));
    lines.remove_prefix(std::min(line.size() + 1, lines.size()));
    const auto blank = line.find(' ');
    if (blank == std::string_view::npos) continue;
    std::int32_t pid = kInvalidPID;
    std::from_chars(line.data() + blank + 1, line.data() + line.size(), pid);
    if (const auto* process = mTable.Find(pid))
      answer += FiguresOf(*process, line.substr(0, blank));
  }
  return answer;
}

}  // namespace lurkwell
