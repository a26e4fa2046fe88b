#include "rules.h"

namespace rules
{

constinit const RuleGroup pdcchRules = {nullptr, 0};

} // namespace rules
