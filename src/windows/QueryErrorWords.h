#pragma once

#include <QString>

#include "query/Query.h"

namespace lurkwell {

/// What is wrong with a query, in the user's words. Main thread.
QString QueryErrorWords(const QueryError& error);

}  // namespace lurkwell
