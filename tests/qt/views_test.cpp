#include <algorithm>
#include <set>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "qt/list_view.h"
#include "tests/qt/all_views.h"

namespace velmora::qt {
namespace {

struct ViewsTest : AllViews {
  static bool isControl(const QWidget* widget) {
    return (qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
            qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractItemView*>(widget)) &&
           widget->isVisible() && widget->focusPolicy() != Qt::NoFocus &&
           !qobject_cast<const QComboBox*>(widget->parentWidget());
  }
};

TEST_F(ViewsTest, EveryWindowHasAView) {
  EXPECT_EQ(topLevels().size(), static_cast<int>(windows.all().size()));
}

TEST_F(ViewsTest, EveryControlIsNamedAndCanBeReachedByKeyboard) {
  for (QWidget* top : topLevels()) {
    std::set<QWidget*> reached;
    for (QWidget* next = top->nextInFocusChain(); reached.insert(next).second;)
      next = next->nextInFocusChain();
    for (QWidget* control : top->findChildren<QWidget*>()) {
      if (!isControl(control)) continue;
      const auto where = (top->windowTitle() + ": " + control->metaObject()->className()).toStdString();
      EXPECT_FALSE(control->accessibleName().isEmpty()) << where;
      EXPECT_TRUE(reached.contains(control)) << where;
      auto* button = qobject_cast<QAbstractButton*>(control);
      if (button && button->autoExclusive()) continue;  // Tab goes to one of the group, arrows to the others
      EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << where << control->accessibleName().toStdString();
    }
  }
}

TEST_F(ViewsTest, NoTwoControlsOfAWindowShareAMnemonic) {
  for (QWidget* top : topLevels()) {
    std::set<QString> taken;
    const auto take = [&](const QString& text) {
      const QString keys = QKeySequence::mnemonic(text).toString();
      const bool isNew = keys.isEmpty() || taken.insert(keys).second;
      EXPECT_TRUE(isNew) << top->windowTitle().toStdString() << ": " << text.toStdString();
    };
    for (auto* button : top->findChildren<QAbstractButton*>())
      if (button->isVisible()) take(button->text());
    for (auto* label : top->findChildren<QLabel*>())
      if (label->isVisible() && label->buddy()) take(label->text());
    if (auto* bar = top->findChild<QMenuBar*>())
      for (QAction* action : bar->actions()) take(action->text());
  }
}

TEST_F(ViewsTest, NothingIsClippedOnASmallScreen) {
  windows.form3.rootLabel.setText(u"/music/base");
  const std::pair<QString, QSize> sizes[] = {
      {"Processing Window", {1280, 770}}, {"Music Base", {1280, 366}}, {"New Music", {1280, 366}}};
  for (const auto& [title, size] : sizes) window(title)->resize(size);
  turn();
  for (const auto& [title, size] : sizes) EXPECT_EQ(window(title)->size(), size) << title.toStdString();
  for (QWidget* top : topLevels()) {
    EXPECT_LE(top->width(), 1280) << top->windowTitle().toStdString();
    EXPECT_LE(top->height(), 800) << top->windowTitle().toStdString();
    for (QWidget* widget : top->findChildren<QWidget*>()) {
      if (!widget->isVisible() || !(isControl(widget) || qobject_cast<QLabel*>(widget))) continue;
      const QSize needed = widget->minimumSizeHint();
      const auto where = top->windowTitle() + ": " + widget->accessibleName();
      EXPECT_GE(widget->width(), std::min(needed.width(), 60)) << where.toStdString();
      EXPECT_GE(widget->height(), needed.height()) << where.toStdString();
      auto* view = qobject_cast<QAbstractItemView*>(widget);
      EXPECT_FALSE((view ? view->viewport() : widget)->visibleRegion().isEmpty()) << where.toStdString();
    }
  }
}

TEST_F(ViewsTest, CompletionsOpenBelowTheNameBoxAndGoWithIt) {
  ui::Form1& form1 = windows.form1;
  QWidget* processing = window("Processing Window");
  auto* name = named<QLineEdit>(processing, "File name");
  auto* list = named<ListView>(processing, "Artists");
  ASSERT_TRUE(name && list);
  name->window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(processing));
  name->setFocus();
  form1.Text1.onChange = [&] {
    form1.List3.fill({u"Arvola", u"Arc"});
    form1.List3.setVisible(true);
  };
  int picked = -1;
  form1.List3.onClick = [&] { picked = form1.List3.ListIndex(); };
  EXPECT_FALSE(list->isVisible());
  QTest::keyClicks(name, "ar");
  turn();
  ASSERT_TRUE(list->isVisible());
  EXPECT_EQ(list->mapTo(processing, QPoint(0, 0)).x(), name->mapTo(processing, QPoint(0, 0)).x());
  EXPECT_GT(list->y(), name->mapTo(processing, QPoint(0, 0)).y());
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualRect(list->model()->index(1, 0)).center());
  EXPECT_EQ(picked, 1);
  EXPECT_TRUE(name->hasFocus());
  QTest::keyClick(name, Qt::Key_Escape);
  turn();
  EXPECT_FALSE(list->isVisible());
  QTest::keyClicks(name, "v");
  QTest::keyClick(name, Qt::Key_Tab);
  turn();
  EXPECT_FALSE(list->isVisible());
}

TEST_F(ViewsTest, EmptyWindowsTellTheNextStep) {
  auto* list = named<ListView>(window("Processing Window"), "Files");
  EXPECT_TRUE(list->emptyState().hint.contains("press Add"));
  windows.form1.ostali.setEnabled(true);
  windows.form1.ostali.setChosen(true);
  EXPECT_EQ(list->emptyState().title, "No other files");
  windows.form1.List4.Clear();
  turn();
  EXPECT_FALSE(list->grab().isNull());

  auto* base = window("Music Base");
  const auto shows = [&](const QString& text) {
    return std::ranges::any_of(base->findChildren<QLabel*>(), [&](const QLabel* label) {
      return label->isVisible() && label->text().contains(text);
    });
  };
  EXPECT_TRUE(shows("Choose the folder that holds your collection"));
  windows.form3.rootLabel.setText(u"/music/base");
  turn();
  EXPECT_TRUE(shows("/music/base"));
  EXPECT_FALSE(shows("Choose the folder that holds your collection"));
  EXPECT_TRUE(named<ListView>(base, "Base genres")->emptyState().hint.contains("New"));
}

}  // namespace
}  // namespace velmora::qt
