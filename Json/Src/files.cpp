#include "files.h"

#include "asn1FromText.h"

#include <filesystem>
#include <fstream>

namespace text
{

std::string besideFile(std::string_view file, std::string_view name)
{
    return (std::filesystem::path(file).parent_path() / name).string();
}

bool readFile(const std::string& name, std::string& content, std::string& why)
{
    std::error_code error;
    const auto size = std::filesystem::file_size(name, error);
    std::ifstream stream(name, std::ios::binary);
    if (error || !stream || size > ASN1_MAX_TEXT)
    {
        why = error ? ": " + error.message() : "";
        return false;
    }
    content.resize(static_cast<std::size_t>(size));
    stream.read(content.data(), static_cast<std::streamsize>(size));
    content.resize(static_cast<std::size_t>(stream.gcount()));
    return true;
}

} // namespace text
