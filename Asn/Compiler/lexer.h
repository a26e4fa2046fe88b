// Splits the schema's text into tokens (X.680 clause 12, as far as the schema needs it). Comments go, but for
// annotations: comments that begin with the word Identity, Need, Cond or Change. Their words stand between two tokens
// "--".
#pragma once

#include "diagnostics.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace asncomp
{

enum class TokenKind
{
    Word,   // identifier, type reference or keyword
    Number, // value holds it
    Punctuation,
    End
};

struct Token
{
    TokenKind kind = TokenKind::End;
    std::string text;
    std::int64_t value = 0;
    Location at;
};

// Always ends with an End token.
std::vector<Token> tokenize(std::string_view source, Diagnostics& diagnostics);

} // namespace asncomp
