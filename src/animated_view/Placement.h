#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "animated_view/QuintessentialLayout.h"

namespace lurkwell {

/// Gives numbers from 0 to 2147483647.
using RandomSource = std::function<long()>;

/// The system's random(), as it is seeded.
long SystemRandom();

/// One number of the source, scaled to 0..1.
inline double RandomFraction(const RandomSource& random) {
  return static_cast<double>(random()) / 2147483647.0;
}

/// Gives new records their places, each near its parent where the forces are weakest. Lives for one
/// update pass, on the main thread. Made inside gQuintessentialMutex, used outside: it keeps the
/// shown records' positions and does not look at them again.
class Placement {
 public:
  /// All of some 900 new records; less than a tenth of a second's work.
  static constexpr std::int64_t kUsualBudget = 40'000'000;

  /// `newList` stays as it is, but for the places of its records, while this lives. The budget is
  /// in forces between two records.
  Placement(QipiList& newList, const QipiList& shownList, const RandomSource& random,
            std::int64_t budget = kUsualBudget);

  /// Places the record, its new ancestors first. A record whose parent is in neither list stays
  /// where it is and counts as not placed. False when the budget ran out before: then the record
  /// waits for the next pass.
  bool SetUpInitialCoords(QuintessentialInformationProcessInfo& qipi);

 private:
  using Info = QuintessentialInformationProcessInfo;
  struct Point {
    double x;
    double y;
  };

  void Place(Info& qipi);
  void SetUpTheCoords(Info& qipi, Point parent);
  void MarkPlaced(Info& qipi);
  bool IsMissing(std::int32_t pid) const;

  QipiList& mNewList;
  const RandomSource& mRandom;
  std::int64_t mBudget;
  /// Where the parents are that are shown already.
  std::unordered_map<std::int32_t, Point> mShownParents;
  LayoutBodies mShownBodies;
  /// The placed ones, in list order, and their places in the list.
  LayoutBodies mNewBodies;
  std::vector<std::size_t> mNewOrder;
  std::unordered_map<const Info*, std::size_t> mOrderOf;
  /// Whom the placement under way waits for, youngest first.
  std::vector<Info*> mAncestry;
  std::unordered_set<const Info*> mInAncestry;
};

}  // namespace lurkwell
