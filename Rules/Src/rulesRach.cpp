#include "rules.h"

namespace rules
{

constinit const RuleGroup rachRules = {nullptr, 0};

} // namespace rules
