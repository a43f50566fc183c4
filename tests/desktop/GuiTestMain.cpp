#include <gtest/gtest.h>

#include <QApplication>

/// Tests with Qt's widgets, but without a screen.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
