#pragma once

#include <cstdint>
#include <optional>

#include "tags/id3v2_header.h"
#include "tags/id3v2_reader.h"
#include "tags/song_bytes.h"

/// Where the ID3v2 tag of a song stands, and where it ends and the music begins. Readers and writers of the
/// tag both ask here, so that no byte of music is ever taken for a part of the tag.
namespace velmora::tags {

/// Offset of the byte behind the first "ID3" that stands ahead of the audio, or nothing. The audio starts at
/// the first bytes FF FB; within one block of 4096 bytes a marker wins over a pair that stands before it.
std::optional<std::uint64_t> FindID3Position(SongBytes& song);

/// The tag of the song. A marker that does not begin the file counts only when a tag that can be read stands
/// there: the three letters also come up in music by chance.
std::optional<TagHeader> findTag(SongBytes& song);

/// Offset of the first byte behind the tag, at most the length of the file. The published size counts when
/// music, an APE tag or the end of the file stands where it points; else the plain one by the same test.
/// Where neither is proven the tag ends at the smaller one that all its frames fit in.
std::uint64_t tagEnd(SongBytes& song, const TagHeader& tag);

/// The frames of a tag, all of them within its real end.
FrameReader framesOf(SongBytes& song, const TagHeader& tag);

/// Bytes from the start of the file to the first byte behind all tags that it begins with; 0 without one.
std::uint64_t ID3TagEnd(SongBytes& song);

/// Length in bytes of the MPEG audio frame with this header; 0 when it is none or does not tell.
std::size_t mpegFrameBytes(std::uint32_t header);

}  // namespace velmora::tags
