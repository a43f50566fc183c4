#pragma once

#include <QCoreApplication>
#include <functional>

#include "support/ChildProgram.h"

namespace lurkwell {

/// Whether the condition comes true within so many seconds, while Qt's events go on.
inline bool SoonTrue(const std::function<bool()>& condition, double seconds = 20) {
  return ComesTrue(
      [&] {
        QCoreApplication::processEvents();
        return condition();
      },
      seconds);
}

}  // namespace lurkwell
