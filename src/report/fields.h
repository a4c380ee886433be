// One list of names declares a section object's record: an enumerator for its statements to fill, an accessor
// for its views to show, and the column aliases that are read from the result.
#pragma once

#include <boost/preprocessor/seq/for_each.hpp>
#include <boost/preprocessor/stringize.hpp>
#include <boost/preprocessor/variadic/to_seq.hpp>
#include <string>
#include <vector>

#define KESTRELIX_FIELD_NAME(r, data, field) BOOST_PP_STRINGIZE(field),
#define KESTRELIX_FIELD_ACCESSOR(r, data, field)                          \
  std::string field(int row, int pairIndex) const {                       \
    return value(static_cast<std::size_t>(Field::field), row, pairIndex); \
  }

/// Inside a section object: KESTRELIX_FIELDS(EVENT_NAME, WAITS_VALUE) gives Field::EVENT_NAME, the accessor
/// EVENT_NAME(row, pairIndex), and fieldNames().
#define KESTRELIX_FIELDS(...)                                                                       \
  enum class Field : std::size_t { __VA_ARGS__ };                                                   \
  static std::vector<std::string> fieldNames() {                                                    \
    return {BOOST_PP_SEQ_FOR_EACH(KESTRELIX_FIELD_NAME, ~, BOOST_PP_VARIADIC_TO_SEQ(__VA_ARGS__))}; \
  }                                                                                                 \
  BOOST_PP_SEQ_FOR_EACH(KESTRELIX_FIELD_ACCESSOR, ~, BOOST_PP_VARIADIC_TO_SEQ(__VA_ARGS__))
