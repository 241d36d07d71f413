#pragma once

#include <QObject>
#include <QStringList>

#include "apps/stage/ModuleLog.h"

namespace stage {

/// Tells a person after each build of the plug-in what the character lacks and why. Silent for a module that records no
/// builds.
class BuildNews : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Builds that the module recorded before are no news.
  void follow(const ModuleLog& log);

 public slots:
  void refresh();

 signals:
  /// One sentence for each thing that is lacking; at least one.
  void explained(const QStringList& sentences);
  /// The short form; the other when nothing is lacking.
  void warned(const QString& message);
  void said(const QString& message);

 private:
  ModuleLog log_;
  int seen_ = 0;
};

}  // namespace stage
