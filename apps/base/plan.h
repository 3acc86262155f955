#pragma once
// How a question would be run, in words: `select --plan`.
//
//   index 116 : « 00001001 »
//   index 117 : « 00001001 »
//   2 articles à regarder au plus

#include <string>

#include "data/query.h"
#include "data/query_plan.h"

namespace base {

std::string decrirePlan(const data::Query& question, const data::Plan& plan);

}  // namespace base
