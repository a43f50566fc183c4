#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "platform/NamedPipes.h"
#include "platform/simulated/AccessLog.h"
#include "platform/simulated/SimulatedProcessTable.h"

namespace lurkwell {

/// Pipes with a scripted helper at their other ends. The first text of a channel is taken as the
/// greeting and answered by itself; every later one goes to the script, whose text is the answer
/// (an empty one is sent as a newline, since no pipe carries it). Nothing waits: what would take
/// longer than its limit fails at once. Making, opening and closing is recorded, and so is the
/// greeting; requests and answers only when RecordExchanges says so.
class SimulatedNamedPipes final : public NamedPipes {
 public:
  using Helper = std::function<std::string(std::string_view request)>;

  enum class Behaviour {
    kAnswers,
    kDoesNotOpen,          ///< never opens its ends
    kDoesNotGreet,         ///< opens them, then says nothing
    kClosesAfterGreeting,  ///< is gone when the first request comes
    kDiesOnRequest,        ///< takes a request, then its ends close
    kStalls,               ///< takes a request and says nothing
  };

  explicit SimulatedNamedPipes(AccessLog& log) : mLog(log) {}

  std::string TemporaryName(std::string_view prefix) override;
  bool MakeFifo(const std::string& path, unsigned mode) override;
  int OpenForWriting(const std::string& path, Milliseconds limit) override;
  int OpenForReading(const std::string& path, Milliseconds limit) override;
  std::ptrdiff_t Write(int descriptor, std::string_view text, Milliseconds limit) override;
  std::ptrdiff_t Read(int descriptor, std::span<char> buffer, Milliseconds limit) override;
  int Close(int descriptor) override;
  void Unlink(const std::string& path) override;

  void SetHelper(Helper helper) { mHelper = std::move(helper); }
  void SetBehaviour(Behaviour behaviour) { mBehaviour = behaviour; }
  /// Puts a text that was not asked for into the open channel.
  void SayUnasked(std::string text) { mToRead.push_back(std::move(text)); }
  void RecordExchanges(bool records) { mRecordsExchanges = records; }
  void RefuseFifos(bool refuses) { mRefusesFifos = refuses; }
  /// Pipes that exist by name, and ends that are open.
  std::size_t NameCount() const { return mModes.size(); }
  std::size_t OpenCount() const { return mOpen.size(); }

 private:
  int Open(const char* operation, const std::string& path);
  bool HasClosed() const;

  AccessLog& mLog;
  Helper mHelper = [](std::string_view) { return std::string(); };
  Behaviour mBehaviour = Behaviour::kAnswers;
  bool mRecordsExchanges = false;
  bool mRefusesFifos = false;
  int mNames = 0;
  int mNextDescriptor = 100;
  std::map<std::string, unsigned> mModes;
  std::map<int, std::string> mOpen;
  bool mGreeted = false;
  bool mDied = false;
  std::deque<std::string> mToRead;
};

/// The helper of a simulated machine: answers requests from its process table and records what it
/// is asked to do, a line per request with newlines written as "\n".
class SimulatedHelper {
 public:
  SimulatedHelper(SimulatedProcessTable& table, AccessLog& log) : mTable(table), mLog(log) {}

  std::string Answer(std::string_view request);

  /// What "geteuid" is answered with.
  void SetEffectiveUid(int uid) { mEffectiveUid = uid; }
  /// Whether requests for figures are recorded, too.
  void SetRecordsFigures(bool records) { mRecordsFigures = records; }

 private:
  std::string CarryOut(std::string_view line);
  std::string AnswerFigures(std::string_view lines);

  SimulatedProcessTable& mTable;
  AccessLog& mLog;
  int mEffectiveUid = 0;
  bool mRecordsFigures = true;
};

}  // namespace lurkwell
