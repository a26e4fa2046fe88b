// What this build is.
#pragma once

namespace tool
{

extern const char* const version;  // "0.1.0"
extern const char* const standard; // the schema's: "TS 38.331 V15.6.0"
extern const char* const release;  // the standard's: "Release 15"
extern const char* const commit;   // the source's, with "+" when it was changed since; empty outside a repository

} // namespace tool
