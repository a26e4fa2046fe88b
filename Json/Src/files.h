// The files that texts include: a program without a file system has its own.
#pragma once

#include <string>
#include <string_view>

namespace text
{

// The name of a file beside another one, unless it is absolute.
std::string besideFile(std::string_view file, std::string_view name);

// Reads a file of at most ASN1_MAX_TEXT octets. Else false, and why where the system says it, with a ": " before it.
bool readFile(const std::string& name, std::string& content, std::string& why);

} // namespace text
