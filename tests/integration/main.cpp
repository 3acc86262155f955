#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  // Letters typed into a list are one word, however long a busy machine makes the test wait.
  QApplication::setKeyboardInputInterval(60000);
  return RUN_ALL_TESTS();
}
