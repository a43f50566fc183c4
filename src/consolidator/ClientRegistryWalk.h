#pragma once

#include "consolidator/ProcessInformationClient.h"

namespace lurkwell {

/// A walk over the registry during which handlers may delete any client: nodes are swept when the
/// last walk ends, so that no iterator breaks. Clients that come during a walk stand before its
/// start and are not met.
class ProcessInformationClient::Walk {
 public:
  Walk() { ++zm_WalksInProgress; }
  ~Walk() {
    if (--zm_WalksInProgress == 0)
      zm_ListOfProcessInformationClients.remove_if(
          [](const ListNode& node) { return node.client == nullptr; });
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  auto begin() { return zm_ListOfProcessInformationClients.begin(); }
  auto end() { return zm_ListOfProcessInformationClients.end(); }
};

}  // namespace lurkwell
