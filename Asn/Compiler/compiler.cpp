#include "compiler.h"

#include "emitter.h"
#include "parser.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <iterator>
#include <set>

namespace asncomp
{
namespace
{

// FNV-1a, 64 bits.
std::string hashOf(std::string_view text)
{
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char c : text)
    {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    }
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016" PRIx64, hash);
    return digits;
}

void markUsual(Model& model, const std::vector<std::string>& names, Diagnostics& diagnostics)
{
    std::set<std::string> left(names.begin(), names.end());
    for (Type* const type : model.types)
    {
        for (Member& member : type->members)
        {
            const bool listed = left.erase(type->asnName + "." + member.asnName) != 0;
            member.usual = listed || (type->kind == Kind::Sequence && !member.optional);
        }
    }
    for (const std::string& name : left)
    {
        diagnostics.error({}, "there is no member '" + name + "'");
    }
}

} // namespace

std::vector<OutputFile> compile(const std::string& schemaName, std::string_view schema, const Options& options,
                                Diagnostics& diagnostics)
{
    const std::vector<Token> tokens = tokenize(schema, diagnostics);
    const ast::Module module = diagnostics.failed() ? ast::Module{} : parse(tokens, diagnostics);
    if (diagnostics.failed())
    {
        return {};
    }
    Model model = resolve(module, diagnostics);
    if (!options.usual.empty())
    {
        markUsual(model, options.usual, diagnostics);
    }
    if (diagnostics.failed())
    {
        return {};
    }
    const std::string typesHeader = "NR-RRC-Definitions.h";
    Pdus selected{{}, options.base.empty() ? typesHeader : options.base + ".h", {}};
    const auto isExcepted = [&](const Type* type)
    {
        return std::find(options.except.begin(), options.except.end(), type->asnName) != options.except.end();
    };
    for (const std::string& name : options.pdus)
    {
        if (name == "all")
        {
            std::copy_if(model.types.begin(), model.types.end(), std::back_inserter(selected.types),
                         [&](const Type* type) { return type->canBePdu() && !isExcepted(type); });
            continue;
        }
        const Type* type = model.find(name);
        if (type == nullptr || !type->canBePdu())
        {
            diagnostics.error({}, "there is no type '" + name + "' with a value");
            continue;
        }
        selected.types.push_back(type);
    }
    if (diagnostics.failed())
    {
        return {};
    }
    if (options.table)
    {
        const auto isListed = [&](const Type* type)
        {
            return isExcepted(type) ||
                   std::find(selected.types.begin(), selected.types.end(), type) != selected.types.end();
        };
        std::copy_if(model.types.begin(), model.types.end(), std::back_inserter(selected.table), isListed);
    }
    const Origin origin{schemaName, hashOf(schema)};
    if (!options.base.empty())
    {
        return {{selected.header, emitPduHeader(origin, selected, typesHeader)},
                {options.base + ".cpp", emitEncoder(model, origin, selected)}};
    }
    return {{typesHeader, emitTypes(model, origin, selected)},
            {"NR-RRC-Tables.h", emitTablesHeader(model, origin)},
            {"NR-RRC-Tables.cpp", emitTables(model, origin, typesHeader)},
            {"NR-RRC-Encoder.cpp", emitEncoder(model, origin, selected)}};
}

} // namespace asncomp
