#include "tags/mp3_header.h"

#include <gtest/gtest.h>

#include "core/number_text.h"
#include "system/posix_files.h"
#include "tests/support/memory_file.h"
#include "tests/support/mp3_maker.h"
#include "tests/support/temp_folder.h"

namespace velmora::tags {
namespace {

clsMP3HeadReader readHeader(const Bytes& bytes, clsMP3HeadReader reader = {}) {
  test::MemoryFile file(bytes);
  SongBytes song(file);
  reader.read(song);
  return reader;
}

/// A file of this size that begins with a header of the usual format.
Bytes songOf(std::size_t size) {
  Bytes bytes(test::mpegHeader);
  bytes.resize(size, '\0');
  return bytes;
}

/// What the header tells of the audio.
Text told(const clsMP3HeadReader& header) {
  return header.MPEG + u" layer" + core::number(std::int64_t{header.Layer}) + u"," +
         core::number(std::int64_t{header.Bitrate}) + u" kbps," +
         core::number(std::int64_t{header.Frequency}) + u" Hz, " + header.Mode;
}

TEST(Mp3Header, ReadsTheFieldsOfAFrame) {
  const auto header = readHeader("\xFF\xFB\xB5\x48");
  EXPECT_EQ(told(header), u"MPEG-1 layer 3, 192 kbps, 48000 Hz, Joint Stereo");
  EXPECT_TRUE(header.IsPrivate && header.IsCopyright);
  EXPECT_TRUE(header.IsProtected) << "the bit as it stands";
  EXPECT_FALSE(readHeader("\xFF\xFA\x90\x10").IsProtected);
  EXPECT_EQ(told(readHeader("\xFF\xFF\xD8\x80")), u"MPEG-1 layer 1, 416 kbps, 32000 Hz, Dual Channel");
  EXPECT_EQ(told(readHeader("\xFF\xFD\x38\xC0")), u"MPEG-1 layer 2, 56 kbps, 32000 Hz, Mono");
}

TEST(Mp3Header, ReservedIndexesGiveNothing) {
  clsMP3HeadReader before;
  before.Bitrate = 96;
  EXPECT_EQ(readHeader("\xFF\xFB\x0C\x10", before).Bitrate, 0);  // index 0000
  EXPECT_EQ(readHeader("\xFF\xFB\xFC\x10", before).Bitrate, 0);  // index 1111
  EXPECT_EQ(readHeader("\xFF\xFB\x9C\x10", before).Frequency, 0);
  const auto noLayer = readHeader("\xFF\xF9\x90\x10", before);
  EXPECT_EQ(noLayer.Layer, 0);
  EXPECT_EQ(noLayer.Bitrate, 96) << "without a layer the bit rate stays as it was";
}

TEST(Mp3Header, Mpeg2ShowsNoBitRateAndNoLength) {
  const auto header = readHeader("\xFF\xF3\x84\xC0");
  EXPECT_EQ(told(header), u"MPEG-2 layer 3, 0 kbps, 24000 Hz, Mono");
  EXPECT_EQ(header.Length, 0);
  EXPECT_EQ(readHeader("\xFF\xE3\x90\x10").MPEG, u"MPEG-2") << "2.5 counts as 2";

  // The bit rate that the reader holds is what selects the row, not the index of the header.
  clsMP3HeadReader before;
  before.Bitrate = 1110;
  EXPECT_EQ(readHeader("\xFF\xF5\x10\x10", before).Bitrate, 384);
  before.Bitrate = 128;
  EXPECT_EQ(readHeader("\xFF\xF5\x90\x10", before).Bitrate, 0);
}

TEST(Mp3Header, LengthComesFromTheSizeBehindTheTag) {
  EXPECT_EQ(readHeader(songOf(16'000'000)).Length, 1000);
  // A half goes to the even neighbour: 16,000 bytes are a second.
  EXPECT_EQ(readHeader(songOf(40'000)).Length, 2);
  EXPECT_EQ(readHeader(songOf(56'000)).Length, 4);
  EXPECT_EQ(readHeader(songOf(40'001)).Length, 3);
  const Bytes tag = test::Id3v2Maker().text("TIT2", u"Song").padding(5000).bytes();
  EXPECT_EQ(readHeader(tag + songOf(64'000)).Length, 4);
}

TEST(Mp3Header, TheFirstByte255BehindTheTagIsTheFrame) {
  const Bytes junk = Bytes(9000, '\x11');
  EXPECT_EQ(readHeader(junk + test::mpegFrames(2)).Bitrate, 128);
  // One in the junk counts, whatever follows it, as it stands.
  const auto misled = readHeader("\xFF\x11\x22\x33" + test::mpegFrames(2));
  EXPECT_EQ(misled.MPEG, u"MPEG-2");
  EXPECT_EQ(misled.Layer, 0);
  // One inside the tag does not.
  const Bytes tag = test::Id3v2Maker().picture(6000).frame("PRIV", "\xFF\x11\x22\x33").bytes();
  EXPECT_EQ(readHeader(tag + test::mpegFrames(2)).Bitrate, 128);
  EXPECT_EQ(readHeader(tag + tag + test::mpegFrames(2)).Bitrate, 128) << "nor one in a second tag behind it";
}

TEST(Mp3Header, AFailedReadLeavesThePropertiesAsTheyWere) {
  clsMP3HeadReader before;
  before.Bitrate = 96;
  before.Mode = u"Mono";
  for (const Bytes& bytes : {Bytes(), Bytes(70'000, '\0'), Bytes("\xFF\xFB\x90")}) {
    const auto after = readHeader(bytes, before);
    EXPECT_EQ(after.Bitrate, 96);
    EXPECT_EQ(after.Mode, u"Mono");
  }
  system::PosixFiles files;
  const test::TempFolder folder;
  before.ReadMP3Header(files, folder.path(u"missing.mp3"));
  EXPECT_EQ(before.Bitrate, 96);
  before.ReadMP3Header(files, folder.write(u"song.mp3", test::mpegFrames(2)));
  EXPECT_EQ(before.Bitrate, 128);
}

}  // namespace
}  // namespace velmora::tags
