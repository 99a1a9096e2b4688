// Whatever fails while a tag is written or removed, the song comes out whole, and nothing stays beside it.

#include <functional>

#include "platform/file_error.h"
#include "tags/id3v1.h"
#include "tags/id3v2.h"
#include "tags/tag_removal.h"
#include "tags/update_tags.h"
#include "tests/support/fault_files.h"
#include "tests/support/file_errors.h"
#include "tests/support/scripted_desktop.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

struct TagFaults : TagFixture {
  TagFaults() {
    dialogs.otherwise = [](platform::Buttons) { return platform::Answer::Ignore; };
  }
  using Job = std::function<void(platform::Files&, const Text& path)>;

  template <typename Tag>
  Job writing() {
    return [this](platform::Files& with, const Text& path) {
      Tag tag(with);
      tag.setMP3File(path);
      if constexpr (std::is_same_v<Tag, cMP3ID3v1>)
        tag.Title = u"Song";
      else
        tag.setTitle(u"Song");
      tag.Update(context());
    };
  }

  /// Runs the job with a fault at each of its operations in turn, until it runs through without one. The song
  /// must come out as it was, or as it is when nothing fails.
  void survivesFaults(const Bytes& before, const Job& job) {
    const Text path = folder.write(u"song.mp3", before);
    job(files, path);
    const Bytes after = folder.read(u"song.mp3");
    ASSERT_NE(before, after);
    for (int nth = 1;; ++nth) {
      SCOPED_TRACE(nth);
      folder.write(u"song.mp3", before);
      test::FaultFiles faults(files);
      faults.failAt(nth, platform::FileError::diskFull);
      faults.tearsWrites = true;
      test::errorNumber([&] { job(faults, path); });
      const Bytes now = folder.read(u"song.mp3");
      EXPECT_TRUE(now == before || now == after);
      // The removal of what is beside the song may be what fails.
      EXPECT_TRUE(files.list(folder.path()).entries.size() == 1 || faults.log.back().starts_with("remove"));
      if (!faults.hasFailed()) break;
    }
  }

  const Bytes audio = test::mpegFrames(100);
  const Bytes oldTag = test::Id3v2Maker().text("TIT2", u"Old").padding(500).plainBytes();
};

TEST_F(TagFaults, WritingAnID3v1Tag) {
  survivesFaults(audio, writing<cMP3ID3v1>());
  survivesFaults(audio + test::id3v1Tag({}), writing<cMP3ID3v1>());
}

TEST_F(TagFaults, WritingAnID3v2TagInPlaceAndByGrowth) {
  survivesFaults(oldTag + audio, writing<cMP3ID3v2>());
  survivesFaults(audio, writing<cMP3ID3v2>());
}

TEST_F(TagFaults, RemovingTags) {
  test::ScriptedDesktop desktop;
  platform::NoFileHolder player;
  ui::Label label;
  const auto removing = [&](bool (*remove)(const RemovalParts&, const Text&)) {
    return [&, remove](platform::Files& with, const Text& path) {
      BusyFile busyFile(with, desktop, label);
      remove({with, desktop, player, busyFile}, path);
    };
  };
  survivesFaults(test::Id3v2Maker().padding(500).bytes() + audio, removing(&SkiniID3v2));
  survivesFaults(audio + test::id3v1Tag({}), removing(&SkiniID3v1));
}

TEST_F(TagFaults, UpdateTagsKeepsTheFramesThatThePanelDoesNotShow) {
  const Bytes before = test::Id3v2Maker().text("TCOM", u"Composer").padding(500).plainBytes() + audio +
                       test::id3v1Tag({}, 5, u"kept");
  const Text path = folder.write(u"song.mp3", before);
  const core::Settings settings(files, folder.path(u"Settings.ini"));
  journal::UndoJournal journal(files, settings, folder.path(u"UndoData.txt"));
  for (int nth = 1;; ++nth) {
    SCOPED_TRACE(nth);
    folder.write(u"song.mp3", before);
    core::TrackTable rows;
    rows.appendPath(path);
    rows.resizeColumns();
    test::FaultFiles faults(files);
    test::ScriptedDesktop desktop;
    platform::NoFileHolder player;
    ui::Form1 form1;
    TagCache cache(rows, faults);
    FilePanel panel(rows, faults, cache, form1);
    BusyFile busyFile(faults, desktop, form1.statusLabel);
    TagWriter writer({rows, faults, desktop, player, journal, failures, busyFile, cache, panel, form1});
    panel.info(path, 1);
    form1.tags.title.setText(u"New");
    form1.tags.writeID3v1.setChecked(true);
    form1.tags.writeID3v2.setChecked(true);

    faults.failAt(nth);
    writer.UpdateTags();
    cMP3ID3v1 first(files);
    first.setMP3File(path);
    EXPECT_EQ(first.Comment, u"kept");
    cMP3ID3v2 second(files);
    second.setMP3File(path);
    EXPECT_EQ(second.Composer(), u"Composer");
    EXPECT_EQ(folder.read(u"song.mp3").size(), before.size());
    if (!faults.hasFailed()) {
      EXPECT_EQ(first.Title, u"New");
      EXPECT_EQ(second.Title(), u"New");
      break;
    }
  }
}

TEST_F(TagFaults, ADiskThatGetsFullLeavesTheSongWhole) {
  const Bytes large = test::mpegFrames(3000);
  const Text path = folder.write(u"song.mp3", large);
  const test::FileSizeLimit limit(1'000'000);
  writing<cMP3ID3v2>()(files, path);
  EXPECT_EQ(folder.read(u"song.mp3"), large);
  const Bytes nearTheEdge = large.substr(0, 1'000'000 - 50);
  folder.write(u"song.mp3", nearTheEdge);
  writing<cMP3ID3v1>()(files, path);
  EXPECT_EQ(folder.read(u"song.mp3"), nearTheEdge) << "no half tag";
  EXPECT_EQ(files.list(folder.path()).entries.size(), 1U);
}

}  // namespace
}  // namespace velmora::tags
