// What the default composers of the distributed unit share. A setup alternative that could not be composed whole is
// taken back: the encoder refuses a choice without an alternative, so nothing goes out cut short.
#ifndef DUSETUP_H
#define DUSETUP_H

#include <algorithm>
#include <limits>

#include "compose.h"

namespace du
{

// Copies a number into a narrower member; one too big for it becomes the member's biggest, which is out of range.
template <typename Member>
void assignNarrow(Member& member, UINT16 value)
{
    member = static_cast<Member>(std::min<unsigned>(value, std::numeric_limits<Member>::max()));
}

template <typename Choice, typename Record>
INT32 setup(OSCTXT* pAsnCxt, Choice* pChoice, Record* pRecord,
            INT32 (*composer)(OSCTXT*, std::remove_pointer_t<decltype(pChoice->u.setup)>*, Record*))
{
    auto* const pSetup = compose::choose(pAsnCxt, pChoice, compose::setupTag, pChoice->u.setup);
    if (pSetup == nullptr || composer(pAsnCxt, pSetup, pRecord) != VOS_OK)
    {
        pChoice->t = 0;
        return VOS_ERROR;
    }
    return VOS_OK;
}

} // namespace du

#endif
