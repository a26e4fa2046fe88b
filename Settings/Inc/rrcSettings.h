// What is known besides a CellGroupConfig, in words: "band" is "n78", "carrier" is "30:0:273". The settings of the
// command-line tool, its project files and other languages become the RrcRuleContext of rules, meanings and pictures.
// Valid C11 and C++20; the library is a host's, of the C++ standard library. Nothing is thrown, read from or written to
// files. Calls with different settings share nothing.
#ifndef RRCSETTINGS_H
#define RRCSETTINGS_H

#include "rrcContext.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

// What can be set. Lives as long as the program.
typedef struct RrcSetting
{
    const char* name;        // "tdd-pattern"
    const char* argument;    // what its value is: "PATTERN"; "FILE": the text of such a file; empty: it has no value
    const char* group;       // settings of one group say the same thing, and exclude each other
    const char* description; // one line without line end
    OSBOOL isRepeatable;     // it may be set more than once, each time with one more value
} RrcSetting;

// All settings, in the order in which help has them: 0 <= index < rrcSettingCount(), else null.
OSUINT32 rrcSettingCount(void);
const RrcSetting* rrcSettingAt(OSUINT32 index);
// By its name; null where there is none.
const RrcSetting* rrcSettingByName(const char* name);

// Settings that somebody makes.
typedef struct RrcSettings RrcSettings;

// Without anything set; null without memory. The caller frees them.
RrcSettings* rrcSettingsNew(void);
// With the context that was made of them. Null is left alone.
void rrcSettingsFree(RrcSettings* settings);

// Sets one. `value` has `length` octets, which are passed over where the setting has no value. "rach" is JER of a
// RACH-ConfigCommon, "capability" a JSON object with the names and values of TS 38.306. With null, and of "previous"
// always, only the agreement with the other settings is looked at: what the UE has before is a tree of the caller's,
// which he puts into his copy of the context. `origin` is what a refusal begins with, such as "--band"; null: the name.
// Returns 0; or -1, and the settings are of no more use. `error` then gets one line without line end that says what is
// wrong and what would be right, always terminated and as much of it as `errorSize` octets hold; may be null where that
// is 0.
int rrcSettingsSet(RrcSettings* settings, const char* name, const char* value, size_t length, const char* origin,
                   char* error, size_t errorSize);

// What was set, after a look at what must fit each other: a band has one frequency range and one duplex mode. Lives,
// and stays as it is, until the settings are changed or freed; its `previous` is null. Returns null, with `error` as
// above, where they do not fit.
const RrcRuleContext* rrcSettingsContext(RrcSettings* settings, char* error, size_t errorSize);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
