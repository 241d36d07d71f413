#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char** argv) {
  // Tests must not depend on a display, nor open windows where there is one.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleMock(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
