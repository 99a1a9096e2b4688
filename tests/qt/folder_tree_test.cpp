#include "qt/folder_tree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>

#include "qt/bind.h"
#include "qt/text.h"
#include "tests/qt/bench.h"
#include "tests/support/temp_folder.h"

namespace velmora::qt {
namespace {

struct FolderTreeTest : testing::Test {
  FolderTreeTest() {
    root = toQString(folder.path());
    QDir(root).mkpath("New music/Arvola");
    QDir(root).mkpath("New music/Brine");
  }
  QString shownFolder() { return tree->currentIndex().data(Qt::UserRole + 1).toString(); }
  QPoint nameOf(const QModelIndex& index) {
    const QRect row = tree->visualRect(index);
    return {row.left() + 8, row.center().y()};
  }
  void bind() {
    tree = bench.show(new FolderTree);
    bindFolderBox(bench.refresher, model, tree);
  }

  test::TempFolder folder;
  QString root;
  ui::FolderBox model;
  Bench bench;
  FolderTree* tree = nullptr;
};

TEST_F(FolderTreeTest, ShowsTheFolderAndExpandsTheWayToIt) {
  model.setPath(toText(root + "/New music/Brine"));
  bind();
  EXPECT_EQ(shownFolder(), root + "/New music/Brine");
  EXPECT_TRUE(tree->isExpanded(tree->currentIndex().parent()));
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return tree->viewport()->rect().contains(nameOf(tree->currentIndex())); }));
  EXPECT_TRUE(tree->isColumnHidden(1));
}

TEST_F(FolderTreeTest, OfAFolderThatIsGoneItShowsTheNearestParent) {
  model.setPath(toText(root + "/New music/gone/deeper"));
  bind();
  EXPECT_EQ(shownFolder(), root + "/New music");
  EXPECT_EQ(model.path(), toText(root + "/New music/gone/deeper")) << "showing changes no model";
}

TEST_F(FolderTreeTest, StartsSomewhereUseful) {
  bind();
  EXPECT_EQ(model.path(), toText(FolderTree::defaultFolder()));
}

TEST_F(FolderTreeTest, NoFileIsOpenedForItsKind) {
  const Text unknown = folder.write(u"New music/of no kind", "bytes");
  const timespec longAgo[] = {{1, 0}, {2, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, folder.native(u"New music/of no kind").c_str(), longAgo, 0), 0);
  model.setPath(toText(root + "/New music"));
  bind();
  ASSERT_TRUE(QTest::qWaitFor([&] { return tree->model()->rowCount(tree->currentIndex()) == 2; }));
  QTest::qWait(50);
  EXPECT_EQ(QFileInfo(toQString(unknown)).lastRead().toSecsSinceEpoch(), 1);
}

TEST_F(FolderTreeTest, MouseAndKeysChooseAFolder) {
  int clicks = 0;
  model.onClick = [&] { ++clicks; };
  model.setPath(toText(root + "/New music"));
  bind();
  const QModelIndex parent = tree->currentIndex();
  const auto first = [&] { return tree->model()->index(0, 0, parent); };
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return first().data().toString() == "Arvola" && tree->model()->rowCount(parent) == 2; }));
  ASSERT_TRUE(QTest::qWaitFor([&] { return tree->viewport()->rect().contains(nameOf(first())); }));
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, nameOf(first()));
  EXPECT_EQ(model.path(), toText(root + "/New music/Arvola"));
  EXPECT_EQ(clicks, 1);
  QTest::keyClick(tree, Qt::Key_Down);
  EXPECT_EQ(model.path(), toText(root + "/New music/Brine"));
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace velmora::qt
