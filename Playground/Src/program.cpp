#include "assets.h"

namespace playground
{

EMBED(program, PROGRAM)

} // namespace playground
