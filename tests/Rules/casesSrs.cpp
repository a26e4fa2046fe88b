#include "ruleCases.h"

namespace test
{

void srsCases(CaseTable&) {}

} // namespace test
