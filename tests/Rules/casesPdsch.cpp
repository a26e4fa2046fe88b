#include "ruleCases.h"

namespace test
{

void pdschCases(CaseTable&) {}

} // namespace test
