#include "form.h"

#include "nearest.h"

#include <algorithm>
#include <array>

namespace tool
{

namespace
{

// In the order of Form.
constexpr std::array<std::string_view, 10> names = {"binary", "hex", "hexdump", "c-array", "escaped",
                                                    "base64", "jer", "record",  "flat",    "log"};

} // namespace

std::string_view formName(Form form)
{
    return names[static_cast<std::size_t>(form)];
}

std::optional<Form> formNamed(std::string_view name)
{
    const auto* const found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
    {
        return std::nullopt;
    }
    return static_cast<Form>(found - names.begin());
}

std::string unknownForm(std::string_view name)
{
    const std::string text = "unknown form '" + std::string(name.substr(0, 40)) + "': ";
    if (const auto near = text::nearest(name, names))
    {
        return text + "did you mean '" + std::string(*near) + "'?";
    }
    std::string all;
    for (const auto known : names)
    {
        all += (all.empty() ? "" : ", ") + std::string(known);
    }
    return text + "the forms are " + all;
}

} // namespace tool
