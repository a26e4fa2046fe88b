#include "rules.h"

namespace rules
{

constinit const RuleGroup tddRules = {nullptr, 0};

} // namespace rules
