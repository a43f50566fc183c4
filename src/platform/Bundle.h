#pragma once

#include <optional>
#include <string>

namespace lurkwell {

/// Where the application's own files and the user's data lie. Any thread.
class Bundle {
 public:
  virtual ~Bundle() = default;

  /// The folder that holds "Contents/Resources"; absolute, without a trailing slash.
  virtual std::string Path() const = 0;

  /// The user's folder for application data, made if it is missing; nothing when it can be neither
  /// found nor made.
  virtual std::optional<std::string> ApplicationSupportFolder() const = 0;
};

}  // namespace lurkwell
