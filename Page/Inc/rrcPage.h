// Cell groups (TS 38.331 V15.6.0) as one HTML page that needs nothing else: the element tree beside the octets, what is
// wrong and what values mean. Valid C11 and C++20; the library is a host's, of the C++ standard library. Nothing is
// thrown, read from or written to files. Calls share nothing.
//
// A page makes no request: its style, its script and its data lie in it, and its Content-Security-Policy forbids the
// rest. All that comes from a message or a name is escaped.
#ifndef RRCPAGE_H
#define RRCPAGE_H

#include "rrcContext.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

// A message to be shown. All of it is the caller's.
typedef struct RrcPageMessage
{
    const char* name;      // where it comes from, such as a file's name; any octets
    const char* note;      // what it was recognised as; null: nothing
    const OSOCTET* octets; // a CellGroupConfig in unaligned PER, or what should be one
    size_t numocts;
} RrcPageMessage;

// A whole page, in UTF-8, with all there is to say about one message, or about two and their differences. `known` is
// what is known besides the messages, null: nothing; its `previous` is not read. Instead `held` is what the UE has
// before them: a CellGroupConfig in unaligned PER, of no octets: as `known` says otherwise. Returns 0 after one call of
// the sink with all of the text, or RTX_E_NULL without messages or sink and RTX_E_SIZE for other than one or two,
// RTX_E_HEAP without memory, without a call.
int rrcPage(const RrcPageMessage* messages, size_t count, const RrcRuleContext* known, const OSOCTET* held,
            size_t heldOctets, RtxPrintSink sink, void* arg);

#pragma GCC visibility pop

#ifdef __cplusplus
}

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace page
{

// A message to be shown.
struct Shown
{
    std::string name;                 // where it comes from, such as a file's name; any octets
    std::string note;                 // what it was recognised as; may be empty
    std::vector<std::uint8_t> octets; // a CellGroupConfig in unaligned PER, or what should be one
};

// An HTML fragment with all there is to say about one message, or about two and their differences, and with the data
// that the page's script shows it by. Empty of no message; of more than two the first ones are shown. `known` is what
// is known besides the messages, null: nothing; its `previous` is not read. Instead `held` is what the UE has before
// them: a CellGroupConfig in unaligned PER, empty: as `known` says otherwise.
std::string content(std::span<const Shown> messages, const RrcRuleContext* known,
                    std::span<const std::uint8_t> held = {});

// A whole page with that content, in UTF-8.
std::string document(std::span<const Shown> messages, const RrcRuleContext* known,
                     std::span<const std::uint8_t> held = {});

// A whole page around a body of HTML that is the caller's. `scripts` run behind it and behind the page's own script,
// whose function show(element) makes an element with a content inside alive.
std::string shell(std::string_view title, std::string_view body, std::string_view scripts);

} // namespace page
#endif

#endif
