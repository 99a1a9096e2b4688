#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include "core/text.h"
#include "qt/list_view.h"
#include "qt/program.h"
#include "qt/text.h"
#include "tests/qt/bench.h"
#include "tests/support/mp3_maker.h"
#include "tests/support/temp_folder.h"

namespace velmora::qt {
namespace {

using testing::ElementsAre;

/// The real program on real files, used through its widgets.
struct WalkTest : testing::Test {
  WalkTest() {
    folder.write(u"state/Settings.ini", settings);
    qputenv("VELMORA_HOME", folder.native(u"state").c_str());
    qputenv("XDG_DATA_HOME", folder.native(u"data").c_str());
    for (int i = 0; i < songs; ++i) {
      const Text name = u"Artist " + numbered(i % 7) + u" - Song " + numbered(1000 + i);
      test::SongTags tags;
      tags.title = u"Title " + numbered(i);
      tags.artist = u"Artist " + numbered(i % 7);
      folder.write(u"music/" + name + u".mp3", test::Id3v2Maker().values(tags).plainBytes() +
                                                   test::mpegFrames(40) + test::id3v1Tag(tags));
    }
  }
  ~WalkTest() override {
    qunsetenv("VELMORA_HOME");
    qunsetenv("XDG_DATA_HOME");
  }

  void start() {
    program = std::make_unique<Program>();
    program->velmora().onEnd = [this] { ended = true; };
    program->velmora().start();
    turn();
  }
  void end() {
    program->velmora().requestEnd();
    turn();
    EXPECT_TRUE(ended);
    program.reset();
    ended = false;
  }
  void turn() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }
  ui::Form1& form1() { return program->velmora().windows().form1; }

  template <typename Widget>
  Widget* named(const QString& name) {
    for (QWidget* top : QApplication::topLevelWidgets())
      for (Widget* widget : top->findChildren<Widget*>())
        if (top->isVisible() && widget->accessibleName() == name) return widget;
    ADD_FAILURE() << "nothing in sight is called " << name.toStdString();
    return nullptr;
  }
  void press(const QString& name) {
    if (auto* button = named<QAbstractButton>(name)) QTest::mouseClick(button, Qt::LeftButton);
    turn();
  }
  void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) { clickRow("Files", row, modifiers); }
  void clickRow(const QString& name, int row, Qt::KeyboardModifiers modifiers = {}) {
    auto* list = named<ListView>(name);
    const QModelIndex index = list->model()->index(row, 0);
    list->scrollTo(index);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualRect(index).center());
    turn();
  }
  void add(const Text& path) {
    form1().folderTree.click(path);
    turn();
    press("Add");
  }
  static constexpr int songs = 200;
  const Bytes settings = "\"AKTIVNIPROZOR   1\"\r\n\"SHOWTIPSASSTARTUP  False\"\r\n";
  test::TempFolder folder;
  bool ended = false;
  std::unique_ptr<Program> program;
};

TEST_F(WalkTest, FromAFolderToTagsAndBackAtTheNextStart) {
  start();
  add(folder.path(u"music"));
  auto* list = named<ListView>("Files");
  ASSERT_EQ(list->model()->rowCount(), songs);

  clickRow(120);
  const Text path = form1().List4.List(120);
  EXPECT_EQ(named<QLineEdit>("File name")->text() + ".mp3", list->model()->index(120, 0).data().toString());
  const QString title = named<QLineEdit>("Title")->text();
  EXPECT_TRUE(title.startsWith("Title "));
  clickRow(123, Qt::ShiftModifier);
  const int top = form1().List4.TopIndex();
  EXPECT_GT(top, 0);
  end();

  start();
  EXPECT_EQ(form1().List4.ListCount(), songs);
  EXPECT_EQ(form1().List4.List(120), path);
  EXPECT_THAT(form1().List4.selectedIndexes(), ElementsAre(120, 121, 122, 123));
  EXPECT_EQ(form1().List4.TopIndex(), top);
  EXPECT_EQ(named<ListView>("Files")->topRow(), top);
  clickRow(120);
  EXPECT_EQ(named<QLineEdit>("Title")->text(), title);
  end();
}

TEST_F(WalkTest, WhatIsWrittenIsInTheFileAndUndoTakesItBack) {
  start();
  add(folder.path(u"music"));
  clickRow(5);
  const Text path = form1().List4.List(5);
  const TextView name = TextView(path).substr(folder.path().size() + 1);
  const Bytes before = folder.read(name);
  auto* title = named<QLineEdit>("Title");
  title->selectAll();
  QTest::keyClicks(title, "Another title");
  press("Write ID3v1");
  press("UPDATE");
  EXPECT_NE(folder.read(name).find("TAGAnother title"), Bytes::npos);

  auto* list = named<ListView>("Files");
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
  turn();
  EXPECT_EQ(folder.read(name), before);
  end();
}

TEST_F(WalkTest, AnArtistGoesIntoTheBaseAndComesBackOnUndo) {
  folder.mkdir(u"base/Pop");
  folder.write(u"state/Settings.ini",
               Bytes("\"AKTIVNIPROZOR   1\"\r\n\"SHOWTIPSASSTARTUP  False\"\r\n\"DIRZABAZU  ") +
                   folder.native(u"base") + "\"\r\n");
  start();
  add(folder.path(u"music"));
  press("Assort Files Per Folders");
  EXPECT_EQ(named<QAbstractButton>("Show New Music Window")->text(), "Hide &New Music Window");
  clickRow("New genres", 1);
  clickRow("New artists", 3);
  clickRow("Base genres", 0);
  press("MOVE artist");
  const int left = form1().List4.ListCount();
  EXPECT_LT(left, songs);
  ui::Form3& form3 = program->velmora().windows().form3;
  ASSERT_GT(form3.List2.ListCount(), 0);
  const Text moved = u"base/Pop/" + form3.List2.List(0);
  EXPECT_TRUE(folder.exists(moved));
  end();

  start();
  EXPECT_EQ(named<ListView>("Base artists")->model()->rowCount(), 1) << "as it was left";
  EXPECT_TRUE(named<ListView>("New genres")->isVisible());
  press("Undo Last Operation");
  EXPECT_EQ(form1().List4.ListCount(), songs);
  EXPECT_FALSE(folder.exists(moved));
  end();
}

TEST_F(WalkTest, StopAndTheEndReachARunningCommand) {
  for (int i = 0; i < 3000; ++i) folder.write(u"many/Artist - Song " + numbered(i) + u".mp3", "no audio");
  folder.write(u"state/Settings.ini", settings + "\"DIRZABAZU   " + folder.native(u"base") + "\"\r\n");
  start();
  // All tags are read at once, which takes more than one turn of events.
  program->velmora().windows().form5.refreshOldMusicList.setChecked(true);
  QTimer waiting;
  int refused = 0;
  QObject::connect(&waiting, &QTimer::timeout, [&] {
    if (!program->velmora().windows().dialog1.visible()) return;
    waiting.stop();
    // The window below is shut while the command runs.
    form1().addFolder.onClick = [&] { ++refused; };
    QTest::keyClick(named<QAbstractButton>("Add Folder"), Qt::Key_Space);
    program->velmora().requestEnd();
  });
  waiting.start(1);
  add(folder.path(u"many"));
  EXPECT_EQ(refused, 0);
  EXPECT_TRUE(ended || program->velmora().ended());
  for (QWidget* top : QApplication::topLevelWidgets()) EXPECT_FALSE(top->isVisible());
  program.reset();
}

}  // namespace
}  // namespace velmora::qt
