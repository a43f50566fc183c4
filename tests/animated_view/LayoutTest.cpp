#include <gtest/gtest.h>

#include <random>

#include "PlainLayout.h"
#include "animated_view/LayoutKernel.h"
#include "animated_view/Placement.h"
#include "animated_view/QuintessentialSupport.h"

namespace lurkwell {
namespace {

using Info = QuintessentialInformationProcessInfo;

Info Record(std::int32_t pid, double x, double y, std::int32_t parent = -1, bool placed = true) {
  Info info;
  info.pid = pid;
  info.parentPid = parent;
  info.x = x;
  info.y = y;
  info.locationInitialized = placed;
  return info;
}

/// Families, orphans, records without a place, and heaps at one spot.
QipiList Population(unsigned seed, int count) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> unit;
  QipiList list;
  for (int i = 0; i < count; ++i) {
    const int parent = static_cast<int>(random() % static_cast<unsigned>(count + 3)) - 2;
    Info info = Record(i, unit(random), unit(random), parent, random() % 10 != 0);
    if (i > 0 && random() % 12 == 0) {
      info.x = list.front().x;
      info.y = list.front().y + (random() % 2 == 0 ? 0.0 : 5e-5);
    }
    info.weight = 0.4 + 8 * unit(random) * unit(random);
    random() % 2 == 0 ? list.PushBack(std::move(info)) : list.PushFront(std::move(info));
  }
  return list;
}

void ExpectSamePlaces(QipiList& quick, QipiList& plain) {
  ASSERT_EQ(quick.size(), plain.size());
  for (auto a = quick.begin(), b = plain.begin(); a != quick.end(); ++a, ++b) {
    ASSERT_EQ(a->pid, b->pid);
    ASSERT_EQ(a->locationInitialized, b->locationInitialized) << a->pid;
    ASSERT_NEAR(a->x, b->x, 1e-9) << a->pid;
    ASSERT_NEAR(a->y, b->y, 1e-9) << a->pid;
  }
}

TEST(Layout, StepsAreThoseOfThePlainSum) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE(seed);
    const int count = static_cast<int>(seed * seed / 4 + 1);
    QipiList quick = Population(seed, count);
    QipiList slow = Population(seed, count);
    for (int step = 0; step < 3; ++step) {
      const double distances = DisIsRevoltin(quick, step == 0);
      const double expected = plain::Step(plain::Of(slow), step == 0);
      EXPECT_NEAR(distances, expected, 1e-9 * expected);
      ExpectSamePlaces(quick, slow);
    }
  }
}

TEST(Layout, EveryKernelGivesTheSameSum) {
  LayoutBodies bodies;
  for (const auto& info : Population(7, 203)) bodies.Append(info);
  for (std::size_t count : {0U, 1U, 3U, 64U, 203U}) {
    const auto sum = [&](SumPushes kernel) {
      return kernel(bodies.x.data(), bodies.y.data(), bodies.weight.data(), count, 0.3, 0.7);
    };
    const auto best = sum(BestSumPushes());
    const auto baseline = sum(SumPushesBaseline);
    EXPECT_NEAR(best.fx, baseline.fx, 1e-9 * std::abs(baseline.fx));
    EXPECT_NEAR(best.fy, baseline.fy, 1e-9 * std::abs(baseline.fy));
    EXPECT_NEAR(best.distance, baseline.distance, 1e-9 * baseline.distance);
  }
}

TEST(Layout, BodiesAtOneSpotPushFarButFinitely) {
  double fx = 0;
  double fy = 0;
  EXPECT_DOUBLE_EQ(FigureOutForce(0.3, 0.3, 0.5, 0.3, 0.3, 2.0, fx, fy), std::sqrt(2e-8));
  EXPECT_DOUBLE_EQ(fx, -(0.0001 / std::sqrt(2e-8)) / 2e-8 * 5.0);
  EXPECT_DOUBLE_EQ(fy, fx);
  FigureOutForce(0.3, 0.3, 0.5, 0.29995, 0.8, 2.0, fx, fy);
  EXPECT_GT(fx, 0);
  EXPECT_LT(fy, 0);
}

TEST(Placement, FindsThePlainSearchsPlaces) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    QipiList lists[2][2];
    for (auto& [fresh, shown] : lists) {
      std::mt19937 random(seed);
      shown = Population(seed, 30);
      std::uniform_real_distribution<double> unit;
      for (int pid = 100; pid < 160; ++pid) {
        // Parents among the shown and the new, none at all, and missing ones.
        const int parents[] = {static_cast<int>(random() % 30),
                               100 + static_cast<int>(random()) % 60, -1, 9999};
        const int parent = parents[random() % 4];
        fresh.PushFront(Record(pid, unit(random), unit(random),
                               parent > pid && parent != 9999 ? -1 : parent, false));
      }
    }
    const auto source = [seed] {
      return [random = std::mt19937(seed)]() mutable { return static_cast<long>(random() >> 1); };
    };
    const RandomSource quickRandom = source();
    const RandomSource plainRandom = source();
    // A missing grandparent is for the tests below.
    for (auto& [fresh, shown] : lists)
      for (auto& info : fresh) {
        const Info* parent = fresh.Find(info.parentPid);
        if (parent != nullptr && parent->parentPid == 9999) info.parentPid = -1;
      }
    auto& [quickFresh, quickShown] = lists[0];
    auto& [plainFresh, plainShown] = lists[1];
    Placement placement(quickFresh, quickShown, quickRandom);
    for (auto& info : quickFresh) EXPECT_TRUE(placement.SetUpInitialCoords(info));
    for (auto& info : plainFresh)
      plain::Place(info, plain::Of(plainFresh), plain::Of(plainShown), plainRandom);
    ExpectSamePlaces(quickFresh, plainFresh);
  }
}

long Middle() {
  return 1073741823;
}

TEST(Placement, MissingAndCircularParentsAreSurvived) {
  QipiList fresh;
  QipiList shown;
  fresh.PushBack(Record(10, 0.2, 0.2, 9999, false));
  fresh.PushBack(Record(11, 0.9, 0.9, 10, false));
  fresh.PushBack(Record(20, 0.3, 0.3, 22, false));
  fresh.PushBack(Record(21, 0.4, 0.4, 20, false));
  fresh.PushBack(Record(22, 0.5, 0.5, 21, false));
  fresh.PushBack(Record(0, 0.5, 0.5, 0, false));
  const RandomSource random = Middle;
  Placement placement(fresh, shown, random);
  for (auto& info : fresh) EXPECT_TRUE(placement.SetUpInitialCoords(info));
  const Info& orphan = *fresh.Find(10);
  EXPECT_FALSE(orphan.locationInitialized);
  EXPECT_EQ(orphan.x, 0.2);
  EXPECT_NEAR(fresh.Find(11)->x, orphan.x, 0.1 + 1e-12) << "beside its parent, as that one stands";
  for (const int pid : {0, 11, 20, 21, 22})
    EXPECT_TRUE(fresh.Find(pid)->locationInitialized) << pid;
}

TEST(Placement, LongAncestriesNeedNoStackAndComeInSlices) {
  constexpr int kDepth = 2000;
  QipiList fresh;
  QipiList shown;
  for (int pid = 1; pid <= kDepth; ++pid)
    fresh.PushFront(Record(pid, 0.5, 0.5, pid - 1 == 0 ? -1 : pid - 1, false));
  const RandomSource random = Middle;
  int passes = 0;
  for (bool done = false; !done; ++passes) {
    ASSERT_LT(passes, 100);
    Placement placement(fresh, shown, random, 10'000'000);
    done = placement.SetUpInitialCoords(fresh.front());
    // Only what has its ancestors' places has one itself.
    bool placed = true;
    for (int pid = 1; pid <= kDepth; ++pid) {
      EXPECT_TRUE(placed || !fresh.Find(pid)->locationInitialized);
      placed = fresh.Find(pid)->locationInitialized;
    }
  }
  EXPECT_GT(passes, 10);
  EXPECT_TRUE(fresh.front().locationInitialized);
}

}  // namespace
}  // namespace lurkwell
