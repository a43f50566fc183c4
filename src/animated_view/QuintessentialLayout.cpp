#include "animated_view/QuintessentialLayout.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

#include "animated_view/LayoutKernel.h"

namespace lurkwell {
namespace {

constexpr double kNearest = 0.0001;
constexpr double kNearestSquared = 1e-8;
constexpr double kWallWeight = 2.0;
constexpr double kPull = 30.0;
constexpr double kPullsBeyond = 0.1;
constexpr double kWeakestForce = 0.001;

/// A coordinate difference of at least kNearest either way, and its square.
double Apart(double difference, double& squared) {
  if (std::fabs(difference) >= kNearest) {
    squared = difference * difference;
    return difference;
  }
  squared = kNearestSquared;
  return difference < 0 ? -kNearest : kNearest;
}

/// The force on one target while it is added up.
class Sum {
 public:
  explicit Sum(const LayoutTarget& target) : mTarget(target) {}

  void AddAll(const LayoutBodies& bodies, std::size_t from, std::size_t to) {
    static const SumPushes sumPushes = BestSumPushes();
    if (from >= to) return;
    const PushSum pushes = sumPushes(bodies.x.data() + from, bodies.y.data() + from,
                                     bodies.weight.data() + from, to - from, mTarget.x, mTarget.y);
    fx += mTarget.weight * pushes.fx;
    fy += mTarget.weight * pushes.fy;
    distance += pushes.distance;
  }

  void AddRelative(double x, double y, double weight) {
    if (AddOne(x, y, weight) <= kPullsBeyond) return;
    const double strength = std::max(std::sqrt(fx * fx + fy * fy), kWeakestForce);
    fx -= fx / strength * kPull;
    fy -= fy / strength * kPull;
  }

  void AddWalls() {
    AddOne(mTarget.x, 0.0, kWallWeight);
    AddOne(1.0, mTarget.y, kWallWeight);
    AddOne(mTarget.x, 1.0, kWallWeight);
    AddOne(0.0, mTarget.y, kWallWeight);
  }

  double fx = 0;
  double fy = 0;
  double distance = 0;

 private:
  double AddOne(double x, double y, double weight) {
    double pushX = 0;
    double pushY = 0;
    const double r =
        FigureOutForce(mTarget.x, mTarget.y, mTarget.weight, x, y, weight, pushX, pushY);
    fx += pushX;
    fy += pushY;
    distance += r;
    return r;
  }

  const LayoutTarget& mTarget;
};

}  // namespace

double FigureOutForce(double x1, double y1, double w1, double x2, double y2, double w2, double& fx,
                      double& fy) {
  double squaredX = 0;
  double squaredY = 0;
  const double dx = Apart(x2 - x1, squaredX);
  const double dy = Apart(y2 - y1, squaredY);
  const double squared = squaredX + squaredY;
  const double r = std::sqrt(squared);
  const double charge = w1 * w2 * 5.0;
  fx = -(dx / r) / squared * charge;
  fy = -(dy / r) / squared * charge;
  return r;
}

void LayoutBodies::Reserve(std::size_t count) {
  x.reserve(count);
  y.reserve(count);
  weight.reserve(count);
  pid.reserve(count);
  parentPid.reserve(count);
}

void LayoutBodies::Insert(std::size_t position, const QuintessentialInformationProcessInfo& info) {
  const auto at = static_cast<std::ptrdiff_t>(position);
  x.insert(x.begin() + at, info.x);
  y.insert(y.begin() + at, info.y);
  weight.insert(weight.begin() + at, info.weight);
  pid.insert(pid.begin() + at, info.pid);
  parentPid.insert(parentPid.begin() + at, info.parentPid);
}

double SumOfForcesOnIndividualQIPI(const LayoutTarget& target, const LayoutBodies& bodies,
                                   std::size_t self, std::span<const std::size_t> relatives,
                                   double& fx, double& fy) {
  Sum sum(target);
  std::size_t done = 0;
  const auto addUpTo = [&](std::size_t end) {
    if (self >= done && self < end) {
      sum.AddAll(bodies, done, self);
      done = self + 1;
    }
    sum.AddAll(bodies, done, end);
    done = end;
  };
  for (const std::size_t relative : relatives) {
    if (relative == self) continue;
    addUpTo(relative);
    sum.AddRelative(bodies.x[relative], bodies.y[relative], bodies.weight[relative]);
    done = relative + 1;
  }
  addUpTo(bodies.Count());
  sum.AddWalls();
  fx = sum.fx;
  fy = sum.fy;
  return sum.distance;
}

std::vector<std::size_t> RelativesOf(const QuintessentialInformationProcessInfo& info,
                                     const LayoutBodies& bodies) {
  std::vector<std::size_t> relatives;
  for (std::size_t i = 0; i < bodies.Count(); ++i)
    if (bodies.pid[i] == info.parentPid || bodies.parentPid[i] == info.pid) relatives.push_back(i);
  return relatives;
}

namespace {

constexpr double kStepPerForce = 1e-5;
constexpr double kLongestStep = 0.01;
constexpr double kBoost = 10.0;
constexpr double kLowest = 0.001;
constexpr double kHighest = 0.999;

double Moved(double from, double force, bool boost) {
  const double step = std::clamp(force * kStepPerForce, -kLongestStep, kLongestStep);
  return std::clamp(from + (boost ? step * kBoost : step), kLowest, kHighest);
}

/// One of a list's records and its place among the bodies; kNoBody when it pushes none.
struct Member {
  QuintessentialInformationProcessInfo* info;
  std::size_t body;
};

/// Which are relatives: for the member at i, the bodies Of(i).
class Relatives {
 public:
  Relatives(const std::vector<Member>& members, const LayoutBodies& bodies)
      : mStarts(members.size() + 1) {
    std::vector<Numbered> byPid;
    std::vector<Numbered> placedByPid;
    byPid.reserve(members.size());
    placedByPid.reserve(bodies.Count());
    for (std::size_t i = 0; i < members.size(); ++i) byPid.push_back({members[i].info->pid, i});
    for (std::size_t i = 0; i < bodies.Count(); ++i) placedByPid.push_back({bodies.pid[i], i});
    std::ranges::sort(byPid);
    std::ranges::sort(placedByPid);

    std::vector<std::pair<std::size_t, std::size_t>> pairs;
    pairs.reserve(2 * members.size());
    for (std::size_t i = 0; i < members.size(); ++i)
      ForEach(placedByPid, members[i].info->parentPid, [&](std::size_t parent) {
        pairs.push_back({i, parent});
      });
    for (std::size_t i = 0; i < bodies.Count(); ++i)
      ForEach(byPid, bodies.parentPid[i], [&](std::size_t parent) {
        pairs.push_back({parent, i});
      });
    std::ranges::sort(pairs);
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());
    mBodies.reserve(pairs.size());
    for (const auto& [member, body] : pairs) {
      mBodies.push_back(body);
      ++mStarts[member + 1];
    }
    for (std::size_t i = 0; i < members.size(); ++i) mStarts[i + 1] += mStarts[i];
  }

  std::span<const std::size_t> Of(std::size_t member) const {
    return std::span(mBodies).subspan(mStarts[member], mStarts[member + 1] - mStarts[member]);
  }

 private:
  using Numbered = std::pair<std::int32_t, std::size_t>;

  template <typename Visit>
  static void ForEach(const std::vector<Numbered>& sorted, std::int32_t pid, Visit visit) {
    const auto first = std::ranges::lower_bound(sorted, pid, {}, &Numbered::first);
    for (auto at = first; at != sorted.end() && at->first == pid; ++at) visit(at->second);
  }

  std::vector<std::size_t> mStarts;
  std::vector<std::size_t> mBodies;
};

}  // namespace

double DisIsRevoltin(QipiList& list, bool boost) {
  LayoutBodies bodies;
  bodies.Reserve(list.size());
  std::vector<Member> members;
  members.reserve(list.size());
  for (auto& info : list) {
    members.push_back({&info, info.locationInitialized ? bodies.Count() : kNoBody});
    if (info.locationInitialized) bodies.Append(info);
  }
  const Relatives relatives(members, bodies);

  double distances = 0;
  for (std::size_t i = 0; i < members.size(); ++i) {
    auto& info = *members[i].info;
    double fx = 0;
    double fy = 0;
    distances += SumOfForcesOnIndividualQIPI({info.x, info.y, info.weight}, bodies, members[i].body,
                                             relatives.Of(i), fx, fy);
    info.nextX = Moved(info.x, fx, boost);
    info.nextY = Moved(info.y, fy, boost);
  }
  for (auto& info : list) {
    info.x = info.nextX;
    info.y = info.nextY;
    info.nextX = info.nextY = 0.0;
  }
  return distances;
}

}  // namespace lurkwell
