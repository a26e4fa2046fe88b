// What the records' description says of a field.
#pragma once

#include "session.h"

#include <string>

namespace tool
{

// Tells of a path in the record, of a structure, of a mask's bit or of a field's name, of several that have it where
// they are. False when there is none. Throws PathError.
bool explainField(Session& session, const std::string& path);

} // namespace tool
