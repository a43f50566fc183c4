#include "exporter/MetricSource.h"

#include <algorithm>
#include <cstddef>

#include "exporter/MetricText.h"

namespace lurkwell {

std::shared_ptr<const std::string> MetricSource::Text(MetricFormat format, Moment now) {
  if (!mReadAt || now - *mReadAt >= kShared) {
    mTexts = {};
    mSnapshot = mReader();
    // A reading that took long does not make the next one due at once.
    mReadAt = std::max(now, std::chrono::steady_clock::now());
  }
  if (!mSnapshot) return nullptr;
  auto& text = mTexts[static_cast<std::size_t>(format)];
  if (text == nullptr)
    text = std::make_shared<const std::string>(MetricText(*mSnapshot, format, LURKWELL_VERSION));
  return text;
}

}  // namespace lurkwell
