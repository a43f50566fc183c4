#include "animated_view/QuintessentialLayout.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

#include "animated_view/LayoutBodies.h"

namespace lurkwell {
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

/// Who is whose relative: for the member at i, the bodies Of(i).
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

double SumOfForcesOnIndividualQIPI(const QuintessentialInformationProcessInfo& self,
                                   const QipiList& list, double& fx, double& fy) {
  LayoutBodies bodies;
  bodies.Reserve(list.size());
  std::size_t own = kNoBody;
  for (const auto& info : list) {
    if (!info.locationInitialized) continue;
    if (&info == &self) own = bodies.Count();
    bodies.Append(info);
  }
  return SumOfForces({self.x, self.y, self.weight}, bodies, own, RelativesOf(self, bodies), fx, fy);
}

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
    distances += SumOfForces({info.x, info.y, info.weight}, bodies, members[i].body,
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
