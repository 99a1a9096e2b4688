#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QSplitter>

#include "qt/colours.h"
#include "qt/list_view.h"
#include "qt/twips.h"
#include "tests/qt/all_views.h"

namespace velmora::qt {
namespace {

using testing::ElementsAre;

/// The Music Base Window and the New Music Window, with a few rows in each column.
struct BaseViewsTest : AllViews {
  BaseViewsTest() {
    for (ui::Window* each : windows.all())
      if (each != &form2 && each != &form3) each->hide();
    form3.rootLabel.setText(u"/music/base");
    for (ui::ListBox* list : {&form3.List1, &form3.List2, &form3.List3, &form3.List8, &form2.List1,
                              &form2.List2, &form2.List3, &form2.List8, &form2.List4})
      list->fill({u"Alpha", u"Beta", u"Gamma"});
    base = window("Music Base");
    fresh = window("New Music");
    for (QWidget* each : {fresh, base}) each->resize(1280, 366);
    for (int settled = 0; settled < 3; ++settled) turn();
    front(base);
  }
  // The display may still be about to bring other windows to the front, that were shown before.
  void front(QWidget* window) {
    for (int inFront = 0, tries = 0; inFront < 3 && tries < 200; ++tries) {
      QTest::qWait(2);
      inFront = QApplication::activeWindow() == window ? inFront + 1 : 0;
      if (inFront == 0) window->activateWindow();
    }
    ASSERT_EQ(QApplication::activeWindow(), window);
  }
  // Runs `act` and tells how often `event` was raised meanwhile.
  template <typename Act>
  int raised(std::function<void()>& event, Act act) {
    int times = 0;
    event = [&times] { ++times; };
    act();
    turn();
    event = nullptr;
    return times;
  }
  // The same for one press of a key.
  int keyed(std::function<void()>& event, QWidget* widget, Qt::Key key, Qt::KeyboardModifiers with = {}) {
    return raised(event, [&] { QTest::keyClick(widget, key, with); });
  }
  void press(QWidget* in, const QString& name) {
    auto* button = named<QAbstractButton>(in, name);
    ASSERT_TRUE(button && button->isVisible()) << name.toStdString();
    QTest::mouseClick(button, Qt::LeftButton);
  }
  ListView* list(QWidget* in, const QString& name) {
    auto* found = named<ListView>(in, name);
    found->setFocus();
    return found;
  }

  ui::Form2& form2 = windows.form2;
  ui::Form3& form3 = windows.form3;
  QWidget* base = nullptr;
  QWidget* fresh = nullptr;
};

TEST_F(BaseViewsTest, EachCommandHasItsButton) {
  struct Place {
    QWidget* window;
    const char* name;
    ui::Button& model;
  };
  for (const Place& place :
       std::vector<Place>{{base, "New genre", form3.genres.newFolder},
                          {base, "Ren genre", form3.genres.ren},
                          {base, "Del genre", form3.genres.del},
                          {base, "New artist", form3.artists.newFolder},
                          {base, "Ren artist", form3.artists.ren},
                          {base, "Del artist", form3.artists.del},
                          {base, "New album", form3.albums.newFolder},
                          {base, "Ren album", form3.albums.ren},
                          {base, "Del album", form3.albums.del},
                          {base, "Ren title", form3.titles.ren},
                          {base, "Del title", form3.titles.del},
                          {base, "Select Years", form3.selectYears},
                          {base, "Select main folder for Your Music Base", form3.selectMainFolder},
                          {base, "Show New Music Window", form3.showNewMusic},
                          {base, "Show Processing Window", form3.showProcessingWindow},
                          {fresh, "MOVE genre", form2.moveGenre},
                          {fresh, "MOVE artist", form2.moveArtist},
                          {fresh, "MOVE album", form2.moveAlbum},
                          {fresh, "MOVE titles", form2.moveTitle},
                          {fresh, "Name genre", form2.nameGenre},
                          {fresh, "Name artist", form2.nameArtist},
                          {fresh, "Name album", form2.nameAlbum},
                          {fresh, "Scan ID3 Of Every New Music Files", form2.scanTags},
                          {fresh, "Undo Last Operation", form2.undoLastOperation},
                          {fresh, "Close", form2.close}})
    EXPECT_EQ(raised(place.model.onClick, [&] { press(place.window, place.name); }), 1) << place.name;
  EXPECT_FALSE(named(base, "New title"));
}

TEST_F(BaseViewsTest, NamesAreTypedInTheBoxesOfTheirColumns) {
  const auto expectBound = [this](QLineEdit* line, auto& model) {
    line->selectAll();
    QTest::keyClicks(line, "Typed");
    EXPECT_EQ(model.text(), u"Typed");
    model.setText(u"Set");
    turn();
    EXPECT_EQ(line->text(), "Set");
  };
  expectBound(named<QComboBox>(base, "Name of base genre")->lineEdit(), form3.Combo1);
  expectBound(named<QLineEdit>(base, "Name of base artist"), form3.Text2);
  expectBound(named<QLineEdit>(base, "Name of base album"), form3.Text3);
  expectBound(named<QComboBox>(fresh, "Name of new genre")->lineEdit(), form2.Combo1);
  expectBound(named<QLineEdit>(fresh, "Year of new album"), form2.Text5);
  expectBound(named<QLineEdit>(fresh, "Name of new title"), form2.Text4);
}

TEST_F(BaseViewsTest, ColumnsGoByTagOrByFolder) {
  auto* tree = named(fresh, "New music folders");
  auto* albums = named(fresh, "New album folders");
  EXPECT_FALSE(tree->isVisible() || albums->isVisible());
  press(fresh, "genres by FOLDER");
  press(fresh, "albums by FOLDER");
  EXPECT_TRUE(form2.genreByFolder.chosen() && form2.albumByFolder.chosen());
  form2.List1.setVisible(false);
  form2.Dir1.setVisible(true);
  form2.Drive1.setVisible(true);
  form2.Drive1.setRows({{u"/", 0}, {u"/mnt/music", 0}});
  form2.List3.setVisible(false);
  form2.List8.setVisible(true);
  turn();
  EXPECT_TRUE(tree->isVisible() && albums->isVisible());
  EXPECT_FALSE(named(fresh, "New genres")->isVisible());
  auto* drive = named<QComboBox>(fresh, "Drive");
  ASSERT_TRUE(drive->isVisible());
  drive->setFocus();
  EXPECT_EQ(keyed(form2.Drive1.onChange, drive, Qt::Key_Down), 1);
  EXPECT_EQ(form2.Drive1.text(), form2.Drive1.rows()[static_cast<std::size_t>(drive->currentIndex())].text);
}

TEST_F(BaseViewsTest, HeadingsCountWhatIsListedAndSelected) {
  auto* count = named<QLabel>(base, "Number of genres");
  form3.List1.setSelected(1, true);
  turn();
  EXPECT_EQ(count->text(), "3 genres, 1 selected");
  form3.List1.fill({u"Pop"});
  turn();
  EXPECT_EQ(count->text(), "1 genre");
  form3.List1.Clear();
  turn();
  EXPECT_EQ(count->text(), "");
  form2.List1.fill({u"-<< Every Autor >>-", u"-<< Without Genree >>-", u"Rock", u"Pop"});
  turn();
  EXPECT_EQ(named<QLabel>(fresh, "Number of genres")->text(), "2 genres") << "rows for a group are no genres";
}

TEST_F(BaseViewsTest, TheKeyboardReachesEachColumnAndItsCommands) {
  ListView* genres = list(base, "Base genres");
  auto* artists = named<ListView>(base, "Base artists");
  QTest::keyClick(genres, Qt::Key_Right);
  EXPECT_TRUE(artists->hasFocus());
  QTest::keyClick(artists, Qt::Key_Left);
  EXPECT_TRUE(genres->hasFocus());
  QTest::keyClick(genres, Qt::Key_Tab);
  EXPECT_TRUE(artists->hasFocus());

  EXPECT_EQ(keyed(form3.artists.del.onClick, artists, Qt::Key_Delete), 1);
  const auto controlShift = Qt::ControlModifier | Qt::ShiftModifier;
  EXPECT_EQ(keyed(form3.artists.newFolder.onClick, artists, Qt::Key_N, controlShift), 1);
  auto* name = named<QLineEdit>(base, "Name of base artist");
  QTest::keyClick(artists, Qt::Key_F2);
  ASSERT_TRUE(name->hasFocus());
  EXPECT_EQ(keyed(form3.artists.ren.onClick, name, Qt::Key_Return), 1);
  QTest::keyClick(name, Qt::Key_Escape);
  EXPECT_TRUE(artists->hasFocus());

  ListView* titles = list(base, "Base titles");
  EXPECT_EQ(keyed(form3.List8.onDoubleClick, titles, Qt::Key_Return), 1);
}

TEST_F(BaseViewsTest, TheKeyboardMovesAndTakesBack) {
  front(fresh);
  ListView* albums = list(fresh, "New albums");
  EXPECT_EQ(keyed(form2.moveAlbum.onClick, albums, Qt::Key_Return, Qt::ControlModifier), 1);
  EXPECT_EQ(keyed(form2.undoLastOperation.onClick, albums, Qt::Key_Z, Qt::ControlModifier), 1);
  QTest::keyClick(albums, Qt::Key_Right);
  EXPECT_TRUE(named(fresh, "New titles")->hasFocus()) << "past the column that is hidden";
}

TEST_F(BaseViewsTest, MenuAndButtonsGoAndComeBack) {
  auto* bar = base->findChild<QMenuBar*>();
  ASSERT_TRUE(bar && bar->isVisible());
  form3.menuAndButtons.setVisible(false);
  turn();
  for (const char* name : {"Del genre", "MOVE genre", "Select Years"})
    EXPECT_EQ(named(base, name) && named(base, name)->isVisible(), false) << name;
  EXPECT_FALSE(bar->isVisible());
  EXPECT_TRUE(named(base, "Name of base genre")->isVisible());
  ListView* genres = list(base, "Base genres");
  EXPECT_EQ(keyed(form3.showMenuAndButtons.onClick, genres, Qt::Key_M, Qt::ControlModifier), 1);
  EXPECT_EQ(keyed(form3.showNewMusic.onClick, genres, Qt::Key_N, Qt::ControlModifier), 1)
      << "the keys of the menu stay";
  const auto entries = genres->actions();
  EXPECT_TRUE(std::ranges::any_of(entries, [](QAction* each) { return each->text().contains("menu"); }));
}

TEST_F(BaseViewsTest, YearsAreChosenInAFrameOverTheWindow) {
  form3.years.List9.fill({u"<<Show All Years>>", u"2026", u"2025"});
  auto* years = named<ListView>(base, "Years");
  EXPECT_FALSE(years->isVisible());
  form3.years.frame.setVisible(true);
  turn();
  ASSERT_TRUE(years->isVisible());
  EXPECT_EQ(keyed(form3.years.ok.onClick, years, Qt::Key_Return), 1);
  EXPECT_EQ(keyed(form3.years.cancel.onClick, years, Qt::Key_Escape), 1);
  EXPECT_TRUE(years->isVisible()) << "the program says when it closes";
  EXPECT_EQ(raised(form3.years.cancel.onClick, [&] { years->window()->close(); }), 1) << "a click elsewhere";
  form3.years.frame.setVisible(false);
  turn();
  EXPECT_FALSE(years->isVisible());
  form3.years.frame.setVisible(true);
  turn();
  EXPECT_TRUE(years->isVisible());
}

TEST_F(BaseViewsTest, ColoursOfTheProgramCanBeReadOnAnyGround) {
  const ui::Colour warning{255, 50, 0};
  for (const QColor& ground : {QColor(0xf4f5f7), QColor(0x2d3136)})
    EXPECT_GE(contrast(inkFor(warning, ground, {}), ground), 4.5);
  auto* years = named<QAbstractButton>(base, "Select Years");
  const QColor plain = years->palette().color(QPalette::Button);
  form3.selectYears.setColour(ui::Colour{200, 150, 1});
  turn();
  EXPECT_EQ(years->palette().color(QPalette::Button), QColor(200, 150, 1));
  EXPECT_GE(contrast(years->palette().color(QPalette::ButtonText), QColor(200, 150, 1)), 4.5);
  form3.selectYears.setColour(ui::Colour{0xE0, 0xE0, 0xE0});
  turn();
  EXPECT_EQ(years->palette().color(QPalette::Button), plain) << "grey is the plain look in dark themes too";
}

/// Where the splitters stand.
struct SplittersTest : BaseViewsTest {
  QList<int> widths(QWidget* in) {
    for (auto* splitter : in->findChildren<QSplitter*>())
      if (splitter->isVisible()) return splitter->sizes();
    return {};
  }
  void settle() {
    for (int settled = 0; settled < 4; ++settled) turn();
  }
  void place(const std::vector<int>& widthsInTwips) {
    int left = 0;
    for (std::size_t i = 0; i < widthsInTwips.size(); ++i) {
      form3.splitters.setPlace(i, {left, widthsInTwips[i]});
      left += widthsInTwips[i] + toTwips(1, base);
    }
    settle();
  }
};

TEST_F(SplittersTest, StoredPlacesComeBackAsTheyWere) {
  const int pixel = toTwips(1, base);
  place({200 * pixel, 300 * pixel, 350 * pixel, 427 * pixel});
  EXPECT_THAT(widths(base), ElementsAre(200, 300, 350, 427));
  EXPECT_EQ(form3.splitters.place(0), (ui::ListPlace{0, 200 * pixel}));
  EXPECT_EQ(form3.splitters.place(3), (ui::ListPlace{853 * pixel, 427 * pixel}));
  EXPECT_EQ(widths(fresh), widths(base)) << "the columns of the new music stand beneath";
}

TEST_F(SplittersTest, ColumnsKeepTheirSharesWhenTheWindowChanges) {
  const int pixel = toTwips(1, base);
  place({200 * pixel, 300 * pixel, 350 * pixel, 427 * pixel});
  base->resize(643, 366);
  settle();
  EXPECT_THAT(widths(base), ElementsAre(100, 151, 175, 214));
  EXPECT_EQ(form3.splitters.place(1).width, 151 * pixel);
  EXPECT_EQ(widths(fresh).front(), 200) << "in the width that it has";
  base->resize(1280, 366);
  settle();
  EXPECT_EQ(widths(base).front(), 200) << "and nothing is lost on the way";
}

TEST_F(SplittersTest, NoColumnIsMadeNarrowerThanItsLeast) {
  auto* splitter = base->findChild<QSplitter*>();
  QSplitterHandle* handle = splitter->handle(1);
  QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(0, 20));
  QMouseEvent move(QEvent::MouseMove, QPointF(-800, 20), handle->mapToGlobal(QPointF(-800, 20)),
                   Qt::LeftButton, Qt::LeftButton, {});
  QApplication::sendEvent(handle, &move);
  QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(0, 20));
  settle();
  EXPECT_EQ(form3.splitters.place(0).width, 690);
  EXPECT_EQ(widths(fresh).front(), toPixels(690, base));
}

}  // namespace
}  // namespace velmora::qt
