#include "ruleCases.h"

namespace test
{

void macCases(CaseTable&) {}

} // namespace test
