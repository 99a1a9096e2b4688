#include "names/grammar.h"

#include <gtest/gtest.h>

namespace velmora::names {
namespace {

struct GrammarTest : testing::Test {
  core::TrackTable table;

  /// Parts of a row as "artist|title".
  Text parts(TextView fileName, TextView crtapos) {
    table.appendPath(u"/music/" + Text(fileName));
    const int row = table.rows();
    table.track(row).crtapos = crtapos;
    PevacIPesma(table, row);
    return table.track(row).pevac.text() + u"|" + table.track(row).pesma.text();
  }
};

TEST_F(GrammarTest, PartsAreCutAtTheDashAndNotTrimmed) {
  EXPECT_EQ(parts(u"Arvola - Harbour.mp3", u" 8"), u"Arvola | Harbour");
  EXPECT_EQ(parts(u"Arvola - Harbour.mp3", u"8"), u"Arvola | Harbour") << "with or without the leading blank";
  EXPECT_EQ(parts(u"Arvola -.mp3", u" 8"), u"Arvola |");
  EXPECT_EQ(parts(u"-Song.mp3", u" 1"), u"|Song");
  EXPECT_EQ(parts(u"Harbour.mp3", u" 0"), u"|Harbour");
  EXPECT_EQ(parts(u"Harbour.mp3", u""), u"|Harbour");
}

TEST_F(GrammarTest, ADashPositionThatFitsNoNameDoesNoHarm) {
  EXPECT_EQ(parts(u"Song.mp3", u" 99"), u"Song|");
  EXPECT_EQ(parts(u"Song.mp3", u"-3"), u"|Song");
  EXPECT_EQ(parts(u".mp3", u" 1"), u"|");
  PevacIPesma(table, 77);
  EXPECT_EQ(ImeFajla(table, 77), u"");
  EXPECT_EQ(ImeFajla(table, 0), u"");
}

TEST(ComparisonKey, KeepsLettersAToZUnlessTooFewAreLeft) {
  EXPECT_EQ(SamoSlova(u"A.r-v 0O"), u"ARVO");
  EXPECT_EQ(SamoSlova(u"Ma\u0161a 2"), u"MAA") << "letters beyond Z do not count";
  EXPECT_EQ(SamoSlova(u"ab 99"), u"ab 99");
  EXPECT_EQ(SamoSlova(u"1999 - 12"), u"1999 - 12");
}

TEST(CleanName, PutsABlankForEachCharacterThatNoFileNameHolds) {
  EXPECT_EQ(OcistiIme(u"a?b"), u"a b");
  EXPECT_EQ(OcistiIme(u"a\\"), u"a ");
  EXPECT_EQ(OcistiIme(u"/\\:*?><|\"x"), u"         x");
}

TEST(DashAfterRename, IsPassedOverInsideTheOldArtist) {
  EXPECT_EQ(dashAfterRename(u"Ko-Ra - Thunder", u"KO-RA "), 7);
  EXPECT_EQ(dashAfterRename(u"Ko-Ra - Thunder", u"Other "), 3);
  EXPECT_EQ(dashAfterRename(u"Ko-Ra - Thunder", u""), 3);
  EXPECT_EQ(dashAfterRename(u"Arvola", u"Arvola"), 0);
  EXPECT_EQ(dashAfterRename(u"A-b", u"A-"), 2) << "the search begins on the artist's last character";
}

TEST(RemovedNumber, IsTheFirstRunOfExactlyThatManyDigits) {
  struct Case {
    TextView name;
    int digits;
    TextView number, left;
  };
  for (const Case& c :
       {Case{u"Song 123 45", 2, u"45", u"Song 123 "}, Case{u"Song 1999", 4, u"1999", u"Song "},
        Case{u"Song 19995", 4, u"", u"Song 19995"}, Case{u"07 Song 08", 2, u"07", u" Song 08"},
        Case{u"7", 1, u"7", u""}, Case{u"Song 1", 2, u"", u"Song 1"}, Case{u"", 2, u"", u""}}) {
    const RemovedNumber removed = SkiniBroj(c.name, c.digits);
    EXPECT_EQ(removed.digits, c.number);
    EXPECT_EQ(removed.name, c.left);
  }
}

TEST(RemovedNumber, TakesTheWordTrackAlongWhereOneSeparatorStandsBetween) {
  EXPECT_EQ(SkiniBroj(u"Track 07 Song", 2).name, u"  Song");
  EXPECT_EQ(SkiniBroj(u"track_07 Track trackless", 2).name, u"_ Track less") << "in the first spelling alone";
  EXPECT_EQ(SkiniBroj(u"Track - 07 Song", 2).name, u"Track -  Song");
  EXPECT_EQ(SkiniBroj(u"Track 7 Song", 1).name, u"Track  Song") << "with two digits only";
  EXPECT_EQ(SkiniBroj(u"123 Track 07", 2).name, u"123 Track ")
      << "it comes back behind a run that does not fit";
  EXPECT_EQ(SkiniBroj(u"Track 123", 2).name, u"Track 123");
}

}  // namespace
}  // namespace velmora::names
