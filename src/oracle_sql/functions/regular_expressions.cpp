// REGEXP_LIKE, REGEXP_COUNT, REGEXP_INSTR, REGEXP_SUBSTR and REGEXP_REPLACE.
#include <optional>

#include "oracle_sql/functions/library.h"
#include "oracle_sql/model_cache.h"
#include "oracle_sql/regex.h"
#include "oracle_sql/utf8.h"

namespace oracle_sql::library {
namespace {

RegexOptions optionsOf(std::string_view letters) {
  RegexOptions options;
  for (const char letter : letters) {
    switch (letter) {
      case 'i':
        options.ignoreCase = true;
        break;
      case 'c':
        options.ignoreCase = false;
        break;
      case 'n':
        options.dotTakesLines = true;
        break;
      case 'm':
        options.manyLines = true;
        break;
      case 'x':
        options.extended = true;
        break;
      default:
        throw FunctionError(1760, "illegal argument for function");
    }
  }
  return options;
}

// The expressions used last, compiled. Valid until the next call on this thread.
const Regex& compiled(std::string_view pattern, std::string_view letters) {
  thread_local ModelCache<Regex> cache;
  const std::string key = std::string(letters) + '/' + std::string(pattern);
  return cache.get(key, [&](std::string_view) { return Regex(pattern, optionsOf(letters)); });
}

// The arguments of a call by their meaning; a NULL match parameter is none, any other NULL makes the result
// one.
class Call {
 public:
  Call(Arguments arguments, std::size_t letters) : arguments_(arguments), letters_(letters) {}

  bool anyNull() const {
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
      if (i != letters_ && arguments_[i].isNull()) {
        return true;
      }
    }
    return false;
  }

  // The number at `index`, `otherwise` if it is not given; ORA-01428 if it is below `least`.
  std::int64_t number(std::size_t index, std::int64_t otherwise, std::int64_t least) const {
    const std::int64_t value = index < arguments_.size() ? toWhole(arguments_[index]) : otherwise;
    if (value < least) {
      raiseArgumentOutOfRange(toText(arguments_[index]));
    }
    return value;
  }

  const Regex& regex() const {
    const Value none;
    const TextOf letters(letters_ < arguments_.size() ? arguments_[letters_] : none);
    return compiled(TextOf(arguments_[1]).view(), letters.view());
  }

 private:
  Arguments arguments_;
  std::size_t letters_;
};

// The matches of an expression one after the other. An empty one is none directly behind another.
class Matches {
 public:
  // `position` counts characters from 1.
  Matches(const Regex& regex, std::string_view text, std::int64_t position) : regex_(regex), text_(text) {
    const bool inside = position - 1 <= static_cast<std::int64_t>(utf8::length(text));
    from_ = inside ? utf8::offset(text, static_cast<std::size_t>(position - 1)) : text.size() + 1;
  }

  bool next() {
    while (from_ <= text_.size() && regex_.search(text_, from_, groups_)) {
      const bool empty = groups_[0].begin == groups_[0].end;
      const bool adjoins = empty && last_ && groups_[0].begin == *last_;
      from_ = groups_[0].end;
      if (empty) {
        from_ += from_ < text_.size() ? utf8::sizeAt(text_, from_) : 1;
      }
      last_ = groups_[0].end;
      if (!adjoins) {
        return true;
      }
    }
    return false;
  }

  // The `occurrence`th from here.
  bool find(std::int64_t occurrence) {
    for (; occurrence > 0; --occurrence) {
      if (!next()) {
        return false;
      }
    }
    return true;
  }

  // A group of the last match; unset beyond \9.
  Regex::Span group(std::int64_t index) const {
    return index < static_cast<std::int64_t>(Regex::kGroups) ? groups_[static_cast<std::size_t>(index)]
                                                             : Regex::Span();
  }

  std::string_view textOf(Regex::Span span) const {
    return span.end == Regex::kUnset || span.end < span.begin
               ? std::string_view()
               : text_.substr(span.begin, span.end - span.begin);
  }

 private:
  const Regex& regex_;
  std::string_view text_;
  std::size_t from_ = 0;
  std::optional<std::size_t> last_;
  Regex::Groups groups_;
};

// \1 to \9 are the groups, \\ is a backslash.
void appendReplacement(std::string& out, std::string_view replacement, const Matches& match) {
  for (std::size_t i = 0; i < replacement.size(); ++i) {
    const char c = replacement[i];
    const char escaped = c == '\\' && i + 1 < replacement.size() ? replacement[i + 1] : '\0';
    if (escaped >= '1' && escaped <= '9') {
      out += match.textOf(match.group(escaped - '0'));
      ++i;
    } else {
      out += c;
      i += escaped == '\\' ? 1 : 0;
    }
  }
}

}  // namespace

Value regexpLike(Arguments arguments, const Context&) {
  const Call call(arguments, 2);
  if (call.anyNull()) {
    return {};
  }
  Regex::Groups groups;
  return call.regex().search(TextOf(arguments[0]).view(), 0, groups) ? 1 : 0;
}

Value regexpCount(Arguments arguments, const Context&) {
  const Call call(arguments, 3);
  if (call.anyNull()) {
    return {};
  }
  const TextOf text(arguments[0]);
  Matches matches(call.regex(), text.view(), call.number(2, 1, 1));
  std::int64_t count = 0;
  while (matches.next()) {
    ++count;
  }
  return count;
}

Value regexpPosition(Arguments arguments, const Context&) {
  const Call call(arguments, 5);
  if (call.anyNull()) {
    return {};
  }
  const TextOf text(arguments[0]);
  Matches matches(call.regex(), text.view(), call.number(2, 1, 1));
  const std::int64_t occurrence = call.number(3, 1, 1);
  const bool behind = call.number(4, 0, 0) != 0;
  const std::int64_t group = call.number(6, 0, 0);
  if (!matches.find(occurrence)) {
    return 0;
  }
  const Regex::Span span = matches.group(group);
  if (span.end == Regex::kUnset) {
    return 0;
  }
  const std::size_t at = behind ? span.end : span.begin;
  return static_cast<std::int64_t>(utf8::length(text.view().substr(0, at))) + 1;
}

Value regexpSubstring(Arguments arguments, const Context&) {
  const Call call(arguments, 4);
  if (call.anyNull()) {
    return {};
  }
  const TextOf text(arguments[0]);
  Matches matches(call.regex(), text.view(), call.number(2, 1, 1));
  const std::int64_t occurrence = call.number(3, 1, 1);
  const std::int64_t group = call.number(5, 0, 0);
  return matches.find(occurrence) ? text.piece(matches.textOf(matches.group(group))) : Value();
}

// Without a pattern the text stays, without a replacement the matches go. Occurrence 0 is all of them.
Value regexpReplace(Arguments arguments, const Context&) {
  const Call call(arguments, 5);
  for (std::size_t i : {0, 3, 4}) {
    if (i < arguments.size() && arguments[i].isNull()) {
      return {};
    }
  }
  if (arguments[1].isNull()) {
    return arguments[0];
  }
  const TextOf text(arguments[0]);
  const Value none;
  const TextOf replacement(arguments.size() > 2 ? arguments[2] : none);
  Matches matches(call.regex(), text.view(), call.number(3, 1, 1));
  const std::int64_t wanted = call.number(4, 0, 0);
  std::string out;
  std::size_t copied = 0;
  for (std::int64_t occurrence = 1; matches.next(); ++occurrence) {
    if (wanted != 0 && occurrence != wanted) {
      continue;
    }
    const Regex::Span span = matches.group(0);
    out += text.view().substr(copied, span.begin - copied);
    appendReplacement(out, replacement.view(), matches);
    copied = span.end;
  }
  out += text.view().substr(copied);
  return Value::text(std::move(out));
}

}  // namespace oracle_sql::library
