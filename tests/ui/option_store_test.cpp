#include "ui/option_store.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "system/posix_files.h"
#include "tests/support/temp_folder.h"

namespace velmora::ui {
namespace {

struct OptionStoreTest : testing::Test {
  test::TempFolder folder;
  system::PosixFiles files;
  core::Settings settings{files, folder.path(u"Settings.ini")};
  Windows windows;
  OptionStore store{settings, windows};
};

TEST_F(OptionStoreTest, DesignStateStandsUntilSomethingIsStored) {
  const std::vector<Text> atDesign = {u"mp3", u"mp2", u"mp1", u"wma", u"wav", u"ogg"};
  for (std::size_t i = 0; i < windows.form5.extensions.size(); ++i) {
    EXPECT_EQ(windows.form5.extensions[i].check.checked(), i < atDesign.size());
    EXPECT_EQ(windows.form5.extensions[i].text.text(), i < atDesign.size() ? atDesign[i] : Text());
  }
  EXPECT_TRUE(windows.form5.refreshOldMusicList.checked() && windows.dialog2.fix2.checked());
  EXPECT_TRUE(windows.dialog2.fixo2.chosen() && windows.form6.fixo7.chosen());
  EXPECT_FALSE(windows.form6.fix7.checked());
  EXPECT_TRUE(windows.form7.similarFilename.chosen());
  EXPECT_FALSE(settings.exists());
}

TEST_F(OptionStoreTest, WhatWasStoredComesBack) {
  Form5& form5 = windows.form5;
  form5.extensions[1].check.setChecked(false);
  form5.extensions[11].check.setChecked(true);
  form5.extensions[11].text.setText(u"xm ");
  form5.refreshOldMusicList.setChecked(false);
  store.saveForm5();
  windows.form6.fix16.setChecked(true);
  windows.form6.fix4.setChecked(false);
  windows.form6.fixo8.setChosen(true);
  store.saveForm6();
  windows.dialog2.fix13.setChecked(true);
  windows.dialog2.fixo3.setChosen(true);
  windows.dialog2.fixo4.setChosen(true);
  store.saveDialog2();
  const std::pair<TextView, TextView> stored[] = {{u"ex1a", u" 1mp3"}, {u"ex2", u" 0mp2"},
                                                  {u"ex7", u" 0"},     {u"ex13", u" 1xm "},
                                                  {u"fix16", u"True"}, {u"fix4", u"False"}};
  for (const auto& [key, value] : stored) EXPECT_EQ(settings.get(key), value) << core::toBytes(key);

  Windows fresh;
  OptionStore reader(settings, fresh);
  reader.loadForm5();
  reader.loadForm6();
  reader.loadDialog2();
  EXPECT_FALSE(fresh.form5.extensions[1].check.checked());
  EXPECT_EQ(fresh.form5.extensions[11].text.text(), u"xm ");
  EXPECT_FALSE(fresh.form5.refreshOldMusicList.checked());
  EXPECT_TRUE(fresh.form6.fix16.checked() && fresh.form6.fix5.checked());
  EXPECT_FALSE(fresh.form6.fix4.checked());
  EXPECT_TRUE(fresh.form6.fixo8.chosen() && !fresh.form6.fixo7.chosen());
  EXPECT_TRUE(fresh.dialog2.fix13.checked());
  EXPECT_TRUE(fresh.dialog2.fixo3.chosen() && fresh.dialog2.fixo4.chosen());
}

TEST_F(OptionStoreTest, LoadingForgetsWhatWasChangedAndNotStored) {
  settings.set(u"ex3", u" 0mod");
  settings.set(u"ex4", u"?");
  settings.set(u"fix14", u" 0");
  for (auto& extension : windows.form5.extensions) {
    extension.check.setChecked(true);
    extension.text.setText(u"zzz");
  }
  windows.dialog2.fix15.setChecked(false);
  store.loadForm5();
  store.loadDialog2();
  EXPECT_EQ(windows.form5.extensions[2].text.text(), u"mod");
  EXPECT_FALSE(windows.form5.extensions[2].check.checked());
  EXPECT_EQ(windows.form5.extensions[3].text.text(), u"wma") << "an unusable value counts as none";
  EXPECT_EQ(windows.form5.extensions[8].text.text(), u"");
  EXPECT_FALSE(windows.form5.extensions[8].check.checked());
  EXPECT_TRUE(windows.dialog2.fix15.checked());
  EXPECT_FALSE(windows.dialog2.fix14.checked()) << "a number is understood";
}

TEST_F(OptionStoreTest, RuleOfTheDuplicateSearchIsWhichOfTwoKeysIsTrue) {
  struct Case {
    TextView dupli, duplk;
    OptionButton Form7::*chosen;
  };
  for (const Case& c :
       {Case{u"", u"", &Form7::similarFilename}, Case{u"True", u"", &Form7::similarFilename},
        Case{u"True", u"False", &Form7::similarFilename}, Case{u"False", u"True", &Form7::completeTheSame},
        Case{u"False", u"False", &Form7::differentFilename}}) {
    settings.set(u"dupli", c.dupli);
    settings.set(u"duplk", c.duplk);
    store.loadForm7();
    EXPECT_TRUE((windows.form7.*c.chosen).chosen());
  }
}

TEST_F(OptionStoreTest, DifferentFilenameForcesTheSizeTickAndLeavesTheStoredOneAlone) {
  Form7& form7 = windows.form7;
  store.saveForm7();
  EXPECT_EQ(settings.get(u"samefs"), u"False");
  form7.differentFilename.onClick = [&] { store.ruleOfForm7Chosen(); };
  form7.similarFilename.onClick = [&] { store.ruleOfForm7Chosen(); };
  form7.differentFilename.click();
  EXPECT_TRUE(form7.sameFilesize.checked());
  EXPECT_FALSE(form7.sameFilesize.enabled());
  store.saveForm7();
  EXPECT_EQ(settings.get(u"samefs"), u"False");
  form7.similarFilename.click();
  EXPECT_FALSE(form7.sameFilesize.checked());
  EXPECT_TRUE(form7.sameFilesize.enabled());
}

}  // namespace
}  // namespace velmora::ui
