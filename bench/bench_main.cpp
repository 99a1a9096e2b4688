// velmora_bench [--sizes N,N,...] [--rounds N] [--jobs name,name,...] [--folder F] [--check]
// Times each main job on made collections and compares it with its yardstick within one run. The jobs take
// turns, each in a process of its own, and the medians over all rounds are told: single times on a busy
// machine mean little. With --check the exit code is 1 when a target was missed. See docs/benchmarks.md.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "bench/child.h"
#include "bench/corpus.h"
#include "bench/report.h"

namespace velmora::bench {
namespace {

constexpr std::uint64_t seed = 20;
constexpr int baseFilesPerNewFile = 4;
constexpr BaseShape largeShape;

struct Options {
  std::vector<int> sizes = {10000, 20000, 40000};
  int rounds = 5;
  std::vector<std::string> jobs;  ///< empty for all
  std::string folder;             ///< empty for a temporary one
  bool check = false;
};

std::vector<std::string> split(const std::string& list) {
  std::vector<std::string> parts;
  std::stringstream stream(list);
  for (std::string part; std::getline(stream, part, ',');) parts.push_back(part);
  return parts;
}

Options parse(int count, char** arguments) {
  Options options;
  for (int i = 1; i < count; ++i) {
    const std::string_view argument = arguments[i];
    if (argument == "--check") {
      options.check = true;
      continue;
    }
    if (i + 1 == count) throw std::invalid_argument("no such option: " + std::string(argument));
    const std::string given = arguments[++i];
    if (argument == "--sizes") {
      options.sizes.clear();
      for (const std::string& size : split(given)) options.sizes.push_back(std::stoi(size));
    } else if (argument == "--rounds") {
      options.rounds = std::stoi(given);
    } else if (argument == "--jobs") {
      options.jobs = split(given);
    } else if (argument == "--folder") {
      options.folder = given;
    } else {
      throw std::invalid_argument("no such option: " + std::string(argument));
    }
  }
  return options;
}

bool wanted(const Options& options, const Job& job) {
  return options.jobs.empty() ||
         std::find(options.jobs.begin(), options.jobs.end(), job.name) != options.jobs.end();
}

/// The made collections of one size, and a place for what the jobs change.
struct Place {
  std::string newMusic, readyMusic, repairMusic, base, largeBase, state, copy;

  Scene sceneFor(const Job& job) const {
    switch (job.music) {
      case Music::New:
        return {newMusic, base, state};
      case Music::Ready:
        return {readyMusic, largeBase, state};
      case Music::Base:
        return {{}, largeBase, state};
      default:
        return {copy, base, state};
    }
  }
};

/// Makes what is not there yet: a folder that is given keeps its collections for later runs.
void makeOnce(const std::string& folder, const std::function<void()>& make) {
  const std::string done = folder + " is made";
  if (std::filesystem::exists(done)) return;
  std::fprintf(stderr, "making %s ...\n", folder.c_str());
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  make();
  std::filesystem::create_directory(done);
}

std::string prepareLargeBase(const std::string& folder) {
  const std::string base = folder + "/Large Base";
  makeOnce(base, [&] { makeEmptyBase(base, largeShape, seed); });
  return base;
}

Place prepare(const std::string& folder, int files, const std::string& largeBase) {
  const std::string own = folder + "/" + std::to_string(files);
  Place place{own + "/New music", own + "/Ready", own + "/Repair", own + "/Music Base",
              largeBase,          own + "/state", own + "/copy"};
  makeOnce(place.newMusic, [&] { makeNewMusic(place.newMusic, files, seed); });
  makeOnce(place.readyMusic, [&] { makeReadyMusic(place.readyMusic, files, seed); });
  makeOnce(place.repairMusic, [&] { makeRepairMusic(place.repairMusic, files, seed); });
  makeOnce(place.base, [&] { makeBase(place.base, files * baseFilesPerNewFile, seed); });
  return place;
}

/// The jobs that leave the music as it is come before those that change it: what those leave to be written to
/// the disk would disturb the others.
enum class Phase { Browsing, Reading, Changing };

Phase phaseOf(const Job& job) {
  if (job.music == Music::Base) return Phase::Browsing;
  return job.music == Music::New || job.music == Music::Ready ? Phase::Reading : Phase::Changing;
}

bool anyWanted(const Options& options, Phase phase) {
  return std::ranges::any_of(jobs(),
                             [&](const Job& job) { return phaseOf(job) == phase && wanted(options, job); });
}

/// Puts a used copy where it can be deleted at the end of all rounds: a file system may pass over the places
/// of files that were deleted a moment ago, which slows a job that makes folders.
void setAside(const std::string& copy) {
  static int number = 0;
  if (!std::filesystem::exists(copy)) return;
  std::filesystem::create_directories(copy + " used");
  std::filesystem::rename(copy, copy + " used/" + std::to_string(++number));
}

void copyAfresh(const std::string& from, const std::string& to) {
  setAside(to);
  std::filesystem::copy(from, to, std::filesystem::copy_options::recursive);
}

void runRound(const Options& options, Phase phase, const Place& place, Series& into) {
  for (const Job& job : jobs()) {
    if (!wanted(options, job) || phaseOf(job) != phase) continue;
    if (job.music == Music::Repair) copyAfresh(place.repairMusic, place.copy);
    if (job.music == Music::Filed) copyAfresh(place.readyMusic, place.copy);
    const Scene scene = place.sceneFor(job);
    // What can be done twice counts the second time, with the system's caches and free memory as it left
    // them.
    if (phase != Phase::Changing) runInChild(job, scene);
    const Outcome outcome = runInChild(job, scene);
    into.outcomes[job.name].push_back(outcome);
  }
  setAside(place.copy);
}

int run(const Options& options) {
  const std::string folder =
      options.folder.empty()
          ? (std::filesystem::temp_directory_path() / ("velmora_bench." + std::to_string(getpid()))).string()
          : std::filesystem::absolute(options.folder).string();
  const std::string base = prepareLargeBase(folder);
  Series browsing{largeShape.songs, {}};
  const Place browsed{{}, {}, {}, {}, base, folder + "/state", folder + "/copy"};
  if (anyWanted(options, Phase::Browsing))
    for (int round = 0; round < options.rounds; ++round)
      runRound(options, Phase::Browsing, browsed, browsing);
  std::vector<Place> places;
  std::vector<Series> sizes;
  for (const int files : options.sizes) {
    places.push_back(prepare(folder, files, base));
    sizes.push_back({files, {}});
  }
  for (const Phase phase : {Phase::Reading, Phase::Changing}) {
    if (!anyWanted(options, phase)) continue;
    for (int round = 0; round < options.rounds; ++round) {
      for (std::size_t i = 0; i < sizes.size(); ++i) runRound(options, phase, places[i], sizes[i]);
    }
  }
  for (const Place& place : places) std::filesystem::remove_all(place.copy + " used");
  if (options.folder.empty()) std::filesystem::remove_all(folder);
  const int missed = report(browsing, sizes);
  return options.check && missed > 0 ? 1 : 0;
}

}  // namespace
}  // namespace velmora::bench

int main(int count, char** arguments) {
  using namespace velmora::bench;
  if (count > 2 && std::string_view(arguments[1]) == "--child") return childMain(count - 2, arguments + 2);
  try {
    return run(parse(count, arguments));
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmora_bench: %s\n", failure.what());
    return 2;
  }
}
