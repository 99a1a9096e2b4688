// velmora_bench [--sizes N,N,...] [--rounds N] [--jobs name,name,...] [--folder F] [--check]
// Times each main job on made collections and compares it with its yardstick within one run. The jobs take
// turns, each in a process of its own, and the medians over all rounds are told: single times on a busy
// machine mean little. With --check the exit code is 1 when a target was missed. See docs/benchmarks.md.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
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
  std::string newMusic, repairMusic, base, state, copy;

  Scene sceneFor(const Job& job) const { return {job.music == Music::New ? newMusic : copy, base, state}; }
};

/// Makes what is not there yet: a folder that is given keeps its collections for later runs.
Place prepare(const std::string& folder, int files) {
  const std::string own = folder + "/" + std::to_string(files);
  const Place place{own + "/New music", own + "/Repair", own + "/Music Base", own + "/state", own + "/copy"};
  if (!std::filesystem::exists(own + "/made")) {
    std::fprintf(stderr, "making collections of %d files and a base of %d ...\n", files,
                 files * baseFilesPerNewFile);
    std::filesystem::remove_all(own);
    makeNewMusic(place.newMusic, files, seed);
    makeRepairMusic(place.repairMusic, files, seed);
    makeBase(place.base, files * baseFilesPerNewFile, seed);
    std::filesystem::create_directory(own + "/made");
  }
  return place;
}

/// The jobs that leave the music as it is come before those that change it: what those leave to be written to
/// the disk would disturb the others.
enum class Phase { Reading, Changing };

void runRound(const Options& options, Phase phase, const Place& place, Series& into) {
  for (const Job& job : jobs()) {
    if (!wanted(options, job) || (job.music == Music::New) != (phase == Phase::Reading)) continue;
    if (job.music == Music::Repair) {
      std::filesystem::remove_all(place.copy);
      std::filesystem::copy(place.repairMusic, place.copy, std::filesystem::copy_options::recursive);
    }
    const Scene scene = place.sceneFor(job);
    // What can be done twice counts the second time, with the system's caches and free memory as it left
    // them.
    if (phase == Phase::Reading) runInChild(job, scene);
    const Outcome outcome = runInChild(job, scene);
    into.outcomes[job.name].push_back(outcome);
  }
  std::filesystem::remove_all(place.copy);
}

int run(const Options& options) {
  const std::string folder =
      options.folder.empty()
          ? (std::filesystem::temp_directory_path() / ("velmora_bench." + std::to_string(getpid()))).string()
          : std::filesystem::absolute(options.folder).string();
  std::vector<Place> places;
  std::vector<Series> sizes;
  for (const int files : options.sizes) {
    places.push_back(prepare(folder, files));
    sizes.push_back({files, {}});
  }
  for (const Phase phase : {Phase::Reading, Phase::Changing}) {
    for (int round = 0; round < options.rounds; ++round) {
      for (std::size_t i = 0; i < sizes.size(); ++i) runRound(options, phase, places[i], sizes[i]);
    }
  }
  if (options.folder.empty()) std::filesystem::remove_all(folder);
  const int missed = report(sizes);
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
