#pragma once

#include <QCheckBox>

namespace ZORVEL {

/// A check box with the box in its upper left corner and a text that wraps beside it; what does not fit ends in dots.
/// The whole of it can be clicked.
class WrappingCheckBox : public QCheckBox {
  Q_OBJECT

 public:
  explicit WrappingCheckBox(QWidget* parent = nullptr) : QCheckBox(parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }

 private:
  void PaintText(QPainter& painter, const QRect& place) const;
};

}  // namespace ZORVEL
