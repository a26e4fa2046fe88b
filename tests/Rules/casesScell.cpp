#include "ruleCases.h"

namespace test
{

void scellCases(CaseTable&) {}

} // namespace test
