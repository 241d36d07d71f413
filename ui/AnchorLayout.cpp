#include "ui/AnchorLayout.h"

#include <algorithm>

namespace ZORVEL {

void AnchorLayout::Add(QWidget* control, const QRect& place, int anchors) {
  m_items.push_back({control, place, m_size, anchors});
  Apply(m_items.back());
}

void AnchorLayout::Move(QWidget* control, const QRect& place) {
  for (Item& item : m_items) {
    if (item.control != control) continue;
    item.place = place;
    item.within = m_size;
    Apply(item);
  }
}

void AnchorLayout::Remove(const QWidget* control) {
  const auto isGone = [control](const Item& item) { return item.control.isNull() || item.control == control; };
  m_items.erase(std::remove_if(m_items.begin(), m_items.end(), isGone), m_items.end());
}

void AnchorLayout::SetSize(const QSize& client) {
  m_size = client;
  for (const Item& item : m_items) Apply(item);
}

void AnchorLayout::Apply(const Item& item) const {
  if (item.control.isNull()) return;
  const int wider = m_size.width() - item.within.width();
  const int higher = m_size.height() - item.within.height();
  QRect place = item.place;
  if ((item.anchors & ANCHOR_RIGHT) != 0) place.setRight(place.right() + wider);
  if ((item.anchors & ANCHOR_LEFT) == 0) place.setLeft(place.left() + wider);
  if ((item.anchors & ANCHOR_BOTTOM) != 0) place.setBottom(place.bottom() + higher);
  if ((item.anchors & ANCHOR_TOP) == 0) place.setTop(place.top() + higher);
  item.control->setGeometry(QRect(place.topLeft(), place.size().expandedTo(QSize(0, 0))));
}

}  // namespace ZORVEL
