#include "rules.h"

namespace rules
{

constinit const RuleGroup ssbRules = {nullptr, 0};

} // namespace rules
