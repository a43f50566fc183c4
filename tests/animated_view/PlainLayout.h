#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "animated_view/Placement.h"
#include "animated_view/QuintessentialInformationProcessInfo.h"

// The layout as one would write it down, pair by pair, to compare the quick one with.
namespace lurkwell::plain {

using Info = QuintessentialInformationProcessInfo;
using List = std::vector<Info*>;

inline List Of(QipiList& list) {
  List result;
  for (auto& info : list) result.push_back(&info);
  return result;
}

inline double Force(double x1, double y1, double w1, double x2, double y2, double w2, double& fx,
                    double& fy) {
  const auto apart = [](double d) { return std::abs(d) < 1e-4 ? (d < 0 ? -1e-4 : 1e-4) : d; };
  const double dx = apart(x2 - x1);
  const double dy = apart(y2 - y1);
  const double r = std::hypot(dx, dy);
  fx = -dx / r / (r * r) * w1 * w2 * 5;
  fy = -dy / r / (r * r) * w1 * w2 * 5;
  return r;
}

inline double Sum(const Info& self, const List& list, double& fx, double& fy) {
  double total = 0;
  fx = fy = 0;
  const auto add = [&](double x, double y, double weight) {
    double ax = 0;
    double ay = 0;
    const double r = Force(self.x, self.y, self.weight, x, y, weight, ax, ay);
    fx += ax;
    fy += ay;
    total += r;
    return r;
  };
  for (const Info* o : list) {
    if (o == &self || !o->locationInitialized) continue;
    const double r = add(o->x, o->y, o->weight);
    const bool related = self.parentPid == o->pid || self.pid == o->parentPid;
    if (!related || r <= 0.1) continue;
    const double m = std::max(std::hypot(fx, fy), 0.001);
    const double pullX = fx / m * 30;
    const double pullY = fy / m * 30;
    fx -= pullX;
    fy -= pullY;
  }
  add(self.x, 0, 2);
  add(1, self.y, 2);
  add(self.x, 1, 2);
  add(0, self.y, 2);
  return total;
}

inline double Step(const List& list, bool boost) {
  double total = 0;
  for (Info* n : list) {
    double fx = 0;
    double fy = 0;
    total += Sum(*n, list, fx, fy);
    const auto next = [&](double from, double f) {
      return std::clamp(from + std::clamp(f * 1e-5, -0.01, 0.01) * (boost ? 10 : 1), 0.001, 0.999);
    };
    n->nextX = next(n->x, fx);
    n->nextY = next(n->y, fy);
  }
  for (Info* n : list) {
    n->x = n->nextX;
    n->y = n->nextY;
  }
  return total;
}

inline void PlaceNear(Info& child, const Info& parent, const List& fresh, const List& shown,
                      const RandomSource& random) {
  const auto range = [&](double at, double& low, double& high) {
    const double from = std::clamp(at, 0.002, 0.998);
    const bool below = RandomFraction(random) > from;
    low = below ? std::max(from - 0.1, 0.001) : from;
    high = below ? from : std::min(from + 0.1, 0.999);
  };
  double lowX = 0, highX = 0, lowY = 0, highY = 0;
  range(parent.x, lowX, highX);
  range(parent.y, lowY, highY);
  double bestX = 0.5, bestY = 0.5, best = 0;
  for (int i = 0; i < 10; ++i) {
    for (int j = 0; j < 10; ++j) {
      child.x = lowX + i * (highX - lowX) / 9;
      child.y = lowY + j * (highY - lowY) / 9;
      double ax = 0, ay = 0, bx = 0, by = 0;
      Sum(child, fresh, ax, ay);
      Sum(child, shown, bx, by);
      const double score = std::hypot(ax, ay) + std::hypot(bx, by);
      if (best != 0 && score >= best) continue;
      best = score;
      bestX = child.x;
      bestY = child.y;
    }
  }
  child.x = bestX;
  child.y = bestY;
}

/// Every ancestor that is to be found can be placed.
inline void Place(Info& info, const List& fresh, const List& shown, const RandomSource& random) {
  if (info.locationInitialized) return;
  if (info.parentPid >= 0 && info.parentPid != info.pid) {
    const auto find = [&](const List& list) -> Info* {
      const auto at = std::ranges::find(list, info.parentPid, &Info::pid);
      return at != list.end() ? *at : nullptr;
    };
    Info* parent = find(shown);
    if (parent == nullptr) {
      parent = find(fresh);
      if (parent == nullptr) return;
      Place(*parent, fresh, shown, random);
    }
    PlaceNear(info, *parent, fresh, shown, random);
  }
  info.locationInitialized = true;
}

}  // namespace lurkwell::plain
