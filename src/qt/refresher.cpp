#include "qt/refresher.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>

namespace velmora::qt {

Refresher::Refresher() = default;

Refresher::~Refresher() {
  for (const auto& [model, watched] : watched_) model->viewChanged = nullptr;
}

void Refresher::watch(ui::Observable& model, QObject* owner, std::function<void()> refresh, Pace pace) {
  std::unique_ptr<Watched>& watched = watched_[&model];
  if (!watched) {
    watched = std::make_unique<Watched>();
    model.viewChanged = [this, &model, found = watched.get()] { modelChanged(model, *found); };
  }
  watched->watches.push_back(std::make_shared<Watch>(Watch{owner, refresh, pace}));
  connect(owner, &QObject::destroyed, this, [this, &model, owner] { forget(model, owner); });
  refresh();
}

void Refresher::modelChanged(ui::Observable& model, Watched& watched) {
  for (std::size_t i = 0; i < watched.watches.size(); ++i) {
    const auto watch = watched.watches[i];
    if (watch->pace == Pace::EachChange) watch->refresh();
  }
  if (watched.due) return;
  watched.due = true;
  due_.push_back(&model);
  if (std::exchange(posted_, true)) return;
  QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void Refresher::forget(ui::Observable& model, const QObject* owner) {
  const auto found = watched_.find(&model);
  if (found == watched_.end()) return;
  auto& watches = found->second->watches;
  std::erase_if(watches, [owner](const auto& watch) {
    if (watch->owner != owner) return false;
    watch->owner = nullptr;  // for a flush that is under way
    return true;
  });
  if (!watches.empty()) return;
  model.viewChanged = nullptr;
  std::erase(due_, &model);
  watched_.erase(found);
}

void Refresher::flush() {
  // A refresh may change other models (a scroll bar that answers); those wait for the next turn.
  for (ui::Observable* model : std::exchange(due_, {})) {
    const auto found = watched_.find(model);
    if (found == watched_.end()) continue;
    found->second->due = false;
    const auto watches = found->second->watches;  // a refresh may end a watch
    for (const auto& watch : watches)
      if (watch->owner && watch->pace == Pace::PerTurn) watch->refresh();
  }
}

bool Refresher::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  posted_ = false;
  flush();
  return true;
}

}  // namespace velmora::qt
