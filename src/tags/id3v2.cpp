#include "tags/id3v2.h"

#include <algorithm>
#include <utility>

#include "core/code_page.h"
#include "core/number_text.h"
#include "platform/file_error.h"
#include "tags/id3v2_reader.h"
#include "tags/id3v2_writer.h"

namespace velmora::tags {

struct cMP3ID3v2::PropertyFrame {
  BytesView frame;
  TextView before;  // what the setter puts ahead of the value
};

/// In the order of Property.
const std::array<cMP3ID3v2::PropertyFrame, 17>& cMP3ID3v2::propertyFrames() {
  using namespace std::string_view_literals;
  static constexpr std::array<PropertyFrame, 17> frames = {{{"WOAR", u""},
                                                            {"WCOM", u""},
                                                            {"WOAF", u""},
                                                            {"TCOP", u""},
                                                            {"TCOM", u""},
                                                            {"TOPE", u""},
                                                            {"WXXX", u"\0"sv},
                                                            {"PCNT", u""},
                                                            {"TENC", u""},
                                                            {"TIT2", u""},
                                                            {"TPE1", u""},
                                                            {"TALB", u""},
                                                            {"TYER", u""},
                                                            {"COMM", u"\0nt\0"sv},
                                                            {"USLT", u"\0"sv},
                                                            {"TCON", u""},
                                                            {"TRCK", u""}}};
  return frames;
}

void cMP3ID3v2::reset() {
  hasTag_ = false;
  version_ = 0;
  frames_.clear();
  values_.fill({});
  genre_ = 255;
}

void cMP3ID3v2::setMP3File(const Text& path) {
  path_ = path;
  reset();
  try {
    const auto file = files_.open(path, platform::OpenMode::Read);
    SongBytes song(*file);
    read(song);
  } catch (platform::FileError& error) {
    error.source = u"velmora.cMP3ID3v1";  // the name of the other class, and it stays
    throw;
  }
}

void cMP3ID3v2::read(SongBytes& song) {
  reset();
  const auto position = FindID3Position(song);
  if (!position) return;
  hasTag_ = true;
  FrameReader frames(song, *position);
  version_ = frames.version();
  while (const auto frame = frames.next())
    StoreFrame(frame->name, CleanFrameText(song.at(frame->offset, frame->length)));
}

void cMP3ID3v2::StoreFrame(BytesView frame, Bytes body) {
  const auto& known = propertyFrames();
  const auto* found = std::ranges::find(known, frame, &PropertyFrame::frame);
  if (found == known.end()) return frames_.add(frame, std::move(body));

  Text text = core::fromCodePage(body);
  frames_.add(frame, std::move(body));
  const auto property = static_cast<Property>(found - known.begin());
  Text& value = values_[static_cast<std::size_t>(property)];
  if (property == Property::OtherGenreName)
    storeGenre(text);
  else if (property == Property::Comment && frames_.tags(frame) > 1)
    value += Text(1, u'\0') + u"\r\n" + text;
  else
    value = std::move(text);
}

void cMP3ID3v2::storeGenre(const Text& text) {
  GenreText genre = parseGenre(text);
  if (genre.code) genre_ = *genre.code;
  values_[static_cast<std::size_t>(Property::OtherGenreName)] = std::move(genre.name);
}

void cMP3ID3v2::RemoveFrame(BytesView frame) {
  try {
    frames_.remove(frame);
  } catch (platform::FileError& error) {
    error.source = u"velmora.cMP3ID3v2";
    throw;
  }
}

void cMP3ID3v2::AddTag(BytesView frame, TextView body) {
  frames_.add(frame, core::toCodePage(body));
}

Text cMP3ID3v2::TagText(BytesView frame, int index) const {
  return core::fromCodePage(frames_.body(frame, index));
}

void cMP3ID3v2::set(Property property, const Text& text) {
  values_[static_cast<std::size_t>(property)] = text;
  const PropertyFrame& frame = propertyFrames()[static_cast<std::size_t>(property)];
  replaceFrame(frame.frame, frame.before.empty() ? text : Text(frame.before) + text);
}

void cMP3ID3v2::setGenre(std::uint8_t code) {
  genre_ = code;
  replaceFrame("TCON", u"(" + core::plain(std::int64_t{code}) + u")");
}

void cMP3ID3v2::replaceFrame(BytesView frame, const Text& body) {
  if (frames_.has(frame)) frames_.remove(frame);
  AddTag(frame, body);
}

UpdateResult cMP3ID3v2::Update(const UpdateContext& context) {
  OpenSong song(files_, path_);
  return Update(context, song);
}

UpdateResult cMP3ID3v2::Update(const UpdateContext& context, OpenSong& song) {
  return updateWithDialog(context, u"V2", song, [&] { writeTag(song, frames_); });
}

}  // namespace velmora::tags
