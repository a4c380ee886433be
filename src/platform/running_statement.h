// What the thread that runs a connection's statements and those that cancel them have in common.
#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <string>

namespace kestrelix {

/// Whether a connection runs a statement now, and whether that one has been cancelled. cancel() may come from
/// any thread, all else is the connection's own. A back end wraps every statement in a Run and every call in
/// it that can take long in a Call.
class RunningStatement {
 public:
  /// A statement runs from here until this goes. Runs nest: a row can lead to another statement.
  class Run {
   public:
    explicit Run(RunningStatement& statement) : statement_(statement) { statement_.begin(); }
    ~Run() { statement_.end(); }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

   private:
    RunningStatement& statement_;
  };

  /// Until this goes `stop` ends what the thread waits for; it is called on the thread that cancels, never
  /// before the beginning and never behind the end. Throws Cancelled, with the statement's `text`, where the
  /// statement has been cancelled already.
  class Call {
   public:
    Call(RunningStatement& statement, std::function<void()> stop, const std::string& text)
        : statement_(statement) {
      statement_.enter(std::move(stop), text);
    }
    ~Call() { statement_.leave(); }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

   private:
    RunningStatement& statement_;
  };

  /// Cancels the statement that runs, which keeps to that until its end; does nothing when none runs.
  void cancel();
  bool cancelled() const { return cancelled_; }
  /// Throws Cancelled, with the statement's `text`, if it has been cancelled.
  void check(const std::string& text) const;

 private:
  void begin();
  void end();
  void enter(std::function<void()> stop, const std::string& text);
  void leave();

  // A stop that runs holds up the end of its call, and with it the next statement, which it must not hit.
  std::mutex mutex_;
  int runs_ = 0;
  std::function<void()> stop_;
  std::atomic<bool> cancelled_ = false;
};

}  // namespace kestrelix
