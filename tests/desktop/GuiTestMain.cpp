#include <gtest/gtest.h>

#include <QApplication>

// What the toolkit's font library keeps until the end is not ours to free.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\n";
}

/// Tests with Qt's widgets, but without a screen.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
