// What a section object can send: statements, and the binds that they name.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database.h"
#include "report/versions.h"

namespace kestrelix {

/// A statement text as it is sent: one line, each run of white space outside of quotes as one blank, and a
/// blank at the end. It is written laid out, in a raw literal, to be read.
std::string fold(std::string_view layout);

/// How a member turns a result into records.
enum class Fetch {
  AllRows,   ///< one record a row
  FirstRow,  ///< one record a call, of the first row; empty if there is none
  Metric,    ///< fields of the record that the binding has appended; no row is a failure
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
};

/// A bind beside B1 to B4, which are the DBID, the instance number and the two snapshots of a pair.
struct Bind {
  std::string name;
  ServerType type = ServerType::Number;
  /// Where the value is a query of its own: the member that runs it and its text, which has a column of the
  /// bind's name. Empty: the value is an argument.
  std::string member;
  std::string text;
  /// A failed query shows its box and the binding goes on.
  bool goesOn = false;
};

/// A bind whose value the renderer gives.
inline Bind argument(std::string name, ServerType type) { return {std::move(name), type, {}, {}, false}; }

}  // namespace kestrelix
