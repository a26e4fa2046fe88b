#include "rules.h"

namespace rules
{

constinit const RuleGroup pucchRules = {nullptr, 0};

} // namespace rules
