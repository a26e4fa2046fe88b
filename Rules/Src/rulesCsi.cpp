#include "rules.h"

namespace rules
{

constinit const RuleGroup csiRules = {nullptr, 0};

} // namespace rules
