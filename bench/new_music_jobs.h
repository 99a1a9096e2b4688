#pragma once

#include "bench/jobs.h"

namespace velmora::bench {

/// "Scan ID3 Of Every New Music Files" on a list that was added without reading tags. The jobs below stand on
/// the state that it leaves.
Measured scanTags(const Scene& scene);
/// The New Music Window comes up, its genres listed.
Measured showNewMusic(const Scene& scene);
Measured clickEveryAutor(const Scene& scene);
Measured clickWithoutGenree(const Scene& scene);
/// The slowest of all clicks on a genre.
Measured clickSlowestGenre(const Scene& scene);
Measured clickBusyArtist(const Scene& scene);

/// MOVE of all genres but "-<< Without Genree >>-" into an empty base on the same volume.
Measured moveGenres(const Scene& scene);
/// Stands on what moveGenres left.
Measured undoMove(const Scene& scene);
/// Its yardstick: one rename, and an open, append and close for each of two journal lines, per file. The
/// folders are made before.
Measured floorOfMove(const Scene& scene);

}  // namespace velmora::bench
