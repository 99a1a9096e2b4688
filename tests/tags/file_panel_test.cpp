#include "tags/file_panel.h"

#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

using test::Id3v2Maker;

const test::SongTags first{u"First", u"Artist 1", u"Album 1", u"1991", 1, {}};
const test::SongTags second{u"Second", u"Artist 2", u"Album 2", u"1992", 2, u"Rock"};

struct Panel : TagFixture {
  Panel() {
    // As the program wires it.
    form1.tags.viewID3v1.onClick = [this] { panel.showTags(); };
    form1.tags.viewID3v2.onClick = [this] { panel.showTags(); };
    neither = add(u"neither.mp3", audio);
    onlyFirst = add(u"first.mp3", audio + test::id3v1Tag(first, 17));
    onlySecond = add(u"second.mp3", Id3v2Maker().values(second).padding(50).bytes() + audio);
    both =
        add(u"both.mp3", Id3v2Maker().values(second).padding(50).bytes() + audio + test::id3v1Tag(first, 17));
    table.setBrojfajlova(table.rows());
  }
  int add(const Text& name, const Bytes& bytes) {
    table.appendPath(folder.write(name, bytes));
    table.resizeColumns();
    return table.rows();
  }
  void info(int row, InfoMode mode = InfoMode::Full) { panel.info(table.path(row), row, mode); }
  /// Which view is in use, and which is chosen: "1 2*".
  std::string views() const {
    std::string text;
    if (form1.tags.viewID3v1.enabled()) text += form1.tags.viewID3v1.chosen() ? "1*" : "1";
    if (form1.tags.viewID3v2.enabled()) text += form1.tags.viewID3v2.chosen() ? " 2*" : " 2";
    return text;
  }
  const Text& title() const { return form1.tags.title.text(); }
  Text boxes() const {
    const ui::TagPanel& tags = form1.tags;
    return title() + u'|' + tags.artist.text() + u'|' + tags.album.text() + u'|' + tags.year.text() + u'|' +
           tags.track.text() + u'|' + tags.genre.text();
  }
  /// Size, length, frequency, bit rate and mode of the audio.
  Text facts() const {
    return form1.fileSize.text() + u'|' + form1.fileLength.text() + u'|' + form1.frequency.text() + u'|' +
           form1.bitRate.text() + u'|' + form1.mode.text();
  }

  const Bytes audio = test::mpegFrames(40);
  TagCache cache{table, files};
  ui::Form1 form1;
  FilePanel panel{table, files, cache, form1};
  int neither, onlyFirst, onlySecond, both;
};

TEST_F(Panel, ShowsTheFactsOfAnMpegFile) {
  Bytes song(test::mpegHeader);
  song.resize(4'000'000, '\0');
  const int row = add(u"Long.MP3", song);
  info(row);
  EXPECT_EQ(table.currentRow, row);
  EXPECT_EQ(facts(), u" 3.81 MB|04:10 sec|44100 kHz|128 kbps|Stereo");
  EXPECT_EQ(form1.path.text(), table.path(row));
}

TEST_F(Panel, OtherFilesHaveTheLengthThatThePlayerKnows) {
  info(both);
  panel.durationOf = [this](const Text& path) { return path == table.path(5) ? 205.9 : 0; };
  const int row = add(u"Some song.ogg", "x");
  info(row);
  EXPECT_EQ(facts(), u" 0 MB|03:25 sec|||");
  EXPECT_EQ(form1.Text1.text(), u"Some song");
  EXPECT_EQ(title(), u"");
}

TEST_F(Panel, AFileThatCannotBeReadLeavesThePanelBlankAndTheColumnsAsTheyWere) {
  files.remove(table.path(both));
  for (const auto& [row, shown] : {std::pair{add(u"empty.mp3", ""), u" 0 MB||||"}, {both, u"||||"}}) {
    info(onlyFirst);
    info(row);
    EXPECT_EQ(facts(), shown);
    EXPECT_EQ(form1.path.text(), table.path(row));
    EXPECT_EQ(views(), "");
    EXPECT_EQ(title(), u"");
    EXPECT_TRUE(table.track(row).procitan.isNothing());
  }
}

TEST_F(Panel, ViewsFollowTheTagsAndTheChoice) {
  info(both);
  EXPECT_EQ(views(), "1 2*") << "with no choice before, ID3v2 wins";
  form1.tags.viewID3v1.click();
  EXPECT_EQ(title(), u"First");
  info(both);
  EXPECT_EQ(views(), "1* 2");
  info(onlySecond);
  EXPECT_EQ(views(), " 2*") << "the other tag is not there to be shown";
  info(onlyFirst);
  EXPECT_EQ(views(), "1*") << "ID3v2 was the choice, but blank boxes would tell that there is no tag";
  EXPECT_EQ(title(), u"First");
  info(both);
  EXPECT_EQ(views(), "1 2*") << "and it still is";
  info(neither);
  EXPECT_EQ(views(), "");
  info(both);
  EXPECT_EQ(views(), "1 2*");
}

TEST_F(Panel, TheBoxesShowTheChosenTagAsItsColumnsTell) {
  info(both);
  EXPECT_EQ(boxes(), u"Second|Artist 2|Album 2|1992|2|Rock");
  form1.tags.viewID3v1.click();
  EXPECT_EQ(boxes(), u"First|Artist 1|Album 1|1991| 1|Rock");
  EXPECT_FALSE(panel.changed().artist);
  form1.tags.title.setText(u"Typed");
  form1.tags.year.setText({});
  EXPECT_EQ(panel.changed().title, u"Typed");
  EXPECT_EQ(panel.changed().year, u"");
  EXPECT_FALSE(panel.changed().artist);
  info(neither);
  EXPECT_EQ(boxes(), u"|||||");
  EXPECT_FALSE(panel.changed().title);
  table.track(both).pesmaid3v1 = u"Changed";
  info(both);
  form1.tags.viewID3v1.click();
  EXPECT_EQ(title(), u"Changed") << "a row that was read is not read again";
}

TEST_F(Panel, TagsOnlyLeavesThePanelAlone) {
  info(onlyFirst);
  const std::string before = views();
  info(both, InfoMode::TagsOnly);
  EXPECT_EQ(views(), before);
  EXPECT_EQ(title(), u"First");
  EXPECT_EQ(form1.path.text(), table.path(onlyFirst));
  EXPECT_EQ(table.currentRow, both);
  EXPECT_EQ(table.track(both).pesmaid3v2.text(), u"Second");
}

TEST_F(Panel, WorkingRowsOnlyLeavesTheTailUnread) {
  table.setBrojfajlova(both - 1);
  info(both, InfoMode::WorkingRowsOnly);
  EXPECT_EQ(form1.bitRate.text(), u"128 kbps");
  EXPECT_EQ(views(), "");
  EXPECT_TRUE(table.track(both).procitan.isNothing());
  info(both - 1, InfoMode::WorkingRowsOnly);
  EXPECT_EQ(views(), " 2*");
  info(both);
  EXPECT_TRUE(table.track(both).procitan.isTrue());
}

TEST_F(Panel, NamesAndClearing) {
  table.setParts(both, u"Arvola ", u" Harbour");
  info(both);
  panel.showName(both);
  EXPECT_EQ(form1.Text1.text(), u"both");
  EXPECT_EQ(form1.Text8.text(), u"Arvola ");
  EXPECT_EQ(form1.Text5.text(), u" Harbour");
  panel.clear();
  EXPECT_EQ(facts() + form1.path.text(), u"||||");
  EXPECT_EQ(form1.Text1.text() + form1.Text8.text() + form1.Text5.text() + title(), u"");
  EXPECT_EQ(views(), "");
}

}  // namespace
}  // namespace velmora::tags
