#include "qt/bind_window.h"

#include <gtest/gtest.h>

#include <QScreen>

#include "qt/twips.h"
#include "tests/qt/bench.h"

namespace velmora::qt {
namespace {

struct BindWindowTest : testing::Test {
  void bind(QSize size = {300, 200}) {
    bindWindow({refresher, gate}, model, &widget, size);
    turn();
  }
  void turn() { QCoreApplication::processEvents(); }
  int twips(int pixels) { return pixels * 1440 / static_cast<int>(widget.screen()->logicalDotsPerInch()); }

  int requests = 0, activated = 0, deactivated = 0;
  PlainWindow model;
  Refresher refresher;
  InputGate gate{refresher};
  QWidget widget;
};

TEST_F(BindWindowTest, ShowsAndHidesWithItsModel) {
  bind();
  EXPECT_FALSE(widget.isVisible());
  model.show();
  model.setCaption(u"Please Wait ...");
  turn();
  EXPECT_TRUE(widget.isVisible());
  EXPECT_EQ(widget.windowTitle(), "Please Wait ...");
  EXPECT_EQ(widget.size(), QSize(300, 200));
  model.hide();
  turn();
  EXPECT_FALSE(widget.isVisible());
}

TEST_F(BindWindowTest, NeverClosesByItself) {
  model.onCloseRequest = [&] { ++requests; };
  bind();
  model.show();
  turn();
  EXPECT_FALSE(widget.close());
  EXPECT_TRUE(widget.isVisible());
  model.setEnabled(false);
  widget.close();
  EXPECT_EQ(requests, 2) << "the model says what a request means while it is disabled";
  model.onCloseRequest = nullptr;
  widget.close();
  turn();
  EXPECT_FALSE(widget.isVisible()) << "by default it hides";
}

TEST_F(BindWindowTest, PlacesAreTwipsBothWays) {
  model.setPlacement({twips(40), twips(60), twips(320), twips(240)});
  bind();
  model.show();
  turn();
  EXPECT_EQ(widget.size(), QSize(320, 240));
  EXPECT_EQ(widget.pos(), QPoint(40, 60));
  EXPECT_EQ(model.placement(), (ui::Placement{twips(40), twips(60), twips(320), twips(240)}));
  widget.resize(400, 300);
  widget.move(50, 70);
  turn();
  EXPECT_EQ(model.placement(), (ui::Placement{twips(50), twips(70), twips(400), twips(300)}));
}

TEST_F(BindWindowTest, APlaceThatIsOffTheScreenOrTooLargeIsPutRight) {
  const QRect room = widget.screen()->availableGeometry();
  model.setPlacement({twips(-5000), twips(90000), twips(300), twips(200)});
  bind();
  model.show();
  turn();
  EXPECT_TRUE(room.contains(widget.geometry())) << widget.x() << ',' << widget.y();
  model.setPlacement({0, 0, twips(9000), twips(9000)});
  turn();
  EXPECT_TRUE(room.contains(widget.geometry()));
  model.setPlacement({twips(30), twips(50), 0, 0});
  turn();
  EXPECT_EQ(widget.size(), QSize(300, 200)) << "without a size the design size";
}

TEST_F(BindWindowTest, TheStateGoesBothWaysAndKeepsTheNormalPlace) {
  bind();
  model.show();
  turn();
  const ui::Placement normal = model.placement();
  EXPECT_GT(normal.width, 0);
  model.setState(ui::WindowState::Maximised);
  turn();
  EXPECT_TRUE(widget.isMaximized());
  EXPECT_EQ(model.placement(), normal);
  widget.showMinimized();
  turn();
  EXPECT_EQ(model.state(), ui::WindowState::Minimised);
  model.setState(ui::WindowState::Normal);
  turn();
  EXPECT_FALSE(widget.isMinimized() || widget.isMaximized());
  EXPECT_EQ(model.placement(), normal);
  model.setState(ui::WindowState::Maximised);
  turn();
  const ui::Placement half = {normal.left, normal.top, normal.width, normal.height / 2};
  model.setState(ui::WindowState::Normal);
  model.setPlacement(half);
  turn();
  EXPECT_EQ(model.placement(), half) << "a place that comes along with the normal state is taken";
  EXPECT_EQ(toTwips(widget.height(), &widget), half.height);
}

TEST_F(BindWindowTest, TellsWhenItComesToTheFrontAndLosesIt) {
  model.onActivate = [&] { ++activated; };
  model.onDeactivate = [&] { ++deactivated; };
  bind();
  model.show();
  turn();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
  EXPECT_EQ(activated, 1);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_EQ(deactivated, 1);
  model.bringToFront();
  turn();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
  EXPECT_EQ(activated, 2);
}

TEST(DialogWindowTest, EscapeIsARequestToClose) {
  PlainWindow model;
  Refresher refresher;
  InputGate gate{refresher};
  DialogWindow dialog;
  int requests = 0;
  model.onCloseRequest = [&] { ++requests; };
  bindWindow({refresher, gate}, model, &dialog);
  model.show();
  refresher.flush();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_EQ(requests, 1);
  EXPECT_TRUE(dialog.isVisible());
}

}  // namespace
}  // namespace velmora::qt
