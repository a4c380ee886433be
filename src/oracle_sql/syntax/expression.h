// Expressions and conditions of a statement, as they are written, with what resolving finds out about them.
#pragma once

#include "oracle_sql/syntax/call.h"
#include "oracle_sql/syntax/condition_nodes.h"
#include "oracle_sql/syntax/value_nodes.h"
