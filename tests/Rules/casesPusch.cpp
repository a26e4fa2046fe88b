#include "ruleCases.h"

namespace test
{

void puschCases(CaseTable&) {}

} // namespace test
