#include "list/folder_scan.h"

#include <filesystem>
#include <sys/stat.h>

#include "core/text.h"
#include "tests/list/list_world.h"

namespace velmora::list {
namespace {

using test::Texts;
using Mode = FolderScan::Mode;

struct FolderScanTest : test::ListWorld {
  Texts music, other, inOrder;
  int leftOut = 0;

  void scan(Mode mode = Mode::NewMusic, TextView below = u"music") {
    music.clear();
    other.clear();
    FolderScan walk({table, files, desktop, progress, windows.form5}, mode);
    walk.onMusic = [this](FoundFile file) { music.push_back(std::move(file.path)); };
    walk.onOther = [this](FoundFile file) { other.push_back(std::move(file.path)); };
    walk.Pretrazi(folder.path(below));
    leftOut = walk.leftOut();
    inOrder = music;
    music = sorted(music);
    other = sorted(other);
  }
  void link(TextView name, TextView target) {
    std::filesystem::create_symlink(core::toBytes(folder.path(target)), core::toBytes(folder.path(name)));
  }
};

TEST_F(FolderScanTest, TheLastThreeCharactersTellMusicFromOtherFiles) {
  const Texts songs = sorted({folder.write(u"music/a.mp3", ""), folder.write(u"music/b.MP3", ""),
                              folder.write(u"music/xmp3", ""), folder.write(u"music/ogg", ""),
                              folder.write(u"music/c.wav", "")});
  const Texts others = sorted({folder.write(u"music/a.mpeg", ""), folder.write(u"music/b.jpg", ""),
                               folder.write(u"music/3", ""), folder.write(u"music/d.mp3.new", "")});
  scan();
  EXPECT_EQ(music, songs);
  EXPECT_EQ(other, others);
  EXPECT_EQ(windows.dialog1.text.text(), u"Found 5 music and 4 other files.");

  windows.form5.extensions[0].check.setChecked(false);
  windows.form5.extensions[6].check.setChecked(true);
  windows.form5.extensions[6].text.setText(u"jpg");
  scan();
  EXPECT_EQ(music,
            sorted({folder.path(u"music/b.jpg"), folder.path(u"music/c.wav"), folder.path(u"music/ogg")}));

  scan(Mode::BaseRefresh);
  EXPECT_EQ(music.size(), 9u) << "a refresh takes every file";
  EXPECT_EQ(windows.dialog1.text.text(), u"Refresh Music Base List (found 9 music files).");
}

TEST_F(FolderScanTest, FilesAndFoldersComeInNaturalOrder) {
  for (const TextView name : {u"music/10 x.mp3", u"music/2 x.mp3", u"music/02 y.mp3", u"music/B.mp3",
                              u"music/a.mp3", u"music/CD 10/a.mp3", u"music/cd 9/a.mp3", u"music/CD 2/a.mp3"})
    folder.write(name, "");
  scan();
  Texts expected;
  for (const TextView name : {u"music/2 x.mp3", u"music/02 y.mp3", u"music/10 x.mp3", u"music/a.mp3",
                              u"music/B.mp3", u"music/CD 2/a.mp3", u"music/cd 9/a.mp3", u"music/CD 10/a.mp3"})
    expected.push_back(folder.path(name));
  EXPECT_EQ(inOrder, expected);
}

TEST_F(FolderScanTest, CircularLinksEndAndLinkedFilesCount) {
  folder.write(u"music/sub/a.mp3", "");
  folder.write(u"elsewhere/b.mp3", "");
  link(u"music/sub/up", u"music");
  link(u"music/sub/self", u"music/sub/self");
  link(u"music/sub/out", u"elsewhere");
  link(u"music/sub/out2", u"elsewhere");
  link(u"music/c.mp3", u"music/sub/a.mp3");
  scan();
  EXPECT_EQ(music.size(), 3u) << "each real folder is walked once";
  EXPECT_EQ(inOrder[0], folder.path(u"music/c.mp3")) << "before the subfolders";
}

TEST_F(FolderScanTest, PipesAndDanglingLinksAreNoFiles) {
  folder.mkdir(u"music");
  ASSERT_EQ(::mkfifo(core::toBytes(folder.path(u"music/pipe.mp3")).c_str(), 0600), 0);
  link(u"music/gone.mp3", u"nowhere");
  scan();
  EXPECT_EQ(music, Texts{});
  EXPECT_EQ(other, Texts{});
  EXPECT_EQ(leftOut, 0);
}

TEST_F(FolderScanTest, NamesThatNoRecordCarriesAreLeftOutAndCounted) {
  folder.write(u"music/a\"b.mp3", "");
  folder.write(u"music/a\nb.txt", "");
  folder.write(u"music/in \"quotes\"/c.mp3", "");
  const Text odd = folder.write(u"music/\xDCE9.mp3", "");
  scan();
  EXPECT_EQ(music, Texts{odd}) << "bytes that are no text are carried";
  EXPECT_EQ(leftOut, 3) << "a folder counts once";
}

TEST_F(FolderScanTest, ASubfolderThatCannotBeReadLeavesTheRest) {
  folder.mkdir(u"music/gone");
  const Text song = folder.write(u"music/there/a.mp3", "");
  desktop.then([this] { std::filesystem::remove(core::toBytes(folder.path(u"music/gone"))); });
  scan();
  EXPECT_EQ(music, Texts{song});
  EXPECT_THROW(scan(Mode::NewMusic, u"nowhere"), platform::FileError);
}

TEST_F(FolderScanTest, ArtistFoldersAreThoseOfTheSecondLevel) {
  for (const TextView name : {u"base/Rock/Arvola/1999", u"base/Rock/KO-RA", u"base/Jazz/Arvola"})
    folder.mkdir(name);
  folder.write(u"base/Rock/file.mp3", "");
  folder.write(u"base/file.mp3", "");
  const FolderScan::Parts parts{table, files, desktop, progress, windows.form5};
  EXPECT_EQ(sorted(artistFolders(parts, folder.path(u"base"))), (Texts{u"Arvola", u"Arvola", u"KO-RA"}));
  EXPECT_EQ(artistFolders(parts, folder.path(u"nowhere")), Texts{});
}

}  // namespace
}  // namespace velmora::list
