// What breaks a constraint of the ASN.1 or a rule of its encoding.
#pragma once

#include "findings.h"
#include "message.h"
#include "messageFindings.h"

namespace tool
{

// Of a message that could not be read only why; `given` is what it was read from.
std::vector<Finding> encodingFindings(const Message& message, const Given& given);

Finding asFinding(page::MessageFinding&& found);

} // namespace tool
