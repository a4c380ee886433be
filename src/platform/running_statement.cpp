#include "platform/running_statement.h"

#include "platform/cancelled.h"

namespace kestrelix {

void RunningStatement::cancel() {
  const std::lock_guard lock(mutex_);
  if (runs_ == 0) return;
  cancelled_ = true;
  if (stop_) stop_();
}

void RunningStatement::check(const std::string& text) const {
  if (cancelled_) throw Cancelled(text);
}

void RunningStatement::begin() {
  const std::lock_guard lock(mutex_);
  ++runs_;
}

void RunningStatement::end() {
  const std::lock_guard lock(mutex_);
  if (--runs_ == 0) cancelled_ = false;
}

void RunningStatement::enter(std::function<void()> stop, const std::string& text) {
  const std::lock_guard lock(mutex_);
  check(text);
  stop_ = std::move(stop);
}

void RunningStatement::leave() {
  const std::lock_guard lock(mutex_);
  stop_ = nullptr;
}

}  // namespace kestrelix
