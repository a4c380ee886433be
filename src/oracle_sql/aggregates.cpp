#include "oracle_sql/aggregates.h"

namespace oracle_sql {
namespace {

bool lessValue(const Value& a, const Value& b) {
  if (a.kind() != b.kind()) {
    return a.kind() < b.kind();
  }
  switch (a.kind()) {
    case Value::Kind::Number:
      return compare(a.number(), b.number()) < 0;
    case Value::Kind::Date:
      return a.date() < b.date();
    case Value::Kind::Text:
    case Value::Kind::Raw:
      return a.bytes() < b.bytes();
    case Value::Kind::Null:
      break;
  }
  return false;
}

// A value that keeps its bytes beyond the row that it came from.
Value kept(const Value& value) {
  if (value.isText()) {
    return Value::text(std::string(value.bytes()));
  }
  return value.isRaw() ? Value::raw(std::string(value.bytes())) : value;
}

Value root(const Value& squared) { return squared.isNull() ? squared : Value(sqrt(squared.number())); }

}  // namespace

void SumAccumulator::step(const Number& number) {
  sum_ = sum_ + number;
  ++count_;
}

void SumAccumulator::inverse(const Number& number) {
  step(-number);
  count_ -= 2;
}

void SumAccumulator::step(const Value& value) {
  if (!value.isNull()) {
    step(toNumber(value));
  }
}

void SumAccumulator::inverse(const Value& value) {
  if (!value.isNull()) {
    inverse(toNumber(value));
  }
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
  if (exact_) {
    return;
  }
  sum_ = Number();
  exact_ = true;
  for (const Number& number : numbers_) {
    add(number);
  }
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

void VarianceAccumulator::step(const Value& value) {
  if (!value.isNull()) {
    const Number number = toNumber(value);
    sum_ = sum_ + number;
    squares_ = squares_ + number * number;
    ++count_;
  }
}

void VarianceAccumulator::inverse(const Value& value) {
  if (!value.isNull()) {
    const Number number = toNumber(value);
    sum_ = sum_ - number;
    squares_ = squares_ - number * number;
    --count_;
  }
}

// (sum of squares - square of the sum / count) / divisor, never below 0 by rounding.
Number VarianceAccumulator::spread(std::int64_t divisor) const {
  const Number difference = squares_ - sum_ * sum_ / Number(count_);
  return difference.isNegative() ? Number() : difference / Number(divisor);
}

Value VarianceAccumulator::variance() const { return count_ == 1 ? Value(0) : sampleVariance(); }

Value VarianceAccumulator::standardDeviation() const { return root(variance()); }

Value VarianceAccumulator::sampleDeviation() const { return root(sampleVariance()); }

Value VarianceAccumulator::populationDeviation() const { return root(populationVariance()); }

Value VarianceAccumulator::sampleVariance() const { return count_ < 2 ? Value() : Value(spread(count_ - 1)); }

Value VarianceAccumulator::populationVariance() const {
  return count_ == 0 ? Value() : Value(spread(count_));
}

void ExtremeAccumulator::step(const Value& value) {
  if (value.isNull()) {
    return;
  }
  if (minimum_.isNull() || lessValue(value, minimum_)) {
    minimum_ = kept(value);
  }
  if (maximum_.isNull() || lessValue(maximum_, value)) {
    maximum_ = kept(value);
  }
}

bool MovingExtremeAccumulator::Less::operator()(const Value& a, const Value& b) const {
  return lessValue(a, b);
}

void MovingExtremeAccumulator::step(const Value& value) {
  if (!value.isNull()) {
    ++counts_.try_emplace(kept(value), 0).first->second;
  }
}

void MovingExtremeAccumulator::inverse(const Value& value) {
  const auto found = counts_.find(value);
  if (found != counts_.end() && --found->second == 0) {
    counts_.erase(found);
  }
}

Value MovingExtremeAccumulator::minimum() const { return counts_.empty() ? Value() : counts_.begin()->first; }

Value MovingExtremeAccumulator::maximum() const {
  return counts_.empty() ? Value() : counts_.rbegin()->first;
}

}  // namespace oracle_sql
