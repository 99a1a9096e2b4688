#pragma once

#include "bench/jobs.h"

namespace velmora::bench {

/// One listing of the genres is too short to be timed.
inline constexpr int genreListings = 2000;

/// The Music Base Window comes up for the first time: all that it does then.
Measured showBase(const Scene& scene);
/// The listing alone, `genreListings` times.
Measured listGenres(const Scene& scene);
/// Looking through a large Music Base. The clicks go through all of it: every genre, or every artist of every
/// genre, or every album of every artist; what is counted are clicks.
Measured clickGenres(const Scene& scene);
Measured clickArtists(const Scene& scene);
Measured clickAlbums(const Scene& scene);
/// A year that no album bears, so that all of the base must be looked at.
Measured filterYears(const Scene& scene);
/// Makes `bazaniz` anew; what is counted are files.
Measured refreshBase(const Scene& scene);

/// Their yardsticks list the same folders, as often, and nothing more.
Measured floorOfGenreList(const Scene& scene);
Measured floorOfGenres(const Scene& scene);
Measured floorOfArtists(const Scene& scene);
Measured floorOfAlbums(const Scene& scene);
Measured floorOfYears(const Scene& scene);
/// Goes through the whole base and writes the path of each file, as `find -type f` into a file does.
Measured floorOfRefresh(const Scene& scene);

}  // namespace velmora::bench
