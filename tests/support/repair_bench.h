#pragma once

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <vector>

#include "tests/support/headless_velmora.h"
#include "tests/support/list_reader.h"
#include "tests/support/mp3_maker.h"

namespace velmora::test {

/// The Processing Window with a few songs in its list, and the words to say what happens to them. Names are
/// those of the files, without folder and extension.
class RepairHouse {
 public:
  /// A song for `add`; it has those tags that are given.
  struct Song {
    Text name;
    SongTags first = {};   ///< for the ID3v1 tag; without title and artist there is none
    SongTags second = {};  ///< for the ID3v2 tag
  };

  /// Writes the songs and adds their folder to the list.
  void add(const std::vector<Song>& songs);
  /// Selects these songs in the file list, as a user would.
  void select(const std::vector<Text>& names);
  void selectAll();
  /// Clicks a button that must be enabled.
  void click(ui::Button& button);
  /// The same with all files selected.
  void clickForAll(ui::Button& button);
  void undo() { click(tools().undoLastOperation); }
  /// Undoes all there is, without a look at what comes of it.
  void undoAll();
  /// No command is left open.
  void expectAtRest();

  /// Names of the files in the folder, sorted.
  Names names() const;
  /// The same as the table tells it.
  Names listed();
  Text pathOf(TextView name) const { return program.folder.path(u"music/in/" + Text(name) + u".mp3"); }
  /// Row of a file; fails the test when it is not in the list.
  int rowOf(TextView name);
  /// Tags as a program that never saw the file before reads them: artist, title, album, year, track.
  std::string first(TextView name);
  std::string second(TextView name);
  std::string tagsOf(TextView name) { return first(name) + " / " + second(name); }
  /// Kinds of the journal's records, oldest first.
  Names kinds() const;

  ui::Form1& form1() { return program.form1(); }
  ui::RepairTools& tools() { return form1().repair; }

  HeadlessVelmora program;
};

/// The same as the ground of a test.
class RepairBench : public testing::Test, protected RepairHouse {};

}  // namespace velmora::test
