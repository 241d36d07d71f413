#pragma once

#include <QWidget>
#include <memory>

namespace ZORVEL {

/// Keeps the object, which answers events of the widget's children, until the widget is destroyed with them.
template <class Object>
void DestroyTogether(QWidget* widget, Object object) {
  const auto kept = std::make_shared<Object>(std::move(object));
  QObject::connect(widget, &QObject::destroyed, [kept] {});
}

}  // namespace ZORVEL
