#include "tests/support/headless_velmora.h"

namespace velmora::test {

HeadlessVelmora::HeadlessVelmora()
    : trash(faults, folder.path(u"trash")), settings(files, folder.path(u"program/Settings.ini")) {
  folder.mkdir(u"program");
  folder.mkdir(u"music");
  settings.set(u"showtipsasstartup", u"False");
  build();
}

HeadlessVelmora::~HeadlessVelmora() = default;

void HeadlessVelmora::build() {
  app_.reset();
  app_ = std::make_unique<app::Velmora>(
      app::Services{.files = faults, .trash = trash, .dialogs = dialogs, .desktop = desktop, .media = media},
      app::Folders{.program = programFolder(), .shipped = folder.path(u"shipped")});
  app_->onEnd = [this] { ++ends; };
}

Text HeadlessVelmora::song(TextView name, BytesView bytes) const {
  return folder.write(u"music/" + Text(name), bytes);
}

void HeadlessVelmora::start() {
  app_->start();
}

void HeadlessVelmora::restart() {
  app_->requestEnd();
  build();
  app_->start();
}

void HeadlessVelmora::startInProcessingWindow() {
  start();
  if (!form1().visible()) form3().showProcessingWindow.click();
}

void HeadlessVelmora::startWithMusic() {
  startInProcessingWindow();
  addFolder(folder.path(u"music/in"));
}

std::string HeadlessVelmora::shown() {
  std::string names;
  if (form1().visible()) names += "processing";
  if (form3().visible()) names += names.empty() ? "base" : ", base";
  if (windows().form2.visible()) names += names.empty() ? "new music" : ", new music";
  return names;
}

void HeadlessVelmora::addFolder(const Text& path) {
  dialogs.expectFolder(u"Select folder where are music for add on list.", path);
  form1().addFolder.click();
}

}  // namespace velmora::test
