#include "tags/id3v1.h"

#include "core/code_page.h"
#include "platform/file_error.h"

namespace velmora::tags {

namespace {

// Widths of the fields in their order; a byte 0, the track and the genre follow.
constexpr std::size_t nameBytes = 30;  // title, artist and album each
constexpr std::size_t yearBytes = 4;
constexpr std::size_t commentBytes = 28;
constexpr BytesView marker = "TAG";

Text cleaned(BytesView field) {
  field = field.substr(0, field.find('\0'));
  Text text;
  text.reserve(field.size());
  for (const char byte : field)
    if (byte >= 32 && byte <= 126) text += static_cast<char16_t>(byte);
  return text;
}

Bytes padded(TextView text, std::size_t width) {
  Bytes bytes = core::toCodePage(text);
  bytes.resize(width, '\0');
  return bytes;
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
  BytesView tag = song.end(tagBytes);
  if (tag.size() < tagBytes || !tag.starts_with(marker)) return;

  tag.remove_prefix(marker.size());
  const auto take = [&tag](std::size_t width) {
    const BytesView field = tag.substr(0, width);
    tag.remove_prefix(width);
    return cleaned(field);
  };
  hasTag_ = true;
  Title = take(nameBytes);
  Artist = take(nameBytes);
  Album = take(nameBytes);
  Year = take(yearBytes);
  Comment = take(commentBytes);
  Track = tag[0] == '\0' ? static_cast<std::uint8_t>(tag[1]) : std::uint8_t{0};
  Genre = static_cast<std::uint8_t>(tag[2]);
}

Bytes cMP3ID3v1::fields() const {
  Bytes bytes;
  bytes.reserve(tagBytes);
  bytes += marker;
  bytes += padded(Title, nameBytes);
  bytes += padded(Artist, nameBytes);
  bytes += padded(Album, nameBytes);
  bytes += padded(Year, yearBytes);
  bytes += padded(Comment, commentBytes);
  bytes += '\0';
  bytes += static_cast<char>(Track);
  bytes += static_cast<char>(Genre);
  return bytes;
}

void cMP3ID3v1::write(OpenSong& song) const {
  const std::uint64_t size = song.bytes().size();
  if (size == 0) throw notAValidMP3File(song.path());
  if (size <= tagBytes) return;
  // A new tag begins on the last byte of the file, not behind it; this placement is kept as it stands.
  const bool has = song.bytes().end(tagBytes).starts_with(marker);
  song.write(has ? size - tagBytes : size - 1, fields());
}

UpdateResult cMP3ID3v1::Update(const UpdateContext& context) {
  OpenSong song(files_, path_);
  return Update(context, song);
}

UpdateResult cMP3ID3v1::Update(const UpdateContext& context, OpenSong& song) {
  return updateWithDialog(context, u"V1", song, [&] { write(song); });
}

}  // namespace velmora::tags
