#include "report/SectionObject.h"

#include <algorithm>
#include <numeric>

namespace kestrelix {

SectionObject::SectionObject(std::string className, std::vector<std::string> fieldNames,
                             std::vector<Bind> binds)
    : className_(std::move(className)),
      fieldNames_(std::move(fieldNames)),
      acrossRestarts_(fieldNames_.size(), false),
      binds_(std::move(binds)) {}

void SectionObject::Initialize(Database& database, const clsSnapId& snapshots, Failures& failures,
                               std::string version) {
  database_ = &database;
  snapshots_ = &snapshots;
  failures_ = &failures;
  version_ = std::move(version);
  rows_.clear();
  for (const Statement& statement : statements_)
    if (statement.evenOnRestart)
      for (const std::size_t field : statement.fields) acrossRestarts_[field] = true;
}

bool SectionObject::setBAIND_VALUE(const PairKeys& pair, const std::vector<std::string>& arguments) {
  const bool added = guarded(*failures_, className_, "setBAIND_VALUE", [&] {
    Parameters& parameters = database_->parameters();
    const std::pair<const char*, const std::string&> keys[] = {
        {"B1", pair.dbid}, {"B2", pair.instanceNumber}, {"B3", pair.startSnapId}, {"B4", pair.endSnapId}};
    for (const auto& [name, value] : keys) parameters.Add(name, 0, 1);
    for (const Bind& bind : binds_) parameters.Add(bind.name, 0, 1);
    for (const auto& [name, value] : keys) parameters(name).serverType(ServerType::Number);
    for (const Bind& bind : binds_) parameters(bind.name).serverType(bind.type);
    for (const auto& [name, value] : keys) parameters(name).value(value);
    std::size_t next = 0;
    for (const Bind& bind : binds_) {
      if (bind.ofPair != nullptr) parameters(bind.name).value(pair.*bind.ofPair);
      if (bind.ofPair != nullptr || !bind.member.empty()) continue;
      const std::string argument = next < arguments.size() ? arguments[next] : std::string();
      parameters(bind.name).value(argument.empty() ? bind.ifEmpty : argument);
      ++next;
    }
  });
  if (!added) return false;
  for (auto first = binds_.begin(); first != binds_.end();) {
    const auto last =
        std::find_if(first, binds_.end(), [&](const Bind& bind) { return bind.member != first->member; });
    if (!first->member.empty() && !fetchBinds({first, last})) return false;
    first = last;
  }
  bound();
  return true;
}

bool SectionObject::fetchBinds(std::span<const Bind> binds) {
  const Bind& first = binds.front();
  std::vector<std::optional<std::string>> values;
  const bool done = guarded(*failures_, className_, first.member, [&] {
    const std::string& text = first.text.empty() ? find(first.member)->text : first.text;
    const auto dynaset = database_->DbCreateDynaset(text, kDynasetOptions);
    for (const Bind& bind : binds)
      values.push_back(dynaset->Fields(bind.column.empty() ? bind.name : bind.column).value());
  });
  if (!done && !first.goesOn) return false;
  if (!done && first.failureBoxesTwice) failures_->push_back({failureText(className_, "setBAIND_VALUE")});
  if (!done) values.assign(binds.size(), first.ifFailed);
  // A text that is no number fails here, as the binding's own failure.
  return guarded(*failures_, className_, "setBAIND_VALUE", [&] {
    for (std::size_t i = 0; i < binds.size(); ++i)
      if (values[i]) database_->parameters()(binds[i].name).value(*values[i]);
  });
}

bool SectionObject::unsetBAIND_VALUE() {
  return guarded(*failures_, className_, "unsetBAIND_VALUE", [this] {
    for (const char* name : {"B1", "B2", "B3", "B4"}) database_->parameters().Remove(name);
    for (const Bind& bind : binds_) database_->parameters().Remove(bind.name);
  });
}

const Statement* SectionObject::find(std::string_view member) const {
  const auto found = std::find_if(statements_.begin(), statements_.end(), [&](const Statement& statement) {
    return statement.member == member &&
           (statement.versions == kAllVersions || (statement.versions & versionOf(version_)) != 0);
  });
  return found == statements_.end() ? nullptr : &*found;
}

bool SectionObject::get(std::string_view member, int pairIndex) {
  const Statement* statement = find(member);
  if (statement == nullptr) return true;
  try {
    fetch(*statement, pairIndex);
    return true;
  } catch (const std::exception& error) {
    failures_->push_back(
        {statement->box.empty() ? failureText(className_, member) : statement->box, error.what()});
    return false;
  }
}

void SectionObject::fetch(const Statement& statement, int pairIndex) {
  const bool blank = snapshots_->restarted(pairIndex) && !statement.evenOnRestart;
  if (statement.fetch != Fetch::Metric && (blank || statement.fetch == Fetch::FirstRow)) appendRecord();
  if (blank) return;
  const auto dynaset = database_->DbCreateDynaset(statement.text, kDynasetOptions);
  switch (statement.fetch) {
    case Fetch::AllRows:
      for (; !dynaset->Eof(); dynaset->MoveNext()) {
        appendRecord();
        copy(statement, *dynaset, rows_.back());
      }
      break;
    case Fetch::FirstRow:
      if (dynaset->RecordCount() > 0) copy(statement, *dynaset, rows_.back());
      break;
    case Fetch::Metric:
      if (!statement.mayBeEmpty || dynaset->RecordCount() > 0) copy(statement, *dynaset, rows_.back());
      break;
    case Fetch::Binds:
      break;
  }
}

void SectionObject::copy(const Statement& statement, const Dynaset& dynaset, Record& record) const {
  for (const std::size_t field : statement.fields) record[field] = dynaset.Fields(fieldNames_[field]).value();
}

std::string SectionObject::value(std::size_t field, int row, int pairIndex) const {
  if (snapshots_->restarted(pairIndex) && !acrossRestarts_[field]) return {};
  return rows_.at(static_cast<std::size_t>(row))[field];
}

bool SectionObject::showsRestart(std::string_view member) const {
  const Statement* statement = find(member);
  return statement != nullptr && statement->evenOnRestart;
}

Statement& SectionObject::add(Statement statement) {
  statements_.push_back(std::move(statement));
  return statements_.back();
}

std::vector<std::size_t> SectionObject::allFields() const {
  std::vector<std::size_t> fields(fieldNames_.size());
  std::iota(fields.begin(), fields.end(), std::size_t{0});
  return fields;
}

Statement& ListSectionObject::all(std::string member, std::string text) {
  return add(
      {.member = std::move(member), .text = std::move(text), .fetch = Fetch::AllRows, .fields = allFields()});
}

Statement& ListSectionObject::col(std::string member, std::string text) {
  return add({.member = std::move(member),
              .text = std::move(text),
              .fetch = Fetch::FirstRow,
              .fields = allFields()});
}

void MetricSectionObject::order(Versions versions, std::vector<std::string> members) {
  orders_.push_back({versions, std::move(members)});
}

std::vector<std::string> MetricSectionObject::members() const {
  for (const Order& order : orders_)
    if ((order.versions & versionOf(version())) != 0) return order.members;
  std::vector<std::string> declared;
  if (orders_.empty())
    for (const Statement& statement : statements())
      if (std::find(declared.begin(), declared.end(), statement.member) == declared.end())
        declared.push_back(statement.member);
  return declared;
}

bool MetricSectionObject::getALL(int pairIndex) {
  const auto run = members();
  return std::all_of(run.begin(), run.end(),
                     [&](const std::string& member) { return get(member, pairIndex); });
}

}  // namespace kestrelix
