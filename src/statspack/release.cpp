#include "statspack/release.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>

#include "statspack/facts.h"

namespace kestrelix::statspack {

namespace {

constexpr std::array<int, 3> kMajors = {9, 10, 11};

std::string lowered(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return result;
}

int number(std::string_view digits) {
  int value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

// "@9-10" behind a name: taken off, and the releases told.
struct Range {
  int first = kMajors.front();
  int last = kMajors.back();
  bool has(int major) const { return first <= major && major <= last; }
};

Range takeRange(std::string_view& text) {
  Range range;
  const auto at = text.find('@');
  if (at == std::string_view::npos) return range;
  const std::string_view releases = text.substr(at + 1);
  text = text.substr(0, at);
  const auto dash = releases.find('-');
  range.first = number(releases.substr(0, dash));
  range.last = dash == std::string_view::npos ? range.first : number(releases.substr(dash + 1));
  return range;
}

Column columnOf(std::string_view word) {
  Column column;
  const auto nameEnd = word.find_first_of("=*?!");
  column.name = word.substr(0, nameEnd);
  std::string_view rest = nameEnd == std::string_view::npos ? std::string_view() : word.substr(nameEnd);
  if (!rest.empty() && rest.front() == '=') {
    const auto end = rest.find_first_of("*?!");
    const std::string_view type = rest.substr(1, end == std::string_view::npos ? end : end - 1);
    column.type = type.front() == 'd' ? Type::Date : type.front() == 'r' ? Type::Raw : Type::Varchar2;
    column.length = number(type.substr(1));
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end);
  }
  if (!rest.empty() && rest.front() == '*') {
    const auto end = std::min(rest.find_first_of("?!"), rest.size());
    column.keyPlace = number(rest.substr(1, end - 1));
    column.nullable = false;
    rest = rest.substr(end);
  }
  if (rest == "?") column.nullable = true;
  if (rest == "!") column.nullable = false;
  return column;
}

std::vector<std::string_view> words(std::string_view text) {
  std::vector<std::string_view> result;
  for (std::size_t at = 0; (at = text.find_first_not_of(" \n", at)) != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(" \n", at), text.size());
    result.push_back(text.substr(at, end - at));
    at = end;
  }
  return result;
}

std::vector<Table> tablesOf(int major) {
  std::vector<Table> tables;
  Table* table = nullptr;
  for (std::string_view word : words(kTables)) {
    if (word.back() == ':') {
      word.remove_suffix(1);
      const Range range = takeRange(word);
      table = nullptr;
      if (range.has(major)) {
        table = &tables.emplace_back();
        table->name = word;
      }
    } else if (table == nullptr) {
      continue;
    } else if (word == "view") {
      table->view = true;
    } else if (word == "~") {
      for (const char* name : {"snap_id", "dbid", "instance_number"})
        table->columns.push_back({name, Type::Number, 0, false, static_cast<int>(table->columns.size()) + 1});
    } else if (takeRange(word).has(major)) {
      table->columns.push_back(columnOf(word));
    }
  }
  return tables;
}

std::vector<std::string> idleEventsOf(int major) {
  std::vector<std::string> events;
  constexpr std::string_view kSince = "# since ";
  for (std::size_t at = 0; at < kIdleEvents.size();) {
    const std::size_t end = std::min(kIdleEvents.find('\n', at), kIdleEvents.size());
    const std::string_view line = kIdleEvents.substr(at, end - at);
    at = end + 1;
    if (line.starts_with(kSince)) {
      if (number(line.substr(kSince.size())) > major) break;
    } else if (!line.empty()) {
      events.emplace_back(line);
    }
  }
  return events;
}

void widen(Table& known, const Table& other) {
  for (const Column& column : other.columns) {
    const auto found = std::find_if(known.columns.begin(), known.columns.end(),
                                    [&](const Column& c) { return c.name == column.name; });
    if (found == known.columns.end()) {
      known.columns.push_back(column);
      known.columns.back().nullable = true;
      continue;
    }
    found->length = std::max(found->length, column.length);
    found->nullable = found->nullable || column.nullable;
  }
  for (Column& column : known.columns)
    if (other.column(column.name) == nullptr) column.nullable = true;
  known.view = known.view && other.view;
}

Release united() {
  // The newest release comes first, since its columns are in the order of a fresh installation.
  std::vector<Table> tables = tablesOf(kMajors.back());
  for (const int major : {10, 9}) {
    for (const Table& other : tablesOf(major)) {
      const auto found =
          std::find_if(tables.begin(), tables.end(), [&](const Table& t) { return t.name == other.name; });
      if (found == tables.end())
        tables.push_back(other);
      else if (found->view)
        *found = other;
      else
        widen(*found, other);
    }
  }
  for (Table& table : tables)
    for (Column& column : table.columns) column.keyPlace = 0;
  std::sort(tables.begin(), tables.end(), [](const Table& a, const Table& b) { return a.name < b.name; });
  return Release(std::move(tables), idleEventsOf(kMajors.back()));
}

}  // namespace

std::string_view typeName(Type type) {
  switch (type) {
    case Type::Number:
      return "NUMBER";
    case Type::Varchar2:
      return "VARCHAR2";
    case Type::Char:
      return "CHAR";
    case Type::Date:
      return "DATE";
    case Type::Raw:
      return "RAW";
  }
  return "";
}

const Column* Table::column(std::string_view columnName) const {
  const std::string wanted = lowered(columnName);
  for (const Column& column : columns)
    if (column.name == wanted) return &column;
  return nullptr;
}

std::vector<std::string> Table::key() const {
  std::vector<const Column*> parts;
  for (const Column& column : columns)
    if (column.keyPlace > 0) parts.push_back(&column);
  std::sort(parts.begin(), parts.end(),
            [](const Column* a, const Column* b) { return a->keyPlace < b->keyPlace; });
  std::vector<std::string> names;
  names.reserve(parts.size());
  for (const Column* part : parts) names.push_back(part->name);
  return names;
}

Release::Release(std::vector<Table> tables, std::vector<std::string> idleEvents)
    : tables_(std::move(tables)), idleEvents_(std::move(idleEvents)) {}

const Table* Release::table(std::string_view name) const {
  const std::string wanted = lowered(name);
  const auto found =
      std::lower_bound(tables_.begin(), tables_.end(), wanted,
                       [](const Table& table, const std::string& n) { return table.name < n; });
  return found == tables_.end() || found->name != wanted ? nullptr : &*found;
}

const Release& release(std::string_view major) {
  static const std::array<Release, kMajors.size()> releases = {Release(tablesOf(9), idleEventsOf(9)),
                                                               Release(tablesOf(10), idleEventsOf(10)),
                                                               Release(tablesOf(11), idleEventsOf(11))};
  for (std::size_t i = 0; i < kMajors.size(); ++i)
    if (std::to_string(kMajors[i]) == major) return releases[i];
  throw std::out_of_range("no STATSPACK schema for major version \"" + std::string(major) + "\"");
}

const Release& everyRelease() {
  static const Release all = united();
  return all;
}

}  // namespace kestrelix::statspack
