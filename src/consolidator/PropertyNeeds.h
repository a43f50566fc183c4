#pragma once

#include "consolidator/ProcessInformationClient.h"
#include "consolidator/PropertyCatalogue.h"

namespace lurkwell {

/// The due clients, and those of them that need something of one process: only these are asked for
/// which of its properties, however many windows follow other processes. Lives for one pass.
class ProcessNeeds {
 public:
  using Client = ProcessInformationClient;

  explicit ProcessNeeds(TimeValue now) : mDue(Client::DueClients(&now)) {}

  /// Which properties of the process are needed, taken together; the questions below are about it
  /// from then on.
  Client::NeedLevel LookAt(std::int32_t pid) {
    mPid = pid;
    mInterested.clear();
    auto level = Client::kNeedNoProcProperties;
    for (auto* client : mDue) {
      const auto its = client->NeedProcPropertiesForPid(pid);
      level = Client::AggregateNeedLevels(level, its);
      if (level == Client::kNeedAllProcProperties) break;
      if (its != Client::kNeedNoProcProperties) mInterested.push_back(client);
    }
    return level;
  }

  bool Need(const char* property) const {
    return Client::NeedAnyPidProcProperty(mPid, property, mInterested);
  }

 private:
  const Client::Clients mDue;
  Client::Clients mInterested;
  std::int32_t mPid = kInvalidPID;
};

/// Whether due clients need one property, asked once for all processes and, only when the answer is
/// "some", for each. Lives for one pass.
class PropertyNeed {
 public:
  PropertyNeed(const char* property, TimeValue now)
      : mProperty(property),
        mRow(FindBuiltInProperty(property)),
        mLevel(ProcessInformationClient::NeedAnyPidForProcProperty(property, &now)) {}

  /// The catalogue's row of the property; it must be a built-in one.
  const CatalogueRow& Row() const { return *mRow; }

  bool IsThereAny() const { return mLevel != ProcessInformationClient::kNeedNoPids; }

  /// For the process that was last looked at.
  bool By(const ProcessNeeds& process) const {
    if (mLevel == ProcessInformationClient::kNeedSomePids) return process.Need(mProperty);
    return mLevel == ProcessInformationClient::kNeedAllPids;
  }

 private:
  const char* mProperty;
  const CatalogueRow* mRow;
  ProcessInformationClient::NeedLevel mLevel;
};

}  // namespace lurkwell
