// Usage figures of graphics devices, from texts with the keys that the kernel documents.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/linux/GraphicsUsage.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;

std::string I915(std::uint64_t render, std::uint64_t video, int client = 7) {
  return "pos:\t0\nflags:\t02100002\nmnt_id:\t26\nino:\t501\n"
         "drm-driver:\ti915\ndrm-pdev:\t0000:00:02.0\ndrm-client-id:\t" +
         std::to_string(client) +
         "\ndrm-total-system0:\t4096 KiB\ndrm-shared-system0:\t0\ndrm-active-system0:\t0\n"
         "drm-resident-system0:\t2048 KiB\ndrm-purgeable-system0:\t64 KiB\n"
         "drm-total-stolen-system0:\t0\ndrm-resident-stolen-system0:\t0\n"
         "drm-engine-render:\t" +
         std::to_string(render) + " ns\ndrm-engine-copy:\t0 ns\ndrm-engine-video:\t" +
         std::to_string(video) + " ns\ndrm-engine-capacity-video:\t2\n";
}

std::string Amdgpu(std::uint64_t gfx) {
  return "drm-driver:\tamdgpu\ndrm-client-id:\t12\ndrm-pdev:\t0000:03:00.0\npasid:\t32770\n"
         "drm-memory-vram:\t3 MiB\ndrm-memory-gtt: \t1024 KiB\ndrm-memory-cpu: \t0 KiB\n"
         "amd-evicted-vram:\t9 MiB\ndrm-engine-gfx:\t" +
         std::to_string(gfx) + " ns\ndrm-engine-enc:\t5 ns\n";
}

std::string Xe(std::uint64_t cycles, std::uint64_t all) {
  return "drm-driver:\txe\ndrm-client-id:\t3\ndrm-pdev:\t0000:00:02.0\n"
         "drm-total-vram0:\t8 MiB\ndrm-resident-vram0:\t6 MiB\n"
         "drm-cycles-rcs:\t" +
         std::to_string(cycles) + "\ndrm-total-cycles-rcs:\t" + std::to_string(all) + "\n";
}

/// A device without an address, whose engines count in both ways.
std::string Panfrost(std::uint64_t busy) {
  return "drm-driver:\tpanfrost\ndrm-client-id:\t2\ndrm-engine-fragment:\t" + std::to_string(busy) +
         " ns\ndrm-cycles-fragment:\t77\ndrm-maxfreq-fragment:\t799999987 Hz\n"
         "drm-curfreq-fragment:\t799999987 Hz\ndrm-total-memory:\t300\n";
}

std::vector<GraphicsClient> Clients(const std::vector<std::string>& texts) {
  std::vector<GraphicsClient> clients;
  for (const auto& text : texts)
    if (auto client = ParseGraphicsClient(text)) clients.push_back(*client);
  return clients;
}

TEST(GraphicsUsage, IsThatOfTheBusiestEngineWhateverTheDriver) {
  struct Case {
    std::vector<std::string> before, after;
    std::int64_t share;
    std::string engine;
    std::uint64_t memory;
  };
  const Case cases[] = {
      // Half of one of a kind, and a quarter of two of another.
      {{I915(100, 0)}, {I915(kSecond / 2 + 100, kSecond / 2)}, 50'000, "render", 2 << 20},
      {{I915(0, 0)}, {I915(kSecond / 10, kSecond)}, 50'000, "video", 2 << 20},
      {{Amdgpu(1)}, {Amdgpu(kSecond / 4 + 1)}, 25'000, "gfx", 4 << 20},
      {{Xe(1000, 10'000)}, {Xe(1600, 12'000)}, 30'000, "rcs", 6 << 20},
      {{Panfrost(0)}, {Panfrost(kSecond)}, 100'000, "fragment", 300},
      // Nothing was done.
      {{Amdgpu(1)}, {Amdgpu(1)}, 0, "", 4 << 20},
      // Two descriptors of one client are one; two clients of one engine add up.
      {{I915(0, 0), I915(0, 0)},
       {I915(kSecond / 4, 0), I915(kSecond / 4, 0)},
       25'000,
       "render",
       2 << 20},
      {{I915(0, 0), I915(0, 0, 8)},
       {I915(kSecond / 4, 0), I915(kSecond / 4, 0, 8)},
       50'000,
       "render",
       4 << 20},
      // More than there is; a second device that is less busy.
      {{I915(0, 0), Amdgpu(0)},
       {I915(3 * kSecond, 0), Amdgpu(kSecond / 2)},
       100'000,
       "render",
       6 << 20},
  };
  for (const auto& [before, after, share, engine, memory] : cases) {
    SCOPED_TRACE(after[0]);
    GraphicsAccount account;
    EXPECT_FALSE(account.Update(Clients(before), 5 * kSecond).share) << "of one look";
    const auto use = account.Update(Clients(after), 6 * kSecond);
    EXPECT_EQ(use.share, share);
    EXPECT_EQ(use.engine, engine);
    EXPECT_EQ(use.memory, memory);
  }
}

TEST(GraphicsUsage, SaysNothingWhereTheKernelSaysNothing) {
  EXPECT_FALSE(ParseGraphicsClient("pos:\t0\nflags:\t02\ninotify wd:1\n"));
  const auto silent = ParseGraphicsClient("drm-driver:\tast\ndrm-client-id:\t4\n");
  ASSERT_TRUE(silent);
  EXPECT_FALSE(silent->memory);
  GraphicsAccount account;
  account.Update({*silent}, kSecond);
  EXPECT_FALSE(account.Update({*silent}, 2 * kSecond).share);
  // A counter that went back.
  GraphicsAccount reset;
  reset.Update(Clients({Amdgpu(kSecond)}), kSecond);
  EXPECT_EQ(reset.Update(Clients({Amdgpu(7)}), 2 * kSecond).share, 0) << "the other engine's";
  // Odd texts: no number, a unit that is none, a key without a name, more engines than there are.
  std::string odd =
      "drm-driver:\tx\ndrm-engine-a:\tmany ns\ndrm-engine-:\t5 ns\n"
      "drm-resident-vram:\t18446744073709551615 KiB\ndrm-memory-gtt:\t5 pages\n";
  for (int i = 0; i < 1000; ++i) odd += "drm-engine-e" + std::to_string(i) + ":\t1 ns\n";
  const auto client = ParseGraphicsClient(odd);
  ASSERT_TRUE(client);
  EXPECT_FALSE(client->memory);
  EXPECT_EQ(client->engines.size(), GraphicsClient::kMostEngines);
}

}  // namespace
}  // namespace lurkwell
