#pragma once

namespace velmora::review {

/// The picture that moves while a review searches and stands still while it waits for the user.
class Animation {
 public:
  virtual ~Animation() = default;
  /// The review begins: loads the picture and lets it move. One that cannot be loaded leaves the place empty.
  virtual void begin() = 0;
  virtual void pause() = 0;
  virtual void restart() = 0;
  /// The review is over.
  virtual void end() = 0;
};

/// No picture at all.
class NoAnimation final : public Animation {
 public:
  void begin() override {}
  void pause() override {}
  void restart() override {}
  void end() override {}
};

}  // namespace velmora::review
