#include "assets.h"

namespace playground
{

std::string_view program()
{
    return {};
}

} // namespace playground
