#include "tests/support/base_house.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/text.h"
#include "tests/support/mp3_maker.h"

namespace velmora::test {

namespace fs = std::filesystem;

BaseHouse::BaseHouse(bool twoVolumes)
    : music_(twoVolumes && other_.available() ? other_.path(u"in") : program.folder.path(u"music/in")) {
  if (twoVolumes) program.faults.pretendVolume(music_);
}

void BaseHouse::addSongs(int songs) {
  constexpr int jazz = 8;
  constexpr int pop = 13;
  constexpr int none = 255;
  for (const char* name :
       {"a/kora - rain", "a/Kora - Rain", "a/lumo - dusk", "a/plain", "a/PLAIN ", "b/kora - rain",
        "b/lumo - dusk", "b/ - ", "b/arvola - \304\207uk", "b/.. - gate"}) {
    if (songs-- <= 0) break;
    const int number = songs_++;
    const SongTags tags = {.title = u"song",
                           .album = number % 3 == 0   ? Text()
                                    : number % 3 == 1 ? u"First"
                                                      : u"A: B?",
                           .year = number % 2 == 0 ? u"1998" : u""};
    const fs::path path = core::toBytes(music_) + '/' + name + ".mp3";
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << mpegFrames(songFrames) << "song " << number
                                          << id3v1Tag(tags, number % 4 == 0   ? none
                                                            : number % 4 == 1 ? jazz
                                                                              : pop);
  }
  form3().showProcessingWindow.click();
  program.form1().newList.click();
  program.addFolder(music_);
  program.form1().assort.click();
  pressInNewMusic(form2().scanTags);
}

void BaseHouse::start(int songs) {
  for (const char16_t* name : {u"Pop/Kora/First  1998/kora - rain.mp3", u"Pop/Kora/loose.mp3",
                               u"pop/kora/second/Kora - dusk.mp3", u"Jazz/Lumo/Night  2001/cover.jpg",
                               u"Jazz/Lumo/Night  2001/lumo - dusk.mp3", u"Pop/Lumo/First/x.mp3"})
    program.folder.write(u"base/" + Text(name), "in the base: " + core::toBytes(name));
  program.folder.mkdir(u"base/Empty/Artist/Album");
  program.settings.set(u"DirZaBazu", base());
  program.start();
  addSongs(songs);
}

void BaseHouse::click(ui::ListBox& list, TextView text) {
  for (int index = 0; index < list.ListCount(); ++index)
    if (list.List(index) == text) return list.select({index}, index);
}

void BaseHouse::pick(ui::ListBox& list, Dice& random) {
  if (list.ListCount() == 0) return;
  std::set<int> rows;
  for (int i = random(4) == 0 ? 2 : 1; i > 0; --i) rows.insert(random(list.ListCount()));
  list.select({rows.begin(), rows.end()}, *rows.rbegin());
}

void BaseHouse::pickAnything(Dice& random) {
  form3().onActivate();
  for (ui::ListBox* list : {&form3().List1, &form3().List2, &form3().List3, &form3().List8})
    if (random(4) > 0) pick(*list, random);
  form2().onActivate();
  const auto choose = [&](ui::OptionButton& tag, ui::OptionButton& folder) {
    if (random(10) == 0) (random(2) == 0 ? tag : folder).click();
  };
  choose(form2().genreByTag, form2().genreByFolder);
  choose(form2().albumByTag, form2().albumByFolder);
  if (form2().genreByFolder.chosen())
    form2().Dir1.click(music_ + random.oneOf(std::vector<Text>{u"", u"/a", u"/b"}));
  ui::ListBox& albums = form2().albumByTag.chosen() ? form2().List3 : form2().List8;
  for (ui::ListBox* list : {&form2().List1, &form2().List2, &albums, &form2().List4})
    if (random(4) > 0) pick(*list, random);
}

void BaseHouse::pressInBase(ui::Button& button) {
  form3().onActivate();
  button.click();
}

void BaseHouse::pressInNewMusic(ui::Button& button) {
  if (!form2().visible()) form3().showNewMusic.click();
  form2().onActivate();
  button.click();
}

void BaseHouse::moveNameOrUndo(Dice& random) {
  ui::Button* buttons[] = {&form2().moveGenre, &form2().moveArtist,        &form2().moveAlbum,
                           &form2().moveTitle, &form2().nameGenre,         &form2().nameArtist,
                           &form2().nameAlbum, &form2().undoLastOperation, &form2().undoLastOperation};
  const std::vector<Text> names = {u"Pop", u"pop", u"New", u"", u"..", u"A?B", u" x "};
  form2().Combo1.setText(random.oneOf(names));
  pressInNewMusic(*buttons[random(9)]);
}

void BaseHouse::changeBase(Dice& random) {
  const std::vector<Text> names = {u"Pop", u"POP",    u"Kora",    u"KORA", u"Lumo", u"First  1998",
                                   u"",    u"first ", u"A?B / c", u"..",   u"New"};
  const Text name = random.oneOf(names);
  const int column = random(4);
  ui::ColumnCommands* columns[] = {&form3().genres, &form3().artists, &form3().albums, &form3().titles};
  ui::ColumnCommands& commands = *columns[column];
  const int command = random(7);
  if (command < 3) {
    if (!commands.newFolder.visible() || !commands.newFolder.enabled()) return;
    program.dialogs.expectInput(u"New Folder Name:", u"Create New Folder", name);
    return pressInBase(commands.newFolder);
  }
  if (command == 3) return pressInBase(commands.del);
  form3().Combo1.setText(name);
  for (ui::TextBox* box : {&form3().Text2, &form3().Text3, &form3().Text4}) box->setText(name);
  pressInBase(commands.ren);
}

void BaseHouse::undoAll() {
  for (int undone = 0; form2().undoLastOperation.enabled() && undone < 10'000; ++undone)
    pressInNewMusic(form2().undoLastOperation);
}

BaseHouse::Places BaseHouse::places() const {
  Places places;
  const std::pair<std::string, Text> folders[] = {
      {"music/", music_}, {"base/", base()}, {"trash/", program.folder.path(u"trash/files")}};
  for (const auto& [name, folder] : folders) {
    const fs::path root = core::toBytes(folder);
    std::error_code missing;
    for (const auto& entry : fs::recursive_directory_iterator(root, missing)) {
      if (!entry.is_regular_file() || entry.path().extension() == ".part") continue;
      std::ifstream in(entry.path(), std::ios::binary);
      places[{std::istreambuf_iterator<char>(in), {}}].insert(name +
                                                              entry.path().lexically_relative(root).native());
    }
  }
  return places;
}

std::multiset<Bytes> BaseHouse::contents() const {
  std::multiset<Bytes> all;
  for (const auto& [content, where] : places())
    for (std::size_t i = 0; i < where.size(); ++i) all.insert(content);
  return all;
}

void BaseHouse::expectAtRest() {
  EXPECT_TRUE(form2().enabled() && form3().enabled());
  EXPECT_FALSE(program.windows().dialog1.visible());
  EXPECT_EQ(program.table().puniliste, 0);
}

}  // namespace velmora::test
