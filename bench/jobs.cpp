#include "bench/jobs.h"

#include <array>

#include "bench/base_jobs.h"
#include "bench/list_jobs.h"
#include "bench/new_music_jobs.h"
#include "bench/repair_jobs.h"

namespace velmora::bench {
namespace {

constexpr int shortList = 20000;  // rows that a click is to be quick with

// Each undo brings the music back to where the next job wants it, so that one copy serves a whole round; the
// yardsticks use it up.
constexpr std::array allJobs = {
    Job{"floor", "list the tree, read 4 KiB and 128 bytes of each file", floorOfList, Music::New},
    Job{"empty", "start with nothing on the list", emptyProgram, Music::New},
    Job{"tags", "read both tags of all rows", readTags, Music::New, "floor", 2.0, 2.2},
    Job{"add", "Add, refresh option off", add, Music::New, "floor", 2.0, 2.2},
    Job{"add+base", "Add, refresh option on: tags read, base listed", addWithBase, Music::New, "floor", 4.0,
        2.2},
    Job{"load", "start with the list and base that Add left", load, Music::New, "add+base", 0.5, 2.2},
    Job{"scan", "Scan ID3 Of Every New Music Files", scanTags, Music::Ready},
    Job{"show new", "the New Music Window comes up", showNewMusic, Music::Ready, nullptr, 0, 0, 50,
        shortList},
    Job{"every autor", "a click on it", clickEveryAutor, Music::Ready, nullptr, 0, 0, 50, shortList},
    Job{"without genree", "a click on it", clickWithoutGenree, Music::Ready, nullptr, 0, 0, 50, shortList},
    Job{"genre", "the slowest click on a genre", clickSlowestGenre, Music::Ready, nullptr, 0, 0, 50,
        shortList},
    Job{"artist", "a click on an artist with a tenth of all songs, and on all his songs", clickBusyArtist,
        Music::Ready, nullptr, 0, 0, 50, shortList},
    Job{"show base", "the Music Base Window comes up", showBase, Music::Base},
    Job{"genres floor", "lists the base", floorOfGenreList, Music::Base},
    Job{"base genres", "the genres listed", listGenres, Music::Base, "genres floor", 2.0},
    Job{"genre floor", "lists a genre, its first artist and his albums", floorOfGenres, Music::Base},
    Job{"base genre", "a click on each genre", clickGenres, Music::Base, "genre floor", 2.0},
    Job{"artist floor", "lists an artist and his albums", floorOfArtists, Music::Base},
    Job{"base artist", "a click on each artist", clickArtists, Music::Base, "artist floor", 2.0},
    Job{"album floor", "lists an album", floorOfAlbums, Music::Base},
    Job{"base album", "a click on each album", clickAlbums, Music::Base, "album floor", 2.0},
    Job{"years floor", "lists all genres and all artists", floorOfYears, Music::Base},
    Job{"years", "another year for the filter", filterYears, Music::Base, "years floor", 2.0},
    Job{"find", "the path of each file into a file", floorOfRefresh, Music::Base},
    Job{"refresh", "the list of the base made anew", refreshBase, Music::Base, "find", 2.0},
    Job{"fix", "Fix Syntax that renames every row", fixSyntax, Music::Repair, "fix floor", 3.0, 2.3},
    Job{"undo fix", "Undo last operation, after it", undoLast, Music::Left, "fix", 1.5, 2.3},
    Job{"fn-->id3", "FN-->ID3 on tags with room", namesToTags, Music::Left, "tags floor", 3.0, 2.3},
    Job{"undo fn-->id3", "Undo last operation, after it", undoLast, Music::Left, "fn-->id3", 1.5, 2.3},
    Job{"delete", "Delete of every row", deleteAll, Music::Left, "delete floor", 4.0, 2.3},
    Job{"undo delete", "Undo last operation, after it", undoLast, Music::Left, "delete", 1.5, 2.3},
    Job{"tags floor", "the system calls that FN-->ID3 cannot do without", floorOfTags, Music::Left},
    Job{"fix floor", "the system calls that Fix Syntax cannot do without", floorOfFix, Music::Left},
    Job{"delete floor", "the system calls that Delete cannot do without", floorOfDelete, Music::Left},
    Job{"move", "MOVE of all genres", moveGenres, Music::Filed, "move floor", 4.0, 2.3},
    Job{"undo move", "Undo Last Operation, after it", undoMove, Music::Left, "move", 1.5, 2.3},
    Job{"move floor", "the system calls that MOVE cannot do without", floorOfMove, Music::Left},
    Job{"last marker", "the last undo marker, in a journal of 1,000,000 records", lastMarker, Music::Left,
        nullptr, 0, 0, 5.0},
};

}  // namespace

std::span<const Job> jobs() {
  return allJobs;
}

const Job* findJob(const std::string& name) {
  for (const Job& job : allJobs) {
    if (name == job.name) return &job;
  }
  return nullptr;
}

}  // namespace velmora::bench
