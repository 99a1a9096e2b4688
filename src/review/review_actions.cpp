#include "review/review_actions.h"

namespace velmora::review {

void ReviewActions::next() {
  state_.nextPressed = true;
}

void ReviewActions::previous() {
  form1_.Timer1.setOn(false);
  state_.leaveReview = true;
  state_.goBack = true;
}

void ReviewActions::exit() {
  table_.Stop = true;
  state_.stopPressed = false;
  state_.undoPressed = false;
  form1_.List3.setVisible(false);
  state_.goBack = false;
  state_.leaveReview = true;
}

void ReviewActions::undone() {
  if (!state_.waiting) return;
  state_.undoPressed = true;
  state_.leaveReview = true;
}

}  // namespace velmora::review
