#pragma once

#include <QMainWindow>

namespace MaxSDK {

/// The host's main window: the parent of a plug-in's windows.
class QmaxMainWindow : public QMainWindow {
 public:
  using QMainWindow::QMainWindow;
};

}  // namespace MaxSDK
