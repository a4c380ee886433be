#include "import/importer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <functional>
#include <map>
#include <optional>

#include "import/csv_reader.h"
#include "oracle_sql/number/number.h"
#include "platform/ascii.h"

namespace kestrelix::importing {

using repository_file::BadValue;
using repository_file::Cell;
using repository_file::NewColumn;
using repository_file::RepositoryWriter;
using repository_file::TableWriter;

namespace {

constexpr std::string_view kEvents = "stats$system_event";
constexpr std::string_view kBackgroundEvents = "stats$bg_event_summary";
constexpr std::size_t kShownBytes = 60;
constexpr std::int64_t kRowsPerReport = 1000;

std::string shown(std::string_view value) {
  if (value.size() <= kShownBytes) return "'" + std::string(value) + "'";
  std::size_t end = kShownBytes;
  while ((static_cast<unsigned char>(value[end]) & 0xC0) == 0x80) --end;
  return "'" + std::string(value.substr(0, end)) + "...'";
}

// "-12.5", "0", ".5": as Oracle prints a number in full. "007" and "1E3" are texts.
bool isPlainNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const auto point = text.find('.');
  const std::string_view whole = text.substr(0, point);
  const std::string_view rest = point == std::string_view::npos ? "" : text.substr(point + 1);
  const auto digits = [](std::string_view part) {
    return std::all_of(part.begin(), part.end(), [](char c) { return c >= '0' && c <= '9'; });
  };
  if (!digits(whole) || !digits(rest) || (whole.empty() && rest.empty())) return false;
  if (point != std::string_view::npos && rest.empty()) return false;
  return whole.size() <= 1 || whole.front() != '0';
}

// SQLite's tables, and those that tell what is in the file.
bool isReserved(std::string_view table) {
  return table.starts_with("sqlite_") || table.starts_with("kestrelix$");
}

struct Source {
  std::filesystem::path path;
  std::string table;
  const statspack::Table* known = nullptr;
  std::int64_t bytes = 0;
};

/// The files of the folder, by table.
std::vector<Source> sourcesOf(const std::filesystem::path& folder, bool keepUnknown) {
  std::error_code error;
  std::filesystem::directory_iterator files(folder, error);
  if (error) throw ImportError(folder.string() + ": cannot be read: " + error.message());
  std::map<std::string, Source> found;
  std::string unknown;
  for (const auto& entry : files) {
    if (asciiLower(entry.path().extension().string()) != ".csv") continue;
    if (!entry.is_regular_file()) throw ImportError(entry.path().string() + ": is no plain file");
    Source source;
    source.path = entry.path();
    source.table = asciiLower(entry.path().stem().string());
    if (isReserved(source.table))
      throw ImportError(source.path.string() + ": the name is the repository's own, no table can bear it");
    source.known = statspack::everyRelease().table(source.table);
    source.bytes = static_cast<std::int64_t>(entry.file_size());
    if (source.known == nullptr && !keepUnknown)
      unknown += (unknown.empty() ? "" : ", ") + source.path.filename().string();
    const auto [place, isNew] = found.emplace(source.table, source);
    if (!isNew)
      throw ImportError(source.path.string() + ": is the same table as " +
                        place->second.path.filename().string());
  }
  if (!unknown.empty()) throw ImportError(folder.string() + ": no release has the tables of " + unknown);
  if (found.empty()) throw ImportError(folder.string() + ": has no CSV file");
  std::vector<Source> sources;
  sources.reserve(found.size());
  for (auto& [table, source] : found) sources.push_back(std::move(source));
  return sources;
}

/// One file being read, with its place in words for errors.
class TableFile {
 public:
  explicit TableFile(const Source& source) : source_(source), in_(source.path, std::ios::binary) {
    if (!in_) throw ImportError(source.path.string() + ": cannot be opened: " + std::strerror(errno));
    guarded([&] {
      reader_.emplace(in_);
      if (!reader_->next()) throw ImportError(source_.path.string() + ": has no line of column names");
    });
    for (const CsvField& field : reader_->record()) addName(field);
  }

  const std::vector<std::string>& names() const { return names_; }
  std::int64_t bytesRead() const { return reader_->bytesRead(); }
  bool atLineEnd() const { return reader_->atLineEnd(); }

  /// The next row, of as many fields as there are names; null behind the last one.
  const std::vector<CsvField>* next() {
    bool found = false;
    guarded([&] { found = reader_->next(); });
    if (!found) return nullptr;
    const std::vector<CsvField>& record = reader_->record();
    if (record.size() != names_.size())
      throw ImportError(placeOf(record.front().line) + ": " + std::to_string(record.size()) +
                        " fields under " + std::to_string(names_.size()) + " column names");
    return &record;
  }

  /// Fails when the bytes read are not those that the file had at first.
  void checkRead() const {
    if (bytesRead() != source_.bytes)
      throw ImportError(source_.path.string() +
                        ": was changed while it was read: " + std::to_string(bytesRead()) +
                        " bytes where there were " + std::to_string(source_.bytes));
  }

  [[noreturn]] void refuse(std::size_t field, const std::string& why) const {
    const CsvField& bad = reader_->record()[field];
    throw ImportError(placeOf(bad.line) + ", column " + asciiUpper(names_[field]) + ": " + why + ": " +
                      shown(bad.text));
  }

 private:
  std::string placeOf(std::int64_t line) const {
    return source_.path.string() + ", line " + std::to_string(line);
  }

  void addName(const CsvField& field) {
    std::string name = asciiLower(field.text);
    name.erase(0, name.find_first_not_of(' '));
    name.erase(name.find_last_not_of(' ') + 1);
    if (name.empty()) throw ImportError(placeOf(field.line) + ": a column without a name");
    if (std::find(names_.begin(), names_.end(), name) != names_.end())
      throw ImportError(placeOf(field.line) + ": column " + asciiUpper(name) + " comes twice");
    names_.push_back(std::move(name));
  }

  template <class Read>
  void guarded(Read read) {
    try {
      read();
    } catch (const CsvError& error) {
      const std::string column =
          error.field() < names_.size() ? ", column " + asciiUpper(names_[error.field()]) : std::string();
      throw ImportError(placeOf(error.line()) + column + ": " + error.what());
    }
    if (in_.bad()) throw ImportError(source_.path.string() + ": cannot be read: " + std::strerror(errno));
  }

  const Source& source_;
  std::ifstream in_;
  std::optional<CsvReader> reader_;
  std::vector<std::string> names_;
};

/// The columns of the file with their types; a file with columns of its own is read through for them.
std::vector<NewColumn> columnsOf(const Source& source, const TableFile& file,
                                 const std::function<void()>& stillReading) {
  std::vector<NewColumn> columns;
  std::vector<std::size_t> own;
  for (const std::string& name : file.names()) {
    const statspack::Column* known = source.known == nullptr ? nullptr : source.known->column(name);
    if (known == nullptr) own.push_back(columns.size());
    columns.push_back({name, known == nullptr ? statspack::Type::Varchar2 : known->type});
  }
  if (own.empty()) return columns;
  std::vector<bool> numeric(columns.size(), true);
  std::vector<bool> filled(columns.size(), false);
  TableFile rows(source);
  std::int64_t count = 0;
  while (const auto* row = rows.next()) {
    if (++count % kRowsPerReport == 0) stillReading();
    for (const std::size_t i : own) {
      const std::string& text = (*row)[i].text;
      if (text.empty()) continue;
      filled[i] = true;
      numeric[i] = numeric[i] && isPlainNumber(text);
    }
  }
  for (const std::size_t i : own)
    if (filled[i] && numeric[i]) columns[i].type = statspack::Type::Number;
  return columns;
}

/// The background's events of release 11: what stats$system_event counts in all less what the foreground did.
class BackgroundEvents {
 public:
  BackgroundEvents(RepositoryWriter& writer, const std::vector<NewColumn>& columns) {
    for (std::size_t i = 0; i < columns.size(); ++i) places_[columns[i].name] = i;
    if (!places_.contains("total_waits_fg")) return;
    const statspack::Table& known = *statspack::everyRelease().table(kBackgroundEvents);
    std::vector<NewColumn> made;
    for (const statspack::Column& column : known.columns)
      if (places_.contains(column.name)) made.push_back({column.name, column.type});
    table_ = &writer.addTable(kBackgroundEvents, std::move(made));
  }

  std::int64_t rows() const { return rows_; }
  bool made() const { return table_ != nullptr; }

  void add(const std::vector<CsvField>& row, const std::vector<Cell>& cells) {
    if (table_ == nullptr || row[places_.at("total_waits_fg")].text.empty()) return;
    std::vector<Cell> values;
    for (const NewColumn& column : table_->columns()) {
      const bool counter = column.type == statspack::Type::Number && column.name.starts_with("t");
      values.push_back(counter ? difference(row, column.name) : cells[places_.at(column.name)]);
    }
    table_->insert(values);
    ++rows_;
  }

 private:
  Cell difference(const std::vector<CsvField>& row, const std::string& name) const {
    const auto foreground = places_.find(name + "_fg");
    if (foreground == places_.end()) return {};
    const auto all = oracle_sql::Number::parse(row[places_.at(name)].text);
    const auto part = oracle_sql::Number::parse(row[foreground->second].text);
    if (!all || !part) return {};
    std::string scratch;
    return Cell::fromText(statspack::Type::Number, (*all - *part).toText(), scratch);
  }

  std::map<std::string, std::size_t> places_;
  TableWriter* table_ = nullptr;
  std::int64_t rows_ = 0;
};

}  // namespace

std::vector<ImportedTable> importFolder(const std::filesystem::path& folder,
                                        const std::filesystem::path& path, const ImportOptions& options,
                                        Progress& progress) {
  const std::vector<Source> sources = sourcesOf(folder, options.keepUnknown);
  std::int64_t all = 0;
  bool tellsBackground = false;
  for (const Source& source : sources) {
    all += source.bytes;
    tellsBackground = tellsBackground || source.table == kBackgroundEvents;
  }
  RepositoryWriter writer(path, options.account, "kestrelix-repository import", options.existing);
  std::vector<ImportedTable> imported;
  std::int64_t before = 0;
  for (const Source& source : sources) {
    TableFile file(source);
    const auto tell = [&] { advance(progress, before + file.bytesRead(), all); };
    const std::vector<NewColumn> columns = columnsOf(source, file, tell);
    TableWriter& table = writer.addTable(source.table, columns);
    std::optional<BackgroundEvents> background;
    if (source.table == kEvents && !tellsBackground) background.emplace(writer, columns);
    ImportedTable result{source.table};
    std::vector<Cell> cells(columns.size());
    std::vector<std::string> scratch(columns.size());
    while (const auto* row = file.next()) {
      for (std::size_t i = 0; i < cells.size(); ++i) {
        try {
          cells[i] = Cell::fromText(columns[i].type, (*row)[i].text, scratch[i]);
        } catch (const BadValue& bad) {
          file.refuse(i, bad.what());
        }
      }
      table.insert(cells);
      if (background) background->add(*row, cells);
      if (++result.rows % kRowsPerReport == 0) tell();
    }
    file.checkRead();
    result.endsInLine = !file.atLineEnd();
    imported.push_back(result);
    if (background && background->made())
      imported.push_back({std::string(kBackgroundEvents), background->rows(), false});
    before += source.bytes;
    advance(progress, before, all);
  }
  writer.finish(progress);
  std::sort(imported.begin(), imported.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
  return imported;
}

}  // namespace kestrelix::importing
