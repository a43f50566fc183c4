#pragma once

#include <cstdint>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "platform/Clock.h"
#include "platform/FigureSources.h"
#include "platform/ProcessFigures.h"

namespace lurkwell {

struct CatalogueRow;

/// Which sources of figures clients need, asked of each client once for all processes and, only
/// where it answers "some", for each. Lives for one pass, on the main thread.
class SourceNeeds {
 public:
  /// Of the process table's sources, by the clients that are due.
  explicit SourceNeeds(TimeValue now);
  /// Of these sources, by these clients.
  SourceNeeds(const ProcessInformationClient::Clients& clients, FigureSources among);

  /// For one process.
  FigureSources Of(std::int32_t pid) const;
  /// Whether any client needs a source of any process.
  bool AreThereAny() const;
  /// Whether a figure of any process is needed.
  bool OfFigures() const;
  /// Whether any client needs to hear now which processes have ended.
  bool OfEnds() const { return mNeedsEnds; }
  /// Which of kRates any client needs.
  const std::vector<Figure>& OfRates() const { return mRates; }

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

  OfClient NeedsOf(ProcessInformationClient* client);
  void NoteRate(const CatalogueRow& row);

  FigureSources mAmong;
  std::vector<OfClient> mClients;
  std::vector<Figure> mRates;
  bool mNeedsEnds = false;
};

}  // namespace lurkwell
