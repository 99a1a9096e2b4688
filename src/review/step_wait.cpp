#include "review/step_wait.h"

#include <cstdint>

#include "core/number_text.h"
#include "review/fly_in.h"

namespace velmora::review {

namespace {

constexpr int linesInSight = 19;
constexpr std::int64_t flyInMilliseconds = 460;

}  // namespace

bool StepWait::inDuplicates() const {
  return parts_.table.vrsta == core::Review::Duplicates ||
         parts_.table.vrsta == core::Review::DuplicatesHalted;
}

bool StepWait::inCheckFix() const {
  return core::inCheckFix(parts_.table.vrsta);
}

bool StepWait::stepWait(int row, StopKind kind, TextView message) {
  ReviewState& state = parts_.state;
  ui::Form1& form1 = parts_.form1;
  const bool halted = state.stopPressed;
  if (!halted && !inDuplicates() && movedOn(row)) return false;
  state.acceptPressed = false;
  state.nextPressed = false;
  if (!halted) beginStop(row);
  form1.review.weight.setText(kind == StopKind::Dalje ? u"Needs your answer" : u"May stay as it is");
  parts_.animation.pause();
  bool accepted = false;
  do {
    state.acceptPressed = false;
    wait(message);
    accepted = state.acceptPressed;
  } while (accepted && !state.leaveReview && inDuplicates() && waitAgain && waitAgain());
  if (state.undoPressed) state.goBack = state.leaveReview = true;
  parts_.animation.restart();
  state.stopPressed = false;
  form1.List6.setEnabled(false);
  form1.review.weight.setText({});
  state.nextPressed = false;
  state.acceptPressed = false;
  if (!state.leaveReview && inCheckFix())
    form1.review.question.setText(u"Checking filenames and ID3 tags. . .");
  return accepted;
}

/// Whether the user has selected another row than the one under review.
bool StepWait::movedOn(int row) const {
  const ui::ListBox& list = parts_.form1.List4;
  return list.SelCount() > 0 && list.selectedIndexes().front() != row - 1;
}

void StepWait::beginStop(int row) {
  ui::Form1& form1 = parts_.form1;
  parts_.table.puniliste = 0;
  if (inCheckFix()) {
    parts_.journal.appendUndoRecord(journal::kind::checkFixStop, core::number(std::int64_t{row}), {});
    parts_.state.stopRecorded = true;
  }
  if (row - form1.List4.TopIndex() > linesInSight) form1.List4.setTopIndex(form1.List4.TopIndex() + 1);
  if (inCheckFix()) {
    form1.List4.select({row - 1}, row - 1);
    const Text path = parts_.table.path(row);
    if (parts_.options.fix16.checked() && !parts_.player.holds(path)) parts_.player.List4DoubleClick();
  } else {
    form1.List4.clearSelection();
  }
  if (onStop) onStop(row);
}

void StepWait::wait(TextView message) {
  ui::Form1& form1 = parts_.form1;
  ReviewState& state = parts_.state;
  const auto untilAnswered = [&] {
    form1.List6.setEnabled(true);
    if (inCheckFix()) form1.List6.takeFocus();
    flyInText(message);
    while (!answered()) {
      parts_.desktop.waitForEvents();
      if (programEnds && programEnds()) state.leaveReview = true;
    }
  };
  state.waiting = true;
  /// The mark goes however the wait is left.
  struct Waiting {
    ReviewState& state;
    ~Waiting() { state.waiting = false; }
  } const waiting{state};
  letCommandsRun ? letCommandsRun(untilAnswered) : untilAnswered();
}

bool StepWait::answered() const {
  const ReviewState& state = parts_.state;
  return state.nextPressed || state.acceptPressed || state.leaveReview || (stopIsOver && stopIsOver());
}

void StepWait::flyInText(TextView text) {
  ui::Label& question = parts_.form1.review.question;
  if (!parts_.desktop.lessMotion()) {
    const std::int64_t begin = parts_.desktop.clockMilliseconds();
    for (int frame = 1; frame < flyInFrames && !answered(); ++frame) {
      const std::int64_t passed = parts_.desktop.clockMilliseconds() - begin;
      if (passed > flyInMilliseconds) break;
      question.setText(flyInFrame(text, flyInFrames - frame));
      const std::int64_t due = flyInMilliseconds * frame / flyInFrames;
      if (due > passed) parts_.desktop.sleep(static_cast<int>(due - passed));
      parts_.desktop.pumpEvents();
    }
  }
  question.setText(text);
}

}  // namespace velmora::review
