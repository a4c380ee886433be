#pragma once

#include <cstdint>
#include <string>

namespace oracle_sql {

// 0 up to 9999999 in English words, upper case: "TWO THOUSAND ONE HUNDRED FORTY-SIX".
std::string spelledNumber(std::int64_t number);
// "TWENTY-FIRST".
std::string spelledOrdinal(std::int64_t number);
// "ST", "ND", "RD" or "TH".
std::string ordinalSuffix(std::int64_t number);
// 1582 as "FIFTEEN EIGHTY-TWO", 2003 as "TWO THOUSAND THREE".
std::string spelledYear(int year);

}  // namespace oracle_sql
