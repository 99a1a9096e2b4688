#include "tags/id3v1.h"

#include "core/code_page.h"
#include "platform/file_error.h"

namespace velmora::tags {

namespace {

// Where the fields lie, and how wide they are.
struct Field {
  std::size_t offset;
  std::size_t width;
};
constexpr Field titleField{3, 30};
constexpr Field artistField{33, 30};
constexpr Field albumField{63, 30};
constexpr Field yearField{93, 4};
constexpr Field commentField{97, 28};
constexpr std::size_t trackMark = 125;  // 0 where the next byte is a track
constexpr std::size_t trackOffset = 126;
constexpr std::size_t genreOffset = 127;
constexpr BytesView marker = "TAG";

Text textOf(BytesView tag, Field field) {
  BytesView bytes = tag.substr(field.offset, field.width);
  bytes = bytes.substr(0, bytes.find('\0'));
  Text text = core::fromCodePage(bytes);
  std::erase_if(text, [](char16_t unit) { return unit < 32 || unit == 127; });
  return text;
}

void put(Bytes& tag, Field field, TextView text) {
  Bytes bytes = core::toCodePage(text);
  bytes.resize(field.width, '\0');
  tag.replace(field.offset, field.width, bytes);
}

[[noreturn]] void rethrow(platform::FileError& error) {
  error.source = u"velmora.cMP3ID3v1";
  throw;
}

}  // namespace

void cMP3ID3v1::reset() {
  hasTag_ = false;
  Title = Artist = Album = Year = Comment = {};
  Track = 0;
  Genre = 255;
  read_ = {};
}

void cMP3ID3v1::setMP3File(const Text& path) {
  path_ = path;
  reset();
  try {
    const auto file = files_.open(path, platform::OpenMode::Read);
    SongBytes song(*file);
    read(song);
  } catch (platform::FileError& error) {
    rethrow(error);
  }
}

void cMP3ID3v1::read(SongBytes& song) {
  reset();
  if (song.size() <= tagBytes) return;
  const BytesView tag = song.end(tagBytes);
  if (tag.size() < tagBytes || !tag.starts_with(marker)) return;

  hasTag_ = true;
  Title = textOf(tag, titleField);
  Artist = textOf(tag, artistField);
  Album = textOf(tag, albumField);
  Year = textOf(tag, yearField);
  Comment = textOf(tag, commentField);
  Track = tag[trackMark] == '\0' ? static_cast<std::uint8_t>(tag[trackOffset]) : std::uint8_t{0};
  Genre = static_cast<std::uint8_t>(tag[genreOffset]);
  read_ = fields();
}

/// Puts the fields that were changed since they were read over those of `tag`.
void cMP3ID3v1::putChanges(Bytes& tag) const {
  const auto putText = [&tag](Field field, const Text& text, const Text& read) {
    if (text != read) put(tag, field, text);
  };
  putText(titleField, Title, read_.title);
  putText(artistField, Artist, read_.artist);
  putText(albumField, Album, read_.album);
  putText(yearField, Year, read_.year);
  putText(commentField, Comment, read_.comment);
  if (Track != read_.track) {
    tag[trackMark] = '\0';
    tag[trackOffset] = static_cast<char>(Track);
  }
  if (Genre != read_.genre) tag[genreOffset] = static_cast<char>(Genre);
}

void cMP3ID3v1::write(OpenSong& song) const {
  constexpr char noGenre = '\xFF';
  SongBytes& bytes = song.bytes();
  const std::uint64_t size = bytes.size();
  if (size == 0) throw notAValidMP3File(song.path());
  if (size <= tagBytes) return;
  const bool has = bytes.end(tagBytes).starts_with(marker);
  const Bytes old = has ? Bytes(bytes.end(tagBytes)) : Bytes(marker) + Bytes(tagBytes - 4, '\0') + noGenre;
  Bytes tag = old;
  putChanges(tag);
  if (!has)
    song.write(size, tag);
  else if (tag != old)
    song.write(size - tagBytes, tag);
}

UpdateResult cMP3ID3v1::Update(const UpdateContext& context) {
  OpenSong song(files_, path_);
  return Update(context, song);
}

UpdateResult cMP3ID3v1::Update(const UpdateContext& context, OpenSong& song) {
  return updateWithDialog(context, u"V1", song, [&] { write(song); });
}

}  // namespace velmora::tags
