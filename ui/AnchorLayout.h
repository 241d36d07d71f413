#pragma once

#include <QPointer>
#include <QRect>
#include <QWidget>
#include <vector>

namespace ZORVEL {

enum Anchor : int { ANCHOR_TOP = 1, ANCHOR_BOTTOM = 2, ANCHOR_LEFT = 4, ANCHOR_RIGHT = 8 };

/// Keeps controls at the edges of their form: a control's distance to an edge that it is anchored to stays the same;
/// with both edges of a direction it grows. Lengths are logical pixels.
class AnchorLayout {
 public:
  /// The distances to keep are those within a form of the present size. The control remains the caller's.
  void Add(QWidget* control, const QRect& place, int anchors);
  /// Moves a control that was added; from now on the new distances are kept.
  void Move(QWidget* control, const QRect& place);
  void Remove(const QWidget* control);

  void SetSize(const QSize& client);

 private:
  struct Item {
    QPointer<QWidget> control;
    QRect place;
    QSize within;
    int anchors;
  };

  void Apply(const Item& item) const;

  QSize m_size;
  std::vector<Item> m_items;
};

}  // namespace ZORVEL
