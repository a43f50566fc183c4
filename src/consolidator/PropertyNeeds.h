#pragma once

#include "consolidator/ProcessInformationClient.h"
#include "consolidator/PropertyCatalogue.h"

namespace lurkwell {

/// Whether due clients need one property, asked once for all processes and, only when the answer is
/// "some", for each. Lives for one pass.
class PropertyNeed {
 public:
  PropertyNeed(const char* property, TimeValue now)
      : mProperty(property),
        mRow(FindBuiltInProperty(property)),
        mNow(now),
        mLevel(ProcessInformationClient::NeedAnyPidForProcProperty(property, &now)) {}

  /// The catalogue's row of the property; it must be a built-in one.
  const CatalogueRow& Row() const { return *mRow; }

  bool By(std::int32_t pid) const {
    if (mLevel == ProcessInformationClient::kNeedSomePids)
      return ProcessInformationClient::NeedAnyPidProcProperty(pid, mProperty, &mNow);
    return mLevel == ProcessInformationClient::kNeedAllPids;
  }

 private:
  const char* mProperty;
  const CatalogueRow* mRow;
  TimeValue mNow;
  ProcessInformationClient::NeedLevel mLevel;
};

}  // namespace lurkwell
