#pragma once

namespace velmora::core {

/// The review in progress (`vrsta`). `Settings.ini` holds its number, so that a review resumes at the next
/// start.
enum class Review {
  None = 0,
  CheckFix = 1,           ///< Check+Fix outside any of its checks
  Duplicates = 2,         ///< Find Duplicates
  ArtistList = 3,         ///< the Artist List view
  WhoIsArtist = 11,       ///< Check+Fix: which part of a name with several dashes is the artist
  ArtistExists = 12,      ///< Check+Fix: a name without an artist part
  NameAgainstTags = 98,   ///< Check+Fix: the name compared with the tags
  DuplicatesHalted = 100  ///< Find Duplicates after Stop; never stored for the next start
};

/// Check+Fix, be it in one of its checks or between two.
constexpr bool inCheckFix(Review review) {
  return review == Review::CheckFix || review == Review::WhoIsArtist || review == Review::ArtistExists ||
         review == Review::NameAgainstTags;
}

/// The review that goes on at the next start where this number is stored; None for any other number.
constexpr Review reviewOf(int number) {
  for (const Review review : {Review::CheckFix, Review::Duplicates, Review::ArtistList, Review::WhoIsArtist,
                              Review::ArtistExists, Review::NameAgainstTags})
    if (static_cast<int>(review) == number) return review;
  return Review::None;
}

}  // namespace velmora::core
