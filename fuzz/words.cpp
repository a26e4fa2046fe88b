// words FOLDER: writes the fuzzers' dictionaries: the names of the schema, the records, the rules and the settings,
// each from its own table, and the marks of the forms of input. Files of libFuzzer's, NAME.dict for the fuzzer NAME.
#include "NR-RRC-Pdus.h"
#include "rrcRecordCheck.h"
#include "rrcRecordType.h"
#include "rrcRules.h"
#include "rrcSettings.h"
#include "rtxType.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using Words = std::set<std::string>;

void add(Words& to, std::initializer_list<const char*> words)
{
    to.insert(words.begin(), words.end());
}

void add(Words& to, const Words& words)
{
    to.insert(words.begin(), words.end());
}

Words typeNames()
{
    Words words;
    for (const RtxPdu& pdu : rtxPdus)
    {
        words.insert(pdu.name);
    }
    return words;
}

// Members, alternatives and values, of all types that a cell group leads to.
class Names
{
public:
    Names()
    {
        gather(*asn1Type_CellGroupConfig());
    }

    const Words& members() const
    {
        return members_;
    }
    const Words& values() const
    {
        return values_;
    }

private:
    void gather(const RtxType& type)
    {
        if (!seen_.insert(&type).second)
        {
            return;
        }
        if (type.kind == rtx::Kind::Enumerated)
        {
            for (int64_t i = 0; i <= type.upper; ++i)
            {
                values_.insert(type.names[i]);
            }
            return;
        }
        if (type.kind == rtx::Kind::List || type.kind == rtx::Kind::Array)
        {
            gather(type.element());
            return;
        }
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            members_.insert(type.names[i]);
            gather(*type.members[i].type);
        }
    }

    std::set<const RtxType*> seen_;
    Words members_;
    Words values_;
};

// The records' names, and those of their fields and bits.
struct RecordNames
{
    RecordNames()
    {
        for (UINT32 i = 0; i < rrcRecordTypeCount; ++i)
        {
            const RrcRecordType& type = *rrcRecordTypes[i];
            types.insert(type.name);
            for (UINT32 field = 0; field < type.fieldCount; ++field)
            {
                fields.insert(type.fields[field].name);
            }
            for (UINT32 bit = 0; bit < type.bitCount; ++bit)
            {
                bits.insert(type.bits[bit].name);
            }
        }
    }

    Words types;
    Words fields;
    Words bits;
};

// Numbers at which something begins, the low octet first as the fuzzers read them: bits of masks and all of them, and
// what is behind the last.
Words decisions()
{
    Words words;
    for (UINT32 i = 0; i < rrcRecordTypeCount; ++i)
    {
        const RrcRecordType& type = *rrcRecordTypes[i];
        for (UINT32 mask = 0; mask < type.fieldCount; ++mask)
        {
            UINT64 all = 0;
            for (UINT32 bit = 0; bit < type.bitCount; ++bit)
            {
                all |= type.bits[bit].mask == mask ? UINT64{1} << type.bits[bit].number : 0;
            }
            std::string octets;
            for (UINT32 octet = 0; octet < type.fields[mask].size && all != 0; ++octet)
            {
                octets += static_cast<char>(all >> 8 * octet & 0xFF);
            }
            if (!octets.empty())
            {
                words.insert(octets);
            }
        }
    }
    return words;
}

// Each type's value with all numbers 0, as far as there is one: pieces of messages.
Words pieces()
{
    Words words;
    OSCTXT ctxt;
    (void)rtxInitContext(&ctxt);
    for (const RtxPdu& pdu : rtxPdus)
    {
        std::vector<std::max_align_t> value(pdu.type->size / sizeof(std::max_align_t) + 1);
        std::array<OSOCTET, 256> octets{};
        (void)pu_setBuffer(&ctxt, octets.data(), octets.size(), 0);
        if (pdu.encode(&ctxt, value.data()) == RTX_OK && pu_getMsgLen(&ctxt) > 1)
        {
            words.emplace(octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(pu_getMsgLen(&ctxt)));
        }
        rtxErrReset(&ctxt);
    }
    rtFreeContext(&ctxt);
    return words;
}

Words ruleIds()
{
    Words words;
    for (OSUINT32 i = 0; i < rrcRuleCount(); ++i)
    {
        words.insert(rrcRuleAt(i)->id);
    }
    for (OSUINT32 i = 0; i < rrcRecordRuleCount; ++i)
    {
        words.insert(rrcRecordRules[i]->id);
    }
    return words;
}

Words settingNames()
{
    Words words;
    for (OSUINT32 i = 0; i < rrcSettingCount(); ++i)
    {
        words.insert(rrcSettingAt(i)->name);
    }
    return words;
}

std::string escaped(const std::string& word)
{
    std::string text;
    for (const char c : word)
    {
        const auto octet = static_cast<unsigned char>(c);
        constexpr const char* digits = "0123456789abcdef";
        if (octet < 0x20 || octet > 0x7E)
        {
            text += {'\\', 'x', digits[octet >> 4], digits[octet & 15]};
        }
        else
        {
            text += c == '"' || c == '\\' ? std::string{'\\', c} : std::string{c};
        }
    }
    return text;
}

bool write(const std::filesystem::path& folder, const std::string& name, const Words& words)
{
    std::ofstream file(folder / (name + ".dict"));
    file << "# Written by fuzz/words.cpp; the target cellgroupcfg_fuzz_words makes it again.\n";
    for (const std::string& word : words)
    {
        if (!word.empty())
        {
            file << '"' << escaped(word) << "\"\n";
        }
    }
    return file.good();
}

bool writeAll(const std::filesystem::path& folder)
{
    const Names names;
    const RecordNames records;

    Words jer = {"true", "false", "null", "{}", "[]", "\":", "CellGroupConfig.", " = "};
    add(jer, names.members());
    add(jer, names.values());

    Words record = {"true", "false", "null", "{}", "[]", "\":", "$include"};
    add(record, records.fields);
    add(record, records.bits);
    add(record, names.values());

    Words schema = typeNames();
    add(schema, {"::=",          "SEQUENCE",
                 "CHOICE",       "ENUMERATED",
                 "INTEGER",      "BOOLEAN",
                 "BIT STRING",   "OF",
                 "SIZE",         "OPTIONAL",
                 "NULL",         "DEFAULT",
                 "...",          "[[",
                 "]]",           "..",
                 "-- Need M",    "-- Need R",
                 "-- Cond ",     "BEGIN",
                 "END",          "AUTOMATIC TAGS",
                 "DEFINITIONS",  "IMPORTS",
                 "OCTET STRING", "SetupRelease { ",
                 "CONTAINING"});

    Words forms = {"0x",   "\\x", "{",  "}",       "==",  "00000000  ", "0000000 ", "00000000: ",  "  |",
                   "\\0x", "*\n", "-_", "uint8_t", "b\"", "#",          "\xFF\xFE", "\xEF\xBB\xBF"};
    add(forms, {"CellGroupConfig.cellGroupId = 1", "{\"cellGroupId\": 1}", "{\"bitMask\": 1}"});

    Words message = forms;
    add(message, names.members());
    add(message, records.fields);

    Words settings = settingNames();
    add(settings,
        {"=",      "\n",     "n78",  "n257", "30:0:273",    "1099:30",    "10000000", "0x80",     "30:ms5:7:6:2:4",
         "srb1",   "drb1",   ":dup", "none", "1:633312:30", ":csirs=0,1", "setup",    "reconfig", "sync",
         "resume", "reestab"});

    Words project = settingNames();
    add(project, ruleIds());
    add(project, {"[context]", "[[silence]]", "rule = ", "path = ", "reason = ", "\"", "\"\"\"", "'''", " = true", "**",
                  "[\"", "\"]"});

    Words find = names.members();
    add(find, typeNames());
    add(find, records.types);
    add(find, records.fields);
    add(find, {"[]", "[0]", ".", "**", "*", "?", "CellGroupConfig."});

    Words capture;
    for (const std::string_view magic :
         {std::string_view("\xD4\xC3\xB2\xA1\x02\x00\x04\x00", 8),
          std::string_view("\xA1\xB2\xC3\xD4\x00\x02\x00\x04", 8),
          std::string_view("\x4D\x3C\xB2\xA1\x02\x00\x04\x00", 8), std::string_view("\x0A\x0D\x0D\x0A", 4),
          std::string_view("\x4D\x3C\x2B\x1A", 4), std::string_view("\x1A\x2B\x3C\x4D", 4),
          std::string_view("\x01\x00\x00\x00", 4), std::string_view("\x06\x00\x00\x00", 4),
          std::string_view("\x03\x00\x00\x00", 4), std::string_view("\xFC\x00\x00\x00", 4)})
    {
        capture.emplace(magic);
    }

    const Words octets = pieces();
    const Words masks = decisions();
    bool isWritten = true;
    for (const auto& [name, words] : std::initializer_list<std::pair<const char*, const Words&>>{{"capture", capture},
                                                                                                 {"compare", octets},
                                                                                                 {"compiler", schema},
                                                                                                 {"decode", octets},
                                                                                                 {"decompose", octets},
                                                                                                 {"delta", octets},
                                                                                                 {"draw", octets},
                                                                                                 {"entry", masks},
                                                                                                 {"explain", octets},
                                                                                                 {"find", find},
                                                                                                 {"input", forms},
                                                                                                 {"json", jer},
                                                                                                 {"message", message},
                                                                                                 {"page", octets},
                                                                                                 {"project", project},
                                                                                                 {"record", record},
                                                                                                 {"rule", octets},
                                                                                                 {"settings", settings},
                                                                                                 {"tree", octets}})
    {
        isWritten = write(folder, name, words) && isWritten;
    }
    return isWritten;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        (void)std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    return writeAll(argv[1]) ? 0 : 1;
}
