#pragma once

#include <QObject>
#include <QString>
#include <cstdint>
#include <filesystem>
#include <string>

namespace stage {

/// The scene as a file: where it was read from and whether it changed since. What goes wrong is answered in one line,
/// with nothing lost.
class SceneDocument : public QObject {
  Q_OBJECT

 public:
  explicit SceneDocument(QObject* parent = nullptr);

  /// Empty for a scene that was never saved.
  const std::filesystem::path& file() const { return file_; }
  /// For a title: the file's name, or a word for none.
  QString name() const;
  bool modified() const;
  /// Holds what a new scene begins with and nothing else.
  bool pristine() const { return file_.empty() && !modified(); }

  /// An empty scene with things to stand on, in the unit as it is.
  void startNew();
  /// One of the UNITS_ constants. Lengths keep their numbers; a scene that is still as it began is begun anew in that
  /// unit.
  void setUnit(int type);
  std::string open(const std::filesystem::path& file);
  std::string save(const std::filesystem::path& file);

 signals:
  /// Another scene or another name.
  void replaced();

 private:
  struct State {
    std::uint64_t appearance;
    std::uint64_t moves;
    int unit;
    bool operator==(const State& other) const;
  };

  static State stateNow();
  void settle(std::filesystem::path file);

  std::filesystem::path file_;
  State settled_;
};

}  // namespace stage
