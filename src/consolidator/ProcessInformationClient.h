#pragma once

#include <cstdint>
#include <list>
#include <unordered_map>
#include <vector>

#include "platform/Clock.h"
#include "platform/Uuid.h"

namespace lurkwell {

class RunLoopTimer;

/// Pids that a client has yet to hear of; the latest comes out first. Taking a pid out of the
/// middle does not walk the stack.
class PidStack {
 public:
  bool Empty() const { return mPlaces.empty(); }
  bool Contains(std::int32_t pid) const { return mPlaces.contains(pid); }
  void Push(std::int32_t pid);
  /// The stack must not be empty.
  std::int32_t Pop();
  /// Removes every occurrence; true when there was one.
  bool Remove(std::int32_t pid);

 private:
  void TrimTop();

  /// Holes left by Remove read kInvalidPID.
  std::vector<std::int32_t> mPids;
  std::unordered_multimap<std::int32_t, std::size_t> mPlaces;
};

/// A consumer of process data. On each heartbeat the consolidator asks every client whose interval
/// has elapsed (a due client) what it needs, collects just that, and then tells it what changed.
/// A client that is not due hears nothing; what it missed is kept for its next turn.
///
/// Everything here happens on the main thread. Handlers run while the consolidator's region is
/// held; they may read properties and delete clients, themselves included, but must not wait for
/// another thread that reads properties.
///
/// Clients are made with new: the registry deletes those that are left at shutdown.
class ProcessInformationClient {
 public:
  /// The first three say for which processes a property is needed, the others which properties of a
  /// process are needed.
  enum NeedLevel {
    kNeedNoPids = 0,
    kNeedSomePids = 1,
    kNeedAllPids = 2,
    kNeedNoProcProperties = 3,
    kNeedSomeProcProperties = 4,
    kNeedAllProcProperties = 5,
  };

  /// Makes the client known, but not yet served. Without a `uuid` it gets a fresh one. The interval
  /// is in milliseconds; one below 20 is served as 20.
  ProcessInformationClient(const Uuid* uuid, std::int32_t interval);
  ProcessInformationClient(const ProcessInformationClient&) = delete;
  ProcessInformationClient& operator=(const ProcessInformationClient&) = delete;

  virtual void NotifyPidHasBeenAdded(int pid);
  virtual void NotifyPidHasBeenRemoved(int pid);
  virtual void NotifyPidHasChangedAppreciably(int pid);
  virtual void NotifyPreferencesHaveBeenUpdated();

  /// Between turns: ps has told which columns it has, or columns that a client needs have new
  /// values. Everything else is as it was at the last turn.
  virtual void NotifyPSColumnsHaveChanged();

  /// Which properties of this process the client needs: a property level. "No" is final.
  virtual NeedLevel NeedProcPropertiesForPid(int pid);
  /// For which processes the client needs this property: a pid level. "All" and "none" are final;
  /// after "some" the next question follows for each process.
  virtual NeedLevel NeedPidsForProcProperty(const char* property);
  virtual bool NeedPidProcProperty(int pid, const char* property) = 0;

  /// Whether its turn needs to hear at once of every process that has ended. False for what follows
  /// some processes by their figures, or only those that are born: he hears of others' ends later.
  virtual bool NeedsEnds() { return true; }
  /// Whether its turn needs nothing but what was born, with what a process has from its birth on.
  /// Then it is not asked for anything else, and a beat for it alone costs next to nothing.
  virtual bool NeedsOnlyBirths() { return false; }

  /// By how many milliseconds the client may have its turn sooner, when the heart beats for another
  /// that needs the CPU times of all processes. Both then share the beat, and what it costs.
  virtual std::int32_t MayComeEarlyBy() const { return 0; }

  /// The processes that the user can see now: what takes long to read is read of these first.
  virtual std::vector<std::int32_t> PidsInSight() { return {}; }

  /// The client's turn is over: all properties are as fresh as they get.
  virtual void NotifyProcessesHaveBeenUpdated() = 0;
  /// At shutdown, over and over until no client does anything more; true when it did something.
  virtual bool NotifyOptionalCleanup();

  virtual ~ProcessInformationClient();

  /// The class's name, by which preference changes address it.
  virtual const char* TypeName() const { return "ProcessInformationClient"; }

  std::int32_t Interval() const { return mInterval; }
  void SetInterval(std::int32_t milliseconds) { mInterval = milliseconds; }
  const Uuid& Identifier() const { return mUuid; }

  // ---- The registry -----------------------------------------------------------------------------

  /// Runs the clean-up passes and deletes every client there is.
  static void DeleteAllProcessInformationClients();

  /// Tells every active client whose type name begins with `typeName`, or all for "*", that
  /// preferences have changed.
  static void NotifyPreferencesHaveBeenUpdatedForType(const char* typeName);

  static void NotifyAllPSColumnsHaveChanged();

  // ---- What the consolidator records during a heartbeat, inside its region
  // ------------------------

  static void NotifyAllPidHasBeenAdded(int pid);
  static void NotifyAllPidHasChangedAppreciably(int pid);
  /// Recorded for the client's next turn, or told at once.
  static void NotifyAllPidHasBeenRemoved(int pid, bool immediately);

  void RememberAddedPid(int pid);
  void RememberChangedPid(int pid);
  /// A process that came and went between two turns is forgotten altogether.
  void RememberRemovedPid(int pid);

  // ---- What the clients need; `now` is the heartbeat's time, null asks active clients due or not
  // --

  struct ListNode;
  static bool UseNode(const ListNode& node, const TimeValue* now);
  static NeedLevel AggregateNeedLevels(NeedLevel need1, NeedLevel need2);
  static NeedLevel NeedAnyProcPropertyForPid(int pid, const TimeValue* now);
  /// A need for a derived property is a need for what it derives from, and the other way round.
  static NeedLevel NeedAnyPidForProcProperty(const char* property, const TimeValue* now);
  static bool NeedAnyPidProcProperty(int pid, const char* property, const TimeValue* now);

  /// The same from these clients alone, none of which may end meanwhile.
  using Clients = std::vector<ProcessInformationClient*>;
  static Clients DueClients(const TimeValue* now);
  static NeedLevel NeedAnyPidForProcProperty(const char* property, const Clients& clients);
  static bool NeedAnyPidProcProperty(int pid, const char* property, const Clients& clients);

  // ---- Turns
  // --------------------------------------------------------------------------------------

  /// Milliseconds from `now` until the first client is due, at most 15000, negative when one is
  /// late.
  static std::int64_t GetMillisecondsToNextHeartbeat(const TimeValue* now);

  /// Sets the heart's timer to the time at which the first client is due.
  static void SetNextHeartbeat(RunLoopTimer& timer, TimeValue now);

  /// At the beginning of a heartbeat: makes those due that may come early with one that is.
  static void TakeEarlyOnesAlong(const TimeValue& now);

  /// The client is due at the next heartbeat, whatever its interval.
  static void MakeDue(const ProcessInformationClient* client);

  /// Gives every due client its turn: additions, changes, removals, then the update.
  static void NotifyAllProcessesHaveBeenUpdated(const TimeValue* now);

  struct ListNode {
    /// Null once the client is gone and the node waits to be swept.
    ProcessInformationClient* client = nullptr;
    TimeValue lastHeartbeat;
    bool active = false;
  };

 private:
  friend void AddProcessInformationClient(ProcessInformationClient* client);
  friend void RemoveProcessInformationClient(ProcessInformationClient* client);

  class Walk;
  static ListNode& NodeOf(const ProcessInformationClient* client);

  /// Newest first.
  static std::list<ListNode> zm_ListOfProcessInformationClients;
  static int zm_WalksInProgress;

  std::int32_t mInterval;
  Uuid mUuid;
  PidStack mAddedPids;
  PidStack mChangedPids;
  PidStack mRemovedPids;
};

/// Tells the client of every process there is, oldest record first, and serves it from then on.
/// Adding an active client is a fatal assertion.
void AddProcessInformationClient(ProcessInformationClient* client);

/// Serves the client no more; it stays known until it is deleted and may be added again.
void RemoveProcessInformationClient(ProcessInformationClient* client);

}  // namespace lurkwell
