#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "platform/ProcessIdentity.h"
#include "platform/ProcessManager.h"

namespace lurkwell {

/// One value of an event; its alternative says its type: 'long', 'psn ' or, for bytes, '****'.
using EventValue = std::variant<std::int32_t, ProcessSerialNumber, std::vector<std::byte>>;

struct EventParameter {
  FourCharCode keyword{};
  EventValue value;
};

/// What one program tells another.
struct Event {
  FourCharCode eventClass{};
  FourCharCode id{};
  std::vector<EventParameter> parameters;
  /// Of a received event: the way back to its sender, an address of its own.
  std::string sender;

  /// The value of that keyword if there is one of that type, else null.
  template <typename T>
  const T* Find(FourCharCode keyword) const {
    for (const auto& parameter : parameters)
      if (parameter.keyword == keyword) return std::get_if<T>(&parameter.value);
    return nullptr;
  }
};

/// Where an event goes: to the program with that signature, to the application with that serial
/// number, or to the sender of an earlier event.
using EventAddress = std::variant<FourCharCode, ProcessSerialNumber, std::string>;

/// Events between the programs of one user. Nothing is waited for and nothing is answered. Main
/// thread only.
class EventBus {
 public:
  enum Status : int {
    kNoError = 0,
    kNoSuchProcess = -600,
    kNoSuchParameter = -1701,
    kCannotBeSent = -609,  ///< the event is too large, or the bus has gone
  };

  using Handler = std::function<void(const Event&)>;

  virtual ~EventBus() = default;

  /// kNoError means that the event is on its way, not that it has been read.
  virtual Status Send(const EventAddress& address, const Event& event) = 0;

  /// Calls `handler` for every event of that class and id from now on, instead of an earlier one.
  /// Events without a handler are dropped, as are those of other users and those that are too many
  /// or too large.
  virtual void InstallEventHandler(FourCharCode eventClass, FourCharCode id, Handler handler) = 0;

  /// How a program that is started from here finds the bus; "" without one.
  virtual std::string Address() const = 0;
};

}  // namespace lurkwell

/// The events between the program, its nub in the Classic environment, and the guests there.
namespace lurkwell::classic_events {

/// The class of both events below.
inline constexpr FourCharCode kClass = {'Z', 'r', 'v', 'q'};

/// To the nub: the process serial number to serve, and the ticks to sleep between reports.
inline constexpr FourCharCode kControl = {'Z', 'r', 'v', '_'};
inline constexpr FourCharCode kServedProcess = {'Z', 'r', 'v', '1'};
inline constexpr FourCharCode kSleepTicks = {'Z', 'r', 'v', '2'};

/// From the nub: records of 396 bytes.
inline constexpr FourCharCode kReport = {'Z', 'r', 'q', '0'};
inline constexpr FourCharCode kRecords = {'Z', 'r', 'v', '#'};

/// What every application understands: class and id.
inline constexpr FourCharCode kCoreEvents = {'a', 'e', 'v', 't'};
inline constexpr FourCharCode kQuit = {'q', 'u', 'i', 't'};

}  // namespace lurkwell::classic_events
