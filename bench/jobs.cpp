#include "bench/jobs.h"

#include <array>

#include "bench/list_jobs.h"

namespace velmora::bench {
namespace {

constexpr std::array allJobs = {
    Job{"floor", "list the tree, read 4 KiB and 128 bytes of each file", floorOfList, nullptr, 0, 0,
        Music::Shared},
    Job{"empty", "start and end with nothing on the list", emptyProgram, nullptr, 0, 0, Music::Shared},
    Job{"tags", "read both tags of all rows", readTags, "floor", 2.0, 2.2, Music::Shared},
    Job{"add", "Add, refresh option off", add, "floor", 2.0, 2.2, Music::Shared},
    Job{"add+base", "Add, refresh option on: tags read, base listed", addWithBase, "floor", 4.0, 2.2,
        Music::Shared},
    Job{"load", "start with the list and base that Add left", load, "add+base", 0.5, 2.2, Music::Shared},
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
