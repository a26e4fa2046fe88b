#include "rules.h"

namespace rules
{

constinit const RuleGroup phyRules = {nullptr, 0};

} // namespace rules
