#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace stage {

/// Notices what changed in the host whenever the program is about to wait for the next event: plug-ins, scripts and
/// undo change the host without telling the window.
class HostWatch : public QObject {
  Q_OBJECT

 public:
  explicit HostWatch(QObject* parent = nullptr);

  /// Looks now; for those who cannot wait.
  void check();

 signals:
  /// Nodes, their places or the selection.
  void sceneChanged();
  void undoChanged();
  void promptChanged(const QString& prompt);
  /// What the host has to tell a person.
  void linesReported(const QStringList& lines);
  /// Buttons of the quick access bar came, went, or may be pressed now or no more.
  void buttonsChanged();
  void unitChanged();
  void modeChanged();
  /// After each look, whatever it found.
  void checked();

 private:
  void checkListener();
  void checkPrompt();

  std::uint64_t revision_ = ~std::uint64_t{0};
  std::uint64_t mode_ = ~std::uint64_t{0};
  std::wstring prompt_ = L"\n";
  QTimer promptEnd_;
  /// The names of what can be undone, a separator, and of what can be made again; empty before the first look.
  std::vector<std::wstring> undo_;
  std::size_t lines_ = 0;
  std::vector<std::pair<std::uint64_t, bool>> buttons_ = {{0, false}};
  int unit_ = -1;
};

}  // namespace stage
