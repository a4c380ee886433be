#include "repository_file/functions.h"

#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "oracle_sql/functions/functions.h"
#include "platform/database.h"
#include "repository_file/function_frame.h"
#include "repository_file/storage.h"
#include "statspack/package.h"

namespace kestrelix::repository_file {
namespace {

/// A function of the language with the types that it is called with.
struct TypedFunction {
  const values::Function* function;
  std::string signature;
  Evaluation* evaluation;
};

/// The values of a call: room for `kFew` on the stack, of which only those given are made.
class CallValues {
 public:
  explicit CallValues(int count) {
    if (count > kFew) many_.resize(static_cast<std::size_t>(count));
  }
  CallValues(const CallValues&) = delete;
  ~CallValues() {
    for (int i = 0; i < made_; ++i) few()[i].~Value();
  }

  void add(values::Value value) {
    if (many_.empty())
      new (few() + made_++) values::Value(std::move(value));
    else
      many_[static_cast<std::size_t>(added_++)] = std::move(value);
  }
  values::Arguments all() {
    return many_.empty() ? values::Arguments(few(), static_cast<std::size_t>(made_))
                         : values::Arguments(many_);
  }

 private:
  static constexpr int kFew = 6;

  values::Value* few() { return std::launder(reinterpret_cast<values::Value*>(room_)); }

  alignas(values::Value) std::byte room_[kFew * sizeof(values::Value)];
  int made_ = 0;
  int added_ = 0;
  std::vector<values::Value> many_;
};

void callTyped(sqlite3_context* context, int count, Values arguments) {
  auto& typed = *static_cast<TypedFunction*>(sqlite3_user_data(context));
  const int given = count - 1;
  try {
    CallValues call(given);
    for (int i = 0; i < given; ++i)
      call.add(
          isNull(arguments[i])
              ? values::Value()
              : valueOf(arguments[i], static_cast<StoredKind>(typed.signature[static_cast<std::size_t>(i)])));
    giveValue(context, typed.function->call(call.all(), typed.evaluation->context));
  } catch (...) {
    giveFailure(context, *typed.evaluation,
                static_cast<std::uint32_t>(sqlite3_value_int64(arguments[given])));
  }
}

void forgetTyped(void* data) { delete static_cast<TypedFunction*>(data); }

// Of both the arguments are the counter and the number of the row among those that are tried.
void rownumToTry(sqlite3_context* context, int, Values arguments) {
  const auto slot = static_cast<std::size_t>(sqlite3_value_int(arguments[0]));
  const bool first = sqlite3_value_int64(arguments[1]) == 1;
  sqlite3_result_int64(context, first ? 1 : evaluationOf(context).rownums[slot] + 1);
}

void rownumPasses(sqlite3_context* context, int, Values arguments) {
  auto& passed = evaluationOf(context).rownums[static_cast<std::size_t>(sqlite3_value_int(arguments[0]))];
  if (sqlite3_value_int64(arguments[1]) == 1) passed = 0;
  const bool passes = sqlite3_value_int(arguments[2]) != 0;
  if (passes) ++passed;
  sqlite3_result_int(context, passes);
}

/// NVL with both sides computed.
void nvlOfBoth(sqlite3_context* context, int, Values arguments) {
  sqlite3_result_value(context, arguments[isNull(arguments[0]) ? 1 : 0]);
}

/// NVL2 with all three computed; the first is whether the value is there.
void nvl2OfAll(sqlite3_context* context, int, Values arguments) {
  sqlite3_result_value(context, arguments[sqlite3_value_int(arguments[0]) != 0 ? 1 : 2]);
}

}  // namespace

void checkRegistration(int result, const char* name) {
  if (result != SQLITE_OK)
    throw DatabaseError("HY000", 0, std::string("the function ") + name + " cannot be registered");
}

void addFunction(sqlite3* connection, const char* name, int count, SqliteFunction call,
                 Evaluation& evaluation, int flags) {
  checkRegistration(sqlite3_create_function_v2(connection, name, count, flags, &evaluation, call, nullptr,
                                               nullptr, nullptr),
                    name);
}

void registerFunctions(sqlite3* connection, Evaluation& evaluation) {
  registerNumberFunctions(connection, evaluation);
  registerTextFunctions(connection, evaluation);
  registerAggregates(connection, evaluation);
  registerKeptValues(connection, evaluation);
  registerPercentiles(connection, evaluation);
  addFunction(connection, "rownum_to_try", 2, rownumToTry, evaluation, kStateful);
  addFunction(connection, "rownum_passes", 3, rownumPasses, evaluation, kStateful);
  addFunction(connection, "nvl_of_both", 2, nvlOfBoth, evaluation);
  addFunction(connection, "nvl2_of_all", 3, nvl2OfAll, evaluation);
}

const values::Function* functionNamed(std::string_view name) {
  const values::Function* function = values::findFunction(name);
  return function ? function : statspack::packageFunction(name);
}

void registerFunction(sqlite3* connection, const FunctionUse& use, Evaluation& evaluation) {
  const values::Function* function = functionNamed(use.function);
  if (!function || !function->call)
    throw DatabaseError("HY000", 0, "the function " + use.function + " is not there");
  auto typed = std::make_unique<TypedFunction>(TypedFunction{function, use.signature, &evaluation});
  // SYSDATE and its like stay the same through one statement, as SQLite takes a deterministic function to do.
  checkRegistration(
      sqlite3_create_function_v2(connection, use.name.c_str(), static_cast<int>(use.signature.size()) + 1,
                                 kPure, typed.release(), callTyped, nullptr, nullptr, forgetTyped),
      use.name.c_str());
}

}  // namespace kestrelix::repository_file
