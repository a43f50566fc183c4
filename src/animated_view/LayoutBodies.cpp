#include "animated_view/LayoutBodies.h"

#include <algorithm>
#include <cmath>

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

double SumOfForces(const LayoutTarget& target, const LayoutBodies& bodies, std::size_t self,
                   std::span<const std::size_t> relatives, double& fx, double& fy) {
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

}  // namespace lurkwell
