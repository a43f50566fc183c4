#include "platform/linux/NameReader.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <compare>
#include <deque>
#include <map>
#include <set>
#include <span>
#include <utility>

#include "platform/Mutex.h"
#include "platform/ProcStat.h"
#include "platform/ProcessIdentity.h"
#include "platform/ThreadSafety.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/ReplaceableThread.h"

namespace lurkwell {
namespace {

// Longer than any path.
using Buffer = std::array<char, 4352>;

std::string_view TextOf(const Buffer& buffer, std::ptrdiff_t bytes) {
  return {buffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0};
}

/// That of this very process, which fails once it has ended; not open when it is gone.
FileDescriptor FolderOf(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp,
                        Buffer& buffer) {
  FileDescriptor folder = files.OpenFolder(pid);
  if (!folder.IsOpen()) return folder;
  const auto stat = ParseProcStat(TextOf(buffer, files.ReadIn(folder.Get(), "stat", buffer)));
  if (!stat || stat->pid != pid || stat->startStamp != startStamp) folder.Close();
  return folder;
}

char Following(std::string_view name, std::string_view path) {
  // Without a slash npos + 1 is the beginning.
  const auto last = path.substr(path.rfind('/') + 1);
  return last.size() > name.size() && last.starts_with(name) ? last[name.size()] : '\0';
}

}  // namespace

char FollowingCharacter(std::string_view name, std::string_view commandLine,
                        std::string_view executable) {
  const char following = Following(name, commandLine.substr(0, commandLine.find('\0')));
  if (following != '\0') return following;
  constexpr std::string_view kDeleted = " (deleted)";
  if (executable.ends_with(kDeleted)) executable.remove_suffix(kDeleted.size());
  return Following(name, executable);
}

char ReadFollowingCharacter(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp,
                            std::string_view name) {
  Buffer commandLine;
  const auto folder = FolderOf(files, pid, startStamp, commandLine);
  if (!folder.IsOpen()) return '\0';
  const auto arguments = TextOf(commandLine, files.ReadIn(folder.Get(), "cmdline", commandLine));
  Buffer executable;
  return FollowingCharacter(name, arguments,
                            TextOf(executable, files.ReadLinkIn(folder.Get(), "exe", executable)));
}

std::string ReadCommandLine(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp) {
  Buffer buffer;
  const auto folder = FolderOf(files, pid, startStamp, buffer);
  if (!folder.IsOpen()) return {};
  std::string text(TextOf(buffer, files.ReadIn(folder.Get(), "cmdline", buffer)));
  text.resize(text.find_last_not_of('\0') + 1);
  std::ranges::replace(text, '\0', ' ');
  return text;
}

namespace {

using namespace std::chrono_literals;

constexpr auto kMoment = 20ms;
constexpr std::size_t kMostQuestions = 8192;

}  // namespace

struct NameReader::Question {
  std::pair<std::int32_t, std::uint64_t> key;
  /// Which name is to be completed; without one the command line is asked for.
  std::string name;

  auto operator<=>(const Question&) const = default;

  ProcessIdentity Process() const { return {key.first, key.second}; }

  std::string Answer(ProcFiles& files) const {
    if (name.empty()) return ReadCommandLine(files, key.first, key.second);
    return std::string(1, ReadFollowingCharacter(files, key.first, key.second, name));
  }
};

/// What the main thread and the reader share; the last of them frees it.
struct NameReader::Mailbox {
  explicit Mailbox(std::shared_ptr<ProcFiles> itsFiles) : files(std::move(itsFiles)) {}
  void Serve(ReplaceableThread::Place place);

  const std::shared_ptr<ProcFiles> files;
  ReplaceableThread thread;
  std::deque<Question> questions LURKWELL_GUARDED_BY(thread.mutex);
  /// The same and the one that is being read, to be found.
  std::set<Question> asked LURKWELL_GUARDED_BY(thread.mutex);
  std::map<Question, std::string> answers LURKWELL_GUARDED_BY(thread.mutex);
};

NameReader::NameReader(std::shared_ptr<ProcFiles> files)
    : mMailbox(std::make_shared<Mailbox>(std::move(files))) {}

NameReader::~NameReader() {
  mMailbox->thread.End();
}

bool NameReader::Ask(std::int32_t pid, std::uint64_t startStamp, std::string_view name) {
  return Ask({{pid, startStamp}, std::string(name)});
}

bool NameReader::AskForCommandLine(std::int32_t pid, std::uint64_t startStamp) {
  return Ask({{pid, startStamp}, {}});
}

bool NameReader::Ask(Question question) {
  auto& box = *mMailbox;
  const MutexLock lock(box.thread.mutex);
  if (box.files->NeverBlocks()) {
    box.answers[question] = question.Answer(*box.files);
    return true;
  }
  if (!box.thread.Ensure(mMailbox) || box.thread.IsResting(question.Process())) return false;
  if (box.answers.contains(question) || box.asked.contains(question)) return true;
  if (box.questions.size() >= kMostQuestions) return false;
  box.asked.insert(question);
  box.questions.push_back(std::move(question));
  box.thread.Notify();
  return true;
}

void NameReader::Mailbox::Serve(ReplaceableThread::Place place) {
  MutexLock lock(thread.mutex);
  for (;;) {
    thread.Wait(lock, place,
                [this]() LURKWELL_REQUIRES(thread.mutex) { return !questions.empty(); });
    if (thread.IsOver(place)) return;
    const Question question = questions.front();
    questions.pop_front();
    std::string answer;
    // Another question about the process may have hung.
    const bool isRead =
        !thread.IsResting(question.Process()) &&
        thread.Read(lock, place, question.Process(), [&] { answer = question.Answer(*files); });
    asked.erase(question);
    if (thread.IsOver(place)) return;
    if (isRead) answers[question] = std::move(answer);
    if (questions.empty()) thread.Notify();
  }
}

void NameReader::WaitBriefly() {
  auto& box = *mMailbox;
  MutexLock lock(box.thread.mutex);
  box.thread.WaitUntilIdle(lock, kMoment, [&box]() LURKWELL_REQUIRES(box.thread.mutex) {
    return box.questions.empty();
  });
}

std::optional<char> NameReader::Take(std::int32_t pid, std::uint64_t startStamp,
                                     std::string_view name) {
  const auto answer = Take({{pid, startStamp}, std::string(name)});
  return answer ? std::optional(answer->front()) : std::nullopt;
}

std::optional<std::string> NameReader::TakeCommandLine(std::int32_t pid, std::uint64_t startStamp) {
  return Take({{pid, startStamp}, {}});
}

std::optional<std::string> NameReader::Take(const Question& question) {
  const MutexLock lock(mMailbox->thread.mutex);
  auto answer = mMailbox->answers.extract(question);
  return answer ? std::optional(std::move(answer.mapped())) : std::nullopt;
}

void NameReader::DropAnswers() {
  const MutexLock lock(mMailbox->thread.mutex);
  mMailbox->answers.clear();
}

}  // namespace lurkwell
