#include <gtest/gtest.h>

#include "platform/trace.h"
#include "tests/support/headless_velmora.h"
#include "tests/support/mp3_maker.h"

namespace velmora::app {
namespace {

struct WiringTest : testing::Test {
  test::HeadlessVelmora program;

  void addSongs() {
    for (const TextView name : {u"in/ABBA - Waterloo.mp3", u"in/Beatles - Help.mp3"})
      program.song(name, test::mpegFrames() + test::id3v1Tag({.title = u"Old", .artist = u"Old Artist"}));
    program.song(u"in/notes.txt");
    program.startWithMusic();
    ASSERT_EQ(program.table().brojfajlova(), 2);
  }
};

TEST_F(WiringTest, OptionsAreStoredByOkAndPutBackByCancel) {
  program.startInProcessingWindow();
  ui::Form5& form5 = program.windows().form5;
  program.desktop.then([&] {
    EXPECT_FALSE(program.form1().enabled());
    form5.extensions[0].check.click();
    form5.ok.click();
  });
  program.form1().options.click();
  EXPECT_EQ(program.settings.get(u"ex1a"), u" 0mp3");
  EXPECT_FALSE(form5.visible());
  EXPECT_TRUE(program.form1().enabled());

  for (const bool byCancel : {true, false}) {
    program.desktop.then([&] {
      form5.extensions[0].check.click();
      form5.extensions[7].text.setText(u"flac");
      byCancel ? form5.cancel.click() : form5.closeRequest();
    });
    program.form1().options.click();
    EXPECT_FALSE(form5.extensions[0].check.checked());
    EXPECT_EQ(form5.extensions[7].text.text(), u"");
    EXPECT_EQ(program.settings.get(u"ex9"), u" 0");
  }
}

TEST_F(WiringTest, EveryOptionWindowOpensFromItsButton) {
  program.startInProcessingWindow();
  ui::Windows& w = program.windows();
  struct Case {
    ui::Button& opens;
    ui::Window& window;
    ui::Button& closes;
    TextView storedKey;
  };
  for (const Case& c : {Case{w.form1.fixOptions, w.dialog2, w.dialog2.ok, u"fix14"},
                        Case{w.form1.checkFixOptions, w.form6, w.form6.ok, u"fixo7"},
                        Case{w.form1.duplicateOptions, w.form7, w.form7.ok, u"duplk"},
                        Case{w.form1.about, w.frmAbout, w.frmAbout.ok, {}}}) {
    program.desktop.then([&] {
      EXPECT_TRUE(c.window.visible());
      c.closes.click();
    });
    c.opens.click();
    EXPECT_FALSE(c.window.visible());
    if (!c.storedKey.empty()) {
      EXPECT_NE(program.settings.get(c.storedKey), u"");
    }
  }
  EXPECT_EQ(w.frmAbout.programFolder.text(), program.programFolder());
}

TEST_F(WiringTest, ClearBaseListDeletesItsFileAtOnce) {
  program.folder.write(u"program/Data/bazaniz.txt", "\"/base/x.mp3\"\r\n");
  program.startInProcessingWindow();
  program.desktop.then([&] {
    program.windows().form5.clearBaseList.click();
    EXPECT_FALSE(program.folder.exists(u"program/Data/bazaniz.txt"));
    program.windows().form5.cancel.click();
  });
  program.form1().options.click();
}

TEST_F(WiringTest, CommandsAreOfferedWhenTheyCanAct) {
  program.startInProcessingWindow();
  ui::Form1& form1 = program.form1();
  EXPECT_FALSE(form1.newList.enabled());
  EXPECT_FALSE(form1.otherFiles.enabled());
  EXPECT_FALSE(form1.update.enabled());
  EXPECT_FALSE(form1.add.enabled());
  EXPECT_TRUE(form1.addFolder.enabled());
  form1.folderTree.click(program.musicFolder());
  EXPECT_TRUE(form1.add.enabled());
  addSongs();
  EXPECT_TRUE(form1.newList.enabled());
  EXPECT_TRUE(form1.otherFiles.enabled());
  EXPECT_TRUE(form1.assort.enabled());
  EXPECT_FALSE(form1.update.enabled());
  form1.List4.select({0}, 0);
  EXPECT_FALSE(form1.update.enabled()) << "neither tag is to be written";
  form1.tags.writeID3v2.click();
  EXPECT_TRUE(form1.update.enabled());

  program.folder.write(u"program/UndoData.txt", "\"st1\"\r\n");
  program.faults.onOperation = [&] {
    if (program.faults.log.back().starts_with("append")) program.faults.failAt(1);
  };
  program.dialogs.expectTitle(u"Clear List", platform::Answer::Ok);
  form1.newList.click();
  EXPECT_FALSE(form1.repair.undoLastOperation.enabled()) << "there is no journal any more";
}

TEST_F(WiringTest, ClickShowsTheRowAndUpdateWritesItsTags) {
  addSongs();
  ui::Form1& form1 = program.form1();
  const int abba = form1.List4.List(0).ends_with(u"Waterloo.mp3") ? 0 : 1;
  form1.List4.select({abba}, abba);
  EXPECT_EQ(form1.Text1.text(), u"ABBA - Waterloo");
  EXPECT_EQ(form1.tags.title.text(), u"Old");
  EXPECT_FALSE(form1.List3.visible()) << "nobody typed";
  form1.tags.title.setText(u"Waterloo");
  form1.tags.writeID3v1.setChecked(true);
  form1.update.click();
  EXPECT_NE(program.folder.read(u"music/in/ABBA - Waterloo.mp3").find("TAGWaterloo"), Bytes::npos);
  EXPECT_EQ(program.folder.read(u"program/UndoData.txt").substr(0, 7), "\"st1\"\r\n");
  program.restart();
  program.form1().List4.select({1 - abba}, 1 - abba);
  program.form1().List4.select({abba}, abba);
  EXPECT_EQ(program.form1().tags.title.text(), u"Waterloo") << "the stored columns follow the file";
}

TEST_F(WiringTest, TypingOffersArtists) {
  addSongs();
  ui::Form1& form1 = program.form1();
  form1.List4.select({0}, 0);
  form1.Text1.type(u"be", 2);
  ASSERT_EQ(form1.List3.ListCount(), 1);
  EXPECT_TRUE(form1.List3.visible());
  form1.List3.select({0}, 0);
  EXPECT_TRUE(form1.Text1.text().starts_with(u"Beatles - "));
}

TEST_F(WiringTest, OtherFilesOpenOverTheProcessingWindowAndHoldItWhileTheyWork) {
  addSongs();
  ui::Form8& form8 = program.windows().form8;
  program.desktop.then([&] {
    ASSERT_EQ(form8.list.ListCount(), 1);
    form8.list.select({0}, 0);
    form8.deleteFiles.click();
    EXPECT_FALSE(program.form1().enabled());
    EXPECT_TRUE(form8.visible());
  });
  std::function<void()> closeWhenDone = [&] {
    if (!program.folder.exists(u"music/in/notes.txt")) form8.close.click();
    if (form8.visible()) program.desktop.then(closeWhenDone);
  };
  program.desktop.then(closeWhenDone);
  program.form1().otherFiles.click();
  EXPECT_FALSE(form8.visible());
  EXPECT_TRUE(program.form1().enabled());
  EXPECT_FALSE(program.folder.exists(u"music/in/notes.txt"));
  EXPECT_FALSE(program.form1().otherFiles.enabled());
}

TEST_F(WiringTest, TraceTellsEachCommandAndWhatItKeptToItself) {
  struct Lines final : platform::Trace {
    void line(std::string_view text) noexcept override { all.emplace_back(text); }
    std::vector<std::string> all;
  } trace;
  addSongs();
  platform::setTrace(&trace);
  program.form1().List4.select({0, 1}, 0);
  program.form1().repair.fixSyntax.click();
  program.dialogs.expectTitle(u"Clear List", platform::Answer::Cancel);
  program.form1().newList.click();
  platform::setTrace(nullptr);
  std::erase_if(trace.all, [](const std::string& line) { return !line.starts_with("command"); });
  EXPECT_EQ(trace.all,
            (std::vector<std::string>{"command fixSyntax: rows 1-2 of 2", "command fixSyntax: done, 0 ms",
                                      "command newList: rows 1-2 of 2", "command newList: done, 0 ms"}));
}

TEST_F(WiringTest, SecondClickDuringACommandStartsNothing) {
  program.song(u"in/a - b.mp3");
  program.startInProcessingWindow();
  program.desktop.then([&] {
    program.form1().addFolder.click();
    program.form1().newList.click();
    program.form1().options.click();
  });
  program.addFolder(program.folder.path(u"music/in"));
  EXPECT_EQ(program.table().brojfajlova(), 1);
}

}  // namespace
}  // namespace velmora::app
