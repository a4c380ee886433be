// Expressions and conditions of a statement, as they are written, with what resolving finds out about them.
#pragma once

#include "oracle_sql/call.h"
#include "oracle_sql/condition_nodes.h"
#include "oracle_sql/value_nodes.h"
