#pragma once

#include "bench/jobs.h"

namespace velmora::bench {

/// The commands that change many files, each on every row of the list, and the way back from each.
Measured fixSyntax(const Scene& scene);
Measured namesToTags(const Scene& scene);
Measured deleteAll(const Scene& scene);
/// Stands on the state and the music that one of these left.
Measured undoLast(const Scene& scene);
/// A look at the journal alone.
Measured lastMarker(const Scene& scene);

/// Their yardsticks: per row, just the system calls that the job cannot do without.
/// One rename, the reads and in-place writes of the tags, and an open, append and close for each journal
/// line.
Measured floorOfFix(const Scene& scene);
/// Opens, reads and writes the same bytes in place, as often as the command does.
Measured floorOfTags(const Scene& scene);
/// One rename and one info file.
Measured floorOfDelete(const Scene& scene);

}  // namespace velmora::bench
