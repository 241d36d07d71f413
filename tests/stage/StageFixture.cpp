#include "tests/stage/StageFixture.h"

#include <QtTest/QtTest>
#include <cmath>

#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "plugin/Commands.h"
#include "scene/PlacementState.h"

namespace support {

void StageFixture::SetUp() {
  LoadedRepositoryFixture::SetUp();
  window_ = std::make_unique<stage::StageWindow>();
  window_->resize(1100, 800);
  window_->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
  // From the front and above: no thing hides another.
  view().viewport().lookAt(Point3(0, 150, 60), 900.0F, 0.1F, 0.6F);
  // A first move to where the last test left the mouse would be none.
  move(QPoint(3, 3));
}

void StageFixture::TearDown() {
  host::Application::instance().modes().returnToStandard();
  ZORVEL::PlacementState::Get() = ZORVEL::PlacementState();
  window_.reset();
  LoadedRepositoryFixture::TearDown();
}

host::Scene& StageFixture::scene() { return host::Application::instance().scene(); }

INode* StageFixture::node(const wchar_t* name) { return scene().find(name); }

QPoint StageFixture::pixelOf(const Point3& world) {
  const auto pixel = view().viewport().camera().project(world, view().width(), view().height());
  return {static_cast<int>(std::lround(pixel->x())), static_cast<int>(std::lround(pixel->y()))};
}

QPoint StageFixture::inWindow(const QPoint& pixel) { return view().mapTo(window_.get(), pixel); }

void StageFixture::move(const QPoint& pixel) {
  QTest::mouseMove(window_->windowHandle(), inWindow(pixel));
  settle();
}

void StageFixture::press(const QPoint& pixel, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
  QTest::mousePress(window_->windowHandle(), button, keys, inWindow(pixel));
  settle();
}

void StageFixture::release(const QPoint& pixel, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
  QTest::mouseRelease(window_->windowHandle(), button, keys, inWindow(pixel));
  settle();
}

void StageFixture::click(const QPoint& pixel, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
  press(pixel, button, keys);
  release(pixel, button, keys);
}

void StageFixture::key(Qt::Key key, Qt::KeyboardModifiers keys) {
  QTest::keyClick(window_->windowHandle(), key, keys);
  settle();
}

void StageFixture::settle() {
  QCoreApplication::processEvents();
  window_->catchUp();
  QCoreApplication::processEvents();
}

bool StageFixture::waitForPicture() {
  settle();
  return QTest::qWaitFor([this] { return view().picture().complete(); }, 60000);
}

void StageFixture::createCharacter() { ZORVEL::Commands::CreateCharacter(); }

}  // namespace support
