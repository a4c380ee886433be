#include "oracle_sql/meaning/set_functions.h"

#include <algorithm>
#include <string>

namespace oracle_sql {

namespace {

constexpr SetFunction kSetFunctions[] = {
    // name, arguments, aggregate, window, needs order, keeps, result
    {"AVG", 1, 1, true, true, false, true, SetResult::Number},
    {"COUNT", 1, 1, true, true, false, true, SetResult::Whole},
    {"CUME_DIST", 0, 0, false, true, true, false, SetResult::Number},
    {"DENSE_RANK", 0, 0, false, true, true, false, SetResult::Whole},
    {"FIRST_VALUE", 1, 1, false, true, false, false, SetResult::LikeArgument},
    {"LAG", 1, 3, false, true, true, false, SetResult::LikeArgument},
    {"LAST_VALUE", 1, 1, false, true, false, false, SetResult::LikeArgument},
    {"LEAD", 1, 3, false, true, true, false, SetResult::LikeArgument},
    {"LISTAGG", 1, 2, true, true, false, false, SetResult::Text},
    {"MAX", 1, 1, true, true, false, true, SetResult::LikeArgument},
    {"MEDIAN", 1, 1, true, true, false, false, SetResult::NumberOrDate},
    {"MIN", 1, 1, true, true, false, true, SetResult::LikeArgument},
    {"NTH_VALUE", 2, 2, false, true, false, false, SetResult::LikeArgument},
    {"NTILE", 1, 1, false, true, true, false, SetResult::Whole},
    {"PERCENTILE_CONT", 1, 1, true, true, false, false, SetResult::NumberOrDateOfOrder},
    {"PERCENTILE_DISC", 1, 1, true, true, false, false, SetResult::LikeOrder},
    {"PERCENT_RANK", 0, 0, false, true, true, false, SetResult::Number},
    {"RANK", 0, 0, false, true, true, false, SetResult::Whole},
    {"RATIO_TO_REPORT", 1, 1, false, true, false, false, SetResult::Number},
    {"ROW_NUMBER", 0, 0, false, true, true, false, SetResult::Whole},
    {"STDDEV", 1, 1, true, true, false, true, SetResult::Number},
    {"SUM", 1, 1, true, true, false, true, SetResult::Number},
    {"VARIANCE", 1, 1, true, true, false, true, SetResult::Number},
};

/// Oracle's functions up to release 11.2 by name, a blank around each: what is not in a table of functions is
/// told as missing here and not as a mistake of the statement.
constexpr std::string_view kOracleFunctions =
    " ACOS APPENDCHILDXML ASCIISTR ASIN ATAN ATAN2 BFILENAME BIN_TO_NUM CARDINALITY CHARTOROWID CLUSTER_ID"
    " CLUSTER_PROBABILITY CLUSTER_SET COLLECT COMPOSE CONVERT CORR CORR_K CORR_S COS COSH COVAR_POP"
    " COVAR_SAMP CUBE_TABLE CURRENT_DATE CURRENT_TIMESTAMP CV DATAOBJ_TO_PARTITION DBTIMEZONE DECOMPOSE"
    " DELETEXML DEPTH DEREF DUMP EMPTY_BLOB EMPTY_CLOB EXISTSNODE EXTRACTVALUE FEATURE_ID FEATURE_SET"
    " FEATURE_VALUE FIRST FROM_TZ GROUPING_ID GROUP_ID INSERTCHILDXML INSERTCHILDXMLAFTER"
    " INSERTCHILDXMLBEFORE INSERTXMLAFTER INSERTXMLBEFORE INSTR2 INSTR4 INSTRC ITERATION_NUMBER LAST"
    " LENGTH2 LENGTH4 LENGTHC LOCALTIMESTAMP MAKE_REF NANVL NCHR NEW_TIME NLSSORT NLS_CHARSET_DECL_LEN"
    " NLS_CHARSET_ID NLS_CHARSET_NAME NLS_INITCAP NLS_LOWER NLS_UPPER NUMTODSINTERVAL NUMTOYMINTERVAL"
    " ORA_DST_AFFECTED ORA_DST_CONVERT ORA_DST_ERROR ORA_HASH PATH POWERMULTISET"
    " POWERMULTISET_BY_CARDINALITY PREDICTION PREDICTION_BOUNDS PREDICTION_COST PREDICTION_DETAILS"
    " PREDICTION_PROBABILITY PREDICTION_SET PRESENTNNV PRESENTV PREVIOUS RAWTONHEX REF REFTOHEX"
    " REGEXP_COUNT REGEXP_INSTR REGEXP_LIKE REGEXP_REPLACE REGEXP_SUBSTR REGR_AVGX REGR_AVGY REGR_COUNT"
    " REGR_INTERCEPT REGR_R2 REGR_SLOPE REGR_SXX REGR_SXY REGR_SYY ROWIDTOCHAR ROWIDTONCHAR"
    " SCN_TO_TIMESTAMP SESSIONTIMEZONE SET SIN SINH SOUNDEX STATS_BINOMIAL_TEST STATS_CROSSTAB"
    " STATS_F_TEST STATS_KS_TEST STATS_MODE STATS_MW_TEST STATS_ONE_WAY_ANOVA STATS_T_TEST_INDEP"
    " STATS_T_TEST_INDEPU STATS_T_TEST_ONE STATS_T_TEST_PAIRED STATS_WSR_TEST STDDEV_POP STDDEV_SAMP"
    " SUBSTR2 SUBSTR4 SUBSTRC SYSTIMESTAMP SYS_CONNECT_BY_PATH SYS_CONTEXT SYS_DBURIGEN SYS_EXTRACT_UTC"
    " SYS_GUID SYS_OP_ZONE_ID SYS_TYPEID SYS_XMLAGG SYS_XMLGEN TAN TANH TIMESTAMP_TO_SCN TO_BINARY_DOUBLE"
    " TO_BINARY_FLOAT TO_BLOB TO_CLOB TO_DSINTERVAL TO_LOB TO_MULTI_BYTE TO_NCHAR TO_NCLOB TO_SINGLE_BYTE"
    " TO_TIMESTAMP TO_TIMESTAMP_TZ TO_YMINTERVAL TREAT TZ_OFFSET UID UNISTR UPDATEXML USER USERENV VALUE"
    " VAR_POP VAR_SAMP VSIZE WIDTH_BUCKET WM_CONCAT XMLAGG XMLCAST XMLCDATA XMLCOLATTVAL XMLCOMMENT"
    " XMLCONCAT XMLDIFF XMLELEMENT XMLEXISTS XMLFOREST XMLISVALID XMLPARSE XMLPATCH XMLPI XMLQUERY XMLROOT"
    " XMLSEQUENCE XMLSERIALIZE XMLTABLE XMLTRANSFORM ";

}  // namespace

const SetFunction* findSetFunction(std::string_view name) {
  const auto* found = std::find_if(std::begin(kSetFunctions), std::end(kSetFunctions),
                                   [&](const SetFunction& f) { return f.name == name; });
  return found == std::end(kSetFunctions) ? nullptr : found;
}

bool isOracleFunction(std::string_view name) {
  return kOracleFunctions.find(" " + std::string(name) + " ") != std::string_view::npos;
}

}  // namespace oracle_sql
