#include "ruleCases.h"

namespace test
{

void ssbCases(CaseTable&) {}

} // namespace test
