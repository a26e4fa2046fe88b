#include "rules.h"

namespace rules
{

constinit const RuleGroup srsRules = {nullptr, 0};

} // namespace rules
