#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "platform/Clock.h"
#include "process_control/ListingFormat.h"
#include "query/Query.h"

namespace lurkwell {

/// What is listed at each update, and how.
struct ListingPlan {
  std::vector<ListingColumn> columns;
  ListingForm form = ListingForm::kText;
  Query query;
  /// A property; empty for the order in which processes became known.
  std::string sortKey;
  bool isDescending = false;
  /// Children below their parents, those of one parent in the sort's order. A process that is not
  /// listed has its children listed where it would stand.
  bool isTree = false;
  std::optional<std::int32_t> limit;
  std::int32_t intervalInMilliseconds = 1000;
};

/// Prints any properties and ps columns of processes that fulfil a query.
class ListingClient : public ProcessInformationClient {
 public:
  /// `out` stays the caller's and outlives this.
  ListingClient(ListingPlan plan, std::FILE* out);

  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  void NotifyProcessesHaveBeenUpdated() override;
  /// Whether the first listing has to wait for what the query looks at and what is read in the
  /// background, which it does for five seconds at most; asked once at each update.
  bool MustWait();
  const char* TypeName() const override { return "ListingClient"; }

 private:
  struct Candidate;

  std::vector<Candidate> Candidates() const;
  std::vector<Candidate> AsTree(std::vector<Candidate> sorted) const;

  ListingPlan mPlan;
  std::unique_ptr<ListingFormat> mFormat;
  std::FILE* mOut;
  /// Of the query, those that are read in the background.
  std::vector<std::string> mAwaited;
  std::optional<TimeValue> mFirstTurn;
};

}  // namespace lurkwell
