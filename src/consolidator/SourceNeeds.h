#pragma once

#include <cstdint>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "platform/FigureSources.h"
#include "platform/TimeValue.h"

namespace lurkwell {

/// Which of the process table's sources the due clients need, asked of each client once for all
/// processes and, only where it answers "some", for each. Lives for one pass, on the main thread.
class SourceNeeds {
 public:
  explicit SourceNeeds(TimeValue now);

  /// For one process.
  FigureSources Of(std::int32_t pid) const;
  /// Whether anybody needs a source of any process.
  bool AreThereAny() const;
  /// Whether anybody needs to hear now who has ended.
  bool OfEnds() const { return mNeedsEnds; }

 private:
  struct OfSome {
    const char* property;
    FigureSources sources;
  };
  struct OfClient {
    ProcessInformationClient* client;
    /// The client alone, as the registry's questions want it.
    ProcessInformationClient::Clients itself;
    FigureSources ofAll = 0;
    std::vector<OfSome> ofSome;
  };

  static OfClient NeedsOf(ProcessInformationClient* client);

  std::vector<OfClient> mClients;
  bool mNeedsEnds = false;
};

}  // namespace lurkwell
