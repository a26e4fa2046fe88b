#include "ruleCases.h"

namespace test
{

void tciCases(CaseTable&) {}

} // namespace test
