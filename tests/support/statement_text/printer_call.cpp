#include "oracle_sql/syntax/keywords.h"
#include "oracle_sql/syntax/spelling.h"
#include "support/statement_text/printer_state.h"
#include "support/statement_text/quoting.h"

namespace oracle_sql {

// Whether the name of a call is read as that call without quotes.
bool Printer::plainCallName(const Call& c) {
  switch (wordOf(c.name).keyword) {
    case Keyword::None:
      return quotedIfNeeded(c.name).front() != '"';
    case Keyword::Listagg:
      return c.name == "LISTAGG";
    case Keyword::DenseRank:
      return c.name == "DENSE_RANK";
    case Keyword::Trim:
      return c.name == "TRIM" && (!c.option.empty() || (c.args.size() == 1 && !c.distinct && !c.star));
    case Keyword::Extract:
      return c.name == "EXTRACT" && !c.option.empty();
    default:
      return c.bare;
  }
}

void Printer::call(const Call& c) {
  if (!c.package.empty()) {
    name(c.package);
    out_ += '.';
  }
  if (plainCallName(c))
    out_ += c.name;
  else
    out_ += '"' + std::string(c.name) + '"';
  if (c.bare) return;
  out_ += '(';
  if (c.star) out_ += '*';
  if (c.distinct) out_ += "DISTINCT ";
  if (!c.option.empty()) {
    out_ += c.option;
    if (c.args.size() > 1) {
      out_ += ' ';
      expr(*c.args[1], kAdditive);
    }
    out_ += " FROM ";
    expr(*c.args[0], kAdditive);
  } else {
    list(c.args);
  }
  out_ += ')';
  if (c.nulls != NullTreatment::Default)
    out_ += c.nulls == NullTreatment::Ignore ? " IGNORE NULLS" : " RESPECT NULLS";
  if (c.keep) {
    out_ += c.keep->last ? " KEEP (DENSE_RANK LAST " : " KEEP (DENSE_RANK FIRST ";
    order(c.keep->orderBy);
    out_ += ')';
  }
  if (!c.withinGroup.empty()) {
    out_ += " WITHIN GROUP (";
    order(c.withinGroup);
    out_ += ')';
  }
  if (c.over) window(*c.over);
}

void Printer::window(const Window& w) {
  out_ += " OVER (";
  const char* gap = "";
  if (!w.partitionBy.empty()) {
    out_ += "PARTITION BY ";
    list(w.partitionBy);
    gap = " ";
  }
  if (!w.orderBy.empty()) {
    out_ += gap;
    order(w.orderBy);
  }
  if (w.unit != FrameUnit::None) {
    out_ += w.unit == FrameUnit::Rows ? " ROWS " : " RANGE ";
    if (w.between) out_ += "BETWEEN ";
    bound(w.start);
    if (w.between) {
      out_ += " AND ";
      bound(w.end);
    }
  }
  out_ += ')';
}

void Printer::bound(const FrameBound& b) {
  if (b.offset) {
    expr(*b.offset, kAdditive);
    out_ += ' ';
  }
  out_ += spelling(b.kind);
}

}  // namespace oracle_sql
