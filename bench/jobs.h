#pragma once

#include <span>
#include <string>

#include "bench/stop_watch.h"

namespace velmora::bench {

/// What a job works on. All folders are full paths.
struct Scene {
  std::string music;  ///< a collection to work on
  std::string base;   ///< a Music Base of four times as many files; for music to be filed, the large one
  std::string state;  ///< program folder, kept from job to job within one round
};

struct Measured {
  double seconds = 0;
  double processorSeconds = 0;
  int files = 0;      ///< that it was about
  int tableRows = 0;  ///< rows of the table, with the copy of the base behind the list
};

/// The time that passed on `watch`, with the counts of the job.
inline Measured measured(const StopWatch& watch, int files, int tableRows) {
  return {watch.seconds(), watch.processorSeconds(), files, tableRows};
}

/// The time of several stretches together; what lies between them does not count.
class Laps {
 public:
  template <typename Lap>
  void time(const Lap& lap) {
    const StopWatch watch;
    lap();
    sum_.seconds += watch.seconds();
    sum_.processorSeconds += watch.processorSeconds();
    ++sum_.files;
  }
  /// The count is that of the stretches.
  const Measured& measured() const { return sum_; }

 private:
  Measured sum_;
};

/// The music that a job works on.
enum class Music {
  New,     ///< music as it comes, shared by all jobs, which must leave it as it is
  Ready,   ///< music that is ready to be filed, shared likewise
  Base,    ///< none, but the large Music Base of 100,000 files, whatever the sizes of the others
  Repair,  ///< a fresh copy of music in which every name wants repair, for the job to change
  Filed,   ///< a fresh copy of music that is ready to be filed, for the job to change
  Left     ///< that copy as the jobs before left it
};

/// One thing that is timed, in a process of its own.
struct Job {
  const char* name;
  const char* what;  ///< one line for the report
  Measured (*run)(const Scene&);
  Music music;
  /// Job whose time in the same round is the yardstick, or null: then only the time is told.
  const char* against = nullptr;
  double mostRatio = 0;         ///< the target for time / yardstick; 0 for none
  double mostSlope = 0;         ///< the target for the time of twice as many files / the time; 0 for none
  double mostMilliseconds = 0;  ///< the target for the time itself; 0 for none
  int mostFiles = 0;            ///< the largest collection that this target is for; 0 for any
};

/// All jobs in the order of a round: a job may stand on the state that an earlier one left.
std::span<const Job> jobs();
const Job* findJob(const std::string& name);

}  // namespace velmora::bench
