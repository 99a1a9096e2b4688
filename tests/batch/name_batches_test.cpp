#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using test::Names;

struct NameBatches : test::RepairBench {};

TEST_F(NameBatches, FixSyntaxNormalisesEachSelectedName) {
  add({{u"the_arvolas-harbour (live )"}, {u"KO-RA%20- song"}, {u"left alone_"}});
  select({u"the_arvolas-harbour (live )", u"KO-RA%20- song"});
  click(tools().fixSyntax);
  EXPECT_EQ(names(), (Names{"Ko - Ra - Song", "The Arvolas - Harbour (Live)", "left alone_"}));
  EXPECT_EQ(listed(), names());
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "ren", "ren"}));
  EXPECT_EQ(program.table().track(rowOf(u"The Arvolas - Harbour (Live)")).pevac.text(), u"The Arvolas ");
  undo();
  EXPECT_EQ(names(), (Names{"KO-RA%20- song", "left alone_", "the_arvolas-harbour (live )"}));
  EXPECT_EQ(listed(), names());
  EXPECT_EQ(form1().List4.SelCount(), 2) << "the selection is as it was";
}

TEST_F(NameBatches, NothingSelectedDoesNothing) {
  add({{u"a_b"}});
  for (ui::Button* button : {&tools().fixSyntax, &tools().removeString, &tools().removeTrackNumber,
                             &tools().replaceArtistTitle, &tools().id3ToFn, &tools().fnToId3})
    EXPECT_FALSE(button->enabled());
  EXPECT_EQ(kinds(), Names{});
}

TEST_F(NameBatches, RemoveStringIsExactInCaseAndFixesWhatIsLeft) {
  add({{u"Arvola - Aa"}, {u"Abba - Song"}});
  selectAll();
  program.dialogs.expectInput(u"Input string to remove from selected files:", u"Remove String", u"a");
  click(tools().removeString);
  EXPECT_EQ(names(), (Names{"Abb - Song", "Arvol - A"}));
  program.dialogs.expectInput(u"Input string to remove from selected files:", u"Remove String", std::nullopt);
  clickForAll(tools().removeString);
  EXPECT_EQ(names(), (Names{"Abb - Song", "Arvol - A"}));
  undo();
  undo();
  EXPECT_EQ(names(), (Names{"Abba - Song", "Arvola - Aa"}));
}

TEST_F(NameBatches, NumbersOfTracksAndYearsAreRemoved) {
  add({{u"05 - Song"}, {u"3 Title 101"}, {u"Song 1999"}, {u"Track 07 Tune"}});
  clickForAll(tools().removeTrackNumber);
  EXPECT_EQ(names(), (Names{"3 Title", "Song", "Song 1999", "Tune"}));
  clickForAll(tools().removeYearNumber);
  EXPECT_EQ(names(), (Names{"3 Title", "Song", "Song ", "Tune"})) << "four digits";
}

TEST_F(NameBatches, RemovedNumbersGoIntoTheTagsWhereChosen) {
  add({{u"07 Arvola - Harbour",
        {.title = u"x", .artist = u"y", .album = u"First Album"},
        {.title = u"x", .artist = u"y", .album = u"An album whose name is longer than thirty"}},
       {u"08 Arvola - Bare"},
       {u"Ko - Ra - 09 Thunder", {.title = u"09 Thunder", .artist = u"Ko - Ra"}}});
  program.windows().dialog2.fix10.setChecked(true);
  form1().tags.writeID3v1.setChecked(true);
  form1().tags.writeID3v2.setChecked(true);
  clickForAll(tools().removeTrackNumber);
  EXPECT_EQ(names(), (Names{"Arvola - Bare", "Arvola - Harbour", "Ko - Ra - Thunder"}));
  EXPECT_EQ(first(u"Arvola - Harbour"), "Arvola|Harbour|First Album||7");
  EXPECT_EQ(second(u"Arvola - Harbour"), "Arvola|Harbour|An album whose name is longer than thirty||07");
  EXPECT_EQ(first(u"Arvola - Bare"), "none") << "no tag is made for a number";
  EXPECT_EQ(first(u"Ko - Ra - Thunder"), "Ko - Ra|Thunder|||9");
  undo();
  EXPECT_EQ(first(u"07 Arvola - Harbour"), "y|x|First Album||0");
  EXPECT_EQ(second(u"07 Arvola - Harbour"), "y|x|An album whose name is longer than thirty||");
}

TEST_F(NameBatches, ReplaceArtistTitleGivesEachTextTheModeOfItsPlace) {
  add({{u"arvola - harbour lights"}, {u"no dash"}});
  program.windows().dialog2.fixo1.setChosen(true);
  clickForAll(tools().replaceArtistTitle);
  EXPECT_EQ(names(), (Names{"HARBOUR LIGHTS - Arvola", "NO DASH -"}));
  clickForAll(tools().fixSyntax);
  EXPECT_EQ(names(), (Names{"HARBOUR LIGHTS - Arvola", "NO DASH"})) << "the dash with nothing behind it goes";
}

TEST_F(NameBatches, NamesFromTagsTakeTheTagInView) {
  add({{u"1", {.title = u"What?", .artist = u"A/B"}, {.title = u"Second", .artist = u"Tag"}},
       {u"2", {.title = u"Only", .artist = u"First"}},
       {u"3"}});
  select({u"1"});
  form1().tags.viewID3v1.setChosen(true);
  selectAll();
  form1().tags.viewID3v1.setChosen(true);
  click(tools().id3ToFn);
  EXPECT_EQ(names(), (Names{"3", "A B - What", "First - Only"}));
  undo();
  select({u"1"});
  form1().tags.viewID3v2.setChosen(true);
  click(tools().id3ToFn);
  EXPECT_EQ(names(), (Names{"2", "3", "Tag - Second"}));
}

TEST_F(NameBatches, ARowWithoutTheChosenTagDoesNotChangeTheChoiceForThoseBehindIt) {
  const auto tag = [](const Text& title) { return test::SongTags{.title = title, .artist = u"A"}; };
  add({{u"1", tag(u"1 1"), tag(u"2 1")}, {u"2", {}, tag(u"2 2")}, {u"3", tag(u"1 3"), tag(u"2 3")}});
  selectAll();
  form1().tags.viewID3v1.setChosen(true);
  click(tools().id3ToFn);
  EXPECT_EQ(names(), (Names{"A - 1 1", "A - 1 3", "A - 2 2"}));
}

TEST_F(NameBatches, RenameOfSeveralSetsTheBlanksAroundTheirDashes) {
  add({{u"A  -  B"}, {u"C-D"}, {u"no dash"}});
  clickForAll(tools().rename);
  EXPECT_EQ(names(), (Names{"A - B", "C - D", "no dash"}));
}

TEST_F(NameBatches, RenameFilesPutsOneArtistOnAllSelectedSongs) {
  add({{u"one - Harbour"}, {u"two - Lights"}});
  program.table().vrsta = core::Review::ArtistList;
  for (const TextView name : {u"one - Harbour", u"two - Lights"})
    form1().List2.AddItem(program.table().track(rowOf(name)).pesma.text(), rowOf(name));
  form1().List2.select({0, 1}, 1);
  form1().Text8.setText(u"Arvola");
  tools().renameFiles.setVisible(true);
  tools().renameFiles.setEnabled(true);
  click(tools().renameFiles);
  EXPECT_EQ(names(), (Names{"Arvola - Harbour", "Arvola - Lights"}));
}

TEST_F(NameBatches, StopEndsTheWalkAndKeepsWhatWasDone) {
  add({{u"a_1"}, {u"a_2"}, {u"a_3"}});
  selectAll();
  program.desktop.then([] {});  // the progress window comes up
  program.desktop.then([&] { program.windows().dialog1.stop.click(); });
  click(tools().fixSyntax);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "ren"}));
  undo();
  EXPECT_EQ(names(), (Names{"a_1", "a_2", "a_3"}));
}

TEST_F(NameBatches, AbortEndsTheWalkAndIgnoreGoesOn) {
  add({{u"ab_1"}, {u"ab_2"}, {u"ab_3"}});
  const auto loseNext = [&] {
    for (int row = 1; row <= 3; ++row)
      if (program.files.fileExists(program.table().path(row)))
        return program.files.remove(program.table().path(row));
  };
  loseNext();
  selectAll();
  program.dialogs.expectTitle(u"Rename", platform::Answer::Ignore);
  click(tools().fixSyntax);
  EXPECT_EQ(names().size(), 2U);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "ren", "ren"}));
  loseNext();
  program.windows().dialog2.fixo4.setChosen(true);
  selectAll();
  program.dialogs.expectTitle(u"Rename", platform::Answer::Ignore);
  program.dialogs.expectTitle(u"Rename", platform::Answer::Abort);
  click(tools().fixSyntax);
  EXPECT_EQ(kinds(), (Names{"st1", "bi1", "ren", "ren", "st1", "bi1"}));
}

}  // namespace
}  // namespace velmora
