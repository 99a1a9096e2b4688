#pragma once

#include "bench/jobs.h"

namespace velmora::bench {

/// Making the list and bringing it back.
Measured floorOfList(const Scene& scene);
Measured emptyProgram(const Scene& scene);
Measured readTags(const Scene& scene);
Measured add(const Scene& scene);
Measured addWithBase(const Scene& scene);
/// Stands on the state of addWithBase.
Measured load(const Scene& scene);

}  // namespace velmora::bench
