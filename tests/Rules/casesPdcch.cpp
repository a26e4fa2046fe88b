#include "ruleCases.h"

namespace test
{

void pdcchCases(CaseTable&) {}

} // namespace test
