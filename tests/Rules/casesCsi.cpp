#include "ruleCases.h"

namespace test
{

void csiCases(CaseTable&) {}

} // namespace test
