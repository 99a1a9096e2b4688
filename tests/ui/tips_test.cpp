#include "ui/tips.h"

#include <gtest/gtest.h>

#include "system/posix_files.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/temp_folder.h"

namespace velmora::ui {
namespace {

struct TipsTest : testing::Test {
  test::TempFolder folder;
  system::PosixFiles files;
  core::Settings settings{files, folder.path(u"Settings.ini")};
  test::ScriptedDesktop desktop;
  FrmTip window;
  Tips tips{settings, files, desktop, window};

  void loadTips(BytesView content) { tips.load(folder.write(u"TIPOFDAY.TXT", content)); }
  const Text& shown() const { return window.tip.text(); }
};

TEST_F(TipsTest, FirstTipIsTheOneThatChanceNamesAndNextGoesRound) {
  desktop.nextRandom = 0.99;
  loadTips("\"one\"\r\n\"two, with a comma\"\r\n\"three\"\r\n");
  EXPECT_EQ(shown(), u"three");
  tips.next();
  EXPECT_EQ(shown(), u"one");
  tips.next();
  EXPECT_EQ(shown(), u"two, with a comma");
}

TEST_F(TipsTest, LinesWithoutQuotesAreTipsAsTheUserTypedThem) {
  loadTips("\xEF\xBB\xBFUse Add, then F12\n\n  second  \n");
  EXPECT_EQ(shown(), u"Use Add, then F12");
  tips.next();
  EXPECT_EQ(shown(), u"second");
  tips.next();
  EXPECT_EQ(shown(), u"Use Add, then F12");
}

TEST_F(TipsTest, MissingOrEmptyFileIsToldInTheWindow) {
  const Text told =
      u"That the TIPOFDAY.TXT file was not found? \r\nCreate a text file named TIPOFDAY.TXT using NotePad "
      u"with "
      u"1 tip per line. Then place it in the same directory as the application. ";
  tips.load(folder.path(u"TIPOFDAY.TXT"));
  EXPECT_EQ(shown(), told);
  tips.next();
  EXPECT_EQ(shown(), told);
  loadTips("\r\n");
  EXPECT_EQ(shown(), told);
}

TEST_F(TipsTest, ShownAtStartupUnlessTheUserSaidNo) {
  EXPECT_TRUE(showsTipsAtStartup(settings));
  window.showAtStartup.onClick = [&] { tips.showAtStartupClicked(); };
  loadTips("\"x\"\r\n");
  EXPECT_TRUE(window.showAtStartup.checked());
  EXPECT_EQ(settings.get(u"showtipsasstartup"), u"") << "loading is not the user's word";
  window.showAtStartup.click();
  EXPECT_EQ(settings.get(u"showtipsasstartup"), u"False");
  EXPECT_FALSE(showsTipsAtStartup(settings));
  window.showAtStartup.click();
  EXPECT_EQ(settings.get(u"showtipsasstartup"), u"True");
}

}  // namespace
}  // namespace velmora::ui
