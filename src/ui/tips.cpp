#include "ui/tips.h"

#include <algorithm>
#include <optional>

#include "core/records.h"
#include "core/text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::ui {

namespace {

constexpr TextView key = u"showtipsasstartup";

constexpr TextView missingFile =
    u"That the TIPOFDAY.TXT file was not found? \r\n"
    u"Create a text file named TIPOFDAY.TXT using NotePad with 1 tip per line. "
    u"Then place it in the same directory as the application. ";

BytesView withoutByteOrderMark(BytesView bytes) {
  constexpr BytesView mark = "\xEF\xBB\xBF";
  return bytes.starts_with(mark) ? bytes.substr(mark.size()) : bytes;
}

Text tipOf(BytesView line) {
  if (!line.starts_with('"')) return Text(core::trim(core::fromBytes(line)));
  core::records::Reader reader(line);
  const std::optional<core::Element> record = reader.next();
  return record ? record->text() : Text();
}

std::vector<Text> tipsOf(BytesView bytes) {
  std::vector<Text> tips;
  bytes = withoutByteOrderMark(bytes);
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
    Text tip = tipOf(bytes.substr(0, end));
    if (!tip.empty()) tips.push_back(std::move(tip));
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
  return tips;
}

}  // namespace

bool showsTipsAtStartup(const core::Settings& settings) {
  const Text value = settings.get(key);
  return value.empty() || value == u"True";
}

void storeShowTipsAtStartup(core::Settings& settings, bool show) {
  if (show != showsTipsAtStartup(settings)) settings.setBoolean(key, show);
}

Tips::Tips(core::Settings& settings, platform::Files& files, platform::Desktop& desktop, FrmTip& window)
    : settings_(settings), files_(files), desktop_(desktop), window_(window) {}

void Tips::load(const Text& path) {
  window_.showAtStartup.setChecked(showsTipsAtStartup(settings_));
  tips_.clear();
  index_ = 0;
  try {
    tips_ = tipsOf(files_.readAll(path));
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // Told in the window, below.
  }
  if (tips_.empty()) return window_.tip.setText(missingFile);
  const int count = static_cast<int>(tips_.size());
  index_ = std::clamp(static_cast<int>(count * desktop_.random()) + 1, 1, count);
  showTip();
}

void Tips::next() {
  if (tips_.empty()) return;
  index_ = index_ < static_cast<int>(tips_.size()) ? index_ + 1 : 1;
  showTip();
}

void Tips::showAtStartupClicked() {
  storeShowTipsAtStartup(settings_, window_.showAtStartup.checked());
}

void Tips::showTip() {
  window_.tip.setText(tips_[static_cast<std::size_t>(index_ - 1)]);
}

}  // namespace velmora::ui
