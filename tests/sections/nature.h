// What a column of a statement can be, told from the expression that computes it.
#pragma once

#include <functional>
#include <string_view>

#include "oracle_sql/syntax/tree.h"

namespace kestrelix::testing_support {

enum class Nature {
  Constant,    ///< literals, binds that are arguments: they tell nothing
  Text,        ///< a text column
  Moment,      ///< a date
  State,       ///< a figure as a snapshot has it
  Growth,      ///< the end's figure less the start's
  Duration,    ///< a date less another
  PerSecond,   ///< divided by a duration
  Quotient,    ///< a growth for each of another
  OfStates,    ///< a quotient that a state has part in
  Percentage,  ///< 100 times a quotient
  Mixed,       ///< different ones in different rows or branches
};

const char* nameOf(Nature nature);

/// The nature of a bind's value; Constant where it is an argument.
using BindNatures = std::function<Nature(std::string_view name)>;

/// The nature of an output column of a resolved query.
Nature natureOf(const oracle_sql::Query& query, std::size_t column, const BindNatures& binds);

}  // namespace kestrelix::testing_support
