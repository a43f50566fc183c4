#pragma once

#include <functional>
#include <string>

namespace lurkwell {

/// What the desktop tells the user in passing. Plain texts of any bytes; what they hold is never
/// taken for markup.
struct Notification {
  std::string title, body;
  /// The text of its button; empty for none.
  std::string button;
};

/// Notifications of the desktop. Nothing is waited for. Main thread only.
class Notifications {
 public:
  virtual ~Notifications() = default;

  /// Shows it, in the place of an earlier one under the same key that is still there. `chosen` is
  /// called when the user presses its button, or the notification itself.
  virtual void Show(const std::string& key, const Notification& notification,
                    std::function<void()> chosen) = 0;

  /// From now on `failed` is called, with the reason in English, for each that cannot be shown.
  virtual void WhenOneFails(std::function<void(const std::string& reason)> failed) = 0;
};

}  // namespace lurkwell
