// Builds the syntax tree of one module. The subset is what the schema uses; everything else is refused with a message.
#pragma once

#include "ast.h"
#include "lexer.h"

namespace asncomp
{

ast::Module parse(const std::vector<Token>& tokens, Diagnostics& diagnostics);

} // namespace asncomp
