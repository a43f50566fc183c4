#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "consolidator/TextScan.h"
#include "consolidator/TypedValue.h"
#include "platform/Clock.h"
#include "platform/ProcessFigures.h"
#include "platform/ProcessIdentity.h"
#include "platform/ProcessManager.h"
#include "platform/ProcessTable.h"

namespace lurkwell {

/// The source that the consolidator's assertions name, in whichever of its files they stand.
inline constexpr char kUnit[] = "PI_Consolidator";

/// The consolidator's own record of one process and its blocks. Nothing outside the consolidator
/// sees these; clients read properties.

inline constexpr std::size_t kNameCapacity = 256;
inline constexpr std::size_t kCommandNameCapacity = 32;
inline constexpr std::size_t kCarbonNameCapacity = 128;

/// A counter and when it was read, in microseconds of the clock; 0 for never.
struct CounterReading {
  std::int64_t count = 0;
  std::int64_t when = 0;
};

/// What the kernel and the helper say of a process.
struct PidBlock {
  char commandName[kCommandNameCapacity] = {};
  std::int32_t priority = 0;
  std::int32_t parentPid = kInvalidPID;
  std::int32_t nice = 0;
  TimeValue startTime;
  FigureNumbers figures;
  FigureTexts texts;
  /// The counters behind kRates as they were last read; empty until one is needed.
  std::vector<CounterReading> counters;
  /// The kernel's stamp of the process's start, which tells it from a later holder of its pid; 0
  /// while the kernel's table has not named it.
  std::uint64_t startStamp = 0;
  RunState runState = RunState::kSleeping;
  /// The sources of the process table whose figures are here.
  FigureSources reportedSources = 0;
  /// The iteration in which the CPU times came last.
  std::int32_t timesGeneration = 0;
  /// When each of the costly sources was read last.
  std::array<TimeValue, kCostlySourceCount> costlyReadAt{};
  /// Which of the values above are values.
  ValueStates states;

  std::int64_t operator[](Figure figure) const { return figures[figure]; }
  /// True when it was another one.
  bool Put(Figure figure, std::int64_t number) {
    if (figures[figure] == number) return false;
    figures.Set(figure, number);
    return true;
  }
};

/// What the desktop says of an application.
struct CarbonBlock {
  char name[kCarbonNameCapacity] = {};
  FourCharCode type{};
  FourCharCode signature{};
  std::uint32_t mode = 0;

  bool operator==(const CarbonBlock&) const = default;
};

/// One application of the Classic environment as its event carries it, 396 bytes in the sender's
/// byte order. Only positions are trusted.
class ClassicRecord {
 public:
  static constexpr std::size_t kSize = 396;
  /// Two words, high then low.
  static constexpr std::size_t kSerialNumberOffset = 8;

  ClassicRecord() = default;
  /// Copies the bytes and makes the name fit: terminated, at most 254 characters.
  explicit ClassicRecord(const std::byte* bytes);

  FourCharCode Type() const { return Field<FourCharCode>(16); }
  FourCharCode Signature() const { return Field<FourCharCode>(20); }
  std::uint32_t Mode() const { return Field<std::uint32_t>(24); }
  std::uint32_t Location() const { return Field<std::uint32_t>(28); }
  std::int32_t Size() const { return Field<std::int32_t>(32); }
  std::int32_t FreeMemory() const { return Field<std::int32_t>(36); }
  /// Ticks, about 60 a second.
  std::uint32_t ActiveTime() const { return Field<std::uint32_t>(52); }
  std::string_view Name() const;

  /// Whether all but the figures that change while it runs is the same.
  bool IsLike(const ClassicRecord& other) const;

 private:
  static constexpr std::size_t kNameOffset = 68;
  static constexpr std::size_t kNameFieldSize = 256;

  template <typename T>
  T Field(std::size_t offset) const {
    T value;
    std::memcpy(&value, mBytes.data() + offset, sizeof value);
    return value;
  }

  std::array<std::byte, kSize> mBytes{};
};

/// One ps column's text; no text means that ps had none.
struct PSValue {
  int headerIndex = 0;
  std::unique_ptr<std::string> text;
  /// ps printed this because it may not look into the process.
  bool isHidden = false;
};

struct MetaProcessInformation {
  explicit MetaProcessInformation(std::int32_t itsPid) : pid(itsPid) {}
  ~MetaProcessInformation();
  MetaProcessInformation(const MetaProcessInformation&) = delete;
  MetaProcessInformation& operator=(const MetaProcessInformation&) = delete;

  std::int32_t pid;
  ProcessSerialNumber psn;
  char name[kNameCapacity] = {};
  /// The name that `wholeName` goes on from; another one has not been looked into.
  std::string learntName;
  std::string wholeName;
  TimeValue activeTime;
  /// Cached icon data; nothing fills it.
  const void* icon = nullptr;
  /// Reported in the latest iteration of the kinds that own it; only then do clients see it.
  bool valid = false;
  bool changedAppreciably = false;
  std::array<std::int32_t, kInformationKindCount> lastSeenGeneration{};
  std::unique_ptr<ClassicRecord> epir;
  std::uint32_t previousClassicActiveTime = 0;
  std::int32_t killCount = 0;
  std::unique_ptr<CarbonBlock> carbonInfo;
  std::unique_ptr<PidBlock> pidInfo;
  std::unique_ptr<std::vector<PSValue>> psValues;

  /// When any value became another one; see NoteValueChange. Never 0.
  std::uint64_t changeStamp = NextChangeStamp();

  /// To be called whenever a value of the record has become another one, so that what shows it
  /// reads it again.
  void NoteValueChange() { changeStamp = NextChangeStamp(); }

 private:
  static std::uint64_t NextChangeStamp();
};

/// Copies as much of `text` as fits into `dest` and terminates it.
template <std::size_t N>
void StoreText(char (&dest)[N], std::string_view text) {
  text = WholeCharacters(text, N - 1);
  dest[text.copy(dest, text.size())] = '\0';
}

}  // namespace lurkwell
