#pragma once

#include <QWidget>

namespace ZORVEL {

/// The logo; finer on a screen whose pixels are finer.
class Logo : public QWidget {
  Q_OBJECT

 public:
  explicit Logo(QWidget* parent = nullptr);

  static QSize Size() { return QSize(155, 49); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap m_plain;
  QPixmap m_fine;
};

}  // namespace ZORVEL
