// Runs a fuzzer's entry on the files that are named, and on those in the folders that are named: the corpus as a test,
// with any compiler.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace
{

bool replay(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (!file.good() && !file.eof())
    {
        (void)std::fprintf(stderr, "%s: cannot be read\n", path.c_str());
        return false;
    }
    const std::vector<uint8_t> octets(text.begin(), text.end());
    (void)LLVMFuzzerTestOneInput(octets.data(), octets.size());
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    unsigned count = 0;
    for (int i = 1; i < argc; ++i)
    {
        const std::filesystem::path path = argv[i];
        std::vector<std::filesystem::path> files;
        std::error_code error;
        if (std::filesystem::is_directory(path, error))
        {
            for (const auto& entry : std::filesystem::directory_iterator(path, error))
            {
                files.push_back(entry.path());
            }
        }
        else
        {
            files.push_back(path);
        }
        for (const auto& file : files)
        {
            if (!replay(file))
            {
                return 1;
            }
            ++count;
        }
    }
    (void)std::printf("%u inputs replayed\n", count);
    return count != 0 ? 0 : 1;
}
