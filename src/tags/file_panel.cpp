#include "tags/file_panel.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

#include "core/number_text.h"
#include "core/paths.h"
#include "core/text.h"
#include "platform/trace.h"
#include "tags/form_fields.h"
#include "tags/mp3_header.h"

namespace velmora::tags {

namespace {

bool isMpegAudio(const Text& path) {
  const Text ending = core::paths::lastThree(path);
  return ending == u"mp3" || ending == u"mp2" || ending == u"mp1";
}

Text twoDigits(std::int64_t number) {
  Text digits = core::plain(number);
  if (digits.size() < 2) digits.insert(digits.begin(), u'0');
  return digits;
}

}  // namespace

void FilePanel::info(const Text& path, int row, InfoMode mode) {
  if (mode == InfoMode::TagsOnly) {
    readTags(path, row);
    return;
  }
  table_.currentRow = row;
  std::unique_ptr<platform::OpenFile> file;
  std::optional<SongBytes> bytes;
  show(path, row, mode, [&]() -> SongBytes& {
    file = files_.open(path, platform::OpenMode::Read);
    return bytes.emplace(*file);
  });
}

std::optional<std::uint64_t> FilePanel::readTags(const Text& path, int row) {
  table_.currentRow = row;
  std::optional<std::uint64_t> bytes;
  cache_.read(path, row, &bytes);
  return bytes;
}

void FilePanel::info(OpenSong& song, int row) {
  table_.currentRow = row;
  show(song.path(), row, InfoMode::Full, [&]() -> SongBytes& { return song.bytesToRead(); });
}

void FilePanel::show(const Text& path, int row, InfoMode mode, const BytesOf& bytesOf) {
  clearLabels();
  const View chosen = clearTags();
  form1_.path.setText(path);
  try {
    SongBytes& song = bytesOf();
    showFile(song, path);
    if (mode == InfoMode::WorkingRowsOnly && row > table_.brojfajlova()) return;
    if (song.size() > 0 && cache_.read(song, row)) offerViews(chosen);
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // What was shown so far stays.
  }
}

void FilePanel::clearLabels() {
  for (ui::Label* label :
       {&form1_.fileSize, &form1_.fileLength, &form1_.frequency, &form1_.bitRate, &form1_.mode})
    label->setText({});
}

FilePanel::View FilePanel::clearTags() {
  ui::TagPanel& tags = form1_.tags;
  View chosen{tags.viewID3v1.chosen(), tags.viewID3v2.chosen()};
  if ((!chosen.id3v1 && !chosen.id3v2) || std::exchange(onlyFirst_, false)) chosen = {true, true};
  for (ui::OptionButton* view : {&tags.viewID3v1, &tags.viewID3v2}) {
    view->setEnabled(false);
    view->setChosen(false);
  }
  showTags();
  return chosen;
}

void FilePanel::showFile(SongBytes& song, const Text& path) {
  const double megabytes = static_cast<double>(song.size()) / 1048576;
  form1_.fileSize.setText(core::number(core::roundHalfEven(megabytes, 2)) + u" MB");
  if (isMpegAudio(path)) {
    if (song.size() > 0) showHeader(song);
    return;
  }
  form1_.Text1.setText(core::paths::bareName(path));
  if (durationOf) showLength(durationOf(path));
}

void FilePanel::showHeader(SongBytes& song) {
  clsMP3HeadReader header;
  header.read(song);
  form1_.frequency.setText(core::plain(std::int64_t{header.Frequency}) + u" kHz");
  form1_.bitRate.setText(core::plain(std::int64_t{header.Bitrate}) + u" kbps");
  form1_.mode.setText(header.Mode);
  showLength(static_cast<double>(header.Length));
}

void FilePanel::showLength(double seconds) {
  if (!(seconds > 0)) return;
  const auto whole = static_cast<std::int64_t>(seconds);
  form1_.fileLength.setText(twoDigits(whole / 60) + u":" + twoDigits(whole % 60) + u" sec");
}

void FilePanel::offerViews(const View& chosen) {
  ui::TagPanel& tags = form1_.tags;
  const core::Track& track = table_.track(table_.currentRow);
  const bool first = track.imaid3v1.isTrue();
  const bool second = track.imaid3v2.isTrue();
  if (first) {
    tags.viewID3v1.setEnabled(true);
    if (chosen.id3v1 || !second) tags.viewID3v1.setChosen(true);
  }
  if (second) {
    tags.viewID3v2.setEnabled(true);
    if (chosen.id3v2 || !tags.viewID3v1.chosen()) tags.viewID3v2.setChosen(true);
  }
  onlyFirst_ = first && !second && !chosen.id3v1;
  showTags();
}

void FilePanel::showTags() {
  const core::Track& track = table_.track(table_.currentRow);
  const ui::TagPanel& tags = form1_.tags;
  if (tags.viewID3v2.chosen())
    shown_ = {track.pesmaid3v2.text(),  track.pevacID3v2.text(),     track.albumid3v2.text(),
              track.godinaid3v2.text(), track.brojtrakeid3v2.text(), track.vrstaid3v2.text()};
  else if (tags.viewID3v1.chosen())
    shown_ = {track.pesmaid3v1.text(),  track.pevacID3v1.text(),     track.albumid3v1.text(),
              track.godinaid3v1.text(), track.brojtrakeid3v1.text(), track.vrstaid3v1.text()};
  else
    shown_ = {};
  forEachField(form1_, [this](auto& box, const ui::CheckBox& check, auto field) {
    if (check.checked()) return;
    const Text value = (shown_.*field).value_or(Text());
    // A batch shows each song several times over, mostly with what the boxes hold already.
    if (box.text() != value)
      box.setText(value);
    else if constexpr (requires { box.setCursor(0); })
      box.setCursor(core::length(box.text()));
  });
}

FieldValues FilePanel::changed() const {
  FieldValues values;
  forEachField(form1_, [&](const auto& box, const ui::CheckBox&, auto field) {
    if (box.text() != (shown_.*field).value_or(Text())) values.*field = box.text();
  });
  return values;
}

void FilePanel::showName(int row) {
  const core::Track& track = table_.track(row);
  form1_.Text1.setText(core::paths::bareName(track.nizdes.text()));
  form1_.Text8.setText(track.pevac.text());
  form1_.Text5.setText(track.pesma.text());
}

void FilePanel::clear() {
  clearLabels();
  clearTags();
  form1_.path.setText({});
  for (ui::TextBox* box : {&form1_.Text1, &form1_.Text8, &form1_.Text5}) box->setText({});
}

bool FilePanel::shows(int row) const {
  return table_.hasRow(row) && form1_.path.text() == table_.path(row);
}

}  // namespace velmora::tags
