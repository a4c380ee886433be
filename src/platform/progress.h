#pragma once

namespace kestrelix {

/// Tells the user that an action runs and how far it has come. Nothing of the windows reacts meanwhile: an
/// implementation may show something, but must handle no event. The one here shows nothing.
class Progress {
 public:
  virtual ~Progress() = default;

  /// An action begins. Actions nest, since choosing an instance selects its first pair.
  virtual void begin() {}
  /// The pair about to be read, from 1 to `pairs`.
  virtual void step([[maybe_unused]] int pair, [[maybe_unused]] int pairs) {}
  virtual void end() {}
};

/// An action of the user, from its event to its end.
class Action {
 public:
  explicit Action(Progress& progress) : progress_(progress) { progress_.begin(); }
  ~Action() { progress_.end(); }
  Action(const Action&) = delete;
  Action& operator=(const Action&) = delete;

 private:
  Progress& progress_;
};

}  // namespace kestrelix
