#include "rules.h"

namespace rules
{

constinit const RuleGroup scellRules = {nullptr, 0};

} // namespace rules
