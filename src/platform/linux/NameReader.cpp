#include "platform/linux/NameReader.h"

#include <algorithm>
#include <chrono>
#include <compare>
#include <condition_variable>
#include <deque>
#include <map>
#include <set>
#include <thread>
#include <utility>

#include "platform/Mutex.h"
#include "platform/linux/CommandName.h"
#include "platform/QuietThread.h"

namespace lurkwell {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;
/// Pid and start.
using Key = std::pair<std::int32_t, std::uint64_t>;

constexpr auto kMoment = 20ms;
constexpr auto kLongestReading = 1s;
constexpr auto kRest = 60s;
constexpr std::size_t kMostQuestions = 8192;
constexpr std::size_t kMostHangingReaders = 4;

struct Shelved {
  SteadyClock::time_point until;
  bool hangs = true;
};

}  // namespace

struct NameReader::Question {
  Key key;
  /// Which name is to be completed; without one the command line is asked for.
  std::string name;

  auto operator<=>(const Question&) const = default;

  std::string Answer(ProcFiles& files) const {
    if (name.empty()) return ReadCommandLine(files, key.first, key.second);
    return std::string(1, ReadFollowingCharacter(files, key.first, key.second, name));
  }
};

/// What the main thread and the readers share; the last of them frees it.
struct NameReader::Mailbox {
  explicit Mailbox(std::shared_ptr<ProcFiles> itsFiles) : files(std::move(itsFiles)) {}

  bool IsIdle() const LURKWELL_REQUIRES(mutex) { return questions.empty() && !reading; }

  /// A reader of another generation than this one ends as soon as it can.
  void GiveUpReader() LURKWELL_REQUIRES(mutex) {
    ++generation;
    reader.detach();
    reading.reset();
    news.notify_all();
  }

  /// False when there is no reader to be had. Main thread, with its own mailbox.
  bool EnsureReader(const std::shared_ptr<Mailbox>& itself) LURKWELL_REQUIRES(mutex);

  const std::shared_ptr<ProcFiles> files;
  Mutex mutex;
  std::condition_variable news;
  std::deque<Question> questions LURKWELL_GUARDED_BY(mutex);
  /// The same, to be found.
  std::set<Question> asked LURKWELL_GUARDED_BY(mutex);
  std::map<Question, std::string> answers LURKWELL_GUARDED_BY(mutex);
  std::map<Key, Shelved> shelf LURKWELL_GUARDED_BY(mutex);
  /// What the reader reads, and since when.
  std::optional<Question> reading LURKWELL_GUARDED_BY(mutex);
  SteadyClock::time_point since LURKWELL_GUARDED_BY(mutex);
  unsigned generation LURKWELL_GUARDED_BY(mutex) = 0;
  /// Main thread's.
  std::thread reader;
};

NameReader::NameReader(std::shared_ptr<ProcFiles> files)
    : mMailbox(std::make_shared<Mailbox>(std::move(files))) {}

NameReader::~NameReader() {
  auto& box = *mMailbox;
  if (!box.reader.joinable()) return;
  MutexLock lock(box.mutex);
  box.questions.clear();
  box.asked.clear();
  if (lock.WaitFor(box.news, kMoment,
                   [&]() LURKWELL_REQUIRES(box.mutex) { return !box.reading; })) {
    ++box.generation;
    box.news.notify_all();
    lock.Unlock();
    box.reader.join();
  } else {
    box.GiveUpReader();
  }
}

bool NameReader::Ask(std::int32_t pid, std::uint64_t startStamp, std::string_view name) {
  return Ask({{pid, startStamp}, std::string(name)});
}

bool NameReader::AskForCommandLine(std::int32_t pid, std::uint64_t startStamp) {
  return Ask({{pid, startStamp}, {}});
}

bool NameReader::Ask(Question question) {
  auto& box = *mMailbox;
  const MutexLock lock(box.mutex);
  if (box.files->NeverBlocks()) {
    box.answers[question] = question.Answer(*box.files);
    return true;
  }
  if (!box.EnsureReader(mMailbox)) return false;
  if (const auto shelved = box.shelf.find(question.key); shelved != box.shelf.end()) {
    if (shelved->second.hangs || SteadyClock::now() < shelved->second.until) return false;
    box.shelf.erase(shelved);
  }
  if (box.answers.contains(question) || box.reading == question || box.asked.contains(question))
    return true;
  if (box.questions.size() >= kMostQuestions) return false;
  box.asked.insert(question);
  box.questions.push_back(std::move(question));
  box.news.notify_all();
  return true;
}

bool NameReader::Mailbox::EnsureReader(const std::shared_ptr<Mailbox>& itself) {
  const auto now = SteadyClock::now();
  if (reading && now - since > kLongestReading) {
    std::erase_if(shelf, [now](const auto& shelved) {
      return !shelved.second.hangs && shelved.second.until <= now;
    });
    shelf[reading->key] = {now + kRest};
    GiveUpReader();
  }
  if (reader.joinable()) return true;
  const auto hanging =
      std::ranges::count_if(shelf, [](const auto& shelved) { return shelved.second.hangs; });
  if (static_cast<std::size_t>(hanging) >= kMostHangingReaders) return false;
  reader = StartWithoutSignals([itself, its = generation] { Serve(itself, its); });
  return reader.joinable();
}

void NameReader::Serve(const std::shared_ptr<Mailbox>& mailbox, unsigned generation) {
  auto& box = *mailbox;
  MutexLock lock(box.mutex);
  for (;;) {
    lock.Wait(box.news, [&]() LURKWELL_REQUIRES(box.mutex) {
      return generation != box.generation || !box.questions.empty();
    });
    if (generation != box.generation) return;
    const Question question = box.questions.front();
    box.questions.pop_front();
    box.asked.erase(question);
    box.reading = question;
    box.since = SteadyClock::now();
    lock.Unlock();
    auto answer = question.Answer(*box.files);
    lock.Lock();
    if (generation != box.generation) {
      // Given up meanwhile.
      if (const auto shelved = box.shelf.find(question.key); shelved != box.shelf.end())
        shelved->second.hangs = false;
      return;
    }
    box.reading.reset();
    box.answers[question] = std::move(answer);
    if (box.questions.empty()) box.news.notify_all();
  }
}

void NameReader::WaitBriefly() {
  auto& box = *mMailbox;
  MutexLock lock(box.mutex);
  if (box.reading && SteadyClock::now() - box.since > kMoment) return;
  lock.WaitFor(box.news, kMoment, [&]() LURKWELL_REQUIRES(box.mutex) { return box.IsIdle(); });
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
  const MutexLock lock(mMailbox->mutex);
  auto answer = mMailbox->answers.extract(question);
  return answer ? std::optional(std::move(answer.mapped())) : std::nullopt;
}

void NameReader::DropAnswers() {
  const MutexLock lock(mMailbox->mutex);
  mMailbox->answers.clear();
}

}  // namespace lurkwell
