#include "core/settings.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/records.h"
#include "system/posix_files.h"
#include "tests/support/temp_folder.h"

namespace velmora::core {
namespace {

struct SettingsTest : testing::Test {
  void write(BytesView content) { folder.write(u"Settings.ini", content); }
  Bytes read() { return folder.read(u"Settings.ini"); }

  test::TempFolder folder;
  system::PosixFiles files;
  Settings settings{files, folder.path(u"Settings.ini")};
};

TEST_F(SettingsTest, AMissingFileGivesEmptyValuesAndIsMadeByTheFirstSet) {
  EXPECT_FALSE(settings.exists());
  EXPECT_EQ(settings.get(u"ghb"), u"");
  settings.setNumber(u"ghb", 12);
  EXPECT_TRUE(settings.exists());
  EXPECT_EQ(read(), "\"GHB   12\"\r\n");
  EXPECT_EQ(settings.get(u"ghb"), u" 12");
}

TEST_F(SettingsTest, AValueIsTakenAsItStands) {
  settings.set(u"novidir", u"  /home/me/a  b/\u0161 ");
  EXPECT_EQ(settings.get(u"NoviDir"), u"  /home/me/a  b/\u0161 ");
  settings.setBoolean(u"komanda", false);
  EXPECT_EQ(settings.get(u"komanda"), u"False");
  settings.set(u"novidir", u"");
  EXPECT_EQ(settings.get(u"novidir"), u"");
}

TEST_F(SettingsTest, KeysMatchByTheBeginningOfTheLine) {
  write("\"EX10   1wma\"\r\n\"EX1A   1mp3\"\r\n");
  EXPECT_EQ(settings.get(u"ex1a"), u" 1mp3");
  EXPECT_EQ(settings.get(u"ex10"), u" 1wma");
  EXPECT_EQ(settings.get(u"ex2"), u"");
  EXPECT_EQ(settings.get(u"ex1"), u"  1mp3") << "which is why no key may begin another";
  write("\"TON\"\r\n\"VRSTA \"\r\n");
  EXPECT_EQ(settings.get(u"ton") + settings.get(u"vrsta"), u"") << "shorter than their gap";
}

TEST_F(SettingsTest, TheLastLineOfAKeyWinsAndASetRewritesAllAndNoOther) {
  write("\"TON  1\"\r\n\r\nnot ours\r\n\"A  x\xE9\"\r\n\"TON  3\"\r\n");
  EXPECT_EQ(settings.get(u"ton"), u"3");
  settings.set(u"ton", u"4");
  settings.set(u"c", u"new");
  EXPECT_EQ(read(), "\"TON  4\"\r\n\r\n\"not ours\"\r\n\"A  x\xE9\"\r\n\"TON  4\"\r\n\"C  new\"\r\n");
}

TEST_F(SettingsTest, AReadOnlyFileStaysAndNoFailureShows) {
  settings.set(u"ton", u"1");
  ASSERT_EQ(::chmod(folder.native(u"Settings.ini").c_str(), 0444), 0);
  settings.set(u"ton", u"2");
  EXPECT_EQ(settings.get(u"ton"), u"1");
}

TEST_F(SettingsTest, AFileThatCannotBeReadIsMovedAside) {
  folder.write(u"Settings.ini/in its place", "a folder");
  EXPECT_EQ(settings.get(u"ghb"), u"");
  EXPECT_TRUE(settings.set(u"ghb", u" 1"));
  EXPECT_EQ(settings.get(u"ghb"), u" 1");
  EXPECT_EQ(folder.read(u"Settings.ini.kept/in its place"), "a folder");
}

TEST_F(SettingsTest, KeysThatAreStoredTogetherArriveAtTheEnd) {
  settings.set(u"a1", u"x");
  const Bytes before = read();
  {
    const Settings::Together outer(settings);
    const Settings::Together inner(settings);
    settings.set(u"a1", u"y");
    settings.set(u"b1", u"z");
    EXPECT_EQ(settings.get(u"a1"), u"y");
    EXPECT_EQ(read(), before);
  }
  EXPECT_EQ(read(), "\"A1  y\"\r\n\"B1  z\"\r\n");
}

// What is left of a settings file that was cut while it was written, and then used on.
TEST_F(SettingsTest, CutAnywhereItKeepsTheWholeLinesAndTakesNewOnes) {
  const Bytes whole = "\"GHB   1200\"\r\n\"NOVIDIR  /home/me/\xC5\xA1\"\r\n\"TON  7\"\r\n";
  for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
    write(BytesView(whole).substr(0, cut));
    for (const auto& [key, value] : {std::pair<TextView, TextView>{u"ghb", u" 1200"},
                                     {u"novidir", u"/home/me/\u0161"},
                                     {u"ton", u"7"}}) {
      const Text got = settings.get(key);
      EXPECT_TRUE(got.empty() || got == value) << "cut at " << cut;
    }
    settings.set(u"vrsta", u"3");
    settings.set(u"ton", u"8");
    ASSERT_EQ(settings.get(u"vrsta"), u"3") << "cut at " << cut;
    ASSERT_EQ(settings.get(u"ton"), u"8") << "cut at " << cut;
    const auto once = records::readAll(read());
    ASSERT_EQ(records::readAll(read()), once);
    for (const Element& line : once) ASSERT_TRUE(line.isText()) << "cut at " << cut;
  }
}

}  // namespace
}  // namespace velmora::core
