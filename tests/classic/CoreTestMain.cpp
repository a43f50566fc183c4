#include <gtest/gtest.h>

#include <QCoreApplication>

/// Tests with Qt's event loop, but without windows.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
