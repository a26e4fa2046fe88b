#include "messageTypes.h"

#include "nearest.h"
#include "session.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace tool
{

const RtxPdu* findType(std::string_view name)
{
    const auto* const found =
        std::find_if(std::begin(rtxPdus), std::end(rtxPdus), [&](const RtxPdu& pdu) { return pdu.name == name; });
    return found == std::end(rtxPdus) ? nullptr : found;
}

const RtxPdu& typeNamed(std::string_view name)
{
    if (const RtxPdu* const found = findType(name))
    {
        return *found;
    }
    std::vector<std::string_view> names;
    for (const RtxPdu& pdu : rtxPdus)
    {
        names.emplace_back(pdu.name);
    }
    const auto close = text::nearest(name, names);
    throw Failure(Exit::Usage, "there is no type '" + std::string(name) + "'" +
                                   (close ? "; did you mean " + std::string(*close) + "?" : ""));
}

} // namespace tool
