#pragma once

#include <QApplication>

#include "resources/Resources.h"

namespace lurkwell {

/// The toolkit without a display; lives to the end of the program.
inline void EnsureApplication() {
  static int argc = 1;
  static char name[] = "benchmarks";
  static char* argv[] = {name, nullptr};
  if (QCoreApplication::instance() != nullptr) return;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  InstallResources(*new QApplication(argc, argv));
}

}  // namespace lurkwell
