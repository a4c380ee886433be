#pragma once

#include <cstdint>
#include <deque>
#include <map>

#include "oracle_sql/value.h"

namespace oracle_sql {

// SUM, AVG and COUNT over a group or a moving window. NULLs are passed over. Zeroed memory is an empty one.
class SumAccumulator {
 public:
  void step(const Value& value);     // ORA-01722 for text that is no number
  void inverse(const Value& value);  // takes back a value given to step
  void step(const Number& number);
  void inverse(const Number& number);
  Value sum() const;      // NULL over nothing
  Value average() const;  // NULL over nothing
  std::int64_t count() const { return count_; }

 private:
  Number sum_;  // rounded at each row, in the order of the rows
  std::int64_t count_ = 0;
};

// SUM and AVG over a window whose begin moves too. What a rounded sum takes back would leave a trace of the
// rows that are gone, so the rows of such a window are kept and added anew.
class MovingSumAccumulator {
 public:
  void step(const Number& number);
  void inverse(const Number& number);  // takes back the oldest one
  Value sum();                         // NULL over nothing
  Value average();                     // NULL over nothing

 private:
  void add(const Number& number);
  void settle();

  std::deque<Number> numbers_;
  Number sum_;
  bool exact_ = true;  // sum_ was never rounded
};

// VARIANCE and STDDEV, of a sample; 0 for one value, NULL over nothing.
class VarianceAccumulator {
 public:
  void step(const Value& value);
  void inverse(const Value& value);
  Value variance() const;             // 0 for a single value
  Value standardDeviation() const;    // 0 for a single value
  Value sampleVariance() const;       // VAR_SAMP: NULL for a single value
  Value populationVariance() const;   // VAR_POP
  Value sampleDeviation() const;      // STDDEV_SAMP: NULL for a single value
  Value populationDeviation() const;  // STDDEV_POP

 private:
  Number spread(std::int64_t divisor) const;

  Number sum_;
  Number squares_;
  std::int64_t count_ = 0;
};

// MIN and MAX of numbers, dates, text (by its bytes) or RAW over a group.
class ExtremeAccumulator {
 public:
  void step(const Value& value);
  const Value& minimum() const { return minimum_; }  // NULL over nothing
  const Value& maximum() const { return maximum_; }

 private:
  Value minimum_;
  Value maximum_;
};

// The same over a window whose begin moves too.
class MovingExtremeAccumulator {
 public:
  void step(const Value& value);
  void inverse(const Value& value);
  Value minimum() const;
  Value maximum() const;

 private:
  struct Less {
    bool operator()(const Value& a, const Value& b) const;
  };
  std::map<Value, std::int64_t, Less> counts_;
};

}  // namespace oracle_sql
