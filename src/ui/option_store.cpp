#include "ui/option_store.h"

#include <array>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"

namespace velmora::ui {

namespace {

using Extension = Form5::Extension;

/// One stored mark: its key, its control and the state that the window has before the first save.
template <typename Mark>
struct Stored {
  TextView key;
  Mark* mark;
  bool atDesign;
};

bool isOn(const CheckBox& box) {
  return box.checked();
}
bool isOn(const OptionButton& option) {
  return option.chosen();
}
void turn(CheckBox& box, bool on) {
  box.setChecked(on);
}
void turn(OptionButton& option, bool on) {
  option.setChosen(on);
}

/// Written as "True" and "False"; a number is understood as well, since a hand may have written it.
bool meansTrue(TextView value) {
  return core::equalNoCase(core::trim(value), u"True") || core::value(value) != 0;
}

template <typename Row>
void toDesign(const Row& stored) {
  turn(*stored.mark, stored.atDesign);
}

template <typename Row>
void load(const core::Settings& settings, const Row& stored) {
  const Text value = settings.get(stored.key);
  if (!value.empty()) turn(*stored.mark, meansTrue(value));
}

template <typename Rows>
void loadAll(const core::Settings& settings, const Rows& rows) {
  for (const auto& row : rows) toDesign(row);
  for (const auto& row : rows) load(settings, row);
}

template <typename Rows>
void saveAll(core::Settings& settings, const Rows& rows) {
  for (const auto& row : rows) settings.setBoolean(row.key, isOn(*row.mark));
}

constexpr TextView refreshKey = u"ex7";

struct ExtensionKey {
  TextView key;
  TextView atDesign;  ///< empty for a free row, which is off
};

/// In the order of Form5::extensions.
constexpr std::array<ExtensionKey, 12> extensionKeys = {{{u"ex1a", u"mp3"},
                                                         {u"ex2", u"mp2"},
                                                         {u"ex3", u"mp1"},
                                                         {u"ex4", u"wma"},
                                                         {u"ex5", u"wav"},
                                                         {u"ex6", u"ogg"},
                                                         {u"ex8", u""},
                                                         {u"ex9", u""},
                                                         {u"ex10", u""},
                                                         {u"ex11", u""},
                                                         {u"ex12", u""},
                                                         {u"ex13", u""}}};

constexpr int stateLength = 2;  // " 1" or " 0" in front of the extension

TextView stateText(bool on) {
  return on ? u" 1" : u" 0";
}

bool readState(TextView value) {
  return core::value(core::left(value, stateLength)) != 0;
}

auto form6Checks(Form6& form) {
  return std::array<Stored<CheckBox>, 12>{{{u"fix1a", &form.fix1a, true},
                                           {u"fixj2", &form.fixj2, true},
                                           {u"fixj3", &form.fixj3, true},
                                           {u"fix4", &form.fix4, true},
                                           {u"fix5", &form.fix5, true},
                                           {u"fix6", &form.fix6, true},
                                           {u"fix7", &form.fix7, false},
                                           {u"fix8", &form.fix8, false},
                                           {u"fix9", &form.fix9, true},
                                           {u"fix11", &form.fix11, true},
                                           {u"fix12", &form.fix12, true},
                                           {u"fix16", &form.fix16, false}}};
}

auto form6Options(Form6& form) {
  return std::array<Stored<OptionButton>, 2>{{{u"fixo7", &form.fixo7, true}, {u"fixo8", &form.fixo8, false}}};
}

auto dialog2Checks(Dialog2& dialog) {
  return std::array<Stored<CheckBox>, 6>{{{u"fix2", &dialog.fix2, true},
                                          {u"fix3", &dialog.fix3, true},
                                          {u"fix10", &dialog.fix10, false},
                                          {u"fix13", &dialog.fix13, false},
                                          {u"fix14", &dialog.fix14, true},
                                          {u"fix15", &dialog.fix15, true}}};
}

auto dialog2Options(Dialog2& dialog) {
  return std::array<Stored<OptionButton>, 6>{{{u"fixo1", &dialog.fixo1, false},
                                              {u"fixo2", &dialog.fixo2, true},
                                              {u"fixo3", &dialog.fixo3, false},
                                              {u"fixo4", &dialog.fixo4, false},
                                              {u"fixo5", &dialog.fixo5, true},
                                              {u"fixo6", &dialog.fixo6, false}}};
}

}  // namespace

OptionStore::OptionStore(core::Settings& settings, Windows& windows)
    : settings_(settings), windows_(windows) {
  for (std::size_t i = 0; i < extensionKeys.size(); ++i) {
    Extension& extension = windows_.form5.extensions[i];
    extension.text.setText(extensionKeys[i].atDesign);
    extension.check.setChecked(!extensionKeys[i].atDesign.empty());
  }
  windows_.form5.refreshOldMusicList.setChecked(true);
  for (const auto& stored : form6Checks(windows_.form6)) toDesign(stored);
  for (const auto& stored : form6Options(windows_.form6)) toDesign(stored);
  for (const auto& stored : dialog2Checks(windows_.dialog2)) toDesign(stored);
  for (const auto& stored : dialog2Options(windows_.dialog2)) toDesign(stored);
}

void OptionStore::loadForm5() {
  Form5& form = windows_.form5;
  for (std::size_t i = 0; i < extensionKeys.size(); ++i) {
    Extension& extension = form.extensions[i];
    const Text value = settings_.get(extensionKeys[i].key);
    const bool stored = core::length(value) >= stateLength;
    extension.check.setChecked(stored ? readState(value) : !extensionKeys[i].atDesign.empty());
    extension.text.setText(stored ? value.substr(stateLength) : Text(extensionKeys[i].atDesign));
  }
  const Text refresh = settings_.get(refreshKey);
  form.refreshOldMusicList.setChecked(refresh.empty() || readState(refresh));
}

void OptionStore::saveForm5() {
  const core::Settings::Together together(settings_);
  const Form5& form = windows_.form5;
  for (std::size_t i = 0; i < extensionKeys.size(); ++i) {
    const Extension& extension = form.extensions[i];
    settings_.set(extensionKeys[i].key, Text(stateText(extension.check.checked())) + extension.text.text());
  }
  settings_.set(refreshKey, stateText(form.refreshOldMusicList.checked()));
}

void OptionStore::loadForm6() {
  loadAll(settings_, form6Checks(windows_.form6));
  loadAll(settings_, form6Options(windows_.form6));
}

void OptionStore::saveForm6() {
  const core::Settings::Together together(settings_);
  saveAll(settings_, form6Checks(windows_.form6));
  saveAll(settings_, form6Options(windows_.form6));
}

void OptionStore::loadForm7() {
  Form7& form = windows_.form7;
  const Text similar = settings_.get(u"dupli");
  const Text same = settings_.get(u"duplk");
  if (meansTrue(same)) {
    form.completeTheSame.setChosen(true);
  } else if (!similar.empty() && !same.empty() && !meansTrue(similar)) {
    form.differentFilename.setChosen(true);
  } else {
    form.similarFilename.setChosen(true);
  }
  ruleOfForm7Chosen();
}

void OptionStore::saveForm7() {
  const core::Settings::Together together(settings_);
  const Form7& form = windows_.form7;
  settings_.setBoolean(u"dupli", form.similarFilename.chosen());
  settings_.setBoolean(u"duplk", form.completeTheSame.chosen());
  // Under "Different filename" the tick is forced, so what the user last chose stays stored.
  if (!form.differentFilename.chosen()) settings_.setBoolean(u"samefs", form.sameFilesize.checked());
}

void OptionStore::ruleOfForm7Chosen() {
  Form7& form = windows_.form7;
  const bool forced = form.differentFilename.chosen();
  form.sameFilesize.setChecked(forced || meansTrue(settings_.get(u"samefs")));
  form.sameFilesize.setEnabled(!forced);
}

void OptionStore::loadDialog2() {
  loadAll(settings_, dialog2Checks(windows_.dialog2));
  loadAll(settings_, dialog2Options(windows_.dialog2));
}

void OptionStore::saveDialog2() {
  const core::Settings::Together together(settings_);
  saveAll(settings_, dialog2Checks(windows_.dialog2));
  saveAll(settings_, dialog2Options(windows_.dialog2));
}

}  // namespace velmora::ui
