#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include "qt/bind.h"
#include "tests/qt/bench.h"

namespace velmora::qt {
namespace {

// The models stand before the bench in each test, as the program's stand before its views.
TEST(BindControls, ManyChangesAreShownOnce) {
  ui::Label model;
  Bench bench;
  int refreshed = 0;
  QObject owner;
  bench.refresher.watch(model, &owner, [&] { ++refreshed; });
  EXPECT_EQ(refreshed, 1) << "shown at once when bound";
  for (char16_t c = u'a'; c < u'z'; ++c) model.setText(Text(1, c));
  EXPECT_EQ(refreshed, 1);
  bench.turn();
  EXPECT_EQ(refreshed, 2);
  model.setText(u"last");
  bench.refresher.flush();
  bench.turn();
  EXPECT_EQ(refreshed, 3) << "what was flushed is not shown again";
}

TEST(BindControls, AViewThatIsGoneHearsNothing) {
  ui::Label model;
  Bench bench;
  auto* label = new QLabel;
  bindLabel(bench.refresher, model, label);
  model.setText(u"a");
  delete label;
  bench.turn();
  model.setText(u"b");
  EXPECT_FALSE(model.viewChanged);
}

TEST(BindControls, AnEmptyLabelMaySayWhatIsMissing) {
  ui::Label model;
  Bench bench;
  QLabel label;
  bindLabel(bench.refresher, model, &label, "none");
  EXPECT_EQ(label.text(), "none");
  model.setText(u" 4 MB <b>");
  bench.turn();
  EXPECT_EQ(label.text(), "4 MB <b>");
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST(BindControls, AButtonActsOnlyWhileItsModelAndItsWindowAllow) {
  ui::Button model;
  Bench bench;
  int clicks = 0;
  model.onClick = [&] { ++clicks; };
  auto* button = bench.show(new QPushButton("&Go"));
  bindButton(bench.refresher, model, button);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  model.setEnabled(false);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(clicks, 1) << "although the view has not been told yet";
  EXPECT_FALSE(button->isEnabled());
  model.setEnabled(true);
  bench.turn();
  bench.window.setEnabled(false);
  QTest::mouseClick(button, Qt::LeftButton);
  QTest::keyClick(button, Qt::Key_Space);
  QTest::keyClick(button, Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(button->isEnabled()) << "it is not greyed";
  bench.window.setEnabled(true);
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
  model.setVisible(false);
  bench.turn();
  EXPECT_TRUE(button->isHidden());
}

TEST(BindControls, CheckMarksGoBothWays) {
  ui::CheckBox model;
  Bench bench;
  int clicks = 0;
  model.onClick = [&] { ++clicks; };
  auto* box = bench.show(new QPushButton);
  bindCheckBox(bench.refresher, model, box);
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_TRUE(model.checked());
  EXPECT_EQ(clicks, 1);
  model.setChecked(false);
  bench.turn();
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(clicks, 2);
  model.setEnabled(false);
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_FALSE(box->isChecked());
}

TEST(BindControls, OptionsExcludeEachOtherAndMayAllBeOff) {
  ui::OptionButton a, b;
  Bench bench;
  ui::OptionButton::makeGroup({&a, &b});
  auto* panel = bench.show(new QWidget);
  auto* first = new QRadioButton("a", panel);
  auto* second = new QRadioButton("b", panel);
  second->move(0, 100);
  first->show();
  second->show();
  bindOptionButton(bench.refresher, a, first);
  bindOptionButton(bench.refresher, b, second);
  int chosen = 0;
  b.onClick = [&] { ++chosen; };
  a.setChosen(true);
  bench.turn();
  EXPECT_TRUE(first->isChecked());
  first->setFocus();
  QTest::keyClick(first, Qt::Key_Down);
  EXPECT_TRUE(b.chosen());
  EXPECT_FALSE(a.chosen());
  EXPECT_EQ(chosen, 1);
  b.setChosen(false);
  bench.turn();
  EXPECT_FALSE(first->isChecked());
  EXPECT_FALSE(second->isChecked());
}

struct BindTextBoxTest : testing::Test {
  BindTextBoxTest() {
    bindTextBox(bench.refresher, model, line);
    line->setFocus();
  }
  ui::TextBox model;
  Bench bench;
  QLineEdit* line = bench.show(new QLineEdit);
};

TEST_F(BindTextBoxTest, KeepsTheCursorInStepAndWhatCodePutInIsThereBeforeTheNextKey) {
  QTest::keyClicks(line, "arv");
  EXPECT_EQ(model.text(), u"arv");
  EXPECT_EQ(model.cursor(), 3);
  QTest::keyClick(line, Qt::Key_Home);
  EXPECT_EQ(model.cursor(), 0);
  QTest::keyClicks(line, "X");
  EXPECT_EQ(model.text(), u"Xarv");
  EXPECT_EQ(model.cursor(), 1);
  model.setText(u"Arvola -");
  QTest::keyClicks(line, " ");
  EXPECT_EQ(model.text(), u"Arvola - ");
  bench.turn();
  EXPECT_EQ(line->text(), "Arvola - ");
  EXPECT_EQ(line->cursorPosition(), 9);
}

TEST_F(BindTextBoxTest, ShowsTheStartOfItsTextWithoutFocusAndKeepsEveryUnit) {
  line->clearFocus();
  const Text odd = Text(u"bytes ") + char16_t(0xDC99) + char16_t(0xDCFF) + u" end";
  model.setText(odd);
  bench.turn();
  EXPECT_EQ(line->cursorPosition(), 0);
  EXPECT_EQ(model.text(), odd);
  line->setFocus();
  QTest::keyClick(line, Qt::Key_End);
  QTest::keyClicks(line, "!");
  EXPECT_EQ(model.text(), odd + u"!");
}

TEST_F(BindTextBoxTest, TheModelMayUseUpAKey) {
  model.onKey = [](ui::KeyPress press) { return press.key == ui::Key::Delete; };
  QTest::keyClicks(line, "ab");
  QTest::keyClick(line, Qt::Key_Home);
  QTest::keyClick(line, Qt::Key_Delete);
  EXPECT_EQ(model.text(), u"ab");
  ASSERT_TRUE(model.undoEdit);
  model.undoEdit();
  EXPECT_EQ(model.text(), u"");
}

TEST(BindControls, TheComboBoxTakesAnyText) {
  ui::ComboBox model;
  Bench bench;
  model.setRows({{u"", 255}, {u"Blues", 0}, {u"Opera", 103}});
  auto* combo = bench.show(new QComboBox);
  bindComboBox(bench.refresher, model, combo);
  EXPECT_EQ(combo->count(), 3);
  model.setText(u"Opera");
  bench.turn();
  EXPECT_EQ(combo->currentText(), "Opera");
  EXPECT_EQ(combo->currentIndex(), 2);
  model.setText(u"Polka of the North");
  bench.turn();
  EXPECT_EQ(combo->currentText(), "Polka of the North");
  combo->setCurrentIndex(1);
  EXPECT_EQ(model.text(), u"Blues");
  combo->lineEdit()->setFocus();
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo->lineEdit(), "Zz");
  EXPECT_EQ(model.text(), u"Zz");
  EXPECT_EQ(combo->count(), 3);
}

TEST(BindControls, SliderAndBarShowShares) {
  ui::Slider slider;
  ui::ProgressBar progress;
  Bench bench;
  int moves = 0;
  slider.onMove = [&] { ++moves; };
  auto* knob = bench.show(new QSlider(Qt::Horizontal));
  bindSlider(bench.refresher, slider, knob);
  slider.setShare(0.25);
  bench.turn();
  EXPECT_EQ(knob->value(), 250);
  EXPECT_EQ(moves, 0);
  QTest::keyClick(knob, Qt::Key_End);
  EXPECT_EQ(slider.share(), 1.0);
  EXPECT_EQ(moves, 1);

  auto* bar = bench.show(new QProgressBar);
  bindProgressBar(bench.refresher, progress, bar);
  QTest::qWait(50);
  progress.setPercent(42);
  EXPECT_EQ(bar->value(), 420) << "moves although no events are handled";
}

TEST(BindControls, ATimerBeatsWhileItIsOn) {
  ui::Timer timer(5);
  Bench bench;
  int ticks = 0;
  timer.onTick = [&] {
    if (++ticks == 3) timer.setOn(false);
  };
  bindTimer(bench.refresher, timer, &bench.widget);
  QTest::qWait(30);
  EXPECT_EQ(ticks, 0);
  timer.setOn(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
  QTest::qWait(30);
  EXPECT_EQ(ticks, 3);
}

}  // namespace
}  // namespace velmora::qt
