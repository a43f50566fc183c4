#pragma once

#include <QString>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

#include "platform/ProcessDetails.h"
#include "process_details/DetailsTableModel.h"

namespace lurkwell {

/// How one kind of details is shown.
struct DetailsListLook {
  /// Of the page's title.
  const char* title;
  /// Of the line below the list; its arguments are how many there are, and what kinds add.
  const char* count;
  std::span<const DetailsColumn> columns;
  int sortColumn;
  Qt::SortOrder sortOrder;
};

const DetailsListLook& LookOf(DetailsKind kind);

/// Makes rows of answers. Remembers the threads' times from one answer to the next, of which their
/// shares of a processor follow.
class DetailsRows {
 public:
  /// Of an answer that is known. Shares are per cent of one processor.
  std::vector<DetailsRow> Make(const DetailsAnswer& answer);

 private:
  std::vector<DetailsRow> Of(const std::vector<ThreadDetails>& threads);

  struct ThreadTime {
    std::uint64_t startStamp = 0;
    std::int64_t cpuTime = 0;
  };
  std::unordered_map<std::int32_t, ThreadTime> mTimes;
  std::int64_t mReadAt = 0;
  std::int64_t mPassed = 0;
};

/// The line below a list.
QString CountText(DetailsKind kind, const DetailsAnswer& answer);

}  // namespace lurkwell
