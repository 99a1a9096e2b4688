#pragma once

#include <map>
#include <string>
#include <vector>

#include "bench/child.h"

namespace velmora::bench {

/// All outcomes of one size of collection: by the job's name, one per round.
struct Series {
  int files = 0;
  std::map<std::string, std::vector<Outcome>> outcomes;
};

/// Prints a table for the jobs on the large base and one per size, then how each job grows with the
/// collection, and the memory per row. Returns how many targets were missed.
int report(const Series& browsing, const std::vector<Series>& sizes);

}  // namespace velmora::bench
