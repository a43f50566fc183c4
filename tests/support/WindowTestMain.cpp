#include <gtest/gtest.h>

#include <QApplication>

#include "resources/Resources.h"
#include "support/MainThreadWatch.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Whatever its user has.
  qputenv("LC_ALL", "C.UTF-8");
  qunsetenv("LANGUAGE");
  const QApplication application(argc, argv);
  lurkwell::InstallResources(*qApp);
  testing::InitGoogleTest(&argc, argv);
  // GoogleTest owns it.
  testing::UnitTest::GetInstance()->listeners().Append(new lurkwell::MainThreadWatch);
  return RUN_ALL_TESTS();
}
