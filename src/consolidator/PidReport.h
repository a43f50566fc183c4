#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "consolidator/MetaProcessInformation.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/Region.h"
#include "platform/Clock.h"
#include "platform/ProcessFigures.h"

namespace lurkwell {

/// Reports of one kernel process in an iteration of kind 0, for feeders that have numbers rather
/// than texts. Private to the consolidator, inside its region. Making one makes the record if it is
/// missing and marks it as seen.
class PidReport {
 public:
  explicit PidReport(std::int32_t pid) LURKWELL_IN_REGION;

  /// Reads the text as the row's type wants it.
  void Text(const CatalogueRow& row, std::string_view value);
  /// A number too large for the field is left out.
  void Integer(const CatalogueRow& row, std::int64_t value);
  void Time(const CatalogueRow& row, TimeValue value);
  /// A figure as the process table has it; one that has not been read changes nothing.
  void TableFigure(Figure figure, const ProcessFigures& figures);
  void State(RunState state);
  /// There is no value, and why. What was known before is forgotten: its text is that of 0.
  void NoValue(const CatalogueRow& row, Missing why);

  PidBlock& Block() { return mBlock; }

 private:
  /// The row has a value now, which `changed` from the one before or did not.
  void NoteKnown(const CatalogueRow& row, bool changed);

  MetaProcessInformation& mRecord;
  PidBlock& mBlock;
};

/// What counters grow by in a second, from two readings of the same process. The first reading
/// gives none, nor does a counter that went back or that is not told. The time in between is that
/// of the clock, which goes on while the machine is asleep. Private to the consolidator; main
/// thread, inside its region.
class FigureRates {
 public:
  /// For one pass, at `now`; `wanted` are some of kRates.
  FigureRates(TimeValue now, std::vector<Figure> wanted);

  /// After the counters of these sources have been reported as they are now.
  void Derive(PidReport& report, FigureSources current) const;

  const std::vector<Figure>& Wanted() const { return mWanted; }

 private:
  std::int64_t mNow;
  std::vector<Figure> mWanted;
  /// Theirs among kRates.
  std::vector<std::size_t> mPlaces;
};

/// Notes which process holds a pid by its start stamp. False when the record there belongs to an
/// earlier holder: then the new one has to wait for a heartbeat, so that clients hear of the end
/// first.
bool NoteStartStamp(std::int32_t pid, std::uint64_t startStamp) LURKWELL_IN_REGION;

/// The CPU times of a process have come in this iteration, be they the same as before.
void NoteTimesRead(std::int32_t pid) LURKWELL_IN_REGION;
bool AreTimesRead(const MetaProcessInformation& record) LURKWELL_IN_REGION;

/// Makes of a kernel process's figures what is derived from them: its CPU time and its name.
void Derive(MetaProcessInformation& record) LURKWELL_IN_REGION;

}  // namespace lurkwell
