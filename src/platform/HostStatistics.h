#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lurkwell {

/// Which figures of the machine as a whole are to be read.
enum MachineSource : unsigned {
  kProcessorTimes = 1,
  kMachineMemory = 2,
  kDisks = 4,
  kNetworkInterfaces = 8,
  kPressure = 16,
  kLoad = 32,
  kTemperatures = 64,
  kFrequencies = 128,
  kLimits = 256,
  kGraphicsDevices = 512,
};
using MachineSources = unsigned;

/// One processor since the machine started, in microseconds. What it waited for input and output
/// counts as idle.
struct ProcessorTime {
  int number = 0;
  std::int64_t busy = 0;
  std::int64_t idle = 0;
};

/// All processors together since the machine started, in microseconds.
struct ProcessorModes {
  std::int64_t user = 0;
  std::int64_t nice = 0;
  std::int64_t system = 0;
  std::int64_t idle = 0;
  /// For input and output, with nothing else to do.
  std::int64_t waiting = 0;
  std::int64_t interrupts = 0;
  std::int64_t softInterrupts = 0;
  /// What other virtual machines had.
  std::int64_t stolen = 0;
};

/// Bytes. What could be had at once counts as available: the page cache, and what ZFS would give
/// back of its own cache.
struct MachineMemory {
  std::int64_t total = 0;
  std::int64_t available = 0;
  std::int64_t swap = 0;
  std::int64_t swapFree = 0;
  /// As the kernel counts them; nothing where it is not told.
  std::optional<std::int64_t> free = {};
  std::optional<std::int64_t> cached = {};
  std::optional<std::int64_t> buffers = {};
  std::optional<std::int64_t> shared = {};
};

/// A disk or a network interface and the bytes it has moved since it is there.
struct MovedBytes {
  std::string name;
  /// Read or received, and written or sent.
  std::int64_t in = 0;
  std::int64_t out = 0;
  /// A device of its own, and not made of others (a partition, a bridge, a file).
  bool isPhysical = false;
};

/// For how much of the last 10, 60 and 300 seconds some, or all, were held up; in per cent.
struct PressureShares {
  std::array<double, 3> some{};
  std::array<double, 3> full{};
  /// The time of it since the machine started, in microseconds, where it is told.
  std::optional<std::int64_t> someTime = {};
  std::optional<std::int64_t> fullTime = {};
};

struct Temperature {
  /// The chip's name, and the sensor's where it has one.
  std::string name;
  double celsius = 0;
};

/// A graphics device that tells how busy it is, which not every driver has it do.
struct GraphicsDevice {
  std::string name;
  /// From 0 to 1.
  double busy = 0;
  /// Bytes of its own memory, where it has any and tells.
  std::optional<std::int64_t> memoryUsed, memory;
};

struct Frequency {
  int processor = 0;
  std::int64_t hertz = 0;
};

/// What this machine is allowed of a bigger one, when it is a container; the tightest of all limits
/// up the tree of its control groups.
struct MachineLimits {
  std::optional<std::int64_t> memory;
  /// What is taken of it.
  std::optional<std::int64_t> memoryUsed;
  /// In processors, 1.5 for one and a half.
  std::optional<double> processors;
};

/// What was asked for and is there; all else is nothing or empty.
struct MachineFigures {
  std::vector<ProcessorTime> processors;
  std::optional<ProcessorModes> modes;
  /// Processes and threads that have begun since the machine started, those that ended among them;
  /// with the processors' times.
  std::optional<std::int64_t> begunTasks;
  std::optional<MachineMemory> memory;
  std::vector<MovedBytes> disks;
  std::vector<MovedBytes> interfaces;
  std::optional<PressureShares> processorPressure;
  std::optional<PressureShares> memoryPressure;
  std::optional<PressureShares> diskPressure;
  /// Of 1, 5 and 15 minutes.
  std::optional<std::array<double, 3>> load;
  std::vector<Temperature> temperatures;
  std::vector<Frequency> frequencies;
  std::vector<GraphicsDevice> graphics;
  MachineLimits limits;
};

/// What a disk or an interface moved, in bytes per second; nothing for a counter that went back.
struct MovedRates {
  std::string name;
  std::optional<double> in, out;
};

/// What the machine did between two readings.
struct MachineActivity {
  /// From 0 to 1, by the processors' numbers; nothing for one that was not there in both.
  std::vector<std::optional<double>> processors;
  /// Bytes per second of all physical disks, and of all interfaces that are no loopback: the
  /// physical ones where there is any.
  std::optional<double> diskRead, diskWritten;
  std::optional<double> received, sent;
  /// Each of those that are counted, if it was there before.
  std::vector<MovedRates> disks, interfaces;
};

/// Makes rates of counters: from the second reading on, over the time that has passed; nothing for
/// a counter that went back.
class MachineRates {
 public:
  /// `when` is in microseconds of a clock that does not step.
  MachineActivity Take(const MachineFigures& figures, std::int64_t when);

 private:
  std::optional<std::int64_t> mWhen;
  MachineFigures mBefore;
};

/// The machine's memory, in pages; `pageouts` counts since the machine started.
struct VirtualMemoryStatistics {
  std::int64_t freePages = 0;
  std::int64_t inactivePages = 0;  ///< could be had at once, but for what they hold
  std::int64_t wiredPages = 0;     ///< cannot be taken from their owners
  std::int64_t pageouts = 0;
};

/// Counts the processes that begin while it lives, those that end at once among them. Main thread.
class ProcessBirths {
 public:
  virtual ~ProcessBirths() = default;

  /// How many processes (no threads) have begun since the last call; nothing for the first call,
  /// and where the machine has not told all of them.
  virtual std::optional<std::int64_t> Since() = 0;
};

/// Figures of the machine as a whole. Main thread.
class HostStatistics {
 public:
  virtual ~HostStatistics() = default;

  /// Bytes of text and data that the machine maps into every process, which a virtual size counts
  /// although no process pays for them; 0 where there is no such region.
  virtual std::int64_t SharedTextAndDataSize() const = 0;

  /// Bytes in a page; nothing when the machine does not tell.
  virtual std::optional<std::int64_t> PageSize() const = 0;

  /// False when not all figures could be had; those that were are in `statistics`, others stay.
  virtual bool ReadVirtualMemory(VirtualMemoryStatistics& statistics) const = 0;

  /// What the machine tells of these; nothing else is read. Files that are missing or make no sense
  /// leave their figures out.
  virtual MachineFigures Read(MachineSources wanted) const = 0;

  /// Begins to count processes that begin; null where the user has no right to know, or the machine
  /// does not count them.
  virtual std::unique_ptr<ProcessBirths> CountBirths() const { return nullptr; }

  /// Bytes; 0 when the machine does not tell.
  virtual std::int64_t PhysicalMemory() const = 0;

  /// Processors that run processes at present; at least 1.
  virtual int Processors() const = 0;
};

}  // namespace lurkwell
