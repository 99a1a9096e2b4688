#include "tags/open_song.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_error.h"
#include "tests/tags/tag_fixture.h"

namespace velmora::tags {
namespace {

struct Song : TagFixture {
  Bytes pattern(std::size_t count) const {
    Bytes bytes(count, '\0');
    for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<char>(i * 7 % 251);
    return bytes;
  }
};

TEST_F(Song, WhatWasWrittenIsReadBackWhereverItWasReadBefore) {
  for (const std::size_t size : {100U, 128U, 300U, 5000U, 20000U}) {
    Bytes expected = pattern(size);
    OpenSong song(files, folder.write(u"song.mp3", expected));
    const auto check = [&](std::size_t offset, const Bytes& bytes) {
      SCOPED_TRACE(testing::Message() << size << " bytes, written at " << offset);
      for (const std::size_t at : {std::size_t{0}, size / 2}) song.bytes().at(at, 64);
      song.bytes().end(128);
      song.write(offset, bytes);
      if (offset + bytes.size() > expected.size()) expected.resize(offset + bytes.size());
      expected.replace(offset, bytes.size(), bytes);
      EXPECT_EQ(song.bytes().size(), expected.size());
      EXPECT_EQ(song.bytes().end(128),
                BytesView(expected).substr(expected.size() - std::min<std::size_t>(128, expected.size())));
      EXPECT_EQ(song.bytes().end(3), BytesView(expected).substr(expected.size() - 3));
      EXPECT_EQ(song.bytes().at(0, expected.size()), expected);
      EXPECT_EQ(folder.read(u"song.mp3"), expected);
    };
    check(0, "start");
    check(size / 2 - 10, Bytes(30, 'm'));
    check(size - 60, Bytes(60, 'e'));
    check(size - 1, Bytes(128, 'g'));  // grows
    check(0, Bytes(size, 'a'));
  }
}

TEST_F(Song, AReadOnlySongIsReadAndWrittenOnceItMayBe) {
  const Text path = folder.write(u"song.mp3", "0123456789");
  ASSERT_EQ(::chmod(folder.native(u"song.mp3").c_str(), 0444), 0);
  OpenSong song(files, path);
  EXPECT_EQ(song.bytesToRead().at(0, 4), "0123");
  EXPECT_FALSE(song.busy());
  EXPECT_FALSE(song.isOpen());
  EXPECT_THROW(song.bytes(), platform::FileError);
  files.clearAttributes(path);
  song.write(0, "abcd");
  EXPECT_EQ(song.bytes().at(0, 6), "abcd45");
}

TEST_F(Song, AHeldSongIsBusyAndReadAnewOnceItIsFree) {
  const Text path = folder.write(u"song.mp3", "old content");
  const int other = ::open(folder.native(u"song.mp3").c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(::flock(other, LOCK_EX), 0);
  OpenSong song(files, path);
  EXPECT_EQ(song.bytesToRead().at(0, 3), "old");
  EXPECT_TRUE(song.busy());
  ASSERT_EQ(::pwrite(other, "new", 3, 0), 3);
  ::close(other);
  EXPECT_FALSE(song.busy());
  EXPECT_EQ(song.bytes().at(0, 3), "new");
}

}  // namespace
}  // namespace velmora::tags
