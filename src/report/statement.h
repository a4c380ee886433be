// What a section object can send: statements, and the binds that they name.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database.h"
#include "report/versions.h"

namespace kestrelix {

struct PairKeys;

/// A statement text as it is sent: one line, each run of white space outside of quotes as one blank, and a
/// blank at the end. It is written laid out, in a raw literal, to be read.
std::string fold(std::string_view layout);

/// How a member turns a result into records.
enum class Fetch {
  AllRows,   ///< one record a row
  FirstRow,  ///< one record a call, of the first row; empty if there is none
  Metric,    ///< fields of the record that the binding has appended; no row is a failure
  Binds,     ///< no record: the values of the binds that name the member
};

/// One statement of a section object, under the member that sends it. A member can have one a version.
struct Statement {
  std::string member;
  std::string text;
  Fetch fetch = Fetch::AllRows;
  std::vector<std::size_t> fields;  ///< of the record, read by their alias
  Versions versions = kAllVersions;
  bool evenOnRestart = false;  ///< the figures hold across a restart of the instance
  bool mayBeEmpty = false;     ///< a metric without a row is empty, not a failure
  std::string box;             ///< the member's box where it isn't the usual one

  Statement& only(Versions set) { return versions = set, *this; }
  Statement& acrossRestarts() { return evenOnRestart = true, *this; }
  Statement& orEmpty() { return mayBeEmpty = true, *this; }
  Statement& withBox(std::string text_) { return box = std::move(text_), *this; }
  /// The fields that the text has, where it lacks some of the record's; the others stay empty.
  template <class Field>
  Statement& reading(std::initializer_list<Field> some) {
    fields.clear();
    for (const Field field : some) fields.push_back(static_cast<std::size_t>(field));
    return *this;
  }
};

/// A bind beside B1 to B4, which are the DBID, the instance number and the two snapshots of a pair.
struct Bind {
  std::string name;
  ServerType type = ServerType::Number;
  /// Where the value is a query of its own: the member that runs it. Neighbours with the same member share
  /// one run. Empty: the value is an argument.
  std::string member;
  /// The query's text. Empty: the object has a statement of that member, which can differ by version.
  std::string text;
  /// A failed query shows its box and the binding goes on.
  bool goesOn = false;
  /// The column of the query's result; empty where it has the bind's name.
  std::string column = {};
  /// The value after a failed query that goes on; without one the bind stays at its first value.
  std::optional<std::string> ifFailed = {};
  /// After a failed query that goes on the binding shows its own box too.
  bool failureBoxesTwice = false;
  /// The value that an empty argument stands for, where it must not be NULL.
  std::string ifEmpty = {};
  /// Where the value is a text of the pair: which. Then it is no argument.
  std::string PairKeys::*ofPair = nullptr;
};

/// A bind whose value the renderer gives.
inline Bind argument(std::string name, ServerType type) {
  return {.name = std::move(name), .type = type, .member = {}, .text = {}};
}

}  // namespace kestrelix
