#include "rules.h"

namespace rules
{

constinit const RuleGroup genRules = {nullptr, 0};

} // namespace rules
