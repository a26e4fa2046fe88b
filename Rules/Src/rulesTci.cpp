#include "rules.h"

namespace rules
{

constinit const RuleGroup tciRules = {nullptr, 0};

} // namespace rules
