// A user without texts in his own language, and without a display.
#include <gtest/gtest.h>

#include <QApplication>

#include "resources/Resources.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("LC_ALL", "ru_RU.UTF-8");
  qunsetenv("LANGUAGE");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  lurkwell::InstallResources(application);
  return RUN_ALL_TESTS();
}
