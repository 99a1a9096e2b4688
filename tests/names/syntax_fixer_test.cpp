#include "names/syntax_fixer.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace velmora::names {
namespace {

struct SyntaxFixerTest : testing::Test {
  SyntaxFixerTest() {
    options_.fix2.setChecked(true);
    options_.fixo2.setChosen(true);
    options_.fix3.setChecked(true);
    options_.fixo6.setChosen(true);
  }
  std::string fixed(TextView name) const { return core::toBytes(fixer_.fixedName(name)); }

  core::TrackTable table_;
  ui::Dialog2 options_;
  ui::Form1 form1_;
  SyntaxFixer fixer_{table_, options_, form1_};
};

TEST_F(SyntaxFixerTest, ModesFollowTheOptions) {
  EXPECT_EQ(fixer_.Filautora(), Capitals::FirstUpperOfWord);
  EXPECT_EQ(fixer_.Filpesme(), Capitals::OnlyFirstUpper);
  options_.fixo1.setChosen(true);
  options_.fixo4.setChosen(true);
  EXPECT_EQ(fixer_.Filautora(), Capitals::EveryUpper);
  EXPECT_EQ(fixer_.Filpesme(), Capitals::EveryUpper);
  options_.fixo3.setChosen(true);
  options_.fixo5.setChosen(true);
  EXPECT_EQ(fixer_.Filautora(), Capitals::OnlyFirstUpper);
  EXPECT_EQ(fixer_.Filpesme(), Capitals::FirstUpperOfWord);
  options_.fix2.setChecked(false);
  options_.fix3.setChecked(false);
  EXPECT_EQ(fixer_.Filautora(), Capitals::Keep);
  EXPECT_EQ(fixer_.Filpesme(), Capitals::Keep);
}

TEST_F(SyntaxFixerTest, TheFirstDashDividesPartsAndEachGetsItsOwnMode) {
  const std::pair<TextView, std::string> cases[] = {
      {u"the ARVOLAS - harbour LIGHTS", "The Arvolas - Harbour lights"},
      {u"  harbour LIGHTS ", "Harbour lights"},  // all title
      {u"KO-RA - Song", "Ko - Ra - song"},
      {u"a-b", "A - B"},
      // An empty part takes the dash with it.
      {u" - Song", "Song"},
      {u"-Song", "Song"},
      {u"Title -", "Title"},
      {u"-", " - "}};
  for (const auto& [name, expected] : cases) EXPECT_EQ(fixed(name), expected);
}

TEST_F(SyntaxFixerTest, TheOptionsReachTheRules) {
  options_.fix13.setChecked(true);
  options_.fix14.setChecked(true);
  options_.fix15.setChecked(true);
  EXPECT_EQ(fixed(u"dj nemo - song(dj foo feat. bar)"), "DJ Nemo - Song ( DJ foo feat. bar )");
}

TEST_F(SyntaxFixerTest, TextBoxesOfThePartsAreFixedInTheArtistListViewOnly) {
  form1_.Text1.setText(u"a - b");
  form1_.Text8.setText(u"the arvolas");
  form1_.Text5.setText(u"harbour_lights");
  fixer_.fixTextBox();
  EXPECT_EQ(form1_.Text1.text(), u"A - B");
  EXPECT_EQ(form1_.Text8.text(), u"the arvolas");
  table_.vrsta = core::Review::ArtistList;
  fixer_.fixTextBox();
  EXPECT_EQ(form1_.Text8.text(), u"The Arvolas");
  EXPECT_EQ(form1_.Text5.text(), u"Harbour lights");
}

}  // namespace
}  // namespace velmora::names
