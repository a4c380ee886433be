#pragma once

#include <cstdint>

#include "platform/cancelled.h"

namespace kestrelix {

/// Tells the user that an action runs and how far it has come, and answers whether it is to go on. Nothing of
/// the windows reacts meanwhile: an implementation may show something, but must handle no event. The one here
/// shows nothing and never ends an action.
class Progress {
 public:
  virtual ~Progress() = default;

  /// An action begins. Actions nest, since choosing an instance selects its first pair.
  virtual void begin() {}
  /// How far the action is, in whatever it counts: the pair about to be read, from 1 to `all` of them, or the
  /// bytes, tables or snapshots that are `done`. Called often, on the action's thread. False when the action
  /// is to end; it throws Cancelled then. Throws nothing itself.
  virtual bool step([[maybe_unused]] std::int64_t done, [[maybe_unused]] std::int64_t all) { return true; }
  virtual void end() {}

  /// For an action that nobody watches.
  static Progress& none() {
    static Progress untold;
    return untold;
  }
};

/// The step of an action that has nothing to put right when it ends here: throws Cancelled if it is to.
inline void advance(Progress& progress, std::int64_t done, std::int64_t all) {
  if (!progress.step(done, all)) throw Cancelled();
}

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
