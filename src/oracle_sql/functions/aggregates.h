// SUM, AVG, VARIANCE and their like, over groups and over windows that move.
#pragma once

#include <cstdint>
#include <deque>
#include <map>

#include "oracle_sql/functions/value.h"

namespace oracle_sql {

/// SUM and AVG over a group or a moving window. Zeroed memory is an empty one.
class SumAccumulator {
 public:
  void step(const Number& number);
  void inverse(const Number& number);  ///< takes back a number given to step
  Value sum() const;                   ///< NULL over nothing
  Value average() const;               ///< NULL over nothing

 private:
  Number sum_;  ///< rounded at each row, in the order of the rows
  std::int64_t count_ = 0;
};

/// SUM and AVG over a window whose begin moves too. What a rounded sum takes back would leave a trace of the
/// rows that are gone, so the rows of such a window are kept and added anew.
class MovingSumAccumulator {
 public:
  void step(const Number& number);
  void inverse(const Number& number);  ///< takes back the oldest one
  Value sum();                         ///< NULL over nothing
  Value average();                     ///< NULL over nothing

 private:
  void add(const Number& number);
  void settle();

  std::deque<Number> numbers_;
  Number sum_;
  bool exact_ = true;  ///< sum_ was never rounded
};

/// VARIANCE and STDDEV, of a sample; 0 for one value, NULL over nothing.
class VarianceAccumulator {
 public:
  void step(const Number& number);
  void inverse(const Number& number);
  Value variance() const;           ///< 0 for a single value
  Value standardDeviation() const;  ///< 0 for a single value

 private:
  Number sum_;
  Number squares_;
  std::int64_t count_ = 0;
};

/// MIN and MAX over a window whose begin moves too.
class MovingExtremeAccumulator {
 public:
  void step(const Number& number);
  void inverse(const Number& number);
  Value minimum() const;  ///< NULL over nothing
  Value maximum() const;  ///< NULL over nothing

 private:
  std::map<Number, std::int64_t> counts_;
};

}  // namespace oracle_sql
