#include "tests/support/mp3_maker.h"

namespace velmora::test {

namespace {

Bytes tagHead(int version, BytesView size) {
  return Bytes("ID3") + static_cast<char>(version) + Bytes(2, '\0') + Bytes(size);
}

Bytes frameHead(BytesView name, BytesView size) {
  return Bytes(name) + Bytes(size) + Bytes(2, '\0');
}

/// A tag that declares room for one more frame, and that frame.
Bytes withFrame(BytesView frame) {
  const Bytes good = frameHead("TIT2", plain32(5)) + Bytes("\0Song", 5);
  return tagHead(3, plain32(2000)) + good + Bytes(frame);
}

}  // namespace

std::vector<DamagedSong> damagedSongs() {
  const Bytes audio = mpegFrames(4);
  const SongTags tags{u"Harbour", u"Arvola", u"Northern Lights", u"1999", 7, u"(17)"};
  const Bytes tag3 = Id3v2Maker(3).values(tags).comment(u"Hello").padding(200).bytes();
  const Bytes tag2 = Id3v2Maker(2).values(tags).bytes();
  const Bytes tag4 = Id3v2Maker(4, TagEncoding::Utf16).values(tags).picture(3000).bytes();
  const Bytes last = id3v1Tag(tags, 17);

  return {
      {"empty", ""},
      {"oneByte", "I"},
      {"oneSyncByte", "\xFF"},
      {"markerAlone", "ID3"},
      {"markerAndVersion", "ID3\x03"},
      {"tagCutInHeader", tag3.substr(0, 8)},
      {"tagCutBehindHeader", tag3.substr(0, 10)},
      {"tagCutInFrameHeader", tag3.substr(0, 15)},
      {"tagCutInBody", tag3.substr(0, 24)},
      {"shortTagCutInFrameHeader", tag2.substr(0, 13)},
      {"wideTagCutInPicture", tag4.substr(0, tag4.size() - 1000)},
      {"noTagAtAll", audio},
      {"zerosAlone", Bytes(5000, '\0')},
      {"syncBytesAlone", Bytes(5000, '\xFF')},
      {"headerCutAtEnd", Bytes(300, '\0') + "\xFF\xFB\x90"},
      {"tagSizeBeyondFile", tagHead(3, plain32(1000000)) + tag3.substr(10) + audio},
      {"tagSizeOfFourGigabytes", tagHead(3, plain32(0xFFFFFFFF)) + tag3.substr(10) + audio},
      {"tagSizeOfNothing", tagHead(3, plain32(0)) + tag3.substr(10) + audio},
      {"tagOfUnknownVersion", tagHead(9, synchsafe32(500)) + tag3.substr(10) + audio},
      {"frameSizeOfFourGigabytes", withFrame(frameHead("TPE1", plain32(0xFFFFFFFF))) + audio},
      {"frameSizeMostNegative", withFrame(frameHead("TPE1", plain32(0x80000000))) + audio},
      {"frameSizeLargestPositive", withFrame(frameHead("TPE1", plain32(0x7FFFFFFF))) + audio},
      {"frameSizeBeyondTag", withFrame(frameHead("TPE1", plain32(3000)) + Bytes(3000, 'x')) + audio},
      {"frameSizeBeyondFile", withFrame(frameHead("TPE1", plain32(1900)) + "cut")},
      {"frameOfNoBytes", withFrame(frameHead("TPE1", plain32(0))) + audio},
      {"frameNameOfJunk", withFrame(frameHead("\x01\xFE\x80\x7F", plain32(2)) + "ab") + audio},
      {"frameNamedAsMarker", withFrame(frameHead("ID3x", plain32(2)) + "ab") + audio},
      {"genreParenthesesReversed", withFrame(frameHead("TCON", plain32(4)) + Bytes("\0)(", 3) + "1") + audio},
      {"genreTooLarge", withFrame(frameHead("TCON", plain32(23)) + "(99999999999999999999)x") + audio},
      {"thousandsOfEmptyFrames",
       [] {
         Bytes frames;
         for (int i = 0; i < 4000; ++i)
           frames += frameHead("T" + plain32(static_cast<std::uint32_t>(i)).substr(1), plain32(0));
         return tagHead(3, plain32(0x7FFFFFFF)) + frames;
       }()},
      {"markerInsideAudio", Bytes(100, '\x55') + "ID3" + Bytes(100, '\x66') + audio},
      {"markerAcrossBlockBorder", Bytes(4094, '\x55') + tag3 + audio},
      {"markerAtVeryEnd", Bytes(5000, '\x55') + "ID3"},
      {"twoTagsInARow", tag3 + tag2 + audio},
      {"lastTagCut", audio + last.substr(0, 100)},
      {"lastTagAlone", last},
      {"lastTagBehindOneByte", "x" + last},
      {"lastTagWithCommentOverTrack", audio + last.substr(0, 125) + "x" + last.substr(126)},
  };
}

}  // namespace velmora::test
