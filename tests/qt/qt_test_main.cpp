// Runs the tests of a program inside a QApplication that needs no display.
#include <gtest/gtest.h>

#include <QtWidgets/QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // Who only asks for the names gets them without what Qt leaves behind at the end.
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
  qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef GABARITO_PLUGINS
  qputenv("QT_PLUGIN_PATH", GABARITO_PLUGINS);
#endif
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
