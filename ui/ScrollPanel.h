#pragma once

#include <QScrollArea>

namespace ZORVEL {

/// A dark, bordered area that scrolls over controls at fixed places.
class ScrollPanel : public QScrollArea {
  Q_OBJECT

 public:
  explicit ScrollPanel(QWidget* parent = nullptr);

  /// Parent of the controls.
  QWidget* GetContent() const { return widget(); }
  /// Starts over with an empty area. The old one is destroyed once the events of its controls are through; it is
  /// returned for those who have something to destroy with it.
  QWidget* Clear();
  /// Fits the scrolling range to where the visible controls are now.
  void FitContent();
  QPoint GetScrollPosition() const;
  void SetScrollPosition(const QPoint& position);

 signals:
  /// Over the panel itself, not over a control.
  void MouseMoved();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddContent();
};

}  // namespace ZORVEL
