// A few tables to resolve statements against.
#pragma once

#include <map>
#include <string>

#include "oracle_sql/functions/functions.h"
#include "oracle_sql/meaning/catalogue.h"
#include "oracle_sql/meaning/resolver.h"

namespace testing_support {

class SmallCatalogue : public oracle_sql::Catalogue {
 public:
  SmallCatalogue() {
    using oracle_sql::Type;
    using oracle_sql::TypeKind;
    const Type number{TypeKind::Number};
    const Type whole{TypeKind::Number, true};
    const Type text{TypeKind::Varchar2};
    const Type date{TypeKind::Date};
    const Type raw{TypeKind::Raw};
    const Type flag{TypeKind::Char, false, 1};
    add("EMP", {{"EMPNO", whole},
                {"ENAME", text},
                {"JOB", text},
                {"MGR", whole},
                {"HIREDATE", date},
                {"SAL", number},
                {"COMM", number},
                {"DEPTNO", whole}});
    add("DEPT", {{"DEPTNO", whole}, {"DNAME", text}, {"LOC", text}, {"OPEN", flag}});
    add("STATS$SNAPSHOT", {{"SNAP_ID", whole},
                           {"DBID", whole},
                           {"INSTANCE_NUMBER", whole},
                           {"SNAP_TIME", date},
                           {"SNAP_LEVEL", whole},
                           {"UCOMMENT", text}});
    add("STATS$SYSSTAT", {{"SNAP_ID", whole},
                          {"DBID", whole},
                          {"INSTANCE_NUMBER", whole},
                          {"STATISTIC#", whole},
                          {"NAME", text},
                          {"VALUE", number}});
    add("STATS$SQL_SUMMARY", {{"SNAP_ID", whole},
                              {"DBID", whole},
                              {"INSTANCE_NUMBER", whole},
                              {"OLD_HASH_VALUE", whole},
                              {"ADDRESS", raw},
                              {"MODULE", text},
                              {"EXECUTIONS", number},
                              {"CPU_TIME", number}});
  }

  const oracle_sql::CatalogueTable* table(std::string_view schema, std::string_view name) const override {
    if (!schema.empty() && schema != "PERFSTAT") return nullptr;
    const auto found = tables_.find(name);
    return found == tables_.end() ? nullptr : &found->second;
  }
  const oracle_sql::Function* packageFunction(std::string_view name) const override {
    static constexpr oracle_sql::Function kV1024{
        "STATSPACK.V1024",
        5,
        5,
        true,
        [](oracle_sql::ArgumentTypes) { return oracle_sql::Type{oracle_sql::TypeKind::Varchar2}; },
        [](oracle_sql::Arguments, const oracle_sql::Context&) { return oracle_sql::Value(); }};
    return name == kV1024.name ? &kV1024 : nullptr;
  }

  /// :B1 to :B9, :PAR, :TRAN and :1 are numbers, :ENAME and :TIMSTAT text; there is no other bind.
  static std::optional<oracle_sql::TypeKind> bind(std::string_view name) {
    if (name == "ENAME" || name == "TIMSTAT") return oracle_sql::TypeKind::Varchar2;
    if (name == "PAR" || name == "TRAN" || name == "1" || (name.size() == 2 && name[0] == 'B'))
      return oracle_sql::TypeKind::Number;
    return std::nullopt;
  }

 private:
  void add(const std::string& name, std::vector<oracle_sql::CatalogueColumn> columns) {
    tables_[name] = {name, std::move(columns)};
  }

  std::map<std::string, oracle_sql::CatalogueTable, std::less<>> tables_;
};

}  // namespace testing_support
