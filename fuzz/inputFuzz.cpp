// Recognises any input, in every form. What is accepted has content and says what it is, what is refused says why; the
// octets, written in hex, an array or base64, are recognised again when the form is said.
#include "input.h"
#include "octets.h"

#include <array>

#include "require.h"

using fuzz::require;

namespace
{

void requireSame(const std::string& text, tool::Form form, const std::vector<uint8_t>& octets)
{
    const auto again = tool::recognise(text, form);
    require(std::holds_alternative<tool::Input>(again) && std::get<tool::Input>(again).octets == octets, text.c_str());
}

void check(std::string_view raw, std::optional<tool::Form> as)
{
    const auto recognition = tool::recognise(raw, as);
    if (const auto* refusal = std::get_if<tool::Refusal>(&recognition))
    {
        require(!refusal->reason.empty(), "a refusal without reason");
        require((refusal->place.line == 0) == (refusal->place.column == 0), "half a place");
        require(refusal->place.line <= raw.size() + 1 && refusal->place.column <= 3 * raw.size() + 1, "no such place");
        return;
    }
    const auto& input = std::get<tool::Input>(recognition);
    require(!input.note.empty(), "no note");
    require(!as || input.form == *as, "another form than said");
    if (tool::isText(input.form))
    {
        require(input.octets.empty(), "text and octets");
        return;
    }
    require(!input.octets.empty() && input.text.empty(), "no octets");
    constexpr size_t most = 65536; // a dump that repeats a line gives far more than was read
    if (input.octets.size() > most)
    {
        return;
    }
    requireSame(tool::toHex(input.octets), tool::Form::Hex, input.octets);
    requireSame(tool::toCArray(input.octets, "x"), tool::Form::CArray, input.octets);
    requireSame(tool::toBase64(input.octets), tool::Form::Base64, input.octets);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string_view raw(reinterpret_cast<const char*>(data), size);
    check(raw, std::nullopt);
    constexpr int forms = static_cast<int>(tool::Form::LogLine) + 1;
    for (int form = 0; form < forms; ++form)
    {
        check(raw, static_cast<tool::Form>(form));
    }

    auto lines = tool::MessageLines::of(raw);
    if (auto* messages = std::get_if<tool::MessageLines>(&lines))
    {
        size_t last = 0;
        while (const auto line = messages->next())
        {
            require(line->number > last && !line->text.empty(), "a line out of order or empty");
            last = line->number;
        }
    }
    return 0;
}
