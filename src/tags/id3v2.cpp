#include "tags/id3v2.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"
#include "platform/file_error.h"
#include "tags/genre.h"
#include "tags/id3v2_names.h"
#include "tags/id3v2_place.h"
#include "tags/id3v2_text.h"
#include "tags/id3v2_writer.h"

namespace velmora::tags {

struct cMP3ID3v2::PropertyFrame {
  BytesView frame;
  TextView head;  // what the setter puts ahead of the value
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
                                                            {"USLT", u"eng\0"sv},
                                                            {"TCON", u""},
                                                            {"TRCK", u""}}};
  return frames;
}

void cMP3ID3v2::reset() {
  hasTag_ = false;
  version_ = 0;
  frames_.clear();
  changes_.clear();
  readSerial_ = 0;
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
  load(song);
  bool commented = false;
  for (const TagFrame& frame : frames_.all()) {
    show(frame, commented);
    commented = commented || frame.name == "COMM";
  }
}

/// Reads the frames of the song into the table, in the form in which they are written.
void cMP3ID3v2::load(SongBytes& song) {
  frames_.clear();
  readSerial_ = song.serial();
  const auto tag = findTag(song);
  hasTag_ = tag.has_value();
  version_ = tag ? tag->version : std::uint8_t{0};
  if (!tag) return;
  FrameReader reader = framesOf(song, *tag);
  while (const auto found = reader.next()) {
    const BytesView body = reader.body(*found);
    if (version_ == 2)
      frames_.add({MapFrameID(found->name), 0, mapFrameBody(found->name, body)});
    else
      frames_.add({found->name, found->flags, Bytes(body)});
  }
  if (version_ != 2) frames_.tail = reader.tail();
}

/// Puts what a frame says into its property; a further comment behind those that are there.
void cMP3ID3v2::show(const TagFrame& frame, bool commented) {
  const bool time = frame.name == "TDRC";
  const auto& known = propertyFrames();
  const auto* found =
      std::ranges::find(known, time ? BytesView("TYER") : BytesView(frame.name), &PropertyFrame::frame);
  if (found == known.end()) return;

  const auto property = static_cast<Property>(found - known.begin());
  Text& value = this->value(property);
  if (property == Property::Year && !givesYear(frame.name, version_, value)) return;
  Text text = shownText(frame.name, frameText(frame.name, writtenVersion(), frame.flags, frame.body));
  if (property == Property::OtherGenreName) {
    GenreText genre = parseGenre(text, version_);
    if (genre.code) genre_ = *genre.code;
    value = std::move(genre.name);
  } else if (property == Property::Comment && commented) {
    value += Text(1, u'\0') + u"\r\n" + text;
  } else {
    value = std::move(text);
  }
}

/// Makes a change to the frames, and keeps it, in case it must be made again to frames that were read anew.
void cMP3ID3v2::change(Change apply) {
  apply(*this);
  changes_.push_back(std::move(apply));
}

void cMP3ID3v2::RemoveFrame(BytesView frame) {
  if (frames_.tags(frame) == 0) {
    platform::FileError error(5, u"Invalid procedure call or argument");
    error.source = u"velmora.cMP3ID3v2";
    throw error;
  }
  change([name = Bytes(frame)](cMP3ID3v2& tag) { tag.frames_.remove(name); });
}

void cMP3ID3v2::AddTag(BytesView frame, TextView body) {
  change([name = Bytes(frame), text = Text(body)](cMP3ID3v2& tag) {
    tag.frames_.add({name, 0, frameBody(name, tag.writtenVersion(), text)});
  });
}

void cMP3ID3v2::RemoveTag(BytesView frame, int index) {
  frames_.frame(frame, index);
  change([name = Bytes(frame), index](cMP3ID3v2& tag) {
    if (index <= tag.frames_.tags(name)) tag.frames_.removeTag(name, index);
  });
}

Text cMP3ID3v2::TagText(BytesView frame, int index) const {
  const TagFrame& found = frames_.frame(frame, index);
  return frameText(found.name, writtenVersion(), found.flags, found.body);
}

void cMP3ID3v2::set(Property property, const Text& text) {
  const auto same = [property](const Text& left, const Text& right) {
    const auto nothing = [property](const Text& each) {
      return each.empty() || (property == Property::Track && each == u"0");
    };
    return left == right || (nothing(left) && nothing(right));
  };
  if (same(value(property), text)) return;
  value(property) = text;
  const Text written = same(text, {}) ? Text() : text;
  if (property == Property::Year) return change([written](cMP3ID3v2& tag) { tag.replaceYear(written); });
  const PropertyFrame& frame = propertyFrames()[static_cast<std::size_t>(property)];
  change([&frame, written](cMP3ID3v2& tag) { tag.replaceText(frame.frame, frame.head, written); });
}

void cMP3ID3v2::setGenre(std::uint8_t code) {
  constexpr std::uint8_t none = 255;
  const Text name = GenreName(code);
  genre_ = code;
  if (code != none && name.empty()) return setOtherGenreName(u"(" + core::plain(std::int64_t{code}) + u")");
  if (value(Property::OtherGenreName) == name) return;
  value(Property::OtherGenreName) = name;
  change([name, code](cMP3ID3v2& tag) {
    // Version 4 has no parentheses.
    const bool asText = name.empty() || tag.version_ == 4;
    tag.replaceText("TCON", {}, asText ? name : u"(" + core::plain(std::int64_t{code}) + u")");
  });
}

/// Puts one frame with this text in the place of all of its name; of frames with a head, such as language and
/// description, in the place of those with the same head. No text takes them out.
void cMP3ID3v2::replaceText(BytesView frame, TextView head, TextView text) {
  if (head.empty()) frames_.remove(frame);
  for (int index = frames_.tags(frame); index >= 1; --index)
    if (TagText(frame, index).starts_with(head)) frames_.removeTag(frame, index);
  if (!text.empty())
    frames_.add({Bytes(frame), 0, frameBody(frame, writtenVersion(), Text(head) + Text(text))});
}

/// A year stands in the frame of its version, or in what other programs put in the tag. What a time tells
/// behind its year stays.
void cMP3ID3v2::replaceYear(TextView year) {
  const bool hasTime = frames_.tags("TDRC") > 0;
  const bool hasYear = frames_.tags("TYER") > 0;
  Text time = hasTime ? TagText("TDRC", 1) : Text();
  time.erase(0, time.find(u'-') == 4 && time.find(u'\0') == Text::npos ? 4 : time.size());
  if (hasTime || (!hasYear && version_ == 4))
    replaceText("TDRC", {}, year.empty() ? Text() : Text(year) + time);
  if (hasYear || (!hasTime && version_ != 4)) replaceText("TYER", {}, year);
}

UpdateResult cMP3ID3v2::Update(const UpdateContext& context) {
  OpenSong song(files_, path_);
  return Update(context, song);
}

UpdateResult cMP3ID3v2::Update(const UpdateContext& context, OpenSong& song) {
  if (!changed()) return UpdateResult::Done;
  return updateWithDialog(context, u"V2", song, [&] { write(song); });
}

void cMP3ID3v2::write(OpenSong& song) {
  SongBytes& bytes = song.bytes();
  if (bytes.size() == 0) throw notAValidMP3File(song.path());
  if (bytes.serial() != readSerial_) {
    // The song was closed meanwhile, and another program may have written to it.
    load(bytes);
    for (const Change& apply : changes_) apply(*this);
  }
  if (hasTag_ || !frames_.all().empty()) writeTag(song, frames_, writtenVersion());
  changes_.clear();
}

}  // namespace velmora::tags
