#include "rules.h"

namespace rules
{

constinit const RuleGroup pdschRules = {nullptr, 0};

} // namespace rules
