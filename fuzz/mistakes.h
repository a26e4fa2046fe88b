// What the fuzzers of texts share.
#ifndef MISTAKES_H
#define MISTAKES_H

#include "asn1FromText.h"

#include <algorithm>
#include <cstring>

#include "require.h"

namespace fuzz
{

// Holds each mistake in a text against the text.
class Mistakes
{
public:
    Mistakes(const char* text, size_t length) : text_(text), length_(length) {}

    void expectInPlace(const Asn1Mistake& mistake)
    {
        require(mistake.offset >= last_ && mistake.offset <= length_, "a mistake out of its place");
        last_ = mistake.offset;
        const auto lines = std::count(text_, text_ + mistake.offset, '\n');
        require(mistake.line == static_cast<OSUINT32>(lines) + 1 && mistake.column >= 1 &&
                    mistake.column <= mistake.offset + 1,
                "a mistake's line or column");
        const size_t length = std::strlen(mistake.words);
        require(length != 0 && length < 2000 && std::strchr(mistake.words, '\n') == nullptr, "the words of a mistake");
    }

private:
    const char* text_;
    size_t length_;
    size_t last_ = 0; // offset of the last mistake
};

} // namespace fuzz

#endif
