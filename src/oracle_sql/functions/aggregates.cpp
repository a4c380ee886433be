#include "oracle_sql/functions/aggregates.h"

namespace oracle_sql {
void SumAccumulator::step(const Number& number) {
  sum_ = sum_ + number;
  ++count_;
}

void SumAccumulator::inverse(const Number& number) {
  step(-number);
  count_ -= 2;
}

Value SumAccumulator::sum() const { return count_ == 0 ? Value() : Value(sum_); }

Value SumAccumulator::average() const { return count_ == 0 ? Value() : Value(sum_ / Number(count_)); }

void MovingSumAccumulator::add(const Number& number) {
  const Number sum = sum_ + number;
  // One of the two differences shows what rounding lost: the one that gives the smaller of both.
  exact_ = exact_ && sum - number == sum_ && sum - sum_ == number;
  sum_ = sum;
}

void MovingSumAccumulator::settle() {
  if (exact_) return;
  sum_ = Number();
  exact_ = true;
  for (const Number& number : numbers_) add(number);
}

void MovingSumAccumulator::step(const Number& number) {
  numbers_.push_back(number);
  add(number);
}

void MovingSumAccumulator::inverse(const Number& number) {
  numbers_.pop_front();
  add(-number);
}

Value MovingSumAccumulator::sum() {
  settle();
  return numbers_.empty() ? Value() : Value(sum_);
}

Value MovingSumAccumulator::average() {
  settle();
  return numbers_.empty() ? Value() : Value(sum_ / Number(static_cast<std::int64_t>(numbers_.size())));
}

void VarianceAccumulator::step(const Number& number) {
  sum_ = sum_ + number;
  squares_ = squares_ + number * number;
  ++count_;
}

void VarianceAccumulator::inverse(const Number& number) {
  sum_ = sum_ - number;
  squares_ = squares_ - number * number;
  --count_;
}

/// (sum of squares - square of the sum / count) / (count - 1), never below 0 by rounding.
Value VarianceAccumulator::variance() const {
  if (count_ < 2) return count_ == 0 ? Value() : Value(0);
  const Number difference = squares_ - sum_ * sum_ / Number(count_);
  return difference.isNegative() ? Number() : difference / Number(count_ - 1);
}

Value VarianceAccumulator::standardDeviation() const {
  const Value squared = variance();
  return squared.isNull() ? squared : Value(sqrt(squared.number()));
}

void MovingExtremeAccumulator::step(const Number& number) { ++counts_[number]; }

void MovingExtremeAccumulator::inverse(const Number& number) {
  const auto found = counts_.find(number);
  if (found != counts_.end() && --found->second == 0) counts_.erase(found);
}

Value MovingExtremeAccumulator::minimum() const { return counts_.empty() ? Value() : counts_.begin()->first; }

Value MovingExtremeAccumulator::maximum() const {
  return counts_.empty() ? Value() : counts_.rbegin()->first;
}

}  // namespace oracle_sql
