#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QObject>

#include "ui/observable.h"

namespace velmora::qt {

/// Brings widgets in step with the models they show: once per turn of the event loop, however often a model
/// changed meanwhile. Must outlive every owner that watches through it, and the models must outlive the
/// owners.
class Refresher : public QObject {
  Q_OBJECT

 public:
  enum class Pace {
    PerTurn,    ///< once for all changes of a turn
    EachChange  ///< at every change, from within it: for what must show while no events are handled
  };

  Refresher();
  ~Refresher() override;

  /// Calls `refresh` now, and after changes of `model`, until `owner` is destroyed. A model may have several
  /// owners.
  void watch(ui::Observable& model, QObject* owner, std::function<void()> refresh, Pace pace = Pace::PerTurn);

  /// Runs what is due, so that the widgets show what the models say. Called before the user's input is
  /// handled.
  void flush();

 protected:
  bool event(QEvent* event) override;

 private:
  struct Watch {
    const QObject* owner;
    std::function<void()> refresh;
    Pace pace;
  };
  struct Watched {
    std::vector<std::shared_ptr<Watch>> watches;
    bool due = false;
  };
  void modelChanged(ui::Observable& model, Watched& watched);
  void forget(ui::Observable& model, const QObject* owner);

  std::unordered_map<ui::Observable*, std::unique_ptr<Watched>> watched_;
  std::vector<ui::Observable*> due_;
  bool posted_ = false;
};

}  // namespace velmora::qt
