#include "recording/Recorder.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <string_view>
#include <utility>
#include <variant>

#include "consolidator/ProcessQueries.h"
#include "platform/Clock.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"

namespace lurkwell {

using namespace recorded;

namespace {

constexpr std::size_t kThreadsNumber = [] {
  std::size_t place = 0;
  while (kRecordedNumbers[place] != "pid_threads") ++place;
  return place;
}();
constexpr std::size_t kCommandLineText = [] {
  std::size_t place = 0;
  while (kRecordedTexts[place] != "pid_command_line") ++place;
  return place;
}();

std::string HostName() {
  char name[256] = {};
  return ::gethostname(name, sizeof name - 1) == 0 ? name : "";
}

std::string ThisBoot() {
  std::string boot;
  std::getline(std::ifstream("/proc/sys/kernel/random/boot_id"), boot);
  return boot;
}

}  // namespace

Recorder* Recorder::Create(const std::string& path, const RecorderOptions& options,
                           std::string& words) {
  auto file = RecordingFile::Open(
      path, {"lurkwell", HostName(), ThisBoot(), options.intervalInMilliseconds});
  if (auto* complaint = std::get_if<std::string>(&file)) {
    words = std::move(*complaint);
    return nullptr;
  }
  auto recorder = std::unique_ptr<Recorder>(
      new Recorder(std::make_unique<RecordingWriter>(
                       std::move(std::get<std::unique_ptr<RecordingFile>>(file)), options.limits),
                   options));
  if (recorder->mThread.Exists()) return recorder.release();
  words = "cannot record: the system has no thread to spare";
  return nullptr;
}

Recorder::Recorder(std::unique_ptr<RecordingWriter> writer, const RecorderOptions& options)
    : ProcessInformationClient(nullptr, options.intervalInMilliseconds),
      mKeepsArguments(options.keepsArguments),
      mThread(std::move(writer)) {}

ProcessInformationClient::NeedLevel Recorder::NeedPidsForProcProperty(const char* property) {
  return NeedPidProcProperty(kInvalidPID, property) ? kNeedAllPids : kNeedNoPids;
}

bool Recorder::NeedPidProcProperty(int, const char* property) {
  const std::string_view its(property);
  return std::ranges::find(kRecordedNumbers, its) != kRecordedNumbers.end() ||
         std::ranges::find(kRecordedTexts, its) != kRecordedTexts.end();
}

void Recorder::NotifyProcessesHaveBeenUpdated() {
  ++mTurn;
  mSeenThreads = 0;
  auto& clock = TheMachine().clock;
  Beat beat;
  beat.header.wall = MicrosecondsOf(clock.CalendarNow());
  beat.header.elapsed = MicrosecondsOf(clock.Now());
  for (const auto pid : PidBlob(kPidBlobAll))
    // What has no process of the kernel's has made-up pids.
    if (pid >= 0) Look(pid, beat);
  DropEnded(beat);
  TakeMachine(beat.header);
  mThread.Append(std::move(beat));
}

void Recorder::Look(std::int32_t pid, Beat& beat) {
  auto& known = mKnown[pid];
  const auto reading = ReadProcess(pid, known.changeStamp, kRecordedFigures, mFigures);
  if (!reading) return;
  const bool isNew = known.turn == 0 || known.process.process != reading->process;
  if (isNew && known.turn != 0) beat.ended.push_back(known.process.process);
  if (isNew) {
    // The stamp of another process says nothing of this one.
    if (known.turn != 0) ReadProcess(pid, 0, kRecordedFigures, mFigures);
    known = {};
    if (mTurn > 1) ++mCounts.births;
  }
  known.turn = mTurn;
  if (known.changeStamp == reading->changeStamp) return;
  known.changeStamp = reading->changeStamp;
  const auto threads = known.process.numbers[kThreadsNumber];
  Take(*reading, known.process);
  if (pid > 0)
    mSeenThreads += std::max<std::int64_t>(known.process.numbers[kThreadsNumber] - threads, isNew);
  beat.changed.push_back(known.process);
}

void Recorder::Take(const ProcessReading& reading, RecordedProcess& process) const {
  process.process = reading.process;
  process.Set(kParent, reading.parentPid);
  process.Set(kPriority, reading.priority);
  process.Set(kNice, reading.nice);
  process.Set(kRunState, static_cast<std::int64_t>(reading.runState));
  process.Set(kStartTime, MicrosecondsOf(reading.startTime));
  for (std::size_t i = kListedNumbers; i < kNumberCount; ++i) {
    const auto& figure = mFigures[i - kListedNumbers];
    process.numbers[i] = figure.number;
    process.numberStates[i] = figure.state;
  }
  const auto textOf = [&](std::size_t column) -> std::string_view {
    if (column < kListedTexts) return reading.commandName;
    const auto text = mFigures[kNumberCount - kListedNumbers + column - kListedTexts].text;
    const bool isCut = column == kCommandLineText && !mKeepsArguments;
    return isCut ? text.substr(0, text.find(' ')) : text;
  };
  process.textStates.fill(FigureState::kKnown);
  for (std::size_t i = kListedTexts; i < kTextCount; ++i)
    process.textStates[i] = mFigures[kNumberCount - kListedNumbers + i - kListedTexts].state;
  bool isSame = process.texts != nullptr;
  for (std::size_t i = 0; i < kTextCount && isSame; ++i) isSame = (*process.texts)[i] == textOf(i);
  if (isSame) return;
  auto texts = std::make_shared<RecordedTexts>();
  for (std::size_t i = 0; i < kTextCount; ++i) (*texts)[i] = textOf(i);
  process.texts = std::move(texts);
}

void Recorder::DropEnded(Beat& beat) {
  std::erase_if(mKnown, [&](const auto& entry) {
    const auto& known = entry.second;
    if (known.turn == mTurn) return false;
    if (known.turn != 0) beat.ended.push_back(known.process.process);
    return true;
  });
  mCounts.deaths += beat.ended.size();
}

void Recorder::CountUnseen(const MachineFigures& figures, BeatHeader& header) {
  if (figures.begunTasks) {
    const auto begun = *figures.begunTasks;
    if (mBegunTasks)
      mCounts.unseen += static_cast<std::uint64_t>(
          std::max<std::int64_t>(begun - *mBegunTasks - mSeenThreads, 0));
    mBegunTasks = header.machine[kBegunTasks] = begun;
  }
  CountUnseenProcesses();
  header.machine[kUnseenTasks] = static_cast<std::int64_t>(mCounts.unseen);
  header.machine[kUnseenProcesses] = mCounts.unseenProcesses.value_or(-1);
}

/// After the list was read: what has begun until then is told.
void Recorder::CountUnseenProcesses() {
  const auto seen = static_cast<std::int64_t>(mCounts.births - mSeenBirths);
  mSeenBirths = mCounts.births;
  if (mTurn == 1) mBirths = TheMachine().hostStatistics.CountBirths();
  if (mBirths == nullptr) return;
  const auto begun = mBirths->Since();
  if (mTurn == 1) return;
  if (begun) {
    mUnseenBirths += *begun - seen;
    mCounts.unseenProcesses = std::max<std::int64_t>(mUnseenBirths, 0);
  } else {
    mBirths.reset();
    mCounts.unseenProcesses.reset();
  }
}

void Recorder::TakeMachine(BeatHeader& header) {
  const auto& statistics = TheMachine().hostStatistics;
  const auto figures = statistics.Read(kProcessorTimes | kMachineMemory);
  auto& machine = header.machine;
  for (const auto& processor : figures.processors) {
    machine[kBusyTime] += processor.busy;
    machine[kIdleTime] += processor.idle;
  }
  machine[kProcessorCount] = statistics.Processors();
  CountUnseen(figures, header);
  if (figures.memory) {
    machine[kMemory] = figures.memory->total;
    machine[kAvailableMemory] = figures.memory->available;
    machine[kSwap] = figures.memory->swap;
    machine[kFreeSwap] = figures.memory->swapFree;
  }
  VirtualMemoryStatistics memory;
  machine[kPageSize] = statistics.PageSize().value_or(0);
  if (statistics.ReadVirtualMemory(memory)) {
    machine[kFreePages] = memory.freePages;
    machine[kInactivePages] = memory.inactivePages;
    machine[kWiredPages] = memory.wiredPages;
    machine[kPageouts] = memory.pageouts;
  }
}

}  // namespace lurkwell
