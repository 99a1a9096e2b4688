// The program is killed at random moments of its commands, and started again on what that left behind.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "core/text.h"
#include "tests/support/base_house.h"
#include "tests/support/repair_bench.h"

namespace velmora {
namespace {

using std::chrono::microseconds;
using std::chrono::steady_clock;

/// VELMORA_KILLS asks for more kills of each command than the usual few.
int kills(int usual) {
  const char* asked = std::getenv("VELMORA_KILLS");
  return asked ? std::atoi(asked) : usual;
}

using Places = test::BaseHouse::Places;

/// One run of the program with songs that can be told apart by their audio.
class Victim : public test::RepairHouse {
 public:
  void start() {
    for (int number = 0; number < 8; ++number) {
      const std::string digits = std::to_string(100 + number);
      const test::SongTags tags = {.title = u"song " + core::fromBytes(digits), .artist = u"arvola"};
      const Bytes second =
          number % 3 == 0 ? test::Id3v2Maker().values(tags).padding(20).plainBytes() : Bytes();
      const Bytes first = number % 4 == 0 ? test::id3v1Tag(tags) : Bytes();
      // A tag that is made begins on the last byte of the music.
      program.song(u"in/arvola - song " + core::fromBytes(digits) + u".mp3",
                   second + music_ + digits + "." + first);
    }
    program.startWithMusic();
    form1().tags.writeID3v1.setChecked(true);
    form1().tags.writeID3v2.setChecked(true);
    placesBefore = places();
    tagsBefore = tags();
  }
  void startAgain() {
    program.startInProcessingWindow();
    EXPECT_TRUE(form1().visible());
    EXPECT_TRUE(form1().enabled());
  }
  void fixSyntax() {
    selectAll();
    tools().fixSyntax.click();
  }
  void growTags() {
    selectAll();
    tools().fnToId3.click();
  }
  void bothCommands() {
    growTags();
    fixSyntax();
  }
  void deleteAll() {
    selectAll();
    form1().List4.onKey({ui::Key::Delete, true});
  }

  /// Names of the songs on the disk and in the trash by their numbers, less the copies that a kill left
  /// behind.
  Places places() {
    Places found;
    for (const TextView folder : {u"music/in", u"trash/files"})
      if (program.folder.exists(folder)) addPlaces(program.folder.path(folder), found);
    return found;
  }
  /// The texts of all tags as another program would read them, by the numbers of the songs.
  std::map<Bytes, std::string> tags() {
    std::map<Bytes, std::string> tags;
    for (const auto& [number, names] : places()) tags[number] = tagsOf(core::fromBytes(*names.begin()));
    return tags;
  }
  /// Another file under each name of before that no song bears now.
  void putStrangers() {
    for (const auto& [number, names] : placesBefore) {
      const Text name = u"music/in/" + core::fromBytes(*names.begin()) + u".mp3";
      if (program.folder.exists(name)) continue;
      program.folder.write(name, stranger_);
      strangers_.push_back(name);
    }
  }
  void expectStrangersAlone() {
    for (const Text& name : strangers_) EXPECT_EQ(program.folder.read(name), stranger_);
  }
  void expectAllListed() {
    test::Names names;
    for (const auto& [number, where] : places()) names.push_back(*where.begin());
    std::ranges::sort(names);
    EXPECT_EQ(listed(), names);
  }

  Places placesBefore;
  std::map<Bytes, std::string> tagsBefore;

 private:
  void addPlaces(const Text& folder, Places& found) {
    for (const auto& entry : program.files.list(folder).entries) {
      if (!entry.name.ends_with(u".mp3") || entry.name.ends_with(u".mp3.mp3")) continue;
      const std::string name =
          (folder.ends_with(u"/in") ? "" : "trash/") + core::toBytes(core::dropRight(entry.name, 4));
      const Bytes bytes = program.files.readAll(folder + u'/' + entry.name);
      if (bytes == stranger_) continue;
      const std::size_t at = bytes.find(music_);
      EXPECT_NE(at, Bytes::npos) << "a song without its music: " << name;
      if (at == Bytes::npos) continue;
      auto& names = found[bytes.substr(at + music_.size(), 3)];
      EXPECT_TRUE(names.empty()) << *names.begin() << " is also there as " << name;
      names.insert(name);
    }
  }

  const Bytes music_ = test::mpegFrames(600) + "the end of song ";
  const Bytes stranger_ = test::mpegFrames(2) + test::id3v1Tag({.title = u"better"});
  std::vector<Text> strangers_;
};

/// New music on another volume than the base.
class BaseVictim : public test::BaseHouse {
 public:
  BaseVictim() : BaseHouse(true) { songFrames = 200; }
  void start() {
    program.dialogs.otherwise = [](platform::Buttons) { return platform::Answer::Ok; };
    BaseHouse::start();
    placesBefore = places();
  }
  void startAgain() {
    program.start();
    EXPECT_TRUE(form3().visible());
    form3().showNewMusic.click();
    expectAtRest();
  }
  void moveGenres() {
    form2().List1.select({2, 3}, 3);
    pressInNewMusic(form2().moveGenre);
  }
  /// From the name that the genre bears now, which may be that of a holding folder.
  void respellGenre() {
    for (const TextView name : {u"Pop", u"POP733727sdfs535"}) click(form3().List1, name);
    form3().Combo1.setText(u"POP");
    pressInBase(form3().genres.ren);
  }
  void mergeArtists() {
    click(form3().List1, u"Pop");
    form3().List2.select({0, form3().List2.ListCount() - 1}, 0);
    form3().Text2.setText(u"Lumo");
    pressInBase(form3().artists.ren);
  }

  Places placesBefore;
};

/// Runs a command of the program in a process of its own and kills that `delay` after its beginning; without
/// a delay it may come to its end. Returns whether it was cut short.
template <typename Program>
bool runAndKill(Program& victim, void (Program::*command)(), std::optional<microseconds> delay) {
  int ready[2];
  EXPECT_EQ(::pipe(ready), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    [[maybe_unused]] const ssize_t told = ::write(ready[1], "x", 1);
    (victim.*command)();
    ::_exit(0);
  }
  char byte = 0;
  EXPECT_EQ(::read(ready[0], &byte, 1), 1);
  if (delay) {
    std::this_thread::sleep_for(*delay);
    ::kill(child, SIGKILL);
  }
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
  for (const int end : ready) ::close(end);
  return WIFSIGNALED(status);
}

template <typename Program>
struct Torment : testing::Test {
  using Step = void (Program::*)();

  /// Kills the command again and again; `check` sees the program started afresh after each.
  void torment(Step before, Step command, int usualKills, const std::function<void(Program&)>& check) {
    const auto [operations, lifetime] = rehearse(before, command);
    std::mt19937 random(7);
    int cutShort = 0;
    for (int i = 0; i < kills(usualKills) && !HasFailure(); ++i) {
      Program victim;
      prepare(victim, before);
      const Places atStart = victim.places();
      // Just ahead of an operation, all over the command, or at any time, when one may be under way.
      const unsigned operation =
          static_cast<unsigned>(i) * operations / static_cast<unsigned>(kills(usualKills));
      const microseconds delay(random() % static_cast<unsigned>(lifetime.count()));
      SCOPED_TRACE("kill " + std::to_string(i) + " at operation " + std::to_string(operation) + " or after " +
                   std::to_string(delay.count()) + " us");
      watch(victim, i % 2 == 0 ? std::optional(operation) : std::nullopt);
      cutShort += runAndKill(victim, command, i % 2 == 0 ? std::nullopt : std::optional(delay));
      victim.program.faults.onOperation = nullptr;
      if (powerCut) cutJournal(victim);
      expectWhole(victim.places(), atStart);
      victim.program.forget();
      victim.startAgain();
      check(victim);
    }
    this->RecordProperty("cut short", cutShort);
  }

  Places after_;  // of the command
  bool powerCut = false;

 private:
  /// What the command makes of the places, how many operations that takes, and how long.
  std::pair<unsigned, microseconds> rehearse(Step before, Step command) {
    Program victim;
    prepare(victim, before);
    const int first = victim.program.faults.operations();
    const auto began = steady_clock::now();
    (victim.*command)();
    const auto length = std::chrono::duration_cast<microseconds>(steady_clock::now() - began);
    after_ = victim.places();
    return {static_cast<unsigned>(victim.program.faults.operations() - first), length};
  }
  /// Kills ahead of an operation, if one is given, and notes how much of the journal a power cut would leave.
  static void watch(Program& victim, std::optional<unsigned> operation) {
    test::FaultFiles& faults = victim.program.faults;
    faults.onOperation = [&victim, &faults, operation, count = 0u]() mutable {
      if (operation && count++ == *operation) ::raise(SIGKILL);
      const std::string& line = faults.log.back();
      if (!line.starts_with("file flush") || !line.ends_with("UndoData.txt")) return;
      const auto bytes = victim.program.folder.read(u"program/UndoData.txt").size();
      victim.program.folder.write(u"synced", std::to_string(bytes));
    };
    victim.program.folder.write(u"synced", "");
  }
  /// The power was cut as well: what was not brought to the disk is gone.
  static void cutJournal(Program& victim) {
    const Bytes synced = victim.program.folder.read(u"synced");
    const Text path = victim.program.folder.path(u"program/UndoData.txt");
    if (!synced.empty() && victim.program.files.fileExists(path))
      victim.program.files.open(path, platform::OpenMode::ReadWrite)->cutTo(std::stoul(synced));
  }
  static void prepare(Program& victim, Step before) {
    victim.start();
    if (before) (victim.*before)();
  }
  /// Each file lies at its old place, its new one, or on the way in a holding folder.
  void expectWhole(const Places& left, const Places& atStart) const {
    for (const auto& [content, from] : atStart) {
      ASSERT_TRUE(left.contains(content)) << "lost: " << *from.begin();
      for (const std::string& place : left.at(content))
        EXPECT_TRUE(from.contains(place) || after_.at(content).contains(place) ||
                    place.find("733727sdfs535") != std::string::npos)
            << *from.begin() << " is now " << place;
    }
  }
};

using Kill = Torment<Victim>;
using BaseKill = Torment<BaseVictim>;

/// How many songs are not as before: one that was just being changed may have changed without a record.
template <typename Values>
int differences(const Values& before, const Values& now) {
  int count = 0;
  for (const auto& [song, value] : before) count += now.at(song) != value;
  return count;
}

TEST_F(Kill, FixSyntaxLosesNoSongAndIsTakenBack) {
  torment(&Victim::growTags, &Victim::fixSyntax, 10, [](Victim& victim) {
    victim.undoAll();
    EXPECT_LE(differences(victim.placesBefore, victim.places()), 1);
    EXPECT_LE(differences(victim.tagsBefore, victim.tags()), 1);
  });
}

TEST_F(Kill, TagsThatGrowAFileLeaveTheOldSongOrTheNewOne) {
  torment(nullptr, &Victim::growTags, 10, [](Victim& victim) {
    victim.undoAll();
    EXPECT_EQ(victim.places(), victim.placesBefore);
    EXPECT_LE(differences(victim.tagsBefore, victim.tags()), 1);
  });
}

TEST_F(Kill, UndoIsBroughtToItsEndByTheNextOne) {
  torment(&Victim::bothCommands, &Victim::undoAll, 10, [](Victim& victim) {
    victim.undoAll();
    EXPECT_EQ(victim.places(), victim.placesBefore);
    EXPECT_EQ(victim.tags(), victim.tagsBefore);
    victim.expectAllListed();
  });
}

TEST_F(Kill, ADeleteLeavesEachSongInTheListOrInTheTrashWithItsRecord) {
  torment(nullptr, &Victim::deleteAll, 8, [](Victim& victim) {
    victim.undoAll();
    EXPECT_EQ(victim.places(), victim.placesBefore);
    victim.expectAllListed();
  });
}

TEST_F(Kill, StrangersUnderOldNamesAreLeftAloneAndTheSongsAreFound) {
  torment(&Victim::growTags, &Victim::fixSyntax, 8, [](Victim& victim) {
    victim.putStrangers();
    victim.program.dialogs.otherwise = [](platform::Buttons buttons) {
      return buttons == platform::Buttons::AbortRetryIgnore ? platform::Answer::Ignore : platform::Answer::Ok;
    };
    victim.undoAll();
    victim.expectStrangersAlone();
    victim.expectAllListed();
    EXPECT_LE(differences(victim.tagsBefore, victim.tags()), 1);
  });
}

TEST_F(Kill, APowerCutTakesSongsNowhereTheyWereNotSent) {
  powerCut = true;
  torment(nullptr, &Victim::fixSyntax, 6, [this](Victim& victim) {
    const Places left = victim.places();
    victim.undoAll();
    for (const auto& [song, names] : victim.places())
      EXPECT_TRUE(names == left.at(song) || names == victim.placesBefore.at(song)) << *names.begin();
  });
  torment(nullptr, &Victim::deleteAll, 6, [](Victim& victim) {
    victim.undoAll();
    // A song whose record is lost lies in the trash with its info file, where the desktop shows it.
    for (const auto& [song, names] : victim.places())
      EXPECT_TRUE(names == victim.placesBefore.at(song) ||
                  victim.program.folder.exists(u"trash/info/" + core::fromBytes(names.begin()->substr(6)) +
                                               u".mp3.trashinfo"));
  });
}

/// All is as before, save a file that was just on its way.
void expectBack(BaseVictim& victim) {
  EXPECT_LE(differences(victim.placesBefore, victim.places()), 1);
  std::set<Text> listed;
  const core::TrackTable& table = victim.program.table();
  for (int row = 1; row <= table.brojfajlova(); ++row)
    EXPECT_TRUE(listed.insert(table.path(row)).second)
        << "twice in the list: " << core::toBytes(table.path(row));
  EXPECT_EQ(listed.size(), 10);
}

TEST_F(BaseKill, AMoveAcrossVolumesLosesNoSongAndIsTakenBack) {
  torment(nullptr, &BaseVictim::moveGenres, 6, [](BaseVictim& victim) {
    victim.undoAll();
    expectBack(victim);
  });
}

TEST_F(BaseKill, APowerCutInAMoveAcrossVolumesCostsNoRecordOfAFileThatWent) {
  powerCut = true;
  torment(nullptr, &BaseVictim::moveGenres, 6, [](BaseVictim& victim) {
    victim.undoAll();
    expectBack(victim);
  });
}

TEST_F(BaseKill, UndoOfAMoveIsBroughtToItsEndByTheNextOne) {
  torment(&BaseVictim::moveGenres, &BaseVictim::undoAll, 6, [](BaseVictim& victim) {
    victim.undoAll();
    expectBack(victim);
  });
}

TEST_F(BaseKill, ARenameOfCapitalsIsBroughtToItsEndFromTheHoldingFolder) {
  torment(nullptr, &BaseVictim::respellGenre, 6, [this](BaseVictim& victim) {
    victim.respellGenre();
    EXPECT_TRUE(victim.places() == after_);
  });
}

TEST_F(BaseKill, AMergeOfArtistsIsBroughtToItsEndByTheNextOne) {
  torment(nullptr, &BaseVictim::mergeArtists, 6, [this](BaseVictim& victim) {
    victim.mergeArtists();
    EXPECT_TRUE(victim.places() == after_);
  });
}

}  // namespace
}  // namespace velmora
