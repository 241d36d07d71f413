#pragma once

#include <QAbstractButton>

#include "ui/PictureCache.h"

namespace ZORVEL {

/// Shows a picture at its upper left corner and can be clicked, with the keyboard too. The file is decoded when the
/// picture is first seen; one that cannot be shown says why in its place and in its tool tip.
class PictureBox : public QAbstractButton {
  Q_OBJECT

 public:
  explicit PictureBox(QWidget* parent = nullptr);

  void SetSource(const PictureSource& source);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Load();
  void PaintProblem(QPainter& painter) const;

  PictureSource m_source;
  Picture m_picture;
  bool m_loaded = true;
  bool m_focusIsShown = false;
};

}  // namespace ZORVEL
