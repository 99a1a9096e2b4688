#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "platform/files.h"
#include "platform/text.h"
#include "tags/id3v2_frames.h"
#include "tags/song_bytes.h"
#include "tags/update_result.h"

namespace velmora::tags {

/// The ID3v2 tag of one file: read in version 2, 3 or 4. A tag of version 4 is written as that, any other as
/// version 3. Frames whose text nobody sets are written back as they stand in the file at that moment.
class cMP3ID3v2 {
 public:
  explicit cMP3ID3v2(platform::Files& files) : files_(files) {}

  /// Binds the file and reads its tag. Throws FileError when it cannot be opened; the file is bound even
  /// then, with no tag.
  void setMP3File(const Text& path);
  /// Reads the tag of a song that is open already, which Update is then to be given.
  void read(SongBytes& song);
  const Text& MP3File() const { return path_; }

  /// Whether a tag was found, of whatever version at the start of the file.
  bool HasID3v2Tag() const { return hasTag_; }
  /// Whether there is anything to write.
  bool changed() const { return !changes_.empty(); }
  std::uint8_t ID3v2TagVersion() const { return version_; }
  std::uint8_t TagVersion() const { return version_; }

  // The frame table. Positions of identifiers and of tags count from 1.
  int FrameCount() const { return frames_.count(); }
  const Bytes& Frame(int index) const { return frames_.name(index); }
  /// Throws FileError for an identifier that the table does not have.
  void RemoveFrame(BytesView frame);
  int TagsInFrame(BytesView frame) const { return frames_.tags(frame); }
  /// Adds a frame with this text, in the form of `frameText`.
  void AddTag(BytesView frame, TextView body);
  /// Throws FileError when there is no such frame.
  void RemoveTag(BytesView frame, int index);
  Text TagText(BytesView frame, int index) const;

  // Properties: the value last read or set. Setting one to the value that it has changes nothing; setting it
  // to another replaces its frame, and to nothing takes the frame out. `Genre` and `OtherGenreName` share a
  // frame: whichever was set last wins. A genre of 255 and a track of "0" count as nothing.
  const Text& ArtistURL() const { return value(Property::ArtistURL); }
  void setArtistURL(const Text& text) { set(Property::ArtistURL, text); }
  const Text& BuyURL() const { return value(Property::BuyURL); }
  void setBuyURL(const Text& text) { set(Property::BuyURL, text); }
  const Text& AudioURL() const { return value(Property::AudioURL); }
  void setAudioURL(const Text& text) { set(Property::AudioURL, text); }
  const Text& Copyright() const { return value(Property::Copyright); }
  void setCopyright(const Text& text) { set(Property::Copyright, text); }
  const Text& Composer() const { return value(Property::Composer); }
  void setComposer(const Text& text) { set(Property::Composer, text); }
  const Text& OriginalArtist() const { return value(Property::OriginalArtist); }
  void setOriginalArtist(const Text& text) { set(Property::OriginalArtist, text); }
  const Text& LinkTo() const { return value(Property::LinkTo); }
  void setLinkTo(const Text& text) { set(Property::LinkTo, text); }
  const Text& PlayCounter() const { return value(Property::PlayCounter); }
  void setPlayCounter(const Text& text) { set(Property::PlayCounter, text); }
  const Text& EncodedBy() const { return value(Property::EncodedBy); }
  void setEncodedBy(const Text& text) { set(Property::EncodedBy, text); }
  const Text& Title() const { return value(Property::Title); }
  void setTitle(const Text& text) { set(Property::Title, text); }
  const Text& Artist() const { return value(Property::Artist); }
  void setArtist(const Text& text) { set(Property::Artist, text); }
  const Text& Album() const { return value(Property::Album); }
  void setAlbum(const Text& text) { set(Property::Album, text); }
  const Text& Year() const { return value(Property::Year); }
  void setYear(const Text& text) { set(Property::Year, text); }
  const Text& Comment() const { return value(Property::Comment); }
  void setComment(const Text& text) { set(Property::Comment, text); }
  const Text& Lyrics() const { return value(Property::Lyrics); }
  void setLyrics(const Text& text) { set(Property::Lyrics, text); }
  std::uint8_t Genre() const { return genre_; }
  void setGenre(std::uint8_t code);
  const Text& OtherGenreName() const { return value(Property::OtherGenreName); }
  void setOtherGenreName(const Text& text) { set(Property::OtherGenreName, text); }
  const Text& Track() const { return value(Property::Track); }
  void setTrack(const Text& text) { set(Property::Track, text); }

  /// Writes what was changed to the file: in place where the tag has room, else by a copy of the whole file
  /// that takes its place in one step. Where nothing was changed the file is not touched. A frame that cannot
  /// be written fails before the file is touched.
  UpdateResult Update(const UpdateContext& context);
  /// The same through a song that may be open already.
  UpdateResult Update(const UpdateContext& context, OpenSong& song);

 private:
  enum class Property {
    ArtistURL,
    BuyURL,
    AudioURL,
    Copyright,
    Composer,
    OriginalArtist,
    LinkTo,
    PlayCounter,
    EncodedBy,
    Title,
    Artist,
    Album,
    Year,
    Comment,
    Lyrics,
    OtherGenreName,
    Track,
    Count
  };
  struct PropertyFrame;
  static const std::array<PropertyFrame, static_cast<std::size_t>(Property::Count)>& propertyFrames();

  const Text& value(Property property) const { return values_[static_cast<std::size_t>(property)]; }
  Text& value(Property property) { return values_[static_cast<std::size_t>(property)]; }
  void set(Property property, const Text& text);
  using Change = std::function<void(cMP3ID3v2&)>;
  void change(Change apply);
  void replaceText(BytesView frame, TextView head, TextView text);
  void replaceYear(TextView year);
  void reset();
  void load(SongBytes& song);
  void show(const TagFrame& frame, bool commented);
  void write(OpenSong& song);
  std::uint8_t writtenVersion() const { return version_ == 4 ? 4 : 3; }

  platform::Files& files_;
  Text path_;
  bool hasTag_ = false;
  std::uint8_t version_ = 0;
  FrameTable frames_;
  std::uint64_t readSerial_ = 0;  // of the bytes that the frames were read from
  std::vector<Change> changes_;   // to the frames, since they were read
  std::array<Text, static_cast<std::size_t>(Property::Count)> values_;
  std::uint8_t genre_ = 255;
};

}  // namespace velmora::tags
