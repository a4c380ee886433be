// The bases of all section objects: the only classes that talk to the repository on behalf of a Section.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "navigation/clsSnapId.h"
#include "platform/database.h"
#include "platform/failure.h"
#include "report/fields.h"
#include "report/statement.h"

namespace kestrelix {

/// Binds one pair, runs statements, keeps the rows as texts and gives them out by accessor. Lives for one
/// rendering. It never computes: every figure and blank comes from the statements.
class SectionObject {
 public:
  virtual ~SectionObject() = default;
  SectionObject(const SectionObject&) = delete;
  SectionObject& operator=(const SectionObject&) = delete;

  /// The version matters only to objects that have statements for one version alone.
  void Initialize(Database& database, const clsSnapId& snapshots, Failures& failures, std::string version);

  /// Binds a pair and, in order, the arguments; those left out are empty. Then runs the queries behind the
  /// other binds. False after a failure; what has been added stays on the database then.
  bool setBAIND_VALUE(const PairKeys& pair, const std::vector<std::string>& arguments = {});
  bool unsetBAIND_VALUE();

  /// Runs a member by its name, "getLATCH_ACTIVITY_ALL". A member without a statement for the version does
  /// nothing and succeeds. False after a failure.
  bool get(std::string_view member, int pairIndex);

  long rownum() const { return static_cast<long>(rows_.size()); }
  /// A field of record `row`, as the accessors give it: the empty text for a pair across a restart, unless
  /// the field's statement holds there.
  std::string value(std::size_t field, int row, int pairIndex) const;
  /// Does the member's All view show rows for a pair across a restart?
  bool showsRestart(std::string_view member) const;

  const std::string& className() const { return className_; }
  /// The aliases that the records' fields are read by.
  const std::vector<std::string>& fieldNames() const { return fieldNames_; }
  const std::vector<Statement>& statements() const { return statements_; }
  /// The binds beside B1 to B4, in the order of adding.
  const std::vector<Bind>& binds() const { return binds_; }

 protected:
  SectionObject(std::string className, std::vector<std::string> fieldNames, std::vector<Bind> binds);

  Statement& add(Statement statement);
  const Statement* find(std::string_view member) const;
  const std::string& version() const { return version_; }
  void appendRecord() { rows_.emplace_back(fieldNames_.size()); }
  std::vector<std::size_t> allFields() const;

 private:
  using Record = std::vector<std::string>;

  /// Metric objects append the pair's record here.
  virtual void bound() {}
  /// Runs the one query behind some binds and gives them their values. False after a failure that ends
  /// the binding.
  bool fetchBinds(std::span<const Bind> binds);
  void fetch(const Statement& statement, int pairIndex);
  void copy(const Statement& statement, const Dynaset& dynaset, Record& record) const;

  std::string className_;
  std::vector<std::string> fieldNames_;
  std::vector<bool> acrossRestarts_;  // by field
  std::vector<Bind> binds_;
  std::vector<Statement> statements_;
  Database* database_ = nullptr;
  const clsSnapId* snapshots_ = nullptr;
  Failures* failures_ = nullptr;
  std::string version_;
  std::vector<Record> rows_;
};

/// A section object whose records are result rows: an event, a segment, a latch.
class ListSectionObject : public SectionObject {
 protected:
  using SectionObject::SectionObject;
  /// The member of the All view: a record a row.
  Statement& all(std::string member, std::string text);
  /// The member of the Col view: a record a pair.
  Statement& col(std::string member, std::string text);
};

/// A section object whose record is all the metrics of a pair, one small statement a metric.
class MetricSectionObject : public SectionObject {
 public:
  /// Runs the members in their order; stops at the first that fails.
  bool getALL(int pairIndex);

 protected:
  MetricSectionObject(std::string className, std::vector<std::string> fieldNames,
                      std::vector<Bind> binds = {})
      : SectionObject(std::move(className), std::move(fieldNames), std::move(binds)) {}

  template <class Field>
  Statement& metric(std::string member, std::initializer_list<Field> fields, std::string text) {
    std::vector<std::size_t> indices;
    for (const Field field : fields) indices.push_back(static_cast<std::size_t>(field));
    return add({.member = std::move(member),
                .text = std::move(text),
                .fetch = Fetch::Metric,
                .fields = std::move(indices)});
  }
  /// The members that getALL runs for these versions. Without any such order: all, as they were declared.
  void order(Versions versions, std::vector<std::string> members);

 private:
  struct Order {
    Versions versions;
    std::vector<std::string> members;
  };
  void bound() override { appendRecord(); }
  std::vector<std::string> members() const;

  std::vector<Order> orders_;
};

}  // namespace kestrelix
