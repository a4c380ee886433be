// The employees of Oracle's classic demonstration tables, which much of what is published of its SQL runs on.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "repository_file/local_database.h"
#include "repository_file/queried_repository.h"

namespace kestrelix::repository_file {

class Employees : public QueriedRepository {
 protected:
  Employees() {
    const auto none = std::nullopt;
    writeRepository(
        folder_ / "emp.sqlite",
        {{"emp",
          {{"EMPNO", "NUMBER"},
           {"ENAME", "VARCHAR2"},
           {"JOB", "VARCHAR2"},
           {"MGR", "NUMBER"},
           {"HIREDATE", "DATE"},
           {"SAL", "NUMBER"},
           {"COMM", "NUMBER"},
           {"DEPTNO", "NUMBER"}},
          {{"7369", "SMITH", "CLERK", "7902", "1980-12-17 00:00:00", "800", none, "20"},
           {"7499", "ALLEN", "SALESMAN", "7698", "1981-02-20 00:00:00", "1600", "300", "30"},
           {"7521", "WARD", "SALESMAN", "7698", "1981-02-22 00:00:00", "1250", "500", "30"},
           {"7566", "JONES", "MANAGER", "7839", "1981-04-02 00:00:00", "2975", none, "20"},
           {"7654", "MARTIN", "SALESMAN", "7698", "1981-09-28 00:00:00", "1250", "1400", "30"},
           {"7698", "BLAKE", "MANAGER", "7839", "1981-05-01 00:00:00", "2850", none, "30"},
           {"7782", "CLARK", "MANAGER", "7839", "1981-06-09 00:00:00", "2450", none, "10"},
           {"7788", "SCOTT", "ANALYST", "7566", "1987-04-19 00:00:00", "3000", none, "20"},
           {"7839", "KING", "PRESIDENT", none, "1981-11-17 00:00:00", "5000", none, "10"},
           {"7844", "TURNER", "SALESMAN", "7698", "1981-09-08 00:00:00", "1500", "0", "30"},
           {"7876", "ADAMS", "CLERK", "7788", "1987-05-23 00:00:00", "1100", none, "20"},
           {"7900", "JAMES", "CLERK", "7698", "1981-12-03 00:00:00", "950", none, "30"},
           {"7902", "FORD", "ANALYST", "7566", "1981-12-03 00:00:00", "3000", none, "20"},
           {"7934", "MILLER", "CLERK", "7782", "1982-01-23 00:00:00", "1300", none, "10"}}},
         // Numbers that are broken, and so are no INTEGER of SQLite.
         {"readings",
          {{"ID", "NUMBER"}, {"V", "NUMBER"}, {"G", "VARCHAR2"}},
          {{"1", "0.5", "a"}, {"2", "10", "a"}, {"3", none, "a"}, {"4", "-2.25", "b"}, {"5", "0.5", "b"}}}});
    database_ = std::make_unique<LocalDatabase>(folder_ / "emp.sqlite");
  }
};

}  // namespace kestrelix::repository_file
