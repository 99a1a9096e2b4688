#pragma once

#include <cstddef>
#include <vector>

#include "platform/dialogs.h"
#include "platform/text.h"

namespace velmora::ui {

/// What a command could not act on: collected while it runs, and said in one message at its end.
class NotDone {
 public:
  /// `why` is the cause in words, such as "Permission denied".
  void add(TextView path, TextView why);
  bool empty() const { return left_.empty(); }
  std::size_t count() const { return left_.size(); }

  /// One message with the number, the causes and the full list as its details, such as "3 files were not
  /// deleted." with `one` "file was not deleted" and `many` "files were not deleted"; nothing when all was
  /// done. Empty afterwards.
  void say(platform::Dialogs& dialogs, TextView title, TextView one, TextView many);

 private:
  struct Left {
    Text path;
    Text why;
  };
  Text causes() const;

  std::vector<Left> left_;
};

}  // namespace velmora::ui
