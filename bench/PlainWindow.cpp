#include "bench/PlainWindow.h"

#include <QLabel>
#include <QScrollArea>

#include "bench/PictureRepository.h"

namespace bench {

namespace {

constexpr int WIDTH = 950;
constexpr int HEIGHT = 670;
/// The pages whose pictures are tall: poses and styles.
constexpr int STYLES_PAGE = 2;

bool isTall(int page) { return page == 0 || page == STYLES_PAGE; }

int elementsOf(int page) {
  constexpr int EACH = PictureRepository::ELEMENTS / PictureRepository::TABS;
  return EACH + (page >= PictureRepository::TABS - PictureRepository::ELEMENTS % PictureRepository::TABS ? 1 : 0);
}

}  // namespace

PlainWindow::PlainWindow() : tabs_(new QTabWidget(&window_)) {
  window_.resize(WIDTH, HEIGHT);
  tabs_->setGeometry(185, 95, 735, 525);
  rebuildFrom(0);
  window_.show();
}

void PlainWindow::rebuildFrom(int page) {
  while (tabs_->count() > page) {
    QWidget* last = tabs_->widget(tabs_->count() - 1);
    tabs_->removeTab(tabs_->count() - 1);
    delete last;
  }
  boxes_.resize(static_cast<std::size_t>(page));
  for (int i = page; i < PictureRepository::TABS; ++i) addPage(i);
}

void PlainWindow::addPage(int page) {
  const QSize picture = isTall(page) ? QSize(100, 300) : QSize(150, 150);
  const int columns = (WIDTH - 250) / (picture.width() + 15);
  auto* area = new QScrollArea;
  auto* content = new QWidget;
  boxes_.emplace_back();
  for (int i = 0; i < elementsOf(page); ++i) {
    const int x = (picture.width() + 15) * (i % columns) + 15;
    const int y = (picture.height() + 65) * (i / columns) + picture.height() + 15;
    auto* box = new QCheckBox(QString("element number %1").arg(i), content);
    box->setGeometry(x, y, picture.width(), 50);
    auto* label = new QLabel(content);
    label->setGeometry(x, y - picture.height(), picture.width(), picture.height());
    boxes_.back().push_back(box);
  }
  content->resize(content->childrenRect().size());
  area->setWidget(content);
  tabs_->addTab(area, QString("Page %1").arg(page));
}

void PlainWindow::changeCheckStates(int count) {
  for (int done = 0; done < count;) {
    for (const std::vector<QCheckBox*>& page : boxes_) {
      for (QCheckBox* box : page) {
        if (done++ < count) box->setChecked(!box->isChecked());
      }
    }
  }
}

std::unique_ptr<QTreeWidget> plainTree(int parents, int children) {
  auto tree = std::make_unique<QTreeWidget>();
  tree->setHeaderHidden(true);
  tree->resize(155, 520);
  for (int i = 0; i < parents; ++i) {
    auto* parent = new QTreeWidgetItem(tree.get(), {QString("Person %1").arg(i)});
    for (int j = 0; j < children; ++j) new QTreeWidgetItem(parent, {QString("k number %1").arg(j)});
  }
  return tree;
}

}  // namespace bench
