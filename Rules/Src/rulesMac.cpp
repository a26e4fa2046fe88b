#include "rules.h"

namespace rules
{

constinit const RuleGroup macRules = {nullptr, 0};

} // namespace rules
