#include "newmusic/window_snapshot.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/state_fields.h"
#include "newmusic/click_hold.h"
#include "ui/list_state.h"
#include "ui/quiet_lists.h"

namespace velmora::newmusic {

namespace {

/// The sections, in their order. The first two count from -1 in the records' own numbering.
enum Section : std::size_t {
  AlbumsByTag,
  GenresByTag,
  SelectedForm1,                     // List1, List2 and List4 of the Processing Window: not put back
  SelectedBase = SelectedForm1 + 3,  // genres, artists, albums, titles
  SelectedNew = SelectedBase + 4,    // List1, List2, List3, List8, List4 of the New Music Window
  TopForm1 = SelectedNew + 5,        // List2 and List4
  TopNew = TopForm1 + 2,             // List1, List2, List3, List8
  TopBase = TopNew + 4,              // genres, artists, albums, titles
  TopTitle = TopBase + 4,            // List4 of the New Music Window
  TopArtistsOfForm1,                 // List1
  sectionCount
};
static_assert(sectionCount == 26);

constexpr int byTag = 1;         // of AlbumsByTag
constexpr int genresByTag = -2;  // of GenresByTag
constexpr std::size_t mostCharacters = 999;

std::array<ui::ListBox*, 3> listsOf(ui::Form1& form1) {
  return {&form1.List1, &form1.List2, &form1.List4};
}

std::array<ui::ListBox*, 4> listsOf(ui::Form3& form3) {
  return {&form3.List1, &form3.List2, &form3.List3, &form3.List8};
}

std::array<ui::ListBox*, 5> listsOf(ui::Form2& form2) {
  return {&form2.List1, &form2.List2, &form2.List3, &form2.List8, &form2.List4};
}

void restoreTop(ui::ListBox& list, const std::vector<int>& section) {
  if (!section.empty()) list.setTopIndex(section.front());
}

/// Empties sections until the whole can be carried by a record.
void shorten(std::vector<Text>& sections) {
  const auto length = [&sections] {
    std::size_t characters = 0;
    for (const Text& section : sections) characters += section.size();
    return characters;
  };
  const auto selected = sections.begin() + SelectedForm1;
  for (auto section = selected; section != selected + 3 && length() > mostCharacters; ++section)
    *section = u":";
  while (length() > mostCharacters)
    *std::max_element(selected, sections.begin() + TopForm1,
                      [](const Text& a, const Text& b) { return a.size() < b.size(); }) = u":";
}

}  // namespace

Text WindowSnapshot::windowStateSnapshot() {
  ui::Windows& windows = parts_.windows;
  ui::Form2& form2 = windows.form2;
  std::vector<Text> sections;
  sections.emplace_back(form2.albumByTag.chosen() ? u"1:" : u"0:");
  sections.emplace_back(form2.genreByTag.chosen() ? u"-2:" : u"0:");
  if (form2.genreByFolder.chosen()) parts_.settings.set(u"form2dir", form2.Dir1.path());
  for (const ui::ListBox* list : listsOf(windows.form1)) sections.push_back(base::selectedField(*list));
  for (const ui::ListBox* list : listsOf(windows.form3)) sections.push_back(base::selectedField(*list));
  for (const ui::ListBox* list : listsOf(form2)) sections.push_back(base::selectedField(*list));
  sections.push_back(base::topField(windows.form1.List2));
  sections.push_back(base::topField(windows.form1.List4));
  for (const ui::ListBox* list : {&form2.List1, &form2.List2, &form2.List3, &form2.List8})
    sections.push_back(base::topField(*list));
  for (const ui::ListBox* list : listsOf(windows.form3)) sections.push_back(base::topField(*list));
  sections.push_back(base::topField(form2.List4));
  sections.push_back(base::topField(windows.form1.List1));
  shorten(sections);
  Text snapshot;
  for (const Text& section : sections) snapshot += section;
  return snapshot;
}

void WindowSnapshot::listAnew() {
  const ui::QuietLists quietly(parts_.table);
  parts_.base.IzlistajBazu();
  parts_.lists.IzlistajVrste();
  const ui::Form2& form2 = parts_.windows.form2;
  if (form2.genreByFolder.chosen()) parts_.lists.showFolder(form2.Dir1.path());
}

void WindowSnapshot::restore(TextView snapshot) {
  const ui::QuietLists quietly(parts_.table);
  listAnew();
  const Sections sections = ui::readListState(snapshot, sectionCount);
  restoreOptions(sections);
  restoreBase(sections);
  restoreNewMusic(sections);
  restoreTops(sections);
}

void WindowSnapshot::restoreOptions(const Sections& sections) {
  ui::Form2& form2 = parts_.windows.form2;
  if (sections[AlbumsByTag] == std::vector{byTag}) form2.albumByTag.setChosen(true);
  if (sections[GenresByTag].empty() || sections[GenresByTag].front() == genresByTag) return;
  {
    const ClickHold hold(parts_.lists.held());
    form2.genreByFolder.setChosen(true);
  }
  parts_.lists.showFolder(parts_.settings.get(u"form2dir"));
}

/// Each column is filled by the selection before it. Titles are listed only where clicks are let through.
void WindowSnapshot::restoreBase(const Sections& sections) {
  ui::Form3& form3 = parts_.windows.form3;
  base::selectRows(form3.List1, sections[SelectedBase]);
  base::selectRows(form3.List2, sections[SelectedBase + 1]);
  base::selectRows(form3.List3, sections[SelectedBase + 2]);
  if (form3.List8.ListCount() == 0) {
    const ui::LoudLists loud(parts_.table);
    parts_.base.List3Click();
  }
  base::selectRows(form3.List8, sections[SelectedBase + 3]);
}

void WindowSnapshot::restoreNewMusic(const Sections& sections) {
  ui::Form2& form2 = parts_.windows.form2;
  NewMusicLists& lists = parts_.lists;
  {
    const ClickHold hold(lists.held());
    if (form2.genreByTag.chosen()) base::selectRows(form2.List1, sections[SelectedNew]);
  }
  if (form2.List2.ListCount() == 0 && form2.genreByTag.chosen()) lists.List1Click();
  {
    const ClickHold hold(lists.held());
    base::selectRows(form2.List2, sections[SelectedNew + 1]);
  }
  if (form2.List3.ListCount() == 0) lists.List2Click();
  base::selectRows(form2.List3, sections[SelectedNew + 2]);
  if (form2.albumByFolder.chosen()) base::selectRows(form2.List8, sections[SelectedNew + 3]);
  base::selectRows(form2.List4, sections[SelectedNew + 4]);
}

void WindowSnapshot::restoreTops(const Sections& sections) {
  ui::Windows& windows = parts_.windows;
  restoreTop(windows.form1.List2, sections[TopForm1]);
  restoreTop(windows.form1.List4, sections[TopForm1 + 1]);
  const auto newLists = listsOf(windows.form2);
  for (std::size_t i = 0; i < newLists.size() - 1; ++i) restoreTop(*newLists[i], sections[TopNew + i]);
  const auto baseLists = listsOf(windows.form3);
  for (std::size_t i = 0; i < baseLists.size(); ++i) restoreTop(*baseLists[i], sections[TopBase + i]);
  restoreTop(windows.form2.List4, sections[TopTitle]);
  if (windows.form1.List1.enabled()) restoreTop(windows.form1.List1, sections[TopArtistsOfForm1]);
}

}  // namespace velmora::newmusic
