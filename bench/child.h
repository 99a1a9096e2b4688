#pragma once

#include "bench/jobs.h"

namespace velmora::bench {

struct Outcome {
  Measured measured;
  long peakKiB = 0;  ///< most memory that the process ever held
};

/// Runs a job in a new process of this program, so that neither its memory nor its caches touch the next.
/// Throws std::runtime_error when the job fails.
Outcome runInChild(const Job& job, const Scene& scene);

/// What the new process does, given the arguments behind "--child". Returns its exit code.
int childMain(int count, char** arguments);

}  // namespace velmora::bench
