#include "newmusic/move_summary.h"

#include <cstdint>

#include "core/number_text.h"
#include "core/paths.h"
#include "list/file_sizes.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::newmusic {

namespace {

constexpr ui::Colour tooLittleRoom{255, 50, 0};
constexpr ui::Colour enoughRoom{0x40, 0x40, 0x40};

}  // namespace

void MoveSummary::moze() {
  ui::Form2& form2 = parts_.windows.form2;
  const int files = parts_.table.brojfajlova();
  form2.newLabel.setText(u"New: " + core::plain(std::int64_t{files}));
  const double need = NeedBytes();
  form2.needLabel.setText(u"Need: " + core::sizeText(need));
  if (const Text& root = parts_.lists.root(); !root.empty()) {
    const double free = FreeBytes();
    form2.freeLabel.setText(u"Free(" + volumeOf(root) + u":) " + core::sizeText(free));
    form2.freeLabel.setColour(free < need ? tooLittleRoom : enoughRoom);
  }
  ui::Label& caption = parts_.windows.dialog1.text;
  if (files > 0 || caption.text() != u"Moving ...") return;
  // Said once: the caption stays behind when its command has ended.
  caption.setText({});
  parts_.dialogs.message(
      u"Congratulations, you was successfully moved all new music files into Music Base folder. ", u"Move",
      platform::Buttons::Ok, platform::Icon::Information);
  parts_.windows.form3.showNewMusic.setEnabled(false);
  if (onAllMoved) onAllMoved();
}

double MoveSummary::NeedBytes() {
  const Text& root = parts_.lists.root();
  const Text baseVolume = root.empty() ? Text() : volumeOf(root);
  double bytes = 0;
  TextView folder;
  bool elsewhere = false;
  for (int row = 1; row <= parts_.table.workingRows(); ++row) {
    const Text& path = parts_.table.path(row);
    // Neighbouring rows mostly share their folder.
    if (const TextView here = core::paths::folderPart(path); row == 1 || here != folder) {
      folder = here;
      elsewhere = root.empty() || volumeOf(Text(folder)) != baseVolume;
    }
    if (elsewhere) bytes += sizeOf(path);
  }
  return bytes;
}

double MoveSummary::FreeBytes() const {
  try {
    return static_cast<double>(parts_.files.freeBytes(parts_.lists.root()));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    return 0;
  }
}

void MoveSummary::forget() {
  volumes_.clear();
  sizes_.clear();
}

/// A folder whose volume cannot be told lies on none.
const Text& MoveSummary::volumeOf(const Text& folder) {
  const auto [place, added] = volumes_.try_emplace(folder);
  if (added) {
    try {
      place->second = parts_.files.volumeOf(folder);
    } catch (const platform::FileError& error) {
      platform::caughtSilently(error);
      // It counts as lying elsewhere.
    }
  }
  return place->second;
}

double MoveSummary::sizeOf(const Text& path) {
  const auto [place, added] = sizes_.try_emplace(path);
  if (added) place->second = list::bytesOf(parts_.files, path);
  return place->second;
}

}  // namespace velmora::newmusic
