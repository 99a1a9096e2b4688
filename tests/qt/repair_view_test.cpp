#include "qt/repair_view.h"

#include <gtest/gtest.h>
#include <memory>

#include <QAction>
#include <QLineEdit>
#include <QSlider>

#include "qt/bind.h"
#include "qt/player_bar.h"
#include "tests/qt/bench.h"

namespace velmora::qt {
namespace {

struct RepairViewTest : testing::Test {
  ui::Form1 form1;  // outlives its widgets
  Bench bench;
};

TEST_F(RepairViewTest, TheUndoKeyIsTheListsAndTheTextsOwn) {
  int undone = 0;
  form1.repair.undoLastOperation.setEnabled(true);
  form1.repair.undoLastOperation.onClick = [&] { ++undone; };
  auto* list = new ListView;
  bindList(bench.refresher, form1.List4, list, Rows::Paths);
  addFileMenu(bench.refresher, form1, list);
  bench.show(list);
  auto* box = bench.show(new QLineEdit);
  bindTextBox(bench.refresher, form1.Text1, box);

  box->setFocus();
  QTest::keyClicks(box, "typed");
  QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(undone, 0);
  EXPECT_TRUE(form1.Text1.text().empty());

  list->setFocus();
  QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(undone, 1);
  form1.repair.undoLastOperation.setEnabled(false);
  bench.turn();
  QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(undone, 1);
}

TEST_F(RepairViewTest, ACommandThatIsHiddenFromTheStartTakesNoRoom) {
  form1.repair.renameFiles.setVisible(true);
  const std::unique_ptr<QWidget> wide(makeNameTools(bench.refresher, form1.repair));
  form1.repair.renameFiles.setVisible(false);
  const std::unique_ptr<QWidget> narrow(makeNameTools(bench.refresher, form1.repair));
  EXPECT_LT(narrow->minimumSizeHint().width(), wide->minimumSizeHint().width());
  for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
}

struct PlayerBarTest : RepairViewTest {
  PlayerBarTest() {
    form1.player.position.onPress = [this] { events += 'p'; };
    form1.player.position.onMove = [this] { events += 'm'; };
    form1.player.position.onRelease = [this] { events += 'r'; };
    bar = bench.show(makePlayerBar(bench.refresher, form1));
  }
  QSlider* slider(const QString& name) {
    for (auto* each : bar->findChildren<QSlider*>())
      if (each->accessibleName() == name) return each;
    return nullptr;
  }
  QWidget* bar;
  std::string events;
};

TEST_F(PlayerBarTest, AClickOnTheTrackOrAKeyHoldsTheKnobUntilItIsLetGo) {
  QSlider* position = slider("Position");
  QTest::mouseClick(position, Qt::LeftButton, {}, position->rect().center());
  EXPECT_NEAR(form1.player.position.share(), 0.5, 0.1);
  EXPECT_EQ(events.back(), 'r');
  EXPECT_NE(events.find('p'), std::string::npos);

  events.clear();
  position->setFocus();
  QTest::keyClick(position, Qt::Key_Right);
  EXPECT_EQ(events, "pmr");
}

TEST_F(PlayerBarTest, LeftAndRightDoNotTouchTheSound) {
  form1.preview.setShare(0.5);
  bench.turn();
  QSlider* sound = slider("Sound");
  sound->setFocus();
  QTest::keyClick(sound, Qt::Key_Left);
  QTest::keyClick(sound, Qt::Key_Right);
  EXPECT_DOUBLE_EQ(form1.preview.share(), 0.5);
  QTest::keyClick(sound, Qt::Key_Down);
  EXPECT_LT(form1.preview.share(), 0.5);
}

}  // namespace
}  // namespace velmora::qt
