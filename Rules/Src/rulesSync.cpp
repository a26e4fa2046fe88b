#include "rules.h"

namespace rules
{

constinit const RuleGroup syncRules = {nullptr, 0};

} // namespace rules
