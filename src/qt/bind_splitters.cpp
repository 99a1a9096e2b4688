#include "qt/bind_splitters.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include <QEvent>

#include "qt/twips.h"

namespace velmora::qt {

namespace {

constexpr std::size_t panes = ui::Splitters::lists.size();
// A splitter does not move beyond these, in twips.
constexpr int leastLeft = 690;
constexpr int leastRight = 630;

class SplittersBinding final : public QObject {
 public:
  enum class Role { Leads, Follows };

  SplittersBinding(Refresher& refresher, ui::Splitters& model, QSplitter* splitter, Role role)
      : QObject(splitter), model_(model), splitter_(splitter), role_(role) {
    for (std::size_t i = 0; i < panes; ++i)
      pane(i)->setMinimumWidth(toPixels(i + 1 < panes ? leastLeft : leastRight, splitter));
    splitter->installEventFilter(this);
    connect(splitter, &QSplitter::splitterMoved, this, [this] { moved(); });
    refresher.watch(model, this, [this] { takeOver(); });
  }

  bool eventFilter(QObject*, QEvent* event) override {
    // Behind what the splitter itself makes of it, which has its own idea of who gets the room.
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
      QMetaObject::invokeMethod(
          this, [this] { apply(); }, Qt::QueuedConnection);
    return false;
  }

 private:
  QWidget* pane(std::size_t index) const { return splitter_->widget(static_cast<int>(index)); }

  std::vector<ui::ListPlace> modelPlaces() const {
    std::vector<ui::ListPlace> places;
    for (std::size_t i = 0; i < panes; ++i) places.push_back(model_.place(i));
    return places;
  }

  // Takes what others asked for, unless it is what was reported from here.
  void takeOver() {
    const std::vector<ui::ListPlace> places = modelPlaces();
    if (places == reported_ ||
        std::ranges::any_of(places, [](const auto& place) { return place.width <= 0; }))
      return;
    shares_.clear();
    for (const ui::ListPlace& place : places) shares_.append(place.width);
    apply();
  }

  void moved() {
    shares_ = splitter_->sizes();
    report(role_ == Role::Leads ? 1.0 : leaderWidth() / splitter_->width());
  }

  // As wide as the other window's panes are together, in pixels.
  double leaderWidth() const {
    const ui::ListPlace last = modelPlaces().back();
    return last.width > 0 ? toPixels(last.left + last.width, splitter_) : splitter_->width();
  }

  void apply() {
    if (!splitter_->isVisible()) return;
    splitter_->setSizes(shared(splitter_->width() - splitter_->handleWidth() * static_cast<int>(panes - 1)));
    if (role_ == Role::Leads) report(1.0);
  }

  // Rounded so that nothing of the room is lost.
  QList<int> shared(int room) const {
    const int all = std::accumulate(shares_.begin(), shares_.end(), 0);
    QList<int> sizes;
    int taken = 0;
    int given = 0;
    for (const int share : shares_) {
      taken += share;
      const int upTo = static_cast<int>(std::lround(double(room) * taken / all));
      sizes.append(upTo - given);
      given = upTo;
    }
    return sizes;
  }

  void report(double scale) {
    const auto twips = [&](int pixels) {
      return toTwips(static_cast<int>(std::lround(pixels * scale)), splitter_);
    };
    reported_.clear();
    for (std::size_t i = 0; i < panes; ++i)
      reported_.push_back({twips(pane(i)->x()), twips(pane(i)->width())});
    for (std::size_t i = 0; i < panes; ++i) model_.setPlace(i, reported_[i]);
  }

  ui::Splitters& model_;
  QSplitter* splitter_;
  Role role_;
  QList<int> shares_ = QList<int>(panes, 1);  // of the width, as last asked for, in any unit
  std::vector<ui::ListPlace> reported_;
};

}  // namespace

void bindSplitters(Refresher& refresher, ui::Splitters& model, QSplitter* splitter) {
  new SplittersBinding(refresher, model, splitter, SplittersBinding::Role::Leads);
}

void followSplitters(Refresher& refresher, ui::Splitters& model, QSplitter* splitter) {
  new SplittersBinding(refresher, model, splitter, SplittersBinding::Role::Follows);
}

}  // namespace velmora::qt
