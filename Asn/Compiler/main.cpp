// asncomp: generates the C types, the descriptors and the PER encoder from the ASN.1 schema.
#include "compiler.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

namespace
{

constexpr const char* usage =
    "usage: asncomp --schema FILE --inc DIR --src DIR --pdu TYPE ... [--except TYPE ...] [--usual FILE]\n"
    "               [--base NAME [--table]]\n"
    "  --schema  the ASN.1 module\n"
    "  --inc     folder for the public header\n"
    "  --src     folder for the other files\n"
    "  --pdu     a type that gets an encoder, a decoder and a printer; 'all' for every named one\n"
    "  --except  a type that 'all' leaves out\n"
    "  --usual   a line TYPE.MEMBER for each optional member and alternative that usual messages carry: the encoder's\n"
    "            code of the others is kept out of their way\n"
    "  --base    write only NAME.h and NAME.cpp with the functions of these types\n"
    "  --table   with a table of these types, those that 'all' leaves out included\n";

int fail(const std::string& message)
{
    std::cerr << "asncomp: " << message << '\n';
    return 1;
}

bool read(const std::string& path, std::string& text)
{
    std::ifstream input(path, std::ios::binary);
    if (!input)
    {
        fail("cannot read " + path + ": " + std::strerror(errno));
        return false;
    }
    text.assign(std::istreambuf_iterator<char>(input), {});
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    std::string schema;
    std::string inc;
    std::string src;
    std::string usual;
    asncomp::Options options;
    for (int i = 1; i < argc; ++i)
    {
        const std::string option = argv[i];
        if (option == "--help")
        {
            std::cout << usage;
            return 0;
        }
        if (option == "--table")
        {
            options.table = true;
            continue;
        }
        if (i + 1 == argc)
        {
            std::cerr << usage;
            return 2;
        }
        const std::string value = argv[++i];
        if (option == "--schema")
        {
            schema = value;
        }
        else if (option == "--inc")
        {
            inc = value;
        }
        else if (option == "--src")
        {
            src = value;
        }
        else if (option == "--usual")
        {
            usual = value;
        }
        else if (option == "--base")
        {
            options.base = value;
        }
        else if (option == "--pdu")
        {
            options.pdus.push_back(value);
        }
        else if (option == "--except")
        {
            options.except.push_back(value);
        }
        else
        {
            std::cerr << usage;
            return 2;
        }
    }
    if (schema.empty() || inc.empty() || src.empty() || options.pdus.empty() || (options.table && options.base.empty()))
    {
        std::cerr << usage;
        return 2;
    }

    std::string text;
    std::string usualText;
    if (!read(schema, text) || (!usual.empty() && !read(usual, usualText)))
    {
        return 1;
    }
    std::istringstream lines(usualText);
    for (std::string line; std::getline(lines, line);)
    {
        options.usual.push_back(line);
    }
    asncomp::Diagnostics diagnostics(schema);
    const auto files = asncomp::compile(std::filesystem::path(schema).filename().string(), text, options, diagnostics);
    for (const std::string& message : diagnostics.messages())
    {
        std::cerr << message << '\n';
    }
    for (const asncomp::OutputFile& file : files)
    {
        const bool isPublic =
            file.name == "NR-RRC-Definitions.h" || (!options.base.empty() && file.name == options.base + ".h");
        const auto path = std::filesystem::path(isPublic ? inc : src) / file.name;
        std::ofstream output(path, std::ios::binary);
        output << file.text;
        if (!output.flush())
        {
            return fail("cannot write " + path.string() + ": " + std::strerror(errno));
        }
    }
    return diagnostics.failed() ? 1 : 0;
}
