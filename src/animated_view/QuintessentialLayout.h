#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "animated_view/QuintessentialInformationProcessInfo.h"

namespace lurkwell {

/// Records as the force sum wants them: figures of one kind side by side, in list order. A copy;
/// any thread.
struct LayoutBodies {
  std::vector<double> x;
  std::vector<double> y;
  std::vector<double> weight;
  std::vector<std::int32_t> pid;
  std::vector<std::int32_t> parentPid;

  std::size_t Count() const { return x.size(); }
  void Reserve(std::size_t count);
  void Append(const QuintessentialInformationProcessInfo& info) { Insert(Count(), info); }
  void Insert(std::size_t position, const QuintessentialInformationProcessInfo& info);
};

/// The force on body 1 from body 2, an inverse-square push scaled by both weights; gives the
/// distance used. Pure, any thread.
double FigureOutForce(double x1, double y1, double w1, double x2, double y2, double w2, double& fx,
                      double& fy);

/// What feels a force.
struct LayoutTarget {
  double x = 0;
  double y = 0;
  double weight = 0;
};

inline constexpr std::size_t kNoBody = static_cast<std::size_t>(-1);

/// The force on `target` from all bodies but `self` (a position, or kNoBody) and from the walls;
/// gives the sum of the distances used. `relatives` are the positions of the target's parent and
/// children, ascending; each pulls against what has been added up before it, so their order counts.
/// Positions equal to `self` are ignored.
double SumOfForcesOnIndividualQIPI(const LayoutTarget& target, const LayoutBodies& bodies,
                                   std::size_t self, std::span<const std::size_t> relatives,
                                   double& fx, double& fy);

/// The positions of bodies that are parent or child of the record, ascending. Walks all bodies.
std::vector<std::size_t> RelativesOf(const QuintessentialInformationProcessInfo& info,
                                     const LayoutBodies& bodies);

/// One relaxation step of every record of `list`, all from the positions before the step; ten times
/// as far with `boost`. Gives the sum of all distances between them. Inside the mutex when the
/// drawing thread sees the list.
double DisIsRevoltin(QipiList& list, bool boost);

}  // namespace lurkwell
