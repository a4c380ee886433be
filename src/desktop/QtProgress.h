#pragma once

#include <QPointer>
#include <QWidget>
#include <chrono>
#include <functional>

#include "platform/progress.h"

namespace kestrelix {

/// A slim bar with the pair and their number in it: "37 / 719".
class PairBar final : public QWidget {
 public:
  /// `grid` and the bar share their window; the bar lies over the grid's lower edge, hidden at first.
  explicit PairBar(QWidget& grid);
  /// Shows at once, ahead of the event loop, which stands still.
  void display(int pair, int pairs);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget& grid_;
  int pair_ = 0;
  int pairs_ = 0;
};

/// The pointer waits while an action runs; one that reads pairs for longer than 300 ms shows how far it is.
/// Only the bar is painted meanwhile: no event is handled, neither the user's nor the window system's.
class QtProgress final : public Progress {
 public:
  using Time = std::chrono::steady_clock::time_point;

  explicit QtProgress(std::function<Time()> clock) : clock_(std::move(clock)) {}

  /// From here on the bar shows over this grid, as long as it lives.
  void showOver(QWidget& grid) { bar_ = new PairBar(grid); }

  void begin() override;
  bool step(std::int64_t pair, std::int64_t pairs) override;
  void end() override;

 private:
  void show(int pair, int pairs);

  std::function<Time()> clock_;
  QPointer<PairBar> bar_;
  int depth_ = 0;  // actions within one another
  Time begun_;
  Time painted_;
};

}  // namespace kestrelix
