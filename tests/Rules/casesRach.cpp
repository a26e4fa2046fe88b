#include "ruleCases.h"

namespace test
{

void rachCases(CaseTable&) {}

} // namespace test
