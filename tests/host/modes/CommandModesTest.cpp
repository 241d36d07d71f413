#include "host/modes/CommandModes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/modes/MouseFeed.h"
#include "host/services/Prompts.h"

namespace {

using host::CommandModes;
using host::MouseFeed;
using testing::ElementsAre;
using testing::IsEmpty;

using Record = std::vector<std::string>;

/// Writes down what it is told; may act in the middle of it.
class RecordingMode : public CommandMode, private MouseCallBack {
 public:
  RecordingMode(std::string name, Record& record, int points = 2)
      : name_(std::move(name)), record_(record), points_(points) {}

  int Class() override { return MODIFY_COMMAND; }
  int ID() override { return 1; }
  MouseCallBack* MouseProc(int* numPoints) override {
    *numPoints = points_;
    return this;
  }
  ChangeForegroundCallback* ChangeFGProc() override { return nullptr; }
  BOOL ChangeFG(CommandMode* /*oldMode*/) override { return FALSE; }
  void EnterMode() override { record_.push_back("enter " + name_); }
  void ExitMode() override {
    record_.push_back("exit " + name_);
    if (onExit) onExit();
  }

  std::function<int(int msg, int flags)> onMouse;
  std::function<void()> onExit;

 private:
  int proc(HWND /*window*/, int msg, int point, int flags, IPoint2 m) override {
    record_.push_back(name_ + " " + std::to_string(msg) + " point " + std::to_string(point) + " flags " +
                      std::to_string(flags) + " at " + std::to_string(m.x));
    return onMouse ? onMouse(msg, flags) : TRUE;
  }

  std::string name_;
  Record& record_;
  int points_;
};

Record takeFrom(Record& record) { return std::exchange(record, {}); }

TEST(CommandModes, EntersWhatBecomesCurrentAndLeavesWhatWas) {
  Record record;
  CommandModes modes;
  RecordingMode a("a", record);
  RecordingMode b("b", record);
  modes.pop();
  modes.push(nullptr);
  EXPECT_EQ(&modes.current(), &modes.standard());
  modes.set(&a);
  EXPECT_EQ(modes.depth(), 2U);
  modes.set(&a);
  modes.push(&b);
  modes.pop();
  EXPECT_THAT(takeFrom(record), ElementsAre("enter a", "exit a", "enter b", "exit b", "enter a"));

  modes.push(&b);
  takeFrom(record);
  modes.remove(&a);
  EXPECT_THAT(record, IsEmpty());
  EXPECT_EQ(&modes.current(), &b);
  modes.set(&a);
  modes.remove(&a);
  EXPECT_EQ(&modes.current(), &modes.standard());
  EXPECT_THAT(takeFrom(record), ElementsAre("exit b", "enter a", "exit a"));
}

TEST(CommandModes, ReturnsToTheStandardModeByNumberAndRecordsEveryNumber) {
  Record record;
  CommandModes modes;
  RecordingMode a("a", record);
  RecordingMode b("b", record);
  modes.push(&a);
  modes.push(&b);
  takeFrom(record);
  modes.execute(4711);
  EXPECT_EQ(&modes.current(), &b);
  modes.execute(91);
  modes.execute(91);
  EXPECT_EQ(modes.depth(), 1U);
  EXPECT_THAT(record, ElementsAre("exit b"));
  EXPECT_THAT(modes.executed(), ElementsAre(4711, 91, 91));
}

TEST(CommandModes, StandsAModeThatStartsAnotherWhileItIsLeft) {
  Record record;
  CommandModes modes;
  RecordingMode a("a", record);
  RecordingMode b("b", record);
  modes.set(&a);
  a.onExit = [&] { modes.set(&b); };
  modes.execute(91);
  EXPECT_EQ(&modes.current(), &b);
  EXPECT_THAT(record, ElementsAre("enter a", "exit a", "enter b"));
  modes.remove(&a);
  modes.returnToStandard();
}

TEST(MouseFeed, DeliversPressAndReleaseAsPointsAndMovesByWhetherAButtonIsDown) {
  Record record;
  CommandModes modes;
  RecordingMode mode("m", record, 4);
  modes.set(&mode);
  takeFrom(record);
  MouseFeed feed(modes, nullptr);
  feed.move(0, {1, 0});
  feed.press(MOUSE_LBUTTON, MOUSE_CTRL, {2, 0});
  feed.move(MOUSE_CTRL, {3, 0});
  feed.release(MOUSE_LBUTTON, MOUSE_CTRL, {4, 0});
  feed.move(0, {5, 0});
  feed.press(MOUSE_LBUTTON, 0, {6, 0});
  feed.release(MOUSE_LBUTTON, 0, {7, 0});
  feed.press(MOUSE_LBUTTON, 0, {8, 0});
  feed.abort();
  feed.release(MOUSE_LBUTTON, 0, {9, 0});
  feed.rightClick(0, {10, 0});
  EXPECT_THAT(record, ElementsAre("m 6 point 0 flags 0 at 1", "m 1 point 0 flags 10 at 2", "m 2 point 1 flags 10 at 3",
                                  "m 1 point 1 flags 2 at 4", "m 6 point 2 flags 0 at 5", "m 1 point 2 flags 8 at 6",
                                  "m 1 point 3 flags 0 at 7", "m 1 point 0 flags 8 at 8", "m 0 point 0 flags 0 at 0",
                                  "m 8 point 0 flags 0 at 10"));
  modes.returnToStandard();
}

TEST(MouseFeed, EndsARunOfPointsWhenTheModeHasEnough) {
  Record record;
  CommandModes modes;
  RecordingMode mode("m", record, 3);
  modes.set(&mode);
  mode.onMouse = [](int /*msg*/, int flags) { return flags != 0 ? TRUE : FALSE; };
  MouseFeed feed(modes, nullptr);
  takeFrom(record);
  for (int i = 0; i < 2; ++i) {
    feed.press(MOUSE_LBUTTON, 0, {1, 0});
    feed.release(MOUSE_LBUTTON, 0, {1, 0});
  }
  EXPECT_THAT(record, ElementsAre("m 1 point 0 flags 8 at 1", "m 1 point 1 flags 0 at 1", "m 1 point 0 flags 8 at 1",
                                  "m 1 point 1 flags 0 at 1"));
  modes.returnToStandard();
}

TEST(MouseFeed, StandsAModeThatEndsAndDiesInTheMiddle) {
  Record record;
  CommandModes modes;
  RecordingMode below("below", record);
  auto mode = std::make_unique<RecordingMode>("m", record);
  modes.push(&below);
  modes.push(mode.get());
  mode->onMouse = [&](int msg, int /*flags*/) {
    if (msg != MOUSE_POINT) return TRUE;
    modes.remove(mode.get());
    mode.reset();
    return TRUE;
  };
  MouseFeed feed(modes, nullptr);
  takeFrom(record);
  feed.press(MOUSE_LBUTTON, 0, {1, 0});
  // The release belongs to the mode that is gone, the late move to the one that is current now.
  feed.move(0, {2, 0});
  feed.release(MOUSE_LBUTTON, 0, {3, 0});
  feed.move(0, {4, 0});
  feed.press(MOUSE_LBUTTON, 0, {5, 0});
  EXPECT_THAT(record, ElementsAre("m 1 point 0 flags 8 at 1", "exit m", "enter below", "below 2 point 0 flags 8 at 2",
                                  "below 6 point 0 flags 0 at 4", "below 1 point 0 flags 8 at 5"));
  modes.remove(&below);
}

TEST(HostInterface, HandsModesAndCommandsToTheStackAndLeavesPromptsAlone) {
  Record record;
  RecordingMode mode("m", record);
  host::Application& application = host::Application::instance();
  Interface* host = GetCOREInterface();
  host->PushPrompt(L"mine");
  const std::size_t prompts = application.prompts().depth();
  host->PushCommandMode(&mode);
  host->SetCommandMode(&mode);
  EXPECT_EQ(host->GetCommandMode(), &mode);
  host->PopCommandMode();
  host->SetCommandMode(&mode);
  host->ExecuteMAXCommand(91);
  host->SetCommandMode(&mode);
  host->DeleteMode(&mode);
  EXPECT_EQ(host->GetCommandMode(), &application.modes().standard());
  EXPECT_THAT(record, ElementsAre("enter m", "exit m", "enter m", "exit m", "enter m", "exit m"));
  EXPECT_EQ(application.prompts().depth(), prompts);
  EXPECT_EQ(application.prompts().top(), L"mine");
  host->PopPrompt();
}

}  // namespace
