#pragma once

#include <array>
#include <cstddef>
#include <string_view>

/// The kinds of the journal's lines: the three letters that each begins with. docs/formats.md tells what
/// follows them.
namespace velmora::journal::kind {

inline constexpr std::size_t length = 3;

// Markers: a stretch of records starts here.
inline constexpr std::string_view newList = "new";
inline constexpr std::string_view processing = "st1";  ///< an operation of the Processing Window
inline constexpr std::string_view newMusic = "st2";    ///< an operation of the New Music Window
inline constexpr std::string_view checkFix = "fst";
inline constexpr std::string_view duplicates = "dst";

// Records.
inline constexpr std::string_view renamed = "ren";
inline constexpr std::string_view tagsWritten = "id3";
inline constexpr std::string_view fileDeleted = "del";
inline constexpr std::string_view rowRemoved = "izb";
inline constexpr std::string_view fileMoved = "mov";
inline constexpr std::string_view folderMade = "mkd";
inline constexpr std::string_view folderMoved = "prs";
inline constexpr std::string_view songPlace = "now";  ///< written by undo: where a song lies
inline constexpr std::string_view otherFileDeleted = "add";
inline constexpr std::string_view selection = "bi1";
inline constexpr std::string_view windows = "biv";
inline constexpr std::string_view checkFixStop = "fix";
inline constexpr std::string_view duplicatesStop = "dup";

/// What lastUndoMarker() looks for: the markers, and the stops of the reviews.
inline constexpr std::array<std::string_view, 7> stopsOfUndo = {
    newList, checkFixStop, duplicatesStop, processing, newMusic, duplicates, checkFix};

}  // namespace velmora::journal::kind
