#include "rules.h"

namespace rules
{

constinit const RuleGroup puschRules = {nullptr, 0};

} // namespace rules
