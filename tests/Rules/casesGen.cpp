#include "ruleCases.h"

namespace test
{

void genCases(CaseTable&) {}

} // namespace test
