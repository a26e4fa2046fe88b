#include "ruleCases.h"

namespace test
{

void phyCases(CaseTable&) {}

} // namespace test
