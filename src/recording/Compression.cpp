#include "recording/Compression.h"

#include <zstd.h>

#include <cstddef>
#include <memory>

namespace lurkwell {
namespace {

/// Beyond it, half a per cent costs twice the time.
constexpr int kLevel = 6;
constexpr unsigned long long kLargest = 32ULL << 20;

struct Freeing {
  void operator()(ZSTD_CCtx* context) const { ZSTD_freeCCtx(context); }
};

}  // namespace

std::string Compressed(std::string_view bytes) {
  const std::unique_ptr<ZSTD_CCtx, Freeing> context(ZSTD_createCCtx());
  if (context == nullptr) return {};
  ZSTD_CCtx_setParameter(context.get(), ZSTD_c_compressionLevel, kLevel);
  ZSTD_CCtx_setParameter(context.get(), ZSTD_c_checksumFlag, 1);
  std::string result(ZSTD_compressBound(bytes.size()), '\0');
  const std::size_t size =
      ZSTD_compress2(context.get(), result.data(), result.size(), bytes.data(), bytes.size());
  if (ZSTD_isError(size) != 0) return {};
  result.resize(size);
  return result;
}

std::optional<std::string> Decompressed(std::string_view bytes) {
  const auto said = ZSTD_getFrameContentSize(bytes.data(), bytes.size());
  if (said == ZSTD_CONTENTSIZE_ERROR || said == ZSTD_CONTENTSIZE_UNKNOWN || said > kLargest)
    return std::nullopt;
  std::string result(static_cast<std::size_t>(said), '\0');
  const std::size_t size =
      ZSTD_decompress(result.data(), result.size(), bytes.data(), bytes.size());
  if (ZSTD_isError(size) != 0 || size != result.size()) return std::nullopt;
  return result;
}

}  // namespace lurkwell
