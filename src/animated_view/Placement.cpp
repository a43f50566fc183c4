#include "animated_view/Placement.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "animated_view/QuintessentialGlobals.h"
#include "platform/Assertion.h"

namespace lurkwell {

long SystemRandom() {
  return ::random();
}

namespace {

constexpr int kGridSteps = 10;
constexpr double kReach = 0.1;

struct Range {
  double low;
  double high;
  double At(int step) const { return low + step * (high - low) / (kGridSteps - 1); }
};

/// To one side of the parent, rather the side with more room.
Range RangeBeside(double parent, double random) {
  const double from = std::clamp(parent, 0.002, 0.998);
  if (random > from) return {std::max(from - kReach, 0.001), from};
  return {from, std::min(from + kReach, 0.999)};
}

/// The force that one list would exert on a record, anywhere.
class Field {
 public:
  Field(const QuintessentialInformationProcessInfo& qipi, const LayoutBodies& bodies)
      : mBodies(bodies), mRelatives(RelativesOf(qipi, bodies)) {}

  double Strength(const LayoutTarget& target) const {
    double fx = 0;
    double fy = 0;
    SumOfForcesOnIndividualQIPI(target, mBodies, kNoBody, mRelatives, fx, fy);
    return std::sqrt(fx * fx + fy * fy);
  }

 private:
  const LayoutBodies& mBodies;
  std::vector<std::size_t> mRelatives;
};

}  // namespace

Placement::Placement(QipiList& newList, const QipiList& shownList, const RandomSource& random,
                     std::int64_t budget)
    : mNewList(newList), mRandom(random), mBudget(budget) {
  mShownBodies.Reserve(shownList.size());
  for (const auto& info : shownList)
    if (info.locationInitialized) mShownBodies.Append(info);
  for (const auto& info : newList) {
    const Info* parent = shownList.Find(info.parentPid);
    if (parent != nullptr) mShownParents.emplace(parent->pid, Point{parent->x, parent->y});
    mOrderOf.emplace(&info, mOrderOf.size());
    if (info.locationInitialized) {
      mNewBodies.Append(info);
      mNewOrder.push_back(mOrderOf.size() - 1);
    }
  }
}

bool Placement::SetUpInitialCoords(Info& qipi) {
  // From the record up to the first ancestor that can be placed without another one. Ancestors that
  // go round in a circle end where they meet themselves.
  mAncestry.clear();
  mInAncestry.clear();
  Info* next = &qipi;
  while (next != nullptr && !next->locationInitialized && mInAncestry.insert(next).second) {
    mAncestry.push_back(next);
    const bool stands = next->parentPid < 0 || next->parentPid == next->pid ||
                        mShownParents.contains(next->parentPid);
    next = stands ? nullptr : mNewList.Find(next->parentPid);
  }
  for (; !mAncestry.empty(); mAncestry.pop_back()) {
    if (mBudget <= 0) return false;
    Place(*mAncestry.back());
    mInAncestry.erase(mAncestry.back());
  }
  return true;
}

void Placement::Place(Info& qipi) {
  if (qipi.parentPid < 0 || qipi.parentPid == qipi.pid) return MarkPlaced(qipi);
  const auto shown = mShownParents.find(qipi.parentPid);
  if (shown != mShownParents.end()) {
    SetUpTheCoords(qipi, shown->second);
    return MarkPlaced(qipi);
  }
  const Info* parent = mNewList.Find(qipi.parentPid);
  if (parent == nullptr) return;
  // A parent without a place has a missing or circular parent of its own: it serves where it is,
  // as one among the shown records would.
  Require(
      parent->locationInitialized || mInAncestry.contains(parent) || IsMissing(parent->parentPid),
      kQuintessentialUnit, "qipi->locationInitialized");
  SetUpTheCoords(qipi, {parent->x, parent->y});
  MarkPlaced(qipi);
}

bool Placement::IsMissing(std::int32_t pid) const {
  return !mShownParents.contains(pid) && mNewList.Find(pid) == nullptr;
}

void Placement::SetUpTheCoords(Info& qipi, Point parent) {
  const Range rangeX = RangeBeside(parent.x, RandomFraction(mRandom));
  const Range rangeY = RangeBeside(parent.y, RandomFraction(mRandom));
  const Field newField(qipi, mNewBodies);
  const Field shownField(qipi, mShownBodies);
  Point best{0.5, 0.5};
  double bestScore = 0.0;
  for (int i = 0; i < kGridSteps; ++i) {
    for (int j = 0; j < kGridSteps; ++j) {
      const LayoutTarget target{rangeX.At(i), rangeY.At(j), qipi.weight};
      const double score = newField.Strength(target) + shownField.Strength(target);
      if (score >= bestScore && bestScore != 0.0) continue;
      best = {target.x, target.y};
      bestScore = score;
    }
  }
  qipi.x = best.x;
  qipi.y = best.y;
  mBudget -= static_cast<std::int64_t>(mNewBodies.Count() + mShownBodies.Count()) * kGridSteps *
             kGridSteps;
}

void Placement::MarkPlaced(Info& qipi) {
  qipi.locationInitialized = true;
  const std::size_t order = mOrderOf.at(&qipi);
  const auto at = std::ranges::lower_bound(mNewOrder, order);
  mNewBodies.Insert(static_cast<std::size_t>(at - mNewOrder.begin()), qipi);
  mNewOrder.insert(at, order);
}

}  // namespace lurkwell
